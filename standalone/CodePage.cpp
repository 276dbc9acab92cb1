// Code page conversion. The local code page of the stand-alone platform is
// UTF-8, so texts stay as they are.
#include "platform/CodePage.h"

#include "standalone/Fault.h"

std::string kIVOGlobalUtils::LOCTOUTF8(const std::string& strLocal)
{
    const bool bFault = standalone::armedFault<standalone::operation("kIVOGlobalUtils::LOCTOUTF8")>().has_value();
    return bFault ? std::string() : strLocal;
}

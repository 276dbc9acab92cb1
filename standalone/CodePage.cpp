// Code page conversion. The local code page of the stand-alone platform is
// UTF-8, so texts stay as they are.
#include "platform/CodePage.h"

#include "standalone/Fault.h"

std::string kIVOGlobalUtils::LOCTOUTF8(const std::string& strLocal)
{
    if (standalone::armedFault("kIVOGlobalUtils::LOCTOUTF8"))
        return {};
    return strLocal;
}

// Paths and environment of the open root. Without one every path is empty.
#include "platform/Paths.h"

#include "standalone/Answer.h"

#include <sys/stat.h>

using namespace standalone;

void NS_UTIL::EmfGetServerPath_DC(std::string& strPath)
{
    strPath = answerValue<operation("NS_UTIL::EmfGetServerPath_DC")>([](const StInventory& stInventory)
                                                                     { return stInventory.strRoot; });
}

void NS_UTIL::AppendDirSeparator(std::string& strPath)
{
    if (armedFault<operation("NS_UTIL::AppendDirSeparator")>())
        return;
    if (strPath.empty() || strPath.back() != '/')
        strPath += '/';
}

bool NS_UTIL::IsExists(const std::string& strPath)
{
    struct ::stat stStatus = {};
    return !armedFault<operation("NS_UTIL::IsExists")>() && ::stat(strPath.c_str(), &stStatus) == 0;
}

// The values stand in the inventory, so there is nothing to reload.
std::string ns_kivosdk_wrap::GetEnvValue(const std::string& strName, bool /*bReload*/, bool bExpand)
{
    return answerValue<operation("ns_kivosdk_wrap::GetEnvValue")>(
        [&](const StInventory& stInventory) { return stInventory.environment(strName, bExpand); });
}

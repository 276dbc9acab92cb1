// Paths and environment of the open root. Without one every path is empty.
#include "platform/Paths.h"

#include "standalone/Fault.h"
#include "standalone/Inventory.h"

#include <sys/stat.h>

using namespace standalone;

void NS_UTIL::EmfGetServerPath_DC(std::string& strPath)
{
    strPath.clear();
    if (armedFault("NS_UTIL::EmfGetServerPath_DC"))
        return;
    if (const auto pInventory = currentInventory())
        strPath = pInventory->strRoot;
}

void NS_UTIL::AppendDirSeparator(std::string& strPath)
{
    if (strPath.empty() || strPath.back() != '/')
        strPath += '/';
}

bool NS_UTIL::IsExists(const std::string& strPath)
{
    if (armedFault("NS_UTIL::IsExists"))
        return false;
    struct ::stat stStatus = {};
    return ::stat(strPath.c_str(), &stStatus) == 0;
}

// The values stand in the inventory, so there is nothing to reload.
std::string ns_kivosdk_wrap::GetEnvValue(const std::string& strName, bool /*bReload*/, bool bExpand)
{
    if (armedFault("ns_kivosdk_wrap::GetEnvValue"))
        return {};
    const auto pInventory = currentInventory();
    return pInventory == nullptr ? std::string() : pInventory->environment(strName, bExpand);
}

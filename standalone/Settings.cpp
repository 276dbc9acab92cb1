// Settings, configuration items and resources, answered from the inventory.
#include "platform/Settings.h"

#include "standalone/Fault.h"
#include "standalone/Inventory.h"
#include "standalone/ServerRoot.h"

using namespace standalone;

namespace
{
using TextMap = std::unordered_map<std::string, std::string>;

std::uint32_t readText(const TextMap StInventory::*pMap, const std::string& strName, std::string& strValue)
{
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return RESULT_NO_ROOT;
    const std::string* pValue = findValue((*pInventory).*pMap, strName);
    if (pValue == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    strValue = *pValue;
    return 0;
}
} // namespace

CDCSettingInfoTab* CDCSettingInfoTab::Instance()
{
    static CDCSettingInfoTab oInstance;
    return &oInstance;
}

std::uint32_t CDCSettingInfoTab::getValueByParam(const std::string& strParam, std::string& strValue)
{
    if (const auto oFault = armedFault("CDCSettingInfoTab::getValueByParam"))
        return *oFault;
    return readText(&StInventory::mapSetting, strParam, strValue);
}

NS_UTIL::CConfigItem* NS_UTIL::CConfigItem::Instance()
{
    static CConfigItem oInstance;
    return &oInstance;
}

std::int32_t NS_UTIL::CConfigItem::readCfgItemIntValueFromDB(const std::string& strSection, const std::string& strKey,
                                                             std::int32_t nDefault)
{
    if (const auto oFault = armedFault("NS_UTIL::CConfigItem::readCfgItemIntValueFromDB"))
        return static_cast<std::int32_t>(*oFault);
    const auto          pInventory = currentInventory();
    const std::int64_t* pValue =
        pInventory == nullptr ? nullptr : findValue(pInventory->mapConfigItem, pairKey(strSection, strKey));
    return pValue == nullptr ? nDefault : static_cast<std::int32_t>(static_cast<std::uint32_t>(*pValue));
}

std::uint32_t CSysCommonFunc::readResourceFile(const std::string& strKey, std::string& strValue)
{
    if (const auto oFault = armedFault("CSysCommonFunc::readResourceFile"))
        return *oFault;
    return readText(&StInventory::mapResource, strKey, strValue);
}

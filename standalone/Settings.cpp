// Settings, configuration items and resources, answered from the inventory.
#include "platform/Settings.h"

#include "standalone/Answer.h"

using namespace standalone;

CDCSettingInfoTab* CDCSettingInfoTab::Instance()
{
    static CDCSettingInfoTab oInstance;
    armedFault<operation("CDCSettingInfoTab::Instance")>();
    return &oInstance;
}

std::uint32_t CDCSettingInfoTab::getValueByParam(const std::string& strParam, std::string& strValue)
{
    return answerCode<operation("CDCSettingInfoTab::getValueByParam")>(
        [&](const StInventory& stInventory)
        { return copyFound(findValue(stInventory.mapSetting, strParam), strValue); });
}

NS_UTIL::CConfigItem* NS_UTIL::CConfigItem::Instance()
{
    static CConfigItem oInstance;
    armedFault<operation("NS_UTIL::CConfigItem::Instance")>();
    return &oInstance;
}

std::int32_t NS_UTIL::CConfigItem::readCfgItemIntValueFromDB(const std::string& strSection, const std::string& strKey,
                                                             std::int32_t nDefault)
{
    if (const auto oFault = armedFault<operation("NS_UTIL::CConfigItem::readCfgItemIntValueFromDB")>())
        return static_cast<std::int32_t>(*oFault);
    const auto          pInventory = currentInventory();
    const std::int64_t* pValue =
        pInventory == nullptr ? nullptr : findValue(pInventory->mapConfigItem, pairKey(strSection, strKey));
    return pValue == nullptr ? nDefault : static_cast<std::int32_t>(static_cast<std::uint32_t>(*pValue));
}

std::uint32_t CSysCommonFunc::readResourceFile(const std::string& strKey, std::string& strValue)
{
    return answerCode<operation("CSysCommonFunc::readResourceFile")>(
        [&](const StInventory& stInventory)
        { return copyFound(findValue(stInventory.mapResource, strKey), strValue); });
}

// See ServerSide.h.
#include "tools/opxml/diff/ServerSide.h"

#include "platform/Settings.h"
#include "records/ResultCodes.h"
#include "records/ServerNames.h"
#include "tools/opxml/output/Exit.h"

namespace
{
// All that the library asks for by name, as one text.
std::string readSettings()
{
    std::string strAll;
    for (const ServerNames::StName& stName : ServerNames::SETTINGS)
    {
        std::string strValue;
        CDCSettingInfoTab::Instance()->getValueByParam(stName.pszName, strValue);
        strAll += strValue + '\n';
    }
    for (const ServerNames::StName& stName : ServerNames::CONFIG_ITEMS)
        strAll += std::to_string(NS_UTIL::CConfigItem::Instance()->readCfgItemIntValueFromDB(ServerNames::ITEM_SECTION,
                                                                                             stName.pszName, -1)) +
                  '\n';
    for (const ServerNames::StName& stName : ServerNames::RESOURCES)
    {
        std::string strValue;
        CSysCommonFunc::readResourceFile(stName.pszName, strValue);
        strAll += strValue + '\n';
    }
    return strAll;
}
} // namespace

CServerSide::CServerSide(const std::string& strRoot) : m_strRoot(strRoot)
{
    std::string strError;
    if (!standalone::openServerRoot(strRoot, strError))
        throw CTrouble(strError);
    m_pRoot       = standalone::openedServerRoot();
    m_pMaker      = std::make_unique<catalog::CCatalogMaker>();
    m_strSettings = readSettings();
    std::map<std::string, std::vector<const catalog::StModuleCatalog*>> mapModule; // by name: so they are merged
    for (const catalog::StModuleCatalog& stModule : m_pMaker->modules())
    {
        if (stModule.ulResult == DC_RESULT_OK)
            mapModule[stModule.strName].push_back(&stModule);
    }
    std::map<std::string, std::vector<const catalog::StModuleCatalog*>> mapOfType;
    for (const auto& [strName, lstModule] : mapModule)
    {
        for (const catalog::StSupportedType& stSupported : lstModule.front()->lstSupported)
            mapOfType[stSupported.strDevType].push_back(lstModule.front());
    }
    for (const StRegisteredType& stName : registeredTypes())
    {
        StDeviceType stType;
        CDeviceAdapterInterface::getInstance()->searchDeviceType(stName.strDevType, stName.strDevTypeVer, stType);
        const bool bNew = m_mapType
                              .try_emplace({stName.strDevType, stName.strDevTypeVer},
                                           StSideType{stName, stType.strDevSysOid, isCapacityType(stType),
                                                      mapOfType[stName.strDevType]})
                              .second;
        if (bNew)
            m_lstType.push_back(stName);
    }
}

const StSideType* CServerSide::find(const StRegisteredType& stName) const
{
    const auto itType = m_mapType.find({stName.strDevType, stName.strDevTypeVer});
    return itType == m_mapType.end() ? nullptr : &itType->second;
}

StConfigPlan CServerSide::plan(const StSideType& stType) const
{
    return makeConfigPlan(stType.stName.strKey, stType.stName.strDevTypeVer, stType.bCapacity);
}

catalog::StTypeCatalog CServerSide::make(const StSideType& stType)
{
    return m_pMaker->make(stType.stName.strDevType, stType.stName.strDevTypeVer);
}

std::string CServerSide::belowRoot(const std::string& strFile) const
{
    return strFile.compare(0, m_strRoot.size(), m_strRoot) == 0 ? strFile.substr(m_strRoot.size()) : strFile;
}

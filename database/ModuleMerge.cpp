// Module configurations: read once at start-up, then merged into every device
// type that a module names.
#include "common/LogLine.h"
#include "database/CXMLConfigDatabase.h"
#include "platform/Paths.h"
#include "reader/CModuleXMLResReader.h"

namespace
{
constexpr const char* DC_SOURCE = "CXMLConfigDatabase";

template <typename Record>
void append(std::list<Record>& lstTo, const std::list<Record>& lstFrom)
{
    lstTo.insert(lstTo.end(), lstFrom.begin(), lstFrom.end());
}
} // namespace

std::uint32_t CXMLConfigDatabase::readAndStoreModuleXMLConfig()
{
    const _TraceFunction oTrace(DC_HERE);
    std::string          strModulePath = ns_kivosdk_wrap::GetEnvValue("APP_ROOT", false, true);
    strModulePath += "etc/oss_cfg/dc/";
    strModulePath += "ne_script/importscript";
    m_pModuleInfoMap = std::make_unique<ModuleInfoMap>(); // the map of an earlier read is freed
    CModuleXMLResReader oModuleXMLReader;
    const std::uint32_t ulResult    = oModuleXMLReader.parseXMLOfDirs(strModulePath, *m_pModuleInfoMap);
    m_stLoadReport.lstModule        = oModuleXMLReader.files();
    m_stLoadReport.lstModuleProblem = oModuleXMLReader.problems();
    if (ulResult != DC_RESULT_OK)
        return logCall(DC_HERE, ulResult, "oModuleXMLReader.parseXMLOfDirs(strModulePath, m_pModuleInfoMap)");
    return DC_RESULT_OK;
}

// The name comes by value: callers are built against it. NOLINTNEXTLINE(performance-unnecessary-value-param)
void CXMLConfigDatabase::mergeModuleInfoToDev(std::string strDevType, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    const _TraceFunction oTrace(DC_HERE);
    if (m_pModuleInfoMap == nullptr || lstInfo.empty())
        return;
    for (auto& [strName, stModule] : *m_pModuleInfoMap)
    {
        // A name listed twice merges the module twice.
        for (const std::string& strSupported : stModule.lstSupportDevType)
        {
            if (strSupported == strDevType)
                mergeXmlConfig(stModule, lstInfo.front());
        }
    }
}

void CXMLConfigDatabase::mergeXmlConfig(StAsnModuleInfoVerXMLInfo& stModule, StAsnDevTypeVerXMLInfo* pInfo)
{
    const _TraceFunction oTrace(DC_HERE);
    if (pInfo == nullptr)
        return;
    // Appended without a check for equal ids: lookups take the first match, so
    // the device type's own definition wins. View menus are not merged.
    StAsnOperationConfig&       stTo   = pInfo->stOperationConfig;
    const StAsnOperationConfig& stFrom = stModule.stOperationConfig;
    append(stTo.lstDevOperation, stFrom.lstDevOperation);
    append(stTo.lstTaskOperation, stFrom.lstTaskOperation);
    append(stTo.lstPatchOperation, stFrom.lstPatchOperation);
    append(stTo.lstPatchDef, stFrom.lstPatchDef);
    append(stTo.lstCheckOperation, stFrom.lstCheckOperation);
    append(stTo.lstCustomOperation, stFrom.lstCustomOperation);
    append(stTo.lstOtherOperation, stFrom.lstOtherOperation);
    append(stTo.lstUpgradeOperation, stFrom.lstUpgradeOperation);
    append(pInfo->lstTaskConfigInfoOperation, stModule.lstTaskConfigInfoOperation);
}

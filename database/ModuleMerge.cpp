// Module configurations: read once at start-up, then merged into every device
// type that a module names.
#include "common/Guarded.h"
#include "common/LogLine.h"
#include "database/CXMLConfigDatabase.h"
#include "reader/CModuleXMLResReader.h"
#include "reader/ModuleAppend.h"

namespace
{
constexpr const char* DC_SOURCE = "CXMLConfigDatabase";
} // namespace

std::uint32_t CXMLConfigDatabase::readAndStoreModuleXMLConfig()
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    m_mapModulesOfType.clear();
    m_pModuleInfoMap = std::make_unique<ModuleInfoMap>(); // the map of an earlier read is freed
    CModuleXMLResReader oModuleXMLReader;
    const std::uint32_t ulResult    = oModuleXMLReader.parseXMLOfDirs(moduleFolder(), *m_pModuleInfoMap);
    m_stLoadReport.lstModule        = oModuleXMLReader.files();
    m_stLoadReport.lstModuleProblem = oModuleXMLReader.problems();
    // A name listed twice merges the module twice.
    for (auto& [strName, stModule] : *m_pModuleInfoMap)
    {
        for (const std::string& strSupported : stModule.lstSupportDevType)
            m_mapModulesOfType[strSupported].push_back(&stModule);
    }
    if (ulResult != DC_RESULT_OK)
        return logCall(DC_HERE, ulResult, "oModuleXMLReader.parseXMLOfDirs(strModulePath, m_pModuleInfoMap)");
    return DC_RESULT_OK;
}
catch (...)
{
    // Half the modules would be a wrong answer; without any the log says why.
    m_mapModulesOfType.clear();
    m_pModuleInfoMap.reset();
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

// The name comes by value: callers are built against it. NOLINTNEXTLINE(performance-unnecessary-value-param)
void CXMLConfigDatabase::mergeModuleInfoToDev(std::string strDevType, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const auto           itModules = m_mapModulesOfType.find(strDevType);
    if (itModules == m_mapModulesOfType.end() || lstInfo.empty())
        return;
    for (StAsnModuleInfoVerXMLInfo* pModule : itModules->second)
        mergeXmlConfig(*pModule, lstInfo.front());
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

void CXMLConfigDatabase::mergeXmlConfig(StAsnModuleInfoVerXMLInfo& stModule, StAsnDevTypeVerXMLInfo* pInfo)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    if (pInfo != nullptr)
        appendModule(stModule, *pInfo);
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

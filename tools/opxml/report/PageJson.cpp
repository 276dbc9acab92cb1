// See PageJson.h.
#include "tools/opxml/report/PageJson.h"

#include "tools/opxml/output/Sections.h"

#include <algorithm>
#include <set>

namespace
{
// The place of each column on the page, by its number.
std::vector<std::uint32_t> columnPlaces(const CColumns& oColumns)
{
    std::vector<std::uint32_t> lstPlace(oColumns.all().size());
    std::uint32_t              ulPlace = 0;
    for (const auto& [stColumn, ulNumber] : oColumns.all())
        lstPlace[ulNumber] = ulPlace++;
    return lstPlace;
}

// One character a cell, in the order of the columns; a number stands for so many empty ones.
std::string cellText(const Cells& lstCell, const std::vector<std::uint32_t>& lstPlace)
{
    std::vector<std::pair<std::uint32_t, char>> lstShown;
    for (const auto& [ulNumber, stCell] : lstCell)
        lstShown.emplace_back(lstPlace[ulNumber], stCell.character());
    std::sort(lstShown.begin(), lstShown.end());
    std::string   strText;
    std::uint32_t ulNext = 0;
    for (const auto& [ulPlace, cCell] : lstShown)
    {
        if (ulPlace != ulNext)
            strText += std::to_string(ulPlace - ulNext);
        strText += cCell;
        ulNext = ulPlace + 1;
    }
    return strText;
}

// Adds what is not empty.
void addText(Json& oObject, const char* pszName, const std::string& strText)
{
    if (!strText.empty())
        oObject[pszName] = strText;
}
void addList(Json& oObject, const char* pszName, const std::vector<std::string>& lstText)
{
    if (!lstText.empty())
        oObject[pszName] = lstText;
}

Json columnsJson(const CColumns& oColumns)
{
    Json oJson = Json::array();
    for (const auto& [stColumn, ulNumber] : oColumns.all())
        oJson.push_back({kindOf(stColumn.first).pszWord, stColumn.second});
    return oJson;
}

Json kindsJson(const CColumns& oColumns)
{
    std::set<EnEntryKind> setKind;
    for (const auto& [stColumn, ulNumber] : oColumns.all())
        setKind.insert(stColumn.first);
    Json oJson = Json::array();
    for (const EnEntryKind enKind : setKind)
        oJson.push_back({kindOf(enKind).pszWord, kindOf(enKind).pszPlural});
    return oJson;
}

Json sectionsJson()
{
    Json oJson = Json::array();
    for (const StSectionTitle& stTitle : SECTION_TITLES)
        oJson.push_back(stTitle.pszTitle);
    return oJson;
}

Json versionsJson(const std::vector<StReportVersion>& lstVersion)
{
    Json oJson = Json::array();
    for (const StReportVersion& stVersion : lstVersion)
        oJson.push_back({stVersion.strVersion, stVersion.strOutcome, stVersion.strFile, stVersion.strProblem});
    return oJson;
}

Json rowJson(const StReportRow& stRow, const std::vector<std::uint32_t>& lstPlace)
{
    Json oJson = {{"type", stRow.strDevType}, {"version", stRow.strDevTypeVer}, {"key", stRow.strKey}};
    addText(oJson, "source", stRow.strSource);
    addText(oJson, "file", stRow.strFile);
    addText(oJson, "problem", stRow.strProblem);
    addText(oJson, "replacedBy", stRow.strReplacedBy);
    addList(oJson, "serves", stRow.lstServed);
    addList(oJson, "modules", stRow.lstModule);
    if (!stRow.bFirst)
        oJson["further"] = true;
    if (stRow.bGone)
        oJson["gone"] = true;
    if (!stRow.lstVersion.empty())
        oJson["versions"] = versionsJson(stRow.lstVersion);
    addText(oJson, "cells", cellText(stRow.lstCell, lstPlace));
    if (stRow.nDetail != StReportRow::NO_DETAIL)
        oJson["detail"] = stRow.nDetail;
    return oJson;
}

Json rowsJson(const StReport& stReport)
{
    const std::vector<std::uint32_t> lstPlace = columnPlaces(stReport.oColumns);
    Json                             oJson    = Json::array();
    for (const StReportRow& stRow : stReport.lstRow)
        oJson.push_back(rowJson(stRow, lstPlace));
    return oJson;
}

Json devicesJson(const StReport& stReport)
{
    Json oJson = Json::array();
    for (const StReportDevice& stDevice : stReport.lstDevice)
    {
        Json oDevice = {{"id", stDevice.ulId}};
        addText(oDevice, "name", stDevice.strName);
        addText(oDevice, "address", stDevice.strAddress);
        addText(oDevice, "type", stDevice.strDevType);
        addText(oDevice, "version", stDevice.strDevTypeVer);
        addText(oDevice, "runs", stDevice.strVersion);
        addText(oDevice, "key", stDevice.strKey);
        if (stDevice.bTelnet)
            oDevice["telnet"] = true;
        addText(oDevice, "problem", stDevice.strProblem);
        oJson.push_back(std::move(oDevice));
    }
    return oJson;
}

Json modulesJson(const StReport& stReport)
{
    Json oJson = Json::array();
    for (const StReportModule& stModule : stReport.lstModule)
    {
        Json oModule = {{"name", stModule.strName}, {"file", stModule.strFile}};
        addText(oModule, "problem", stModule.strProblem);
        addText(oModule, "holds", stModule.strAdds);
        addList(oModule, "supports", stModule.lstSupported);
        oJson.push_back(std::move(oModule));
    }
    return oJson;
}

Json lintJson(const StReport& stReport)
{
    if (!stReport.bLint)
        return nullptr;
    Json oRules = Json::array();
    for (const StReportRule& stRule : stReport.lstRule)
        oRules.push_back({stRule.strId, stRule.strTitle, stRule.strSeverity, stRule.nFindings});
    Json oFiles = Json::array();
    for (const StReportFile& stFile : stReport.lstFindingFile)
        oFiles.push_back({stFile.strFile, stFile.arCount[2], stFile.arCount[1], stFile.arCount[0]});
    Json oFindings = Json::array();
    for (const StReportFinding& stFinding : stReport.lstFinding)
        oFindings.push_back(
            {stFinding.nRule, stFinding.nFile, stFinding.ulLine, stFinding.ulColumn, stFinding.strMessage});
    return {{"rules", oRules}, {"files", oFiles}, {"findings", oFindings}};
}

Json alarmTablesJson(const StReport& stReport)
{
    Json oJson = Json::array();
    for (const StReportAlarmTable& stTable : stReport.lstAlarmTable)
        oJson.push_back({stTable.strLanguage, stTable.strFile, stTable.strHolds, stTable.strProblem});
    return oJson;
}
} // namespace

Json pageJson(const StReport& stReport)
{
    return {
        {"title", stReport.strTitle},
        {"root", stReport.strRoot},
        {"made", stReport.strMade},
        {"tool", stReport.strTool},
        {"kinds", kindsJson(stReport.oColumns)},
        {"sections", sectionsJson()},
        {"columns", columnsJson(stReport.oColumns)},
        {"records", stReport.lstRecord},
        {"rows", rowsJson(stReport)},
        {"devices", devicesJson(stReport)},
        {"modules", modulesJson(stReport)},
        {"moduleProblems", stReport.lstModuleProblem},
        {"lint", lintJson(stReport)},
        {"alarmTables", alarmTablesJson(stReport)},
    };
}

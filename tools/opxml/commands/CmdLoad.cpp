// opxml load: the full start-up load, one row for every registered type and
// version, and a summary.
#include "database/CXMLConfigDatabase.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/Progress.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Sections.h"
#include "tools/opxml/output/Table.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <map>
#include <memory>
#include <set>

namespace
{
// What the load left behind for one registry entry.
struct StRow
{
    const StDevTypeLoad* pLoad;
    SectionCounts        arCount  = {}; // of the first record, which answers the queries
    std::size_t          nRecords = 0;
    std::string          strReplacedBy; // version of a later entry with the same key
    std::string          strModules;
};

struct StSummary
{
    std::size_t nTypes    = 0;
    std::size_t nFailed   = 0;
    std::size_t nFiles    = 0;
    double      dMegabyte = 0;
    double      dSeconds  = 0;

    double speed() const { return dSeconds > 0 ? dMegabyte / dSeconds : 0; }
};

// One thing that failed: a registry entry, or a version of one that has others.
struct StFailure
{
    std::string strText;   // what, which file, why
    std::string strWhat;   // "LX 2400/S V3.8"
    std::string strReason; // without the file and the place in it
};

std::vector<StFailure> gatherFailures(const StLoadReport& stReport)
{
    std::vector<StFailure> lstFailure;
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        const std::string    strWhat   = stLoad.strDevType + " " + stLoad.strDevTypeVer;
        const StReadProblem& stProblem = stLoad.stOrigin.stProblem;
        if (!stLoad.isConfigured())
        {
            const std::string strReason =
                stProblem.isSet() ? stProblem.strText : "result " + resultText(stLoad.ulResult);
            lstFailure.push_back({strWhat + " " + failureText(stLoad), strWhat, strReason});
            continue;
        }
        for (const StVersionLoad& stVersion : failedVersions(stLoad))
            lstFailure.push_back({strWhat + " " + versionFailureText(stVersion),
                                  strWhat + " " + versionText(stVersion.strSoftVersion, stVersion.strPatchVersion),
                                  stVersion.stProblem.strText});
    }
    return lstFailure;
}

// The failures once more behind a long table: each of them, or by their reasons
// where nobody would read them all.
std::string failuresText(const std::vector<StFailure>& lstFailure)
{
    constexpr std::size_t    READABLE = 20;
    constexpr std::size_t    EXAMPLES = 3;
    std::vector<std::string> lstText;
    if (lstFailure.size() <= READABLE)
    {
        for (const StFailure& stFailure : lstFailure)
            lstText.push_back(stFailure.strText);
    }
    else
    {
        std::map<std::string, std::vector<std::string>> mapWhat; // by reason
        for (const StFailure& stFailure : lstFailure)
            mapWhat[stFailure.strReason].push_back(stFailure.strWhat);
        for (auto& [strReason, lstWhat] : mapWhat)
        {
            const std::size_t nAll = lstWhat.size();
            lstWhat.resize(std::min(nAll, EXAMPLES));
            lstText.push_back(fmt::format("{} failed: {}: {}{}", nAll, strReason, fmt::join(lstWhat, ", "),
                                          nAll > EXAMPLES ? ", ..." : ""));
        }
    }
    std::string strLines;
    for (const std::string& strText : lstText)
    {
        for (const std::string& strLine : wrapText(printable(strText), widthOf(stdout), 2))
            strLines += inRed(strLine) + "\n";
    }
    return strLines;
}

StSummary summarise(const StLoadReport& stReport, double dSeconds)
{
    StSummary             stSummary;
    std::set<std::string> setFile;
    stSummary.nFailed = gatherFailures(stReport).size();
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        ++stSummary.nTypes;
        setFile.insert(stLoad.stOrigin.strFile);
        for (const StVersionLoad& stVersion : stLoad.stOrigin.lstVersion)
            setFile.insert(stVersion.strFile);
    }
    for (const StModuleLoad& stModule : stReport.lstModule)
        setFile.insert(stModule.strFile);
    for (const std::string& strFile : setFile)
    {
        std::error_code      oIgnored;
        const std::uintmax_t nBytes = std::filesystem::file_size(strFile, oIgnored);
        if (oIgnored)
            continue; // a missing file is in the table already
        ++stSummary.nFiles;
        stSummary.dMegabyte += static_cast<double>(nBytes) / 1e6;
    }
    stSummary.dSeconds = dSeconds;
    return stSummary;
}

std::vector<StRow> makeRows(const StLoadReport& stReport)
{
    std::vector<StRow>                 lstRow;
    std::map<std::string, std::size_t> mapLast; // row of the entry whose records a key holds
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        lstRow.push_back({&stLoad, {}, 0, "", ""});
        if (!stLoad.isConfigured())
            continue;
        const auto [itLast, bFirst] = mapLast.emplace(stLoad.strKey, lstRow.size() - 1);
        if (!bFirst)
            lstRow[std::exchange(itLast->second, lstRow.size() - 1)].strReplacedBy = stLoad.strDevTypeVer;
    }
    CXMLConfigDatabase::getInstance()->visitDevTypes(
        [&](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
        {
            const auto itLast = mapLast.find(strKey);
            if (itLast == mapLast.end() || lstInfo.empty())
                return;
            StRow& stRow     = lstRow[itLast->second];
            stRow.nRecords   = lstInfo.size();
            stRow.arCount    = countSections(*lstInfo.front());
            stRow.strModules = contributionText(findContributions(stRow.pLoad->strDevType));
        });
    return lstRow;
}

// The versions of a capacity type that failed, below its row.
void addVersionRows(CTable& oTable, const StDevTypeLoad& stLoad)
{
    for (const StVersionLoad& stVersion : failedVersions(stLoad))
        oTable.addWideRow({stLoad.strDevType, stLoad.strDevTypeVer, stLoad.strKey, versionFailureText(stVersion)},
                          true);
}

std::string tableText(const std::vector<StRow>& lstRow)
{
    // What is left out first where there is no room: file, key, the last sections.
    std::vector<StColumn> lstColumn = {{"TYPE"}, {"VERSION"}, {"KEY", 30}, {"FROM"}, {"FILE", 31}};
    for (const StSectionTitle& stTitle : SECTION_TITLES)
        lstColumn.push_back({stTitle.pszShort, static_cast<int>(lstColumn.size())});
    lstColumn.push_back({"MODULES", 1});
    CTable oTable(lstColumn);
    for (const StRow& stRow : lstRow)
    {
        const StDevTypeLoad&     stLoad  = *stRow.pLoad;
        std::vector<std::string> lstCell = {stLoad.strDevType, stLoad.strDevTypeVer, stLoad.strKey};
        if (!stLoad.isConfigured())
        {
            lstCell.push_back(failureText(stLoad));
            oTable.addWideRow(lstCell, true);
            addVersionRows(oTable, stLoad);
            continue;
        }
        lstCell.push_back(sourceText(stLoad.stOrigin.enSource) +
                          (stRow.nRecords > 1 ? fmt::format(" ({})", stRow.nRecords) : ""));
        lstCell.push_back(std::filesystem::path(stLoad.stOrigin.strFile).filename().string());
        if (!stRow.strReplacedBy.empty())
        {
            lstCell.push_back("replaced by version " + stRow.strReplacedBy);
            oTable.addWideRow(lstCell, false);
            continue;
        }
        for (const std::size_t nCount : stRow.arCount)
            lstCell.push_back(std::to_string(nCount));
        lstCell.push_back(stRow.strModules);
        oTable.addRow(lstCell);
        addVersionRows(oTable, stLoad);
    }
    return oTable.text();
}

std::string summaryText(const StSummary& stSummary)
{
    return fmt::format("{} types, {} failed, {} files, {:.1f} MB, {:.3f} s, {:.1f} MB/s\n", stSummary.nTypes,
                       stSummary.nFailed, stSummary.nFiles, stSummary.dMegabyte, stSummary.dSeconds, stSummary.speed());
}

Json versionJson(const StVersionLoad& stVersion)
{
    Json oVersion = {{"softVersion", stVersion.strSoftVersion},
                     {"patchVersion", stVersion.strPatchVersion},
                     {"outcome", outcomeText(stVersion.enOutcome)},
                     {"file", stVersion.strFile},
                     {"result", stVersion.ulResult}};
    if (stVersion.isFailed())
        oVersion["reason"] = versionFailureText(stVersion);
    return oVersion;
}

Json rowJson(const StRow& stRow)
{
    const StDevTypeLoad& stLoad = *stRow.pLoad;
    Json                 oRow   = {{"type", stLoad.strDevType},
                                   {"version", stLoad.strDevTypeVer},
                                   {"key", stLoad.strKey},
                                   {"source", sourceText(stLoad.stOrigin.enSource)},
                                   {"file", stLoad.stOrigin.strFile},
                                   {"result", stLoad.ulResult}};
    for (const StVersionLoad& stVersion : stLoad.stOrigin.lstVersion)
        oRow["versions"].push_back(versionJson(stVersion));
    if (!stLoad.isConfigured())
        oRow["reason"] = failureText(stLoad);
    else if (!stRow.strReplacedBy.empty())
        oRow["replacedBy"] = stRow.strReplacedBy;
    else
    {
        oRow["configurations"] = stRow.nRecords;
        for (std::size_t nAt = 0; nAt < SECTION_COUNT; ++nAt)
            oRow["records"][SECTION_TITLES[nAt].pszField] = stRow.arCount[nAt];
        oRow["modules"] = stRow.strModules;
    }
    return oRow;
}

std::string loadJson(const std::vector<StRow>& lstRow, const StSummary& stSummary)
{
    Json oTypes = Json::array();
    for (const StRow& stRow : lstRow)
        oTypes.push_back(rowJson(stRow));
    const Json oLoad = {{"types", oTypes},
                        {"summary",
                         {{"types", stSummary.nTypes},
                          {"failed", stSummary.nFailed},
                          {"files", stSummary.nFiles},
                          {"megabytes", stSummary.dMegabyte},
                          {"seconds", stSummary.dSeconds},
                          {"megabytesPerSecond", stSummary.speed()}}}};
    return jsonText(oLoad) + "\n";
}

int runLoad(const StGlobalOptions& stOptions, bool bJson)
{
    openRoot(stOptions);
    const auto oStart = std::chrono::steady_clock::now();
    {
        const CProgress oProgress;
        CXMLConfigDatabase::getInstance();
    }
    const std::chrono::duration<double> oTook     = std::chrono::steady_clock::now() - oStart;
    const StLoadReport                  stReport  = CXMLConfigDatabase::getInstance()->getLoadReport();
    const StSummary                     stSummary = summarise(stReport, oTook.count());
    const std::vector<StRow>            lstRow    = makeRows(stReport);
    print(bJson ? loadJson(lstRow, stSummary)
                : tableText(lstRow) + failuresText(gatherFailures(stReport)) + summaryText(stSummary));
    if (stReport.lstDevType.empty())
        remark("the inventory has no device types, or they could not be listed");
    return stSummary.nFailed == 0 ? EXIT_YES : EXIT_NO;
}
} // namespace

void addLoadCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("load", "Load all device types and show what came of each");
    auto      pJson    = std::make_shared<bool>(false);
    pCommand->add_flag("--json", *pJson, "Print JSON");
    std::string strColumns = "Columns with the number of records:\n";
    for (const StSectionTitle& stTitle : SECTION_TITLES)
        strColumns += fmt::format("  {:6} {}\n", stTitle.pszShort, stTitle.pszTitle);
    pCommand->footer(strColumns + "Exit status: 0 all loaded, 1 some failed, 2 trouble.");
    pCommand->callback([&stTool, pJson]
                       { stTool.fnRun = [&stTool, pJson] { return runLoad(stTool.stOptions, *pJson); }; });
}

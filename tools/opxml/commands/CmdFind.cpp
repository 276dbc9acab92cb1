// opxml find: which device types and versions have an entry, or lack it, with places
// and what they say; or all that a module adds.
#include "tools/opxml/catalog/ServerCatalogs.h"
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/find/EntrySearch.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Table.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <memory>
#include <tuple>

namespace
{
struct StFindOptions
{
    std::vector<std::string> lstWord;
    std::string              strKind;
    std::string              strModule;
    bool                     bLike    = false;
    bool                     bMissing = false;
    bool                     bJson    = false;
};

StFindWish wishOf(const StFindOptions& stOptions)
{
    return {stOptions.lstWord, stOptions.bLike, findKind(stOptions.strKind), stOptions.strModule};
}

// "V4 (V4.2 P03, V5.0)" where not all software versions are meant.
std::string versionOf(const StFindType& stType)
{
    if (stType.lstSoftware.empty())
        return stType.strDevTypeVer;
    return fmt::format("{} ({})", stType.strDevTypeVer, fmt::join(stType.lstSoftware, ", "));
}

// What was asked for, in words: a kind and an id, or a module.
std::string wantedText(const StFindOptions& stOptions, std::size_t nWord)
{
    const StEntryKind* pKind = findKind(stOptions.strKind);
    if (stOptions.lstWord.empty())
        return (pKind == nullptr ? "" : std::string(pKind->pszPlural) + " of ") + "module " + stOptions.strModule;
    return (pKind == nullptr ? "" : std::string(pKind->pszName) + " ") + "\"" + stOptions.lstWord[nWord] + "\"";
}

std::string countText(const StFindOptions& stOptions, const StFindResult& stResult, std::size_t nWord)
{
    const StFindCount& stCount = stResult.lstCount[nWord];
    std::string        strKinds;
    for (const auto& [enKind, nTypes] : stCount.mapByKind)
        strKinds += fmt::format("{}{} {}", strKinds.empty() ? "" : ", ", kindOf(enKind).pszWord, nTypes);
    return fmt::format("{}: {} of {} device types {}{}", wantedText(stOptions, nWord),
                       stOptions.bMissing ? stCount.nLack : stCount.nHave, stResult.nTypes,
                       stOptions.bMissing ? "lack it" : "have it",
                       stOptions.bMissing || strKinds.empty() ? "" : " (" + strKinds + ")");
}

// One row of the table: versions of a type that have an entry from the same place, and
// the kinds as which that place is read.
struct StFoundRow
{
    const StFoundEntry*      pFound = nullptr;
    std::vector<std::string> lstVersion;
    std::vector<std::string> lstKind;
};

void addOnce(std::vector<std::string>& lstText, const std::string& strText)
{
    if (std::find(lstText.begin(), lstText.end(), strText) == lstText.end())
        lstText.push_back(strText);
}

std::vector<StFoundRow> foundRows(const StFindResult& stResult)
{
    using RowKey = std::tuple<std::size_t, std::string, std::string, std::string, std::string>;
    std::map<RowKey, std::size_t> mapRow;
    std::vector<StFoundRow>       lstRow;
    for (const StFoundEntry& stFound : stResult.lstFound)
    {
        const auto [itRow, bNew] = mapRow.try_emplace(
            {stFound.nWord, stFound.stType.strDevType, stFound.strPath, stFound.strSays, stFound.strPlace},
            lstRow.size());
        if (bNew)
            lstRow.push_back({&stFound, {}, {}});
        addOnce(lstRow[itRow->second].lstVersion, versionOf(stFound.stType));
        addOnce(lstRow[itRow->second].lstKind, stFound.pKind->pszWord);
    }
    return lstRow;
}

std::string countLines(const StFindOptions& stOptions, const StFindResult& stResult)
{
    std::string strText;
    for (std::size_t nWord = 0; nWord < stResult.lstCount.size(); ++nWord)
        strText += joinLines(wrapText(printable(countText(stOptions, stResult, nWord)), widthOf(stdout), 2));
    return strText;
}

std::string foundTable(const StFindOptions& stOptions, const StFindResult& stResult)
{
    CTable oTable({{"TYPE"}, {"VERSION", 1}, {"KIND"}, {"ENTRY"}, {"SAYS", 3}, {"FROM", 2}, {"PLACE"}});
    for (const StFoundRow& stRow : foundRows(stResult))
    {
        const StFoundEntry& stFound = *stRow.pFound;
        oTable.addRow(
            {stFound.stType.strDevType, fmt::format("{}", fmt::join(stRow.lstVersion, ", ")),
             fmt::format("{}", fmt::join(stRow.lstKind, ", ")), stFound.strPath, stFound.strSays, stFound.strOrigin,
             stFound.strPlace + (stFound.strShadow.empty() ? "" : ", in the shadow of " + stFound.strShadow)});
    }
    return (stResult.lstFound.empty() ? "" : oTable.text()) + countLines(stOptions, stResult);
}

std::string lackingTable(const StFindOptions& stOptions, const StFindResult& stResult)
{
    const bool bWhy = std::any_of(stResult.lstLacking.begin(), stResult.lstLacking.end(),
                                  [](const StFoundNot& stLacking) { return !stLacking.strWhy.empty(); });
    CTable     oTable(bWhy ? std::vector<StColumn>{{"TYPE"}, {"VERSION"}, {"LACKS"}, {"WHY"}}
                           : std::vector<StColumn>{{"TYPE"}, {"VERSION"}, {"LACKS"}});
    for (const StFoundNot& stLacking : stResult.lstLacking)
    {
        std::vector<std::string> lstCell = {stLacking.stType.strDevType, versionOf(stLacking.stType),
                                            stOptions.lstWord[stLacking.nWord], stLacking.strWhy};
        lstCell.resize(bWhy ? 4 : 3);
        oTable.addRow(lstCell);
    }
    return (stResult.lstLacking.empty() ? "" : oTable.text()) + countLines(stOptions, stResult);
}

Json typeJson(const StFindType& stType)
{
    return {{"type", stType.strDevType}, {"version", stType.strDevTypeVer}, {"software", stType.lstSoftware}};
}

std::string findJson(const StFindOptions& stOptions, const StFindResult& stResult)
{
    Json oFound = Json::array();
    for (const StFoundEntry& stFound : stResult.lstFound)
    {
        Json& oEntry = oFound.emplace_back(typeJson(stFound.stType));
        if (!stOptions.lstWord.empty())
            oEntry["word"] = stOptions.lstWord[stFound.nWord];
        oEntry.update({{"kind", stFound.pKind->pszWord},
                       {"path", stFound.strPath},
                       {"says", stFound.strSays},
                       {"origin", stFound.strOrigin},
                       {"place", stFound.strPlace}});
        if (!stFound.strShadow.empty())
            oEntry["shadowedBy"] = stFound.strShadow;
    }
    const auto fnNot = [&](const std::vector<StFoundNot>& lstNot, bool bWord)
    {
        Json oList = Json::array();
        for (const StFoundNot& stNot : lstNot)
        {
            Json& oType = oList.emplace_back(typeJson(stNot.stType));
            if (bWord && !stOptions.lstWord.empty())
                oType["word"] = stOptions.lstWord[stNot.nWord];
            oType["reason"] = stNot.strWhy;
        }
        return oList;
    };
    Json oJson = {{"types", stResult.nTypes}};
    if (stOptions.bMissing)
        oJson["lacking"] = fnNot(stResult.lstLacking, true);
    else
        oJson["found"] = oFound;
    oJson["unread"] = fnNot(stResult.lstUnread, false);
    return jsonText(oJson) + "\n";
}

// Where to look instead for a word that was found nowhere: another kind, or an id next to it.
std::string suggestion(const StFindOptions& stOptions, const StFindResult& stResult, std::size_t nWord)
{
    std::string strKinds;
    for (const auto& [enKind, nTypes] : stResult.lstCount[nWord].mapByKind)
        strKinds += fmt::format("{}{} ({})", strKinds.empty() ? "; it is there as " : ", ", kindOf(enKind).pszName,
                                nTypes == 1 ? "1 type" : std::to_string(nTypes) + " types");
    if (!strKinds.empty() || stOptions.bLike)
        return strKinds;
    return nearestNames(stOptions.lstWord[nWord], {stResult.setId.begin(), stResult.setId.end()});
}

void suggest(const StFindOptions& stOptions, const StFindResult& stResult)
{
    for (std::size_t nWord = 0; nWord < stOptions.lstWord.size(); ++nWord)
    {
        if (stResult.lstCount[nWord].nHave == 0)
            remark("no " + std::string(stOptions.strKind.empty() ? "entry " : "") + wantedText(stOptions, nWord) +
                   suggestion(stOptions, stResult, nWord));
    }
}

void requireModule(const catalog::CCatalogMaker& oMaker, const std::string& strModule)
{
    std::vector<std::string> lstName;
    for (const catalog::StModuleCatalog& stModule : oMaker.modules())
    {
        if (stModule.ulResult == 0)
            lstName.push_back(stModule.strName);
    }
    if (!strModule.empty() && std::find(lstName.begin(), lstName.end(), strModule) == lstName.end())
        throw CTrouble("no module \"" + strModule + "\"" + nearestNames(strModule, lstName));
}

int runFind(const StGlobalOptions& stGlobal, const StFindOptions& stOptions)
{
    if (stOptions.lstWord.empty() && (stOptions.strModule.empty() || stOptions.bMissing))
        throw CTrouble("say what to find: a WORD, or --module");
    openRoot(stGlobal);
    catalog::CCatalogMaker oMaker;
    requireModule(oMaker, stOptions.strModule);
    CEntrySearch oSearch(wishOf(stOptions));
    readCatalogs(oMaker, registeredTypes(), [&oSearch](const catalog::StTypeCatalog& stType) { oSearch.take(stType); });
    const StFindResult& stResult = oSearch.result();
    if (stOptions.bJson)
        print(findJson(stOptions, stResult));
    else
        print(stOptions.bMissing ? lackingTable(stOptions, stResult) : foundTable(stOptions, stResult));
    suggest(stOptions, stResult);
    for (const StFoundNot& stUnread : stResult.lstUnread)
        remark(fmt::format("{} {} could not be read: {}", stUnread.stType.strDevType, stUnread.stType.strDevTypeVer,
                           stUnread.strWhy));
    return (stOptions.bMissing ? stResult.lstLacking.empty() : stResult.lstFound.empty()) ? EXIT_NO : EXIT_YES;
}
} // namespace

void addFindCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("find", "Say which device types have something, or lack it");
    auto      pOptions = std::make_shared<StFindOptions>();
    pCommand->add_option("WORD", pOptions->lstWord,
                         "Id of an operation, parameter, option, menu entry, …; or the end of a path: "
                         "Backup/ContentType");
    pCommand->add_option("--kind", pOptions->strKind, "Only entries of this kind")->check(CLI::IsMember(kindWords()));
    pCommand->add_option("--module", pOptions->strModule, "Only what this module adds; without WORD all of it")
        ->type_name("NAME");
    pCommand->add_flag("--like", pOptions->bLike, "WORD is a pattern: * any text, ? one character; case is folded");
    pCommand->add_flag("--missing", pOptions->bMissing, "List the types that lack it, and why");
    pCommand->add_flag("--json", pOptions->bJson, "Print JSON");
    pCommand->footer("Exit status: 0 some found, 1 none, 2 trouble.");
    pCommand->callback([&stTool, pOptions]
                       { stTool.fnRun = [&stTool, pOptions] { return runFind(stTool.stOptions, *pOptions); }; });
}

// See Comparison.h.
#include "tools/opxml/report/Comparison.h"

#include "tools/opxml/output/DevTypes.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace
{
constexpr std::array<const char*, 5> CHANGE_WORDS = {"gained", "lost", "changed", "moved", "unread"};

// Kinds whose entries have a column; entries of the last two are named with their patch type.
bool hasColumn(const StChange& stChange)
{
    if (stChange.pKind == nullptr)
        return false;
    switch (stChange.pKind->enKind)
    {
    case EnEntryKind::Menu:
    case EnEntryKind::Tab:
    case EnEntryKind::IsolationMenu:
    case EnEntryKind::TaskType:
    case EnEntryKind::PatchMenu:
    case EnEntryKind::PatchState:
        return true;
    default:
        return stChange.pKind->enRole == EnEntryRole::Operation;
    }
}

// The column of a change; empty when it has none.
std::string columnName(const StChange& stChange)
{
    if (!hasColumn(stChange))
        return {};
    const EnEntryKind enKind = stChange.pKind->enKind;
    const std::size_t nSlash = stChange.strPath.find('/');
    if ((enKind != EnEntryKind::PatchMenu && enKind != EnEntryKind::PatchState) || nSlash == std::string::npos)
        return stChange.strPath;
    return stChange.strPath.substr(0, nSlash) + ": " + stChange.strPath.substr(nSlash + 1);
}

// File and line, without the places that there are not.
Json placeJson(const StDiffPlace& stPlace)
{
    return stPlace.ulLine == 0 ? Json::array() : Json::array({stPlace.ulFile, stPlace.ulLine});
}

Json sitesJson(const StChange& stChange)
{
    Json oJson = Json::array();
    for (const StDiffSite& stSite : stChange.lstSite)
        oJson.push_back({stSite.ulType, stSite.ulSoftware, placeJson(stSite.stOld), placeJson(stSite.stNew)});
    return oJson;
}

Json changeJson(const StChange& stChange)
{
    Json oJson = {{"rule", stChange.pRule->pszId},
                  {"what", CHANGE_WORDS.at(static_cast<std::size_t>(stChange.enWhat))},
                  {"sites", sitesJson(stChange)}};
    if (stChange.pKind != nullptr)
        oJson["kind"] = stChange.pKind->pszName;
    const std::string strColumn = columnName(stChange);
    if (!strColumn.empty())
        oJson["column"] = std::string(stChange.pKind->pszWord) + ":" + strColumn;
    const std::pair<const char*, const std::string*> arText[] = {{"path", &stChange.strPath},
                                                                 {"field", &stChange.strField},
                                                                 {"old", &stChange.strOld},
                                                                 {"new", &stChange.strNew},
                                                                 {"rename", &stChange.strRename}};
    for (const auto& [pszName, pText] : arText)
    {
        if (!pText->empty())
            oJson[pszName] = *pText;
    }
    return oJson;
}

// The rules that are met, with the number of changes of each.
Json rulesJson(const StDiff& stDiff)
{
    Json oJson = Json::array();
    for (const StDiffRule& stRule : diffRules())
    {
        const auto nChanges = std::count_if(stDiff.lstChange.begin(), stDiff.lstChange.end(),
                                            [&stRule](const StChange& stChange) { return stChange.pRule == &stRule; });
        if (nChanges != 0)
            oJson.push_back({stRule.pszId, impactWord(stRule.enImpact), stRule.pszTitle, stRule.pszWhy, nChanges});
    }
    return oJson;
}

Json devicesJson(const StDiff& stDiff)
{
    Json oJson = Json::array();
    for (const StHurtDevice& stDevice : stDiff.lstDevice)
        oJson.push_back(
            {stDevice.ulDeviceID, stDevice.strName, stDevice.strDevType, stDevice.strDevTypeVer, stDevice.lstChange});
    return oJson;
}
} // namespace

void addGone(const StDiff& stDiff, StReport& stReport)
{
    std::set<std::pair<std::string, std::string>> setRow;
    for (const StReportRow& stRow : stReport.lstRow)
        setRow.emplace(stRow.strDevType, stRow.strDevTypeVer);
    for (const StRegisteredType& stType : stDiff.lstType)
    {
        if (!setRow.emplace(stType.strDevType, stType.strDevTypeVer).second)
            continue;
        StReportRow& stRow  = stReport.lstRow.emplace_back();
        stRow.strDevType    = stType.strDevType;
        stRow.strDevTypeVer = stType.strDevTypeVer;
        stRow.strKey        = stType.strKey;
        stRow.bGone         = true;
    }
    for (const StChange& stChange : stDiff.lstChange)
    {
        const std::string strColumn = columnName(stChange);
        if (!strColumn.empty())
            stReport.oColumns.numberOf({stChange.pKind->enKind, strColumn});
    }
}

Json comparisonJson(const StDiff& stDiff, const std::string& strOldRoot)
{
    Json oTypes = Json::array();
    for (const StRegisteredType& stType : stDiff.lstType)
        oTypes.push_back({stType.strDevType, stType.strDevTypeVer});
    Json oChanges = Json::array();
    for (std::size_t nAt = 0; nAt < std::min(stDiff.lstChange.size(), MOST_CHANGES); ++nAt)
        oChanges.push_back(changeJson(stDiff.lstChange[nAt]));
    return {{"root", strOldRoot},  {"compared", stDiff.nTypes},      {"rules", rulesJson(stDiff)},
            {"types", oTypes},     {"software", stDiff.lstSoftware}, {"files", stDiff.lstFile},
            {"changes", oChanges}, {"devices", devicesJson(stDiff)}};
}

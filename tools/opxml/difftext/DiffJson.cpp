// The answer for programs. Fields are added, never renamed (docs/diff.md).
#include "tools/opxml/difftext/ChangeText.h"
#include "tools/opxml/difftext/DiffPrinter.h"
#include "tools/opxml/output/RecordJson.h"

namespace
{
const char* changeWord(EnChange enWhat)
{
    constexpr const char* WORDS[] = {"gained", "lost", "changed", "moved", "unread"};
    return WORDS[static_cast<std::size_t>(enWhat)];
}

Json placeJson(const StDiff& stDiff, const StDiffPlace& stPlace)
{
    if (stPlace.ulLine == 0)
        return nullptr;
    return {{"file", stDiff.lstFile[stPlace.ulFile]}, {"line", stPlace.ulLine}, {"column", stPlace.ulColumn}};
}

Json changeJson(const StDiff& stDiff, const StChange& stChange)
{
    Json oSites = Json::array();
    for (const StDiffSite& stSite : stChange.lstSite)
    {
        const StRegisteredType& stType = stDiff.lstType[stSite.ulType];
        oSites.push_back({{"type", stType.strDevType},
                          {"version", stType.strDevTypeVer},
                          {"software", stDiff.lstSoftware[stSite.ulSoftware]},
                          {"old", placeJson(stDiff, stSite.stOld)},
                          {"new", placeJson(stDiff, stSite.stNew)}});
    }
    return {{"rule", stChange.pRule->pszId},
            {"impact", impactWord(stChange.pRule->enImpact)},
            {"change", changeWord(stChange.enWhat)},
            {"kind", stChange.pKind == nullptr ? "" : stChange.pKind->pszWord},
            {"path", stChange.strPath},
            {"field", stChange.strField},
            {"old", stChange.strOld},
            {"new", stChange.strNew},
            {"renamed", stChange.strRename},
            {"sites", oSites}};
}

Json deviceJson(const StHurtDevice& stDevice)
{
    return {{"id", stDevice.ulDeviceID},   {"name", stDevice.strName},          {"address", stDevice.strAddress},
            {"type", stDevice.strDevType}, {"version", stDevice.strDevTypeVer}, {"changes", stDevice.lstChange}};
}
// A list as a whole would be many times its text in memory.
template <typename Values, typename ToJson>
void printList(const char* pszName, const Values& lstValue, const TextSink& fnPrint, ToJson fnToJson)
{
    fnPrint(std::string("  \"") + pszName + "\": [");
    for (const auto& value : lstValue)
        fnPrint((&value == &lstValue.front() ? "\n    " : ",\n    ") + jsonText(fnToJson(value), 4));
    fnPrint(lstValue.empty() ? "],\n" : "\n  ],\n");
}
} // namespace

void printDiffJson(const StDiff& stDiff, const TextSink& fnPrint)
{
    const ImpactCounts arCount = countImpacts(stDiff);
    fnPrint("{\n");
    printList("changes", stDiff.lstChange, fnPrint,
              [&stDiff](const StChange& stChange) { return changeJson(stDiff, stChange); });
    printList("devices", stDiff.lstDevice, fnPrint, deviceJson);
    fnPrint("  \"summary\": " +
            jsonText({{"types", stDiff.nTypes},
                      {"changedTypes", stDiff.lstType.size()},
                      {"breaking", arCount[0]},
                      {"compatible", arCount[1]},
                      {"cosmetic", arCount[2]},
                      {"devices", stDiff.lstDevice.size()}},
                     2) +
            "\n}\n");
}

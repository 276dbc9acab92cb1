// The answer for people, on a terminal.
#include "tools/opxml/difftext/ChangeText.h"
#include "tools/opxml/difftext/DiffPrinter.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <map>
#include <set>
#include <tuple>

namespace
{
constexpr std::size_t FEW_PLACES   = 3;  // each told with its types
constexpr std::size_t DEVICES_TOLD = 50; // by name; all of them stand in the JSON

std::string wrapped(const std::string& strText, std::size_t nIndent)
{
    return joinLines(wrapText(printable(strText), widthOf(stdout), nIndent));
}

std::string headText(const StChange& stChange)
{
    const std::string strImpact = impactWord(stChange.pRule->enImpact);
    const std::string strLines  = wrapped(
         fmt::format("{}: {}: {} [{}]", strImpact, subjectText(stChange), whatText(stChange), stChange.pRule->pszId), 4);
    if (stChange.pRule->enImpact != EnImpact::Breaking)
        return strLines;
    return inRed(strImpact) + strLines.substr(strImpact.size());
}

// Sites at one place together: types that share a file.
std::vector<std::vector<StDiffSite>> sitesByPlace(const StChange& stChange)
{
    const auto fnKey = [](const StDiffSite& stSite)
    {
        return std::tuple(stSite.stOld.ulFile, stSite.stOld.ulLine, stSite.stOld.ulColumn, stSite.stNew.ulFile,
                          stSite.stNew.ulLine, stSite.stNew.ulColumn);
    };
    std::map<decltype(fnKey(stChange.lstSite.front())), std::size_t> mapAt;
    std::vector<std::vector<StDiffSite>>                             lstPlace;
    for (const StDiffSite& stSite : stChange.lstSite)
    {
        const auto [itAt, bNew] = mapAt.try_emplace(fnKey(stSite), lstPlace.size());
        if (bNew)
            lstPlace.emplace_back();
        lstPlace[itAt->second].push_back(stSite);
    }
    return lstPlace;
}

// A few places each with its types; of many the first, and the types of the others.
std::string sitesText(const StDiff& stDiff, const StChange& stChange)
{
    const std::vector<std::vector<StDiffSite>> lstPlace = sitesByPlace(stChange);
    const std::size_t                          nPlaced  = lstPlace.size() <= FEW_PLACES ? lstPlace.size() : 1;
    std::string                                strText;
    for (std::size_t nAt = 0; nAt < nPlaced; ++nAt)
    {
        const std::string strTypes = typesText(stDiff, lstPlace[nAt]);
        const std::string strPlace = siteText(stDiff, lstPlace[nAt].front());
        if (!strTypes.empty() || !strPlace.empty())
            strText += wrapped("  " + strTypes + (strTypes.empty() || strPlace.empty() ? "" : ": ") + strPlace, 6);
    }
    std::vector<StDiffSite> lstOther;
    for (std::size_t nAt = nPlaced; nAt < lstPlace.size(); ++nAt)
        lstOther.insert(lstOther.end(), lstPlace[nAt].begin(), lstPlace[nAt].end());
    const std::string strOther = typesText(stDiff, lstOther);
    if (!strOther.empty())
        strText += wrapped(fmt::format("  and {} more: {}", countTypes(lstOther), strOther), 6);
    return strText;
}

std::string devicesText(const StDiff& stDiff)
{
    std::string strText;
    for (std::size_t nAt = 0; nAt < stDiff.lstDevice.size() && nAt < DEVICES_TOLD; ++nAt)
    {
        const StHurtDevice&   stDevice = stDiff.lstDevice[nAt];
        std::set<std::string> setLoss;
        for (const std::uint32_t ulChange : stDevice.lstChange)
            setLoss.insert(subjectText(stDiff.lstChange[ulChange]));
        strText += wrapped(fmt::format("  {}: {}", deviceText(stDevice), fmt::join(setLoss, ", ")), 6);
    }
    if (stDiff.lstDevice.size() > DEVICES_TOLD)
        strText += fmt::format("  and {} more\n", stDiff.lstDevice.size() - DEVICES_TOLD);
    return strText.empty()
               ? strText
               : wrapped("Devices that lose something: " + std::to_string(stDiff.lstDevice.size()), 4) + strText;
}
} // namespace

std::string diffText(const StDiff& stDiff)
{
    std::string strText;
    for (const StChange& stChange : stDiff.lstChange)
        strText += headText(stChange) + sitesText(stDiff, stChange);
    return strText + devicesText(stDiff);
}

std::string diffSummary(const StDiff& stDiff)
{
    std::string strText = stDiff.lstType.size() == 1 && stDiff.lstType.front().strDevType.empty()
                              ? std::string()
                              : countText(stDiff.nTypes, "device type") + " compared, " +
                                    std::to_string(stDiff.lstType.size()) + " changed: ";
    strText += impactsText(stDiff);
    if (!stDiff.lstDevice.empty())
        strText += "; " + countText(stDiff.lstDevice.size(), "device") +
                   (stDiff.lstDevice.size() == 1 ? " loses something" : " lose something");
    return strText;
}

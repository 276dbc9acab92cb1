// The answer for people, on a terminal.
#include "tools/opxml/difftext/ChangeText.h"
#include "tools/opxml/difftext/DiffPrinter.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <map>
#include <tuple>

namespace
{
constexpr std::size_t FEW_PLACES   = 3;  // each told with its types
constexpr std::size_t DEVICES_TOLD = 50; // by name; all of them stand in the JSON
constexpr std::size_t LOSSES_TOLD  = 5;  // of each

std::string wrapped(const std::string& strText, std::size_t nIndent)
{
    return joinLines(wrapText(printable(strText), widthOf(stdout), nIndent));
}

std::string headText(const StChange& stChange)
{
    const std::string strImpact = impactWord(stChange.pRule->enImpact);
    std::string       strLines  = wrapped(
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
        strText += wrapped("  and " + countText(lstPlace.size() - nPlaced, "more place") + ": " + strOther, 6);
    return strText;
}

// What a device loses, the first of it by name.
std::string lossesText(const StDiff& stDiff, const StHurtDevice& stDevice)
{
    std::vector<std::string> lstLoss;
    for (const std::uint32_t ulChange : stDevice.lstChange)
    {
        if (lstLoss.size() == LOSSES_TOLD)
        {
            lstLoss.push_back(fmt::format("and {} more", stDevice.lstChange.size() - LOSSES_TOLD));
            break;
        }
        lstLoss.push_back(subjectText(stDiff.lstChange[ulChange]));
    }
    return fmt::format("{}", fmt::join(lstLoss, ", "));
}

void printDevices(const StDiff& stDiff, const TextSink& fnPrint)
{
    const std::vector<StHurtDevice>& lstDevice = stDiff.lstDevice;
    if (lstDevice.empty())
        return;
    fnPrint("Devices that lose something: " + std::to_string(lstDevice.size()) + "\n");
    for (std::size_t nAt = 0; nAt < lstDevice.size() && nAt < DEVICES_TOLD; ++nAt)
        fnPrint(wrapped("  " + deviceText(lstDevice[nAt]) + ": " + lossesText(stDiff, lstDevice[nAt]), 6));
    if (lstDevice.size() > DEVICES_TOLD)
        fnPrint(fmt::format("  and {} more\n", lstDevice.size() - DEVICES_TOLD));
}
} // namespace

void printDiffText(const StDiff& stDiff, const TextSink& fnPrint)
{
    for (const StChange& stChange : stDiff.lstChange)
        fnPrint(headText(stChange) + sitesText(stDiff, stChange));
    printDevices(stDiff, fnPrint);
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

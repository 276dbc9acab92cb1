// The answer for a review: headings by impact, a list of changes, a table of devices.
#include "tools/opxml/difftext/ChangeText.h"
#include "tools/opxml/difftext/DiffPrinter.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

namespace
{
// What the files say must not become markup.
std::string escaped(const std::string& strText)
{
    std::string strSafe;
    for (const char cChar : printable(strText))
    {
        if (std::string_view("\\`*_{}[]<>|#").find(cChar) != std::string_view::npos)
            strSafe += '\\';
        strSafe += cChar;
    }
    return strSafe;
}

std::string asCode(std::string strText)
{
    strText = printable(strText);
    std::replace(strText.begin(), strText.end(), '`', '\'');
    return "`" + strText + "`";
}

std::string changeLine(const StDiff& stDiff, const StChange& stChange)
{
    std::string       strText  = fmt::format("- **{}**: {} (`{}`)\n", escaped(subjectText(stChange)),
                                             escaped(whatText(stChange)), stChange.pRule->pszId);
    const std::string strTypes = typesText(stDiff, stChange.lstSite);
    if (!strTypes.empty())
        strText += fmt::format("  - {}: {}\n", countText(countTypes(stChange.lstSite), "type"), escaped(strTypes));
    const std::string strPlace = siteText(stDiff, stChange.lstSite.front());
    if (!strPlace.empty())
        strText += "  - " + asCode(strPlace) + "\n";
    return strText;
}

void printDevices(const StDiff& stDiff, const TextSink& fnPrint)
{
    if (stDiff.lstDevice.empty())
        return;
    fnPrint("\n### Devices that lose something: " + std::to_string(stDiff.lstDevice.size()) +
            "\n\n| id | name | address | type | version | losses |\n|---|---|---|---|---|---|\n");
    for (const StHurtDevice& stDevice : stDiff.lstDevice)
        fnPrint(fmt::format("| {} | {} | {} | {} | {} | {} |\n", stDevice.ulDeviceID, escaped(stDevice.strName),
                            escaped(stDevice.strAddress), escaped(stDevice.strDevType), escaped(stDevice.strDevTypeVer),
                            stDevice.lstChange.size()));
}
} // namespace

void printDiffMarkdown(const StDiff& stDiff, const TextSink& fnPrint)
{
    if (stDiff.isEmpty())
        return;
    constexpr const char* HEADINGS[] = {"Breaking", "Compatible", "Cosmetic"};
    const ImpactCounts    arCount    = countImpacts(stDiff);
    fnPrint("## Changes: " + diffSummary(stDiff) + "\n");
    for (std::size_t nAt = 0; nAt < arCount.size(); ++nAt)
    {
        if (arCount.at(nAt) == 0)
            continue;
        fnPrint(fmt::format("\n### {}: {}\n\n", HEADINGS[nAt], arCount.at(nAt)));
        for (const StChange& stChange : stDiff.lstChange)
        {
            if (static_cast<std::size_t>(stChange.pRule->enImpact) == nAt)
                fnPrint(changeLine(stDiff, stChange));
        }
    }
    printDevices(stDiff, fnPrint);
}

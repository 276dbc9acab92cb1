// Findings for people: place, sentence, the line with what is meant underlined, and
// help below.
#include "tools/opxml/lint/FindingPrinter.h"
#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <vector>

namespace
{
// Characters of a line that are shown: a file may be one line of a megabyte.
constexpr std::size_t WINDOW = 160;

// A part of a line, character by character, and where the underlined part begins in it.
struct StExcerpt
{
    std::string strText;
    std::string strCaret; // blanks, "^" and "~", one for each column
};

std::vector<std::string_view> charactersOf(std::string_view strText)
{
    std::vector<std::string_view> lstCharacter;
    for (std::size_t nAt = 0; nAt < strText.size();)
    {
        std::size_t nEnd = nAt + 1;
        while (nEnd < strText.size() && (strText[nEnd] & 0xC0) == 0x80)
            ++nEnd;
        lstCharacter.push_back(strText.substr(nAt, nEnd - nAt));
        nAt = nEnd;
    }
    return lstCharacter;
}

// Tabs count as one column, in the place and so here as well.
StExcerpt excerptOf(const lint::StFinding& stFinding)
{
    const std::vector<std::string_view> lstCharacter = charactersOf(stFinding.strSource);
    const std::size_t                   nFrom        = stFinding.ulColumn - 1;
    const std::size_t                   nLength      = std::max<std::size_t>(stFinding.ulLength, 1);
    const std::size_t                   nBegin       = nFrom > WINDOW / 2 ? nFrom - WINDOW / 2 : 0;
    const std::size_t                   nEnd         = std::min(lstCharacter.size(), nBegin + WINDOW);

    StExcerpt stExcerpt;
    if (nBegin > 0)
    {
        stExcerpt.strText  = "…";
        stExcerpt.strCaret = " ";
    }
    for (std::size_t nAt = nBegin; nAt < std::max(nEnd, nFrom + 1); ++nAt)
    {
        const std::string strCharacter =
            nAt < nEnd ? printable(lstCharacter[nAt] == "\t" ? " " : std::string(lstCharacter[nAt])) : " ";
        const char cMark = nAt == nFrom ? '^' : nAt > nFrom && nAt < nFrom + nLength ? '~' : ' ';
        stExcerpt.strText += strCharacter;
        stExcerpt.strCaret.append(textWidth(strCharacter), cMark);
    }
    if (nEnd < lstCharacter.size())
        stExcerpt.strText += "…";
    stExcerpt.strText.erase(stExcerpt.strText.find_last_not_of(' ') + 1);
    stExcerpt.strCaret.erase(stExcerpt.strCaret.find_last_not_of(' ') + 1);
    return stExcerpt;
}

class CTextPrinter : public CFindingPrinter
{
public:
    void print(const StPrintedFinding& stPrinted) override
    {
        const lint::StFinding& stFinding = stPrinted.stFinding;
        std::string            strText   = placeText(stFinding) + ": " +
                              inColour(stFinding.enSeverity, severityName(stFinding.enSeverity)) + ": " +
                              inBold(printable(stFinding.strMessage)) + fmt::format(" [{}]\n", stFinding.strRule);
        const std::string strMargin = fmt::format("{:>5}", stFinding.ulLine);
        const bool        bHasLine  = stFinding.ulLine != 0 && !stFinding.strSource.empty();
        if (bHasLine)
        {
            const StExcerpt stExcerpt = excerptOf(stFinding);
            strText += strMargin + " | " + stExcerpt.strText + "\n";
            if (stFinding.ulColumn != 0)
                strText += "      | " + inColour(stFinding.enSeverity, stExcerpt.strCaret) + "\n";
        }
        for (const std::string& strHelp : stFinding.lstHelp)
            strText += "      = help: " + printable(strHelp) + "\n";
        ::print(strText);
    }

private:
    static std::string placeText(const lint::StFinding& stFinding)
    {
        std::string strPlace = printable(stFinding.strFile);
        if (stFinding.ulLine != 0)
            strPlace += fmt::format(":{}:{}", stFinding.ulLine, std::max(stFinding.ulColumn, 1u));
        return inBold(strPlace);
    }

    static std::string inColour(lint::EnSeverity enSeverity, const std::string& strText)
    {
        return enSeverity == lint::EnSeverity::Error ? inRed(strText) : strText;
    }
};
} // namespace

const char* severityName(lint::EnSeverity enSeverity)
{
    switch (enSeverity)
    {
    case lint::EnSeverity::Error:
        return "error";
    case lint::EnSeverity::Warning:
        return "warning";
    case lint::EnSeverity::Note:
        break;
    }
    return "note";
}

std::unique_ptr<CFindingPrinter> makeTextPrinter()
{
    return std::make_unique<CTextPrinter>();
}

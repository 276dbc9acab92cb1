// See FileReport.h.
#include "lint/FileReport.h"

#include "lint/Phrases.h"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>

namespace lint
{
namespace
{
constexpr std::string_view ALLOWANCE = "opxml-lint:";

// A longer line is no help, and a file of one line may have as many findings as bytes.
constexpr std::size_t SHOWN_LINE = 4096;

// Takes the first word off a text.
std::string_view takeWord(std::string_view& strText)
{
    const std::string_view strWord = strText.substr(0, strText.find_first_of(BLANKS));
    strText                        = trimmed(strText.substr(strWord.size()));
    return strWord;
}

auto placeOf(const StFinding& stFinding)
{
    return std::tie(stFinding.ulLine, stFinding.ulColumn, stFinding.strRule, stFinding.strMessage);
}
} // namespace

CFileReport::CFileReport(std::string strFile, std::shared_ptr<const CSourceText> pText)
    : m_strFile(std::move(strFile)), m_pText(std::move(pText))
{
}

void CFileReport::add(const char* pszRule, const StSpot& stSpot, std::string strMessage, std::string strSubject,
                      std::vector<std::string> lstHelp)
{
    const StRule* pRule = findRule(pszRule);
    add(pszRule, pRule == nullptr ? EnSeverity::Error : pRule->enSeverity, stSpot, std::move(strMessage),
        std::move(strSubject), std::move(lstHelp));
}

void CFileReport::add(const char* pszRule, EnSeverity enSeverity, const StSpot& stSpot, std::string strMessage,
                      std::string strSubject, std::vector<std::string> lstHelp)
{
    StFinding stFinding;
    stFinding.strRule    = pszRule;
    stFinding.enSeverity = enSeverity;
    stFinding.strFile    = m_strFile;
    stFinding.ulLine     = stSpot.ulLine;
    stFinding.ulColumn   = stSpot.ulColumn;
    stFinding.ulLength   = stSpot.ulLength;
    stFinding.strMessage = std::move(strMessage);
    stFinding.strSubject = std::move(strSubject);
    stFinding.lstHelp    = std::move(lstHelp);
    m_lstFinding.push_back(std::move(stFinding));
}

void CFileReport::takeComment(const std::string& strComment, const StSpot& stSpot, const StSpot& stEnd)
{
    std::string_view strText = trimmed(strComment);
    if (strText.substr(0, ALLOWANCE.size()) != ALLOWANCE)
        return;
    strText                          = trimmed(strText.substr(ALLOWANCE.size()));
    const std::string_view strVerb   = takeWord(strText);
    const std::string      strRule   = std::string(takeWord(strText));
    const std::string_view strReason = takeWord(strText);
    if (strVerb != "allow" || strReason != "because" || strText.empty())
        add("bad-allowance", stSpot, "an allowance reads \"opxml-lint: allow RULE because TEXT\"", "allowance");
    else if (findRule(strRule) == nullptr)
        add("bad-allowance", stSpot, "there is no rule \"" + strRule + "\"", "allowance " + strRule,
            {"\"opxml lint --rules\" lists them"});
    else
        m_lstAllowance.push_back({strRule, stSpot, stEnd, false});
}

bool CFileReport::isAllowed(const StFinding& stFinding)
{
    bool bAllowed = false;
    for (StAllowance& stAllowance : m_lstAllowance)
    {
        const auto oPlace = std::tie(stFinding.ulLine, stFinding.ulColumn);
        if (stAllowance.strRule != stFinding.strRule ||
            oPlace < std::tie(stAllowance.stSpot.ulLine, stAllowance.stSpot.ulColumn) ||
            oPlace > std::tie(stAllowance.stEnd.ulLine, stAllowance.stEnd.ulColumn))
            continue;
        stAllowance.bUsed = true;
        bAllowed          = true;
    }
    return bAllowed;
}

void CFileReport::flush(const FindingSink& fnFinding)
{
    std::vector<StFinding> lstFinding = std::exchange(m_lstFinding, {});
    lstFinding.erase(std::remove_if(lstFinding.begin(), lstFinding.end(),
                                    [this](const StFinding& stFinding) { return isAllowed(stFinding); }),
                     lstFinding.end());
    for (const StAllowance& stAllowance : std::exchange(m_lstAllowance, {}))
    {
        if (!stAllowance.bUsed)
            add("unused-allowance", stAllowance.stSpot, "nothing here needs an allowance for " + stAllowance.strRule,
                "allowance " + stAllowance.strRule);
    }
    std::move(m_lstFinding.begin(), m_lstFinding.end(), std::back_inserter(lstFinding));
    m_lstFinding.clear();

    std::sort(lstFinding.begin(), lstFinding.end(),
              [](const StFinding& stLeft, const StFinding& stRight) { return placeOf(stLeft) < placeOf(stRight); });
    lstFinding.erase(std::unique(lstFinding.begin(), lstFinding.end(),
                                 [](const StFinding& stLeft, const StFinding& stRight)
                                 { return placeOf(stLeft) == placeOf(stRight); }),
                     lstFinding.end());
    for (StFinding& stFinding : lstFinding)
    {
        const std::string_view strLine = m_pText == nullptr ? std::string_view() : m_pText->line(stFinding.ulLine);
        if (strLine.size() <= SHOWN_LINE)
            stFinding.strSource = std::string(strLine);
        fnFinding(stFinding);
    }
}
} // namespace lint

// See FileReport.h.
#include "lint/FileReport.h"

#include "lint/Phrases.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <tuple>
#include <utility>

namespace lint
{
namespace
{
constexpr std::string_view ALLOWANCE = "opxml-lint:";

// Takes the first word off a text.
std::string_view takeWord(std::string_view& strText)
{
    const std::string_view strWord = strText.substr(0, strText.find_first_of(BLANKS));
    strText                        = trimmed(strText.substr(strWord.size()));
    return strWord;
}

auto placeOf(const StSpot& stSpot)
{
    return std::tie(stSpot.ulLine, stSpot.ulColumn);
}

auto orderOf(const StFinding& stFinding)
{
    return std::tie(stFinding.ulLine, stFinding.ulColumn, stFinding.strRule, stFinding.strMessage);
}

// In the order of the file, each mistake once.
void sort(std::vector<StFinding>& lstFinding)
{
    std::sort(lstFinding.begin(), lstFinding.end(),
              [](const StFinding& stLeft, const StFinding& stRight) { return orderOf(stLeft) < orderOf(stRight); });
    lstFinding.erase(std::unique(lstFinding.begin(), lstFinding.end(),
                                 [](const StFinding& stLeft, const StFinding& stRight)
                                 { return orderOf(stLeft) == orderOf(stRight); }),
                     lstFinding.end());
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
    if (isFull())
        return;
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

void CFileReport::addUnlessMeant(const std::string& strName, const char* pszRule, const StSpot& stSpot,
                                 std::string strMessage, std::string strSubject, std::vector<std::string> lstHelp)
{
    if (isFull())
        return;
    add(pszRule, stSpot, std::move(strMessage), std::move(strSubject), std::move(lstHelp));
    m_lstDoubtful.push_back({strName, std::move(m_lstFinding.back())});
    m_lstFinding.pop_back();
}

void CFileReport::addCertain()
{
    for (StDoubtful& stDoubtful : std::exchange(m_lstDoubtful, {}))
    {
        if (m_setMeant.count(stDoubtful.strName) == 0 && !isFull())
            m_lstFinding.push_back(std::move(stDoubtful.stFinding));
    }
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

// Both lists come in the order of the file, and allowances nest as elements do.
void CFileReport::dropAllowed(std::vector<StFinding>& lstFinding)
{
    std::map<std::string, std::vector<StAllowance*>> mapOpen; // by rule, the innermost last
    auto                                             itNext      = m_lstAllowance.begin();
    const auto                                       fnIsAllowed = [&](const StFinding& stFinding)
    {
        const auto oPlace = std::tie(stFinding.ulLine, stFinding.ulColumn);
        for (; itNext != m_lstAllowance.end() && placeOf(itNext->stSpot) <= oPlace; ++itNext)
            mapOpen[itNext->strRule].push_back(&*itNext);
        std::vector<StAllowance*>& lstOpen = mapOpen[stFinding.strRule];
        while (!lstOpen.empty() && placeOf(lstOpen.back()->stEnd) < oPlace)
            lstOpen.pop_back();
        if (!lstOpen.empty())
            lstOpen.back()->bUsed = true;
        return !lstOpen.empty();
    };
    lstFinding.erase(std::remove_if(lstFinding.begin(), lstFinding.end(), fnIsAllowed), lstFinding.end());
}

void CFileReport::flush(const FindingSink& fnFinding)
{
    addCertain();
    const bool             bFull      = isFull();
    std::vector<StFinding> lstFinding = std::exchange(m_lstFinding, {});
    sort(lstFinding);
    dropAllowed(lstFinding);
    for (const StAllowance& stAllowance : std::exchange(m_lstAllowance, {}))
    {
        if (!stAllowance.bUsed && !bFull) // else it may be needed by what is not told
            add("unused-allowance", stAllowance.stSpot, "nothing here needs an allowance for " + stAllowance.strRule,
                "allowance " + stAllowance.strRule);
    }
    std::move(m_lstFinding.begin(), m_lstFinding.end(), std::back_inserter(lstFinding));
    m_lstFinding.clear();
    sort(lstFinding);
    if (bFull && !lstFinding.empty())
        lstFinding.back().lstHelp.push_back("only " + std::to_string(MAX_FINDINGS) +
                                            " findings of one file are told: there may be more");
    for (StFinding& stFinding : lstFinding)
    {
        if (m_pText != nullptr)
            stFinding.strSource = m_pText->shownLine(stFinding.ulLine);
        fnFinding(stFinding);
    }
}
} // namespace lint

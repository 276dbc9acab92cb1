// See Stands.h.
#include "tools/opxml/explain/Stands.h"

#include "tools/opxml/catalog/EntryText.h"
#include "tools/opxml/catalog/EntryWalk.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <string_view>

namespace
{
bool isFlagSet(const catalog::StEntry& stEntry, const char* pszField)
{
    const catalog::StField* pField = stEntry.field(pszField);
    return pField != nullptr && pField->strValue == "1";
}

bool isNamed(const catalog::StEntry& stEntry, const StWanted& stWanted, std::size_t nId)
{
    const std::string& strId = stWanted.lstId[nId];
    if (nId + 1 < OPTION_LEVEL)
        return stEntry.strId == strId;
    const catalog::StField* pValue = stEntry.field("ulValue");
    return (stWanted.bByName && stEntry.strId == strId) ||
           (stWanted.bByValue && pValue != nullptr && pValue->strValue == strId);
}

// The ids stand in this order on the path, the last of them at its end.
bool isWanted(const StWalkedEntry& stWalked, const StWanted& stWanted)
{
    if (!isNamed(stWalked.entry(), stWanted, stWanted.lstId.size() - 1))
        return false;
    std::size_t nLeft = stWanted.lstId.size();
    for (std::size_t nAt = stWalked.lstPath.size(); nAt-- > 0 && nLeft > 0;)
    {
        const catalog::StEntry& stEntry = *stWalked.lstPath[nAt];
        if (!isNamed(stEntry, stWanted, nLeft - 1))
            continue;
        --nLeft;
        const auto& lstKind = stWanted.lstKind;
        if (nLeft == 0 && !lstKind.empty() &&
            std::find(lstKind.begin(), lstKind.end(), kindOf(stWalked.nRow, stEntry).enKind) == lstKind.end())
            return false;
    }
    return nLeft == 0;
}

bool isSwitchedOn(const StStand& stStand)
{
    if (stStand.pKind->enKind == EnEntryKind::OtherOperation)
        return isFlagSet(stStand.entry(), "bIsSupported");
    if (stStand.pKind->enKind == EnEntryKind::Parameter && stStand.pRoot->enKind == EnEntryKind::OtherOperation)
        return isFlagSet(stStand.entry(), "bIsRequired");
    return true;
}

// What takes an entry out, or what it stands in: the place of the innermost reason.
std::string becauseOf(const StWalkedEntry& stWalked, const std::vector<std::string>& lstFile)
{
    for (auto itEntry = stWalked.lstPath.rbegin(); itEntry != stWalked.lstPath.rend(); ++itEntry)
    {
        if ((*itEntry)->enFate != catalog::EnEntryFate::Counts)
            return placeText(lstFile, (*itEntry)->stBecause);
    }
    return {};
}

// Collects the stands of a walk, and knows the first operation of each id.
class CStandFinder
{
public:
    CStandFinder(const std::vector<std::string>& lstFile, const StWanted& stWanted)
        : m_lstFile(lstFile), m_stWanted(stWanted)
    {
    }

    void visit(const StWalkedEntry& stWalked)
    {
        const catalog::StEntry& stRoot = *stWalked.lstPath.front();
        if (stRoot.strId == m_stWanted.lstId.front() && stWalked.lstPath.size() == 1 && stWalked.bInEffect)
            m_mapFirst.emplace(stWalked.nRow, &stRoot);
        if (!isWanted(stWalked, m_stWanted))
            return;
        StStand& stStand   = m_lstStand.emplace_back();
        stStand.pKind      = stWalked.pKind;
        stStand.pRoot      = &kindOf(stWalked.nRow, stRoot);
        stStand.lstPath    = stWalked.lstPath;
        stStand.bInEffect  = stWalked.bInEffect;
        stStand.strPlace   = placeText(m_lstFile, stWalked.entry().stPlace);
        stStand.strBecause = becauseOf(stWalked, m_lstFile);
        const auto itFirst = m_mapFirst.find(stWalked.nRow);
        stStand.bPartly    = stStand.bInEffect && stStand.pRoot->enRole == EnEntryRole::Operation &&
                          itFirst != m_mapFirst.end() && itFirst->second->strId == stRoot.strId &&
                          itFirst->second != &stRoot;
        if (stStand.bPartly)
            stStand.strBecause = placeText(m_lstFile, itFirst->second->stPlace);
    }

    std::vector<StStand> m_lstStand;

private:
    const std::vector<std::string>&                m_lstFile;
    const StWanted&                                m_stWanted;
    std::map<std::size_t, const catalog::StEntry*> m_mapFirst; // by row of the table of sections
};
} // namespace

StWanted StWanted::upTo(std::size_t nLevels) const
{
    StWanted stFirst = *this;
    stFirst.lstId.resize(std::min(nLevels, lstId.size()));
    return stFirst;
}

std::vector<StStand> findStands(const std::vector<catalog::StSection>& lstSection,
                                const std::vector<std::string>& lstFile, const StWanted& stWanted)
{
    if (stWanted.lstId.empty())
        return {};
    CStandFinder oFinder(lstFile, stWanted);
    walkEntries(lstSection, [&oFinder](const StWalkedEntry& stWalked) { oFinder.visit(stWalked); });
    return std::move(oFinder.m_lstStand);
}

bool isDefinition(const StStand& stStand)
{
    return stStand.pKind->enRole == EnEntryRole::Operation || stStand.pKind->enKind == EnEntryKind::TaskType;
}

bool isFound(const StStand& stStand, const StWanted& stWanted)
{
    return stStand.bInEffect && (!stStand.bPartly || (stWanted.bEvery && stStand.lstPath.size() > 1));
}

bool isOffered(const StStand& stStand)
{
    return stStand.bInEffect && isSwitchedOn(stStand);
}

std::string kindText(const StStand& stStand)
{
    const std::string_view strName = stStand.pKind->pszName;
    const bool             bVowel  = std::string_view("aeiou").find(strName.front()) != std::string_view::npos;
    std::string            strText = fmt::format("{} {}", bVowel ? "an" : "a", strName);
    for (std::size_t nAt = stStand.lstPath.size() - 1; nAt-- > 0;)
    {
        if (!stStand.lstPath[nAt]->strId.empty())
            strText += fmt::format(" of \"{}\"", stStand.lstPath[nAt]->strId);
    }
    return strText;
}

std::string fateText(const StStand& stStand)
{
    switch (stStand.entry().enFate)
    {
    case catalog::EnEntryFate::Shadowed:
        return "shadowed by " + stStand.strBecause;
    case catalog::EnEntryFate::Dropped:
        return "left out: " + stStand.entry().strReason;
    case catalog::EnEntryFate::Pruned:
        return "removed by the capacity document at " + stStand.strBecause;
    case catalog::EnEntryFate::Counts:
        break;
    }
    if (stStand.bPartly)
        return fmt::format("counts for content types and board types alone, else shadowed by {}", stStand.strBecause);
    if (!stStand.bInEffect)
        return "does not count, as what it stands in does not" +
               (stStand.strBecause.empty() ? "" : ": " + stStand.strBecause);
    return isSwitchedOn(stStand) ? "counts" : "switched off";
}

// See EntryWalk.h.
#include "tools/opxml/catalog/EntryWalk.h"

namespace
{
void walkList(const std::vector<catalog::StEntry>& lstEntry, StWalkedEntry& stWalked, const EntryVisit& fnVisit)
{
    const bool bAroundCounts = stWalked.bInEffect;
    for (const catalog::StEntry& stEntry : lstEntry)
    {
        stWalked.lstPath.push_back(&stEntry);
        stWalked.pKind     = &kindOf(stWalked.nRow, stEntry);
        stWalked.bInEffect = bAroundCounts && stEntry.enFate == catalog::EnEntryFate::Counts;
        fnVisit(stWalked);
        walkList(stEntry.lstChild, stWalked, fnVisit);
        stWalked.lstPath.pop_back();
    }
    stWalked.bInEffect = bAroundCounts;
}
} // namespace

void walkEntries(const std::vector<catalog::StSection>& lstSection, const EntryVisit& fnVisit)
{
    StWalkedEntry stWalked;
    for (const catalog::StSection& stSection : lstSection)
    {
        stWalked.nRow = stSection.nRow;
        walkList(stSection.lstEntry, stWalked, fnVisit);
    }
}

std::string pathText(const std::vector<const catalog::StEntry*>& lstPath)
{
    std::string strPath;
    for (const catalog::StEntry* pEntry : lstPath)
    {
        if (!pEntry->strId.empty())
            strPath += (strPath.empty() ? "" : "/") + pEntry->strId;
    }
    return strPath;
}

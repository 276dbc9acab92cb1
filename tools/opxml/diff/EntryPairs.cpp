// See EntryPairs.h.
#include "tools/opxml/diff/EntryPairs.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <iterator>
#include <map>
#include <set>
#include <string_view>

namespace
{
using EntryName = std::pair<std::string_view, std::string_view>; // record and id

EntryName nameOf(const catalog::StEntry& stEntry)
{
    return {stEntry.pszRecord, stEntry.strId};
}

// Nearly always the lists are alike.
bool isAlike(const EntryList& lstOld, const EntryList& lstNew)
{
    return std::equal(lstOld.begin(), lstOld.end(), lstNew.begin(), lstNew.end(),
                      [](const catalog::StEntry* pOld, const catalog::StEntry* pNew)
                      { return nameOf(*pOld) == nameOf(*pNew); });
}

// In which order entries of one name find their partners.
enum class EnPass : std::int32_t
{
    First,
    Same,
    Next,
};

class CPairing
{
public:
    explicit CPairing(const EntryList& lstNew)
    {
        for (const catalog::StEntry* pNew : lstNew)
            m_mapFree[nameOf(*pNew)].push_back(pNew);
    }

    void pair(const catalog::StEntry& stOld, EnPass enPass)
    {
        const auto itFree = m_mapFree.find(nameOf(stOld));
        if (itFree == m_mapFree.end() || m_mapPartner.count(&stOld) != 0)
            return;
        if (enPass == EnPass::First && !m_setBegun.insert(itFree->first).second)
            return;
        Twins&     lstFree = itFree->second;
        const auto itNew   = enPass == EnPass::Same ? findSame(stOld, lstFree) : lstFree.begin();
        if (itNew == lstFree.end())
            return;
        m_mapPartner[&stOld] = *itNew;
        m_setTaken.insert(*itNew);
        lstFree.erase(itNew);
    }

    const catalog::StEntry* partnerOf(const catalog::StEntry& stOld) const
    {
        const auto itPartner = m_mapPartner.find(&stOld);
        return itPartner == m_mapPartner.end() ? nullptr : itPartner->second;
    }

    bool isTaken(const catalog::StEntry& stNew) const { return m_setTaken.count(&stNew) != 0; }
    bool hasNew(const EntryName& oName) const { return m_mapFree.count(oName) != 0; }

private:
    using Twins = std::deque<const catalog::StEntry*>;

    // Of very many only the first are looked at.
    static Twins::iterator findSame(const catalog::StEntry& stOld, Twins& lstFree)
    {
        constexpr std::size_t LOOKED_AT = 32;
        const auto            itEnd =
            lstFree.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(LOOKED_AT, lstFree.size()));
        const auto itSame = std::find_if(lstFree.begin(), itEnd,
                                         [&stOld](const catalog::StEntry* pNew) { return isSame(stOld, *pNew); });
        return itSame == itEnd ? lstFree.end() : itSame;
    }

    std::map<EntryName, Twins>                                 m_mapFree;
    std::set<EntryName>                                        m_setBegun;
    std::map<const catalog::StEntry*, const catalog::StEntry*> m_mapPartner;
    std::set<const catalog::StEntry*>                          m_setTaken;
};
} // namespace

EntryList entriesOf(const std::vector<catalog::StEntry>& lstEntry, catalog::EnEntryFate enFate)
{
    EntryList lstOf;
    for (const catalog::StEntry& stEntry : lstEntry)
    {
        if (stEntry.enFate == enFate)
            lstOf.push_back(&stEntry);
    }
    return lstOf;
}

bool isCompared(const catalog::StField& stField)
{
    constexpr std::string_view NOT_COMPARED[] = {"strId", "strName", "enPatchType", "enTaskType", "ulIndex"};
    return std::find(std::begin(NOT_COMPARED), std::end(NOT_COMPARED), stField.pszName) == std::end(NOT_COMPARED);
}

bool isSame(const catalog::StEntry& stOld, const catalog::StEntry& stNew)
{
    return stOld.strId == stNew.strId && isSameButForId(stOld, stNew);
}

bool isSameButForId(const catalog::StEntry& stOld, const catalog::StEntry& stNew)
{
    if (std::string_view(stOld.pszRecord) != stNew.pszRecord || stOld.lstField.size() != stNew.lstField.size())
        return false;
    for (std::size_t nAt = 0; nAt < stOld.lstField.size(); ++nAt)
    {
        if (stOld.lstField[nAt].strValue != stNew.lstField[nAt].strValue && isCompared(stOld.lstField[nAt]))
            return false;
    }
    const EntryList lstOld = entriesOf(stOld.lstChild, catalog::EnEntryFate::Counts);
    const EntryList lstNew = entriesOf(stNew.lstChild, catalog::EnEntryFate::Counts);
    return std::equal(lstOld.begin(), lstOld.end(), lstNew.begin(), lstNew.end(),
                      [](const catalog::StEntry* pOld, const catalog::StEntry* pNew) { return isSame(*pOld, *pNew); });
}

StEntryPairs pairEntries(const EntryList& lstOld, const EntryList& lstNew)
{
    StEntryPairs stPairs;
    if (isAlike(lstOld, lstNew))
    {
        for (std::size_t nAt = 0; nAt < lstOld.size(); ++nAt)
            stPairs.lstPair.emplace_back(lstOld[nAt], lstNew[nAt]);
        return stPairs;
    }
    CPairing oPairing(lstNew);
    for (const EnPass enPass : {EnPass::First, EnPass::Same, EnPass::Next})
    {
        for (const catalog::StEntry* pOld : lstOld)
            oPairing.pair(*pOld, enPass);
    }
    std::set<EntryName> setOld;
    for (const catalog::StEntry* pOld : lstOld)
    {
        setOld.insert(nameOf(*pOld));
        if (const catalog::StEntry* pNew = oPairing.partnerOf(*pOld))
        {
            stPairs.lstPair.emplace_back(pOld, pNew);
            continue;
        }
        stPairs.lstLost.push_back(pOld);
        if (oPairing.hasNew(nameOf(*pOld)))
            stPairs.setTwin.insert(pOld);
    }
    for (const catalog::StEntry* pNew : lstNew)
    {
        if (oPairing.isTaken(*pNew))
            continue;
        stPairs.lstGained.push_back(pNew);
        if (setOld.count(nameOf(*pNew)) != 0)
            stPairs.setTwin.insert(pNew);
    }
    return stPairs;
}

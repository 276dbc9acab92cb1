// See ConfigurationDiff.h.
#include "tools/opxml/diff/ConfigurationDiff.h"

#include "database/ContentQuestions.h"
#include "tools/opxml/catalog/EntryText.h"
#include "tools/opxml/catalog/EntryWalk.h"
#include "tools/opxml/diff/EntryPairs.h"
#include "tools/opxml/diff/EntryRules.h"
#include "tools/opxml/diff/OptionNumbers.h"
#include "tools/opxml/diff/Renames.h"
#include "tools/opxml/output/Sections.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <utility>

namespace
{
class CConfigurationDiff
{
public:
    explicit CConfigurationDiff(const StPassedOver& stPassedOver) : m_stPassedOver(stPassedOver) {}

    std::vector<StEntryChange> run(const catalog::StConfiguration& stOld, const catalog::StConfiguration& stNew)
    {
        for (std::size_t nAt = 0; nAt < stOld.lstSection.size() && nAt < stNew.lstSection.size(); ++nAt)
        {
            m_nRow = stOld.lstSection[nAt].nRow;
            compareLists(stOld.lstSection[nAt].lstEntry, stNew.lstSection[nAt].lstEntry);
        }
        dropSecondReadings();
        return std::move(m_lstChange);
    }

private:
    // The isolation view reads the element of the device view's menu a second time, with
    // words of its own: what changed for both is told of the menu.
    void dropSecondReadings()
    {
        const auto fnKey = [](StEntryChange stChange)
        {
            stChange.stChange.pKind = nullptr;
            stChange.stChange.strOld.clear();
            stChange.stChange.strNew.clear();
            return keyOf(stChange);
        };
        std::set<ChangeKey>        setOfMenu;
        std::vector<StEntryChange> lstKept;
        for (StEntryChange& stChange : m_lstChange) // the menu stands before the isolation view in their table
        {
            const EnEntryKind enKind = stChange.stChange.pKind->enKind;
            if (enKind == EnEntryKind::Menu)
                setOfMenu.insert(fnKey(stChange));
            if (enKind != EnEntryKind::IsolationMenu || setOfMenu.count(fnKey(stChange)) == 0)
                lstKept.push_back(std::move(stChange));
        }
        m_lstChange = std::move(lstKept);
    }

    void compareLists(const std::vector<catalog::StEntry>& lstOld, const std::vector<catalog::StEntry>& lstNew)
    {
        using catalog::EnEntryFate;
        comparePairs(pairEntries(without(entriesOf(lstOld, EnEntryFate::Counts), m_stPassedOver.setOldModule),
                                 without(entriesOf(lstNew, EnEntryFate::Counts), m_stPassedOver.setNewModule)));
        compareShadowed(pairEntries(without(entriesOf(lstOld, EnEntryFate::Shadowed), m_stPassedOver.setOldModule),
                                    without(entriesOf(lstNew, EnEntryFate::Shadowed), m_stPassedOver.setNewModule)));
    }

    EntryList without(EntryList lstEntry, const std::set<std::string>& setModule) const
    {
        if (!setModule.empty())
            lstEntry.erase(std::remove_if(lstEntry.begin(), lstEntry.end(),
                                          [&setModule](const catalog::StEntry* pEntry)
                                          { return setModule.count(pEntry->strModule) != 0; }),
                           lstEntry.end());
        return lstEntry;
    }

    void comparePairs(const StEntryPairs& stPairs)
    {
        const std::map<const catalog::StEntry*, std::string> mapRename = suggestRenames(stPairs);
        for (const catalog::StEntry* pLost : stPairs.lstLost)
            tellOneSided(*pLost, EnChange::Lost, stPairs, mapRename);
        for (const auto& [pOld, pNew] : stPairs.lstPair)
            compareEntries(*pOld, *pNew);
        for (const catalog::StEntry* pGained : stPairs.lstGained)
            tellOneSided(*pGained, EnChange::Gained, stPairs, mapRename);
        compareOrder(stPairs.lstPair);
    }

    // No question reaches them: it matters little what of them changed.
    void compareShadowed(const StEntryPairs& stPairs)
    {
        for (const catalog::StEntry* pLost : stPairs.lstLost)
            add(*pLost, EnChange::Lost, "shadowed-entry").stOld = pLost->stPlace;
        for (const auto& [pOld, pNew] : stPairs.lstPair)
        {
            if (isSame(*pOld, *pNew))
                continue;
            StEntryChange& stChange  = add(*pOld, EnChange::Changed, "shadowed-entry");
            stChange.stOld           = pOld->stPlace;
            stChange.stNew           = pNew->stPlace;
            stChange.stChange.strOld = saysText(*pOld);
            stChange.stChange.strNew = saysText(*pNew);
        }
        for (const catalog::StEntry* pGained : stPairs.lstGained)
            add(*pGained, EnChange::Gained, "shadowed-entry").stNew = pGained->stPlace;
    }

    void compareEntries(const catalog::StEntry& stOld, const catalog::StEntry& stNew)
    {
        for (std::size_t nAt = 0; nAt < stOld.lstField.size() && nAt < stNew.lstField.size(); ++nAt)
        {
            const catalog::StField& stWas = stOld.lstField[nAt];
            const catalog::StField& stIs  = stNew.lstField[nAt];
            if (stWas.strValue == stIs.strValue || !isCompared(stWas))
                continue;
            StEntryChange& stChange =
                add(stOld, EnChange::Changed,
                    ruleOfField(kindOf(m_nRow, stOld), SECTION_TITLES[m_nRow].pszField, stWas, stIs));
            stChange.stChange.strField = attributeText(stWas.pszName);
            stChange.stChange.strOld   = stWas.strValue;
            stChange.stChange.strNew   = stIs.strValue;
            stChange.stOld             = stWas.stPlace.ulLine == 0 ? stOld.stPlace : stWas.stPlace;
            stChange.stNew             = stIs.stPlace.ulLine == 0 ? stNew.stPlace : stIs.stPlace;
        }
        if (stOld.lstChild.empty() && stNew.lstChild.empty())
            return;
        m_lstPath.push_back(&stOld);
        compareLists(stOld.lstChild, stNew.lstChild);
        if (kindOf(m_nRow, stOld).enKind == EnEntryKind::Parameter)
            compareFirstOfNumber(stOld, stNew);
        m_lstPath.pop_back();
    }

    void tellOneSided(const catalog::StEntry& stEntry, EnChange enWhat, const StEntryPairs& stPairs,
                      const std::map<const catalog::StEntry*, std::string>& mapRename)
    {
        const StEntryKind& stKind = kindOf(m_nRow, stEntry);
        StEntryChange&     stChange =
            stPairs.setTwin.count(&stEntry) != 0
                    ? add(stEntry, enWhat, enWhat == EnChange::Lost ? "twin-lost" : "twin-gained")
                    : add(stEntry, enWhat, ruleOfEntry(stKind, SECTION_TITLES[m_nRow].pszField, stEntry, enWhat));
        const auto itRename = mapRename.find(&stEntry);
        if (itRename != mapRename.end())
            stChange.stChange.strRename = itRename->second;
        const bool bLost                          = enWhat == EnChange::Lost;
        (bLost ? stChange.stOld : stChange.stNew) = stEntry.stPlace;
        // Its number is what an option is about.
        if (stKind.enKind == EnEntryKind::Option)
            (bLost ? stChange.stChange.strOld : stChange.stChange.strNew) = numberOf(stEntry);
    }

    // The siblings that are in both, told as one: between the first and the last that do
    // not stand where they stood.
    void compareOrder(const std::vector<EntryPair>& lstPair)
    {
        std::map<const StDiffRule*, std::pair<EntryList, EntryList>> mapOrder;
        for (const auto& [pOld, pNew] : lstPair)
        {
            if (const StDiffRule* pRule = ruleOfOrder(kindOf(m_nRow, *pOld), isBackupContent()))
            {
                mapOrder[pRule].first.push_back(pOld);
                mapOrder[pRule].second.push_back(pNew);
            }
        }
        for (auto& [pRule, oOrder] : mapOrder)
            tellOrder(*pRule, oOrder.first, oOrder.second);
    }

    void tellOrder(const StDiffRule& stRule, const EntryList& lstOld, const EntryList& lstPartner)
    {
        EntryList lstNew = lstPartner; // as they stand in memory, so in their list
        std::sort(lstNew.begin(), lstNew.end());
        std::size_t nFirst = 0;
        std::size_t nEnd   = lstNew.size();
        while (nFirst < nEnd && lstNew[nFirst] == lstPartner[nFirst])
            ++nFirst;
        while (nEnd > nFirst && lstNew[nEnd - 1] == lstPartner[nEnd - 1])
            --nEnd;
        if (nFirst == nEnd)
            return;
        StEntryChange& stChange   = add(*lstOld[nFirst], EnChange::Moved, stRule);
        stChange.stChange.strPath = pathText(m_lstPath);
        stChange.stOld            = lstOld[nFirst]->stPlace;
        stChange.stNew            = lstNew[nFirst]->stPlace;
        for (std::size_t nAt = nFirst; nAt < nEnd; ++nAt)
        {
            const char* const pszComma = nAt == nFirst ? "" : ", ";
            stChange.stChange.strOld += pszComma + lstOld[nAt]->strId;
            stChange.stChange.strNew += pszComma + lstNew[nAt]->strId;
        }
    }

    // The first option of a number is its name: another one, though the old one is still
    // there with that number.
    void compareFirstOfNumber(const catalog::StEntry& stOld, const catalog::StEntry& stNew)
    {
        const COptionNumbers oOld(stOld);
        const COptionNumbers oNew(stNew);
        for (const auto& [strNumber, pOld] : oOld.first())
        {
            const auto itNew = oNew.first().find(strNumber);
            if (itNew == oNew.first().end() || itNew->second->strId == pOld->strId ||
                !oNew.has(pOld->strId, strNumber) || !oOld.has(itNew->second->strId, strNumber))
                continue;
            StEntryChange& stChange    = add(stOld, EnChange::Changed, "number-reread");
            stChange.stChange.strPath  = pathText(m_lstPath);
            stChange.stChange.strField = "name of " + std::string(strNumber);
            stChange.stChange.strOld   = pOld->strId;
            stChange.stChange.strNew   = itNew->second->strId;
            stChange.stOld             = pOld->stPlace;
            stChange.stNew             = itNew->second->stPlace;
        }
    }

    // Whether the lists at hand are what the list of content types is made of.
    bool isBackupContent() const
    {
        return m_lstPath.size() == 2 && m_lstPath[0]->strId == BACKUP_CONTENT.strOperation &&
               m_lstPath[1]->strId == BACKUP_CONTENT.strParameter &&
               kindOf(m_nRow, *m_lstPath[0]).enKind == EnEntryKind::DeviceOperation;
    }

    StEntryChange& add(const catalog::StEntry& stEntry, EnChange enWhat, const std::string& strRule)
    {
        return add(stEntry, enWhat, diffRule(strRule));
    }

    StEntryChange& add(const catalog::StEntry& stEntry, EnChange enWhat, const StDiffRule& stRule)
    {
        StEntryChange& stChange  = m_lstChange.emplace_back();
        stChange.stChange.pRule  = &stRule;
        stChange.stChange.enWhat = enWhat;
        stChange.stChange.pKind  = &kindOf(m_nRow, stEntry);
        m_lstPath.push_back(&stEntry);
        stChange.stChange.strPath = pathText(m_lstPath);
        m_lstPath.pop_back();
        return stChange;
    }

    const StPassedOver&                  m_stPassedOver;
    std::size_t                          m_nRow = 0; // of the section at hand
    std::vector<const catalog::StEntry*> m_lstPath;  // to the lists at hand, on the old side
    std::vector<StEntryChange>           m_lstChange;
};
} // namespace

ChangeKey keyOf(const StEntryChange& stChange)
{
    const StChange&         st    = stChange.stChange;
    const catalog::StPlace& stOld = stChange.stOld;
    const catalog::StPlace& stNew = stChange.stNew;
    return {st.pRule,    st.enWhat,
            st.pKind,    st.strPath,
            st.strField, st.strOld,
            st.strNew,   {stOld.ulFile, stOld.ulLine, stOld.ulColumn, stNew.ulFile, stNew.ulLine, stNew.ulColumn}};
}

std::vector<StEntryChange> diffConfigurations(const catalog::StConfiguration& stOld,
                                              const catalog::StConfiguration& stNew, const StPassedOver& stPassedOver)
{
    return CConfigurationDiff(stPassedOver).run(stOld, stNew);
}

// What a capacity list takes out of a record, list by list.
#include "common/ReadObserver.h"
#include "reader/CCapacityXMLConfig.h"
#include "reader/SectionTable.h"
#include "records/Vocabulary.h"

#include <iterator>
#include <map>
#include <set>
#include <string_view>
#include <type_traits>
#include <utility>

namespace
{
using CapacityList = std::list<StAsnOperation>;

// The first capacity parameter of an id. The texts are the capacity list's.
struct StParamRule
{
    const StAsnOperParamDef*                             pParam = nullptr;
    std::set<std::pair<std::string_view, std::uint32_t>> setOption;
};

// What the capacity operations of one id say.
struct StOperationRule
{
    const StAsnOperation*                   pFirst = nullptr;
    const StAsnOperation*                   pLast  = nullptr;
    std::map<std::string_view, StParamRule> mapParam; // of the first operation
};

// A capacity list by its ids: both it and the lists that it prunes may be long.
class CRules
{
public:
    CRules(const CapacityList& lstCapacity) // implicit: every prune function takes the list as well
    {
        for (const StAsnOperation& stCapacity : lstCapacity)
        {
            StOperationRule& stRule = m_mapRule[stCapacity.strId];
            stRule.pLast            = &stCapacity;
            if (stRule.pFirst == nullptr)
                fill(stRule, stCapacity);
        }
    }

    const StOperationRule* find(std::string_view strId) const
    {
        const auto itRule = m_mapRule.find(strId);
        return itRule == m_mapRule.end() ? nullptr : &itRule->second;
    }

    // The first capacity operation of an id if it denies it, else null.
    const StAsnOperation* firstDenial(std::string_view strId) const
    {
        const StOperationRule* pRule = find(strId);
        return pRule == nullptr || pRule->pFirst->bIsSupported ? nullptr : pRule->pFirst;
    }

    // The same for the last one.
    const StAsnOperation* lastDenial(std::string_view strId) const
    {
        const StOperationRule* pRule = find(strId);
        return pRule == nullptr || pRule->pLast->bIsSupported ? nullptr : pRule->pLast;
    }

private:
    static void fill(StOperationRule& stRule, const StAsnOperation& stCapacity)
    {
        stRule.pFirst = &stCapacity;
        for (const StAsnOperParamDef& stParam : stCapacity.lstParam)
        {
            StParamRule& stParamRule = stRule.mapParam[stParam.strId];
            if (stParamRule.pParam != nullptr)
                continue;
            stParamRule.pParam = &stParam;
            for (const StAsnOptionInfo& stOption : stParam.lstOption)
                stParamRule.setOption.emplace(stOption.strId, stOption.ulValue);
        }
    }

    std::map<std::string_view, StOperationRule> m_mapRule;
};

// The one place where pruning removes a record: fnDenial names the capacity entry
// because of which it goes, or null where it stays.
template <typename Record, typename FindDenial>
void removeDenied(std::list<Record>& lstRecord, FindDenial fnDenial)
{
    for (auto itRecord = lstRecord.begin(); itRecord != lstRecord.end();)
    {
        const auto* pDenial = fnDenial(*itRecord);
        if (CReadObserver* pObserver = ReadObserver::get(); pObserver != nullptr && pDenial != nullptr)
            pObserver->recordPruned(&*itRecord, itRecord->strId, pDenial);
        itRecord = pDenial == nullptr ? std::next(itRecord) : lstRecord.erase(itRecord);
    }
}

// A parameter that the entry does not name is kept whole; one that it names as
// not required goes; one that it requires keeps the options listed there.
void pruneParameters(std::list<StAsnOperParamDef>& lstParam, const StOperationRule& stRule)
{
    removeDenied(lstParam,
                 [&stRule](const StAsnOperParamDef& stParam)
                 {
                     const auto itParam = stRule.mapParam.find(stParam.strId);
                     const bool bStays  = itParam == stRule.mapParam.end() || itParam->second.pParam->bIsRequired;
                     return bStays ? nullptr : itParam->second.pParam;
                 });
    for (StAsnOperParamDef& stParam : lstParam)
    {
        const auto itParam = stRule.mapParam.find(stParam.strId);
        if (itParam == stRule.mapParam.end())
            continue;
        removeDenied(stParam.lstOption,
                     [&stParamRule = itParam->second](const StAsnOptionInfo& stOption) {
                         return stParamRule.setOption.count({stOption.strId, stOption.ulValue}) != 0
                                    ? nullptr
                                    : stParamRule.pParam;
                     });
    }
}

// One prune() for each way in which the section table says that a list is pruned.

template <typename Record>
void prune(StNotPruned /*stHow*/, std::list<Record>& /*lstRecord*/, const CRules& /*oRules*/)
{
}

template <typename Record>
void prune(StByFirst /*stHow*/, std::list<Record>& lstRecord, const CRules& oRules)
{
    removeDenied(lstRecord, [&oRules](const Record& stRecord) { return oRules.firstDenial(stRecord.strId); });
}

template <typename Record>
void prune(StByLast /*stHow*/, std::list<Record>& lstRecord, const CRules& oRules)
{
    removeDenied(lstRecord, [&oRules](const Record& stRecord) { return oRules.lastDenial(stRecord.strId); });
}

template <typename Record>
void prune(StByOperation /*stHow*/, std::list<Record>& lstOper, const CRules& oRules)
{
    prune(StByFirst{}, lstOper, oRules);
    for (Record& stOper : lstOper)
    {
        if (const StOperationRule* pRule = oRules.find(stOper.strId))
            pruneParameters(stOper.lstParam, *pRule);
    }
}

// One capacity operation answers for all checks.
void prune(StByUpgradeCheck /*stHow*/, std::list<StAsnCheckOperationDef>& lstOper, const CRules& oRules)
{
    const StAsnOperation* pDenial = oRules.firstDenial(Vocabulary::UPGRADE_CHECK);
    removeDenied(lstOper, [pDenial](const StAsnCheckOperationDef& /*stOper*/) { return pDenial; });
}

void prune(StMenuItems /*stHow*/, std::list<StAsnPatchTypeMenuDef>& lstMenu, const CRules& oRules)
{
    for (StAsnPatchTypeMenuDef& stMenu : lstMenu)
        prune(StByFirst{}, stMenu.lstMenuOp, oRules);
}

void prune(StTaskSteps /*stHow*/, std::list<StAsnTaskConfigInfoOperation>& lstTask, const CRules& oRules)
{
    for (StAsnTaskConfigInfoOperation& stTask : lstTask)
    {
        for (StAsnTaskConfigOperation& stContent : stTask.lstTaskConfigOperation)
            prune(StByLast{}, stContent.lstTaskOperationDef, oRules);
    }
}
} // namespace

void CCapacityXMLConfig::combineXMLInfo(StAsnDevTypeVerXMLInfo* pInfo, const CapacityList& lstCapacity)
{
    if (pInfo == nullptr)
        return;
    const CRules oRules(lstCapacity);
    forEachSection([&](const auto& stSection) { prune(stSection.stPruned, listOf(*pInfo, stSection.pList), oRules); });
}

void CCapacityXMLConfig::combineDevOperation(std::list<StAsnOperation>& lstOper, const CapacityList& lstCapacity)
{
    prune(StByOperation{}, lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineTaskOperation(std::list<StAsnOperation>& lstOper, const CapacityList& lstCapacity)
{
    prune(StByOperation{}, lstOper, lstCapacity);
}

void CCapacityXMLConfig::combinePatchOperation(std::list<StAsnOperation>& lstOper, const CapacityList& lstCapacity)
{
    prune(StByOperation{}, lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineOtherOperation(std::list<StAsnOtherOperationDef>& lstOper,
                                               const CapacityList&                lstCapacity)
{
    prune(StByOperation{}, lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineCheckOperation(std::list<StAsnCheckOperationDef>& lstOper,
                                               const CapacityList&                lstCapacity)
{
    prune(StByUpgradeCheck{}, lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineCustomOperation(std::list<StAsnCustomOperationDef>& lstOper,
                                                const CapacityList&                 lstCapacity)
{
    prune(StByLast{}, lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineViewConfiguation(StAsnViewConfig& stView, const CapacityList& lstCapacity)
{
    const CRules oRules(lstCapacity);
    forEachSection(
        [&](const auto& stSection)
        {
            if constexpr (std::is_same_v<typename std::decay_t<decltype(stSection)>::OwnerOfList, StAsnViewConfig>)
                prune(stSection.stPruned, stView.*stSection.pList, oRules);
        });
}

void CCapacityXMLConfig::combineTaskConfiguration(std::list<StAsnTaskConfigInfoOperation>& lstTask,
                                                  const CapacityList&                      lstCapacity)
{
    prune(StTaskSteps{}, lstTask, lstCapacity);
}

// What a capacity list takes out of a record, list by list.
#include "reader/CCapacityXMLConfig.h"
#include "records/Vocabulary.h"

#include <map>
#include <set>
#include <string_view>
#include <utility>

namespace
{
using CapacityList = std::list<StAsnOperation>;

// What the first capacity parameter of an id says. The texts are the capacity list's.
struct StParamRule
{
    bool                                                 bIsRequired = false;
    std::set<std::pair<std::string_view, std::uint32_t>> setOption;
};

// What the capacity operations of one id say.
struct StOperationRule
{
    bool                                    bIsFirstDenied = false;
    bool                                    bIsLastDenied  = false;
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
            const auto [itRule, bIsFirst] = m_mapRule.try_emplace(stCapacity.strId);
            itRule->second.bIsLastDenied  = !stCapacity.bIsSupported;
            if (bIsFirst)
                fill(itRule->second, stCapacity);
        }
    }

    const StOperationRule* find(std::string_view strId) const
    {
        const auto itRule = m_mapRule.find(strId);
        return itRule == m_mapRule.end() ? nullptr : &itRule->second;
    }

    bool isFirstDenied(std::string_view strId) const
    {
        const StOperationRule* pRule = find(strId);
        return pRule != nullptr && pRule->bIsFirstDenied;
    }

    bool isLastDenied(std::string_view strId) const
    {
        const StOperationRule* pRule = find(strId);
        return pRule != nullptr && pRule->bIsLastDenied;
    }

private:
    static void fill(StOperationRule& stRule, const StAsnOperation& stCapacity)
    {
        stRule.bIsFirstDenied = !stCapacity.bIsSupported;
        for (const StAsnOperParamDef& stParam : stCapacity.lstParam)
        {
            const auto [itParam, bIsFirst] = stRule.mapParam.try_emplace(stParam.strId);
            if (!bIsFirst)
                continue;
            itParam->second.bIsRequired = stParam.bIsRequired;
            for (const StAsnOptionInfo& stOption : stParam.lstOption)
                itParam->second.setOption.emplace(stOption.strId, stOption.ulValue);
        }
    }

    std::map<std::string_view, StOperationRule> m_mapRule;
};

// A parameter that the entry does not name is kept whole; one that it names as
// not required goes; one that it requires keeps the options listed there.
void pruneParameters(std::list<StAsnOperParamDef>& lstParam, const StOperationRule& stRule)
{
    lstParam.remove_if(
        [&stRule](StAsnOperParamDef& stParam)
        {
            const auto itParam = stRule.mapParam.find(stParam.strId);
            if (itParam == stRule.mapParam.end())
                return false;
            const StParamRule& stParamRule = itParam->second;
            stParam.lstOption.remove_if(
                [&stParamRule](const StAsnOptionInfo& stOption) {
                    return stParamRule.setOption.count({stOption.strId, stOption.ulValue}) == 0;
                });
            return !stParamRule.bIsRequired;
        });
}

// Device, task, patch and other operations: the first capacity operation decides.
template <typename Operation>
void pruneOperations(std::list<Operation>& lstOper, const CRules& oRules)
{
    lstOper.remove_if(
        [&oRules](Operation& stOper)
        {
            const StOperationRule* pRule = oRules.find(stOper.strId);
            if (pRule == nullptr)
                return false;
            if (!pRule->bIsFirstDenied)
                pruneParameters(stOper.lstParam, *pRule);
            return pRule->bIsFirstDenied;
        });
}

template <typename Reference>
void pruneByFirst(std::list<Reference>& lstReference, const CRules& oRules)
{
    lstReference.remove_if([&oRules](const Reference& stReference) { return oRules.isFirstDenied(stReference.strId); });
}

template <typename Reference>
void pruneByLast(std::list<Reference>& lstReference, const CRules& oRules)
{
    lstReference.remove_if([&oRules](const Reference& stReference) { return oRules.isLastDenied(stReference.strId); });
}

// One capacity operation answers for all checks.
void pruneChecks(std::list<StAsnCheckOperationDef>& lstOper, const CRules& oRules)
{
    if (oRules.isFirstDenied(Vocabulary::UPGRADE_CHECK))
        lstOper.clear();
}

void pruneViews(StAsnViewConfig& stView, const CRules& oRules)
{
    pruneByFirst(stView.lstDevViewPopupMenu, oRules);
    pruneByFirst(stView.lstDevViewTab, oRules);
    pruneByFirst(stView.lstIsolationViewPopupMenu, oRules);
    for (StAsnPatchTypeMenuDef& stMenu : stView.lstPatchTypeMenu)
        pruneByFirst(stMenu.lstMenuOp, oRules);
}

void pruneTasks(std::list<StAsnTaskConfigInfoOperation>& lstTask, const CRules& oRules)
{
    for (StAsnTaskConfigInfoOperation& stTask : lstTask)
    {
        for (StAsnTaskConfigOperation& stContent : stTask.lstTaskConfigOperation)
            pruneByLast(stContent.lstTaskOperationDef, oRules);
    }
}
} // namespace

void CCapacityXMLConfig::combineXMLInfo(StAsnDevTypeVerXMLInfo* pInfo, const CapacityList& lstCapacity)
{
    if (pInfo == nullptr)
        return;
    const CRules          oRules(lstCapacity);
    StAsnOperationConfig& stOper = pInfo->stOperationConfig;
    pruneOperations(stOper.lstDevOperation, oRules);
    pruneOperations(stOper.lstTaskOperation, oRules);
    pruneOperations(stOper.lstPatchOperation, oRules);
    pruneChecks(stOper.lstCheckOperation, oRules);
    pruneByLast(stOper.lstCustomOperation, oRules);
    pruneOperations(stOper.lstOtherOperation, oRules);
    pruneViews(pInfo->stViewConfig, oRules);
    pruneTasks(pInfo->lstTaskConfigInfoOperation, oRules);
}

void CCapacityXMLConfig::combineDevOperation(std::list<StAsnOperation>& lstOper, const CapacityList& lstCapacity)
{
    pruneOperations(lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineTaskOperation(std::list<StAsnOperation>& lstOper, const CapacityList& lstCapacity)
{
    pruneOperations(lstOper, lstCapacity);
}

void CCapacityXMLConfig::combinePatchOperation(std::list<StAsnOperation>& lstOper, const CapacityList& lstCapacity)
{
    pruneOperations(lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineOtherOperation(std::list<StAsnOtherOperationDef>& lstOper,
                                               const CapacityList&                lstCapacity)
{
    pruneOperations(lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineCheckOperation(std::list<StAsnCheckOperationDef>& lstOper,
                                               const CapacityList&                lstCapacity)
{
    pruneChecks(lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineCustomOperation(std::list<StAsnCustomOperationDef>& lstOper,
                                                const CapacityList&                 lstCapacity)
{
    pruneByLast(lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineViewConfiguation(StAsnViewConfig& stView, const CapacityList& lstCapacity)
{
    pruneViews(stView, lstCapacity);
}

void CCapacityXMLConfig::combineTaskConfiguration(std::list<StAsnTaskConfigInfoOperation>& lstTask,
                                                  const CapacityList&                      lstCapacity)
{
    pruneTasks(lstTask, lstCapacity);
}

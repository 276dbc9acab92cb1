// What a capacity list takes out of a record, list by list.
#include "reader/CCapacityXMLConfig.h"
#include "records/RecordSearch.h"
#include "records/Vocabulary.h"

namespace
{
using CapacityList = std::list<StAsnOperation>;

bool isDenied(const StAsnOperation* pCapacity)
{
    return pCapacity != nullptr && !pCapacity->bIsSupported;
}

bool hasOption(const std::list<StAsnOptionInfo>& lstOption, const StAsnOptionInfo& stWanted)
{
    return std::any_of(lstOption.begin(), lstOption.end(),
                       [&stWanted](const StAsnOptionInfo& stOption)
                       { return stOption.strId == stWanted.strId && stOption.ulValue == stWanted.ulValue; });
}

// A parameter that the entry does not name is kept whole; one that it names as
// not required goes; one that it requires keeps the options listed there.
void pruneParameters(std::list<StAsnOperParamDef>& lstParam, const std::list<StAsnOperParamDef>& lstCapacity)
{
    lstParam.remove_if(
        [&lstCapacity](StAsnOperParamDef& stParam)
        {
            const StAsnOperParamDef* pCapacity = findFirst(lstCapacity, stParam.strId);
            if (pCapacity == nullptr)
                return false;
            stParam.lstOption.remove_if([pCapacity](const StAsnOptionInfo& stOption)
                                        { return !hasOption(pCapacity->lstOption, stOption); });
            return !pCapacity->bIsRequired;
        });
}

// Device, task, patch and other operations: the first capacity operation decides.
template <typename Operation>
void pruneOperations(std::list<Operation>& lstOper, const CapacityList& lstCapacity)
{
    lstOper.remove_if(
        [&lstCapacity](Operation& stOper)
        {
            const StAsnOperation* pCapacity = findFirst(lstCapacity, stOper.strId);
            if (pCapacity != nullptr && pCapacity->bIsSupported)
                pruneParameters(stOper.lstParam, pCapacity->lstParam);
            return isDenied(pCapacity);
        });
}

template <typename Reference>
void pruneByFirst(std::list<Reference>& lstReference, const CapacityList& lstCapacity)
{
    lstReference.remove_if([&lstCapacity](const Reference& stReference)
                           { return isDenied(findFirst(lstCapacity, stReference.strId)); });
}

template <typename Reference>
void pruneByLast(std::list<Reference>& lstReference, const CapacityList& lstCapacity)
{
    lstReference.remove_if([&lstCapacity](const Reference& stReference)
                           { return isDenied(findLast(lstCapacity, stReference.strId)); });
}
} // namespace

void CCapacityXMLConfig::combineXMLInfo(StAsnDevTypeVerXMLInfo* pInfo, const CapacityList& lstCapacity)
{
    if (pInfo == nullptr)
        return;
    StAsnOperationConfig& stOper = pInfo->stOperationConfig;
    combineDevOperation(stOper.lstDevOperation, lstCapacity);
    combineTaskOperation(stOper.lstTaskOperation, lstCapacity);
    combinePatchOperation(stOper.lstPatchOperation, lstCapacity);
    combineCheckOperation(stOper.lstCheckOperation, lstCapacity);
    combineCustomOperation(stOper.lstCustomOperation, lstCapacity);
    combineOtherOperation(stOper.lstOtherOperation, lstCapacity);
    combineViewConfiguation(pInfo->stViewConfig, lstCapacity);
    combineTaskConfiguration(pInfo->lstTaskConfigInfoOperation, lstCapacity);
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
    // One capacity operation answers for all checks.
    if (isDenied(findFirst(lstCapacity, Vocabulary::UPGRADE_CHECK)))
        lstOper.clear();
}

void CCapacityXMLConfig::combineCustomOperation(std::list<StAsnCustomOperationDef>& lstOper,
                                                const CapacityList&                 lstCapacity)
{
    pruneByLast(lstOper, lstCapacity);
}

void CCapacityXMLConfig::combineViewConfiguation(StAsnViewConfig& stView, const CapacityList& lstCapacity)
{
    pruneByFirst(stView.lstDevViewPopupMenu, lstCapacity);
    pruneByFirst(stView.lstDevViewTab, lstCapacity);
    pruneByFirst(stView.lstIsolationViewPopupMenu, lstCapacity);
    for (StAsnPatchTypeMenuDef& stMenu : stView.lstPatchTypeMenu)
        pruneByFirst(stMenu.lstMenuOp, lstCapacity);
}

void CCapacityXMLConfig::combineTaskConfiguration(std::list<StAsnTaskConfigInfoOperation>& lstTask,
                                                  const CapacityList&                      lstCapacity)
{
    for (StAsnTaskConfigInfoOperation& stTask : lstTask)
    {
        for (StAsnTaskConfigOperation& stContent : stTask.lstTaskConfigOperation)
            pruneByLast(stContent.lstTaskOperationDef, lstCapacity);
    }
}

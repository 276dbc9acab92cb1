// Every equality operator of the records, each in the order of its field table.
// Texts compare byte for byte, enumerations by value, lists by length and then
// element by element in order.
#include "records/ModuleRecords.h"

bool operator==(const StAsnDevVersion& stLeft, const StAsnDevVersion& stRight)
{
    return stLeft.strSoftVersion == stRight.strSoftVersion && stLeft.strPatchVersion == stRight.strPatchVersion;
}

bool operator==(const StAsnDevTypeInfo& stLeft, const StAsnDevTypeInfo& stRight)
{
    return stLeft.strDevType == stRight.strDevType && stLeft.strDevTypeVer == stRight.strDevTypeVer;
}

bool operator==(const StAsnOptionInfo& stLeft, const StAsnOptionInfo& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.ulValue == stRight.ulValue && stLeft.strTarget == stRight.strTarget;
}

namespace
{
// What two records with the fields of a parameter compare: not strSelected.
template <typename Param>
bool isSameParam(const Param& stLeft, const Param& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.strValue == stRight.strValue &&
           stLeft.bIsRequired == stRight.bIsRequired && stLeft.lstOption == stRight.lstOption;
}
} // namespace

bool operator==(const StAsnOperParamDef& stLeft, const StAsnOperParamDef& stRight)
{
    return isSameParam(stLeft, stRight);
}

bool operator==(const StAsnOperation& stLeft, const StAsnOperation& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.bIsCancelable == stRight.bIsCancelable &&
           stLeft.enOperationLevel == stRight.enOperationLevel && stLeft.lstParam == stRight.lstParam;
}

bool operator==(const StAsnCustomOperationDef& stLeft, const StAsnCustomOperationDef& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.strResourceClass == stRight.strResourceClass &&
           stLeft.strShortcutKey == stRight.strShortcutKey && stLeft.enOperationLevel == stRight.enOperationLevel &&
           stLeft.enAvailableIn == stRight.enAvailableIn;
}

bool operator==(const StAsnOtherOperationDef& stLeft, const StAsnOtherOperationDef& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.bIsSupported == stRight.bIsSupported &&
           stLeft.lstParam == stRight.lstParam;
}

bool operator==(const StAsnCheckType& stLeft, const StAsnCheckType& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.strDescription == stRight.strDescription &&
           stLeft.strCmdKey == stRight.strCmdKey && stLeft.strSubItemFrom == stRight.strSubItemFrom &&
           stLeft.nCompareType == stRight.nCompareType && stLeft.strCompareParam == stRight.strCompareParam &&
           stLeft.bSelected == stRight.bSelected && stLeft.bIsCompare == stRight.bIsCompare &&
           stLeft.ulIndex == stRight.ulIndex && stLeft.lstSubItem == stRight.lstSubItem;
}

bool operator==(const StAsnCheckOperationDef& stLeft, const StAsnCheckOperationDef& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.enOperationLevel == stRight.enOperationLevel &&
           stLeft.nTaskType == stRight.nTaskType && stLeft.lstCheckType == stRight.lstCheckType;
}

bool operator==(const StAsnMenuOpDef& stLeft, const StAsnMenuOpDef& stRight)
{
    return stLeft.enType == stRight.enType && stLeft.strId == stRight.strId;
}

bool operator==(const StAsnPatchItem& stLeft, const StAsnPatchItem& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.enType == stRight.enType;
}

bool operator==(const StAsnPatchStateDef& stLeft, const StAsnPatchStateDef& stRight)
{
    return stLeft.strName == stRight.strName && stLeft.lstPatchItem == stRight.lstPatchItem;
}

bool operator==(const StAsnPatchDef& stLeft, const StAsnPatchDef& stRight)
{
    return stLeft.enPatchType == stRight.enPatchType && stLeft.lstPatchState == stRight.lstPatchState;
}

bool operator==(const StAsnPatchTypeMenuDef& stLeft, const StAsnPatchTypeMenuDef& stRight)
{
    return stLeft.enPatchType == stRight.enPatchType && stLeft.lstMenuOp == stRight.lstMenuOp;
}

bool operator==(const StAsnTaskOperationDef& stLeft, const StAsnTaskOperationDef& stRight)
{
    // The two flag texts are left out: they preset the wizard, they do not make another step.
    return stLeft.enType == stRight.enType && stLeft.strId == stRight.strId &&
           stLeft.strDependsOn == stRight.strDependsOn && stLeft.strOperDescription == stRight.strOperDescription;
}

bool operator==(const StAsnTaskConfigOperation& stLeft, const StAsnTaskConfigOperation& stRight)
{
    return isSameParam(stLeft, stRight) && stLeft.lstTaskOperationDef == stRight.lstTaskOperationDef &&
           stLeft.lstOtherOperationDef == stRight.lstOtherOperationDef;
}

bool operator==(const StAsnTaskConfigInfoOperation& stLeft, const StAsnTaskConfigInfoOperation& stRight)
{
    return stLeft.enTaskType == stRight.enTaskType && stLeft.strGUITemplete == stRight.strGUITemplete &&
           stLeft.lstTaskConfigOperation == stRight.lstTaskConfigOperation;
}

bool operator==(const StAsnUpgradeSubOperationDef& stLeft, const StAsnUpgradeSubOperationDef& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.enOperationLevel == stRight.enOperationLevel &&
           stLeft.lstParameter == stRight.lstParameter;
}

bool operator==(const StAsnUpgradeOperationDef& stLeft, const StAsnUpgradeOperationDef& stRight)
{
    return stLeft.strId == stRight.strId && stLeft.enOperationLevel == stRight.enOperationLevel &&
           stLeft.lstSubOperation == stRight.lstSubOperation;
}

bool operator==(const StAsnDCErrorCodeInfo& stLeft, const StAsnDCErrorCodeInfo& stRight)
{
    return stLeft.ulErrorCode == stRight.ulErrorCode && stLeft.strErrorInfo == stRight.strErrorInfo;
}

bool operator==(const StAsnOperationConfig& stLeft, const StAsnOperationConfig& stRight)
{
    return stLeft.lstDevOperation == stRight.lstDevOperation && stLeft.lstTaskOperation == stRight.lstTaskOperation &&
           stLeft.lstPatchOperation == stRight.lstPatchOperation && stLeft.lstPatchDef == stRight.lstPatchDef &&
           stLeft.lstCheckOperation == stRight.lstCheckOperation &&
           stLeft.lstCustomOperation == stRight.lstCustomOperation &&
           stLeft.lstOtherOperation == stRight.lstOtherOperation &&
           stLeft.lstUpgradeOperation == stRight.lstUpgradeOperation;
}

bool operator==(const StAsnViewConfig& stLeft, const StAsnViewConfig& stRight)
{
    return stLeft.lstDevViewPopupMenu == stRight.lstDevViewPopupMenu &&
           stLeft.lstPatchTypeMenu == stRight.lstPatchTypeMenu && stLeft.lstDevViewTab == stRight.lstDevViewTab &&
           stLeft.lstIsolationViewPopupMenu == stRight.lstIsolationViewPopupMenu;
}

bool operator==(const StAsnDevTypeVerXMLInfo& stLeft, const StAsnDevTypeVerXMLInfo& stRight)
{
    return stLeft.stOperationConfig == stRight.stOperationConfig && stLeft.stViewConfig == stRight.stViewConfig &&
           stLeft.stDCErrorCodeInfo == stRight.stDCErrorCodeInfo &&
           stLeft.lstTaskConfigInfoOperation == stRight.lstTaskConfigInfoOperation;
}

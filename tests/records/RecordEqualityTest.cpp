// Which fields of each record equality compares, which it leaves out, and that
// order in a list matters. A row changes one field of a default record.
#include "TestSupport.h"
#include "records/RootRecords.h"

#include <functional>

namespace
{
struct StEqualityCase
{
    const char*           pszName;
    std::function<bool()> fnIsEqual; // both ways round
    bool                  bExpected;
};

// A copy of an equal pair with one change made to the copy.
template <typename Record>
StEqualityCase changed(const char* pszName, void (*pfnChange)(Record&), bool bExpected)
{
    const auto fnIsEqual = [pfnChange]
    {
        const Record stOriginal;
        Record       stChanged = stOriginal;
        EXPECT_TRUE(stOriginal == stChanged);
        pfnChange(stChanged);
        const bool bEqual = stOriginal == stChanged;
        EXPECT_EQ(bEqual, stChanged == stOriginal);
        return bEqual;
    };
    return {pszName, fnIsEqual, bExpected};
}

// The same two elements in the other order.
template <typename Record, typename Element>
StEqualityCase reordered(const char* pszName, std::list<Element> Record::*pList)
{
    const auto fnIsEqual = [pList]
    {
        Record stLeft;
        (stLeft.*pList).resize(2);
        (stLeft.*pList).front().strId = "a";
        Record stRight                = stLeft;
        EXPECT_TRUE(stLeft == stRight);
        (stRight.*pList).reverse();
        return stLeft == stRight;
    };
    return {pszName, fnIsEqual, false};
}

// A type and a statement cannot stand in parentheses.
// NOLINTBEGIN(bugprone-macro-parentheses)
#define CHANGED(record, change, expected)                                                                              \
    changed<record>(                                                                                                   \
        #record ": " #change, [](record& st) { change; }, expected)
// NOLINTEND(bugprone-macro-parentheses)

const StEqualityCase EQUALITY_CASES[] = {
    CHANGED(StAsnDevVersion, st.strSoftVersion = "x", false),
    CHANGED(StAsnDevVersion, st.strPatchVersion = "x", false),
    CHANGED(StAsnDevTypeInfo, st.strDevType = "x", false),
    CHANGED(StAsnDevTypeInfo, st.strDevTypeVer = "x", false),

    CHANGED(StAsnOptionInfo, st.strId = "x", false),
    CHANGED(StAsnOptionInfo, st.ulValue = 1, false),
    CHANGED(StAsnOptionInfo, st.strTarget = "x", false),
    CHANGED(StAsnOperParamDef, st.strId = "x", false),
    CHANGED(StAsnOperParamDef, st.strValue = "x", false),
    CHANGED(StAsnOperParamDef, st.bIsRequired = true, false),
    CHANGED(StAsnOperParamDef, st.strSelected = "x", true),
    CHANGED(StAsnOperParamDef, st.lstOption.resize(1), false),
    reordered("Options", &StAsnOperParamDef::lstOption),
    CHANGED(StAsnOperation, st.strId = "x", false),
    CHANGED(StAsnOperation, st.bIsCancelable = true, false),
    CHANGED(StAsnOperation, st.enOperationLevel = DCAsn1ClientToServer::Both, false),
    CHANGED(StAsnOperation, st.lstParam.resize(1), false),
    CHANGED(StAsnOperation, st.bExtFlag = true, true),
    CHANGED(StAsnOperation, st.bIsSupported = true, true),
    reordered("Parameters", &StAsnOperation::lstParam),
    CHANGED(StAsnCustomOperationDef, st.strId = "x", false),
    CHANGED(StAsnCustomOperationDef, st.strResourceClass = "x", false),
    CHANGED(StAsnCustomOperationDef, st.strShortcutKey = "x", false),
    CHANGED(StAsnCustomOperationDef, st.enOperationLevel = DCAsn1ClientToServer::Both, false),
    CHANGED(StAsnCustomOperationDef, st.enAvailableIn = DCAsn1ClientToServer::Tab, false),
    CHANGED(StAsnOtherOperationDef, st.strId = "x", false),
    CHANGED(StAsnOtherOperationDef, st.bIsSupported = true, false),
    CHANGED(StAsnOtherOperationDef, st.lstParam.resize(1), false),

    CHANGED(StAsnCheckType, st.strId = "x", false),
    CHANGED(StAsnCheckType, st.strDescription = "x", false),
    CHANGED(StAsnCheckType, st.strCmdKey = "x", false),
    CHANGED(StAsnCheckType, st.strSubItemFrom = "x", false),
    CHANGED(StAsnCheckType, st.nCompareType = 1, false),
    CHANGED(StAsnCheckType, st.strCompareParam = "x", false),
    CHANGED(StAsnCheckType, st.bSelected = true, false),
    CHANGED(StAsnCheckType, st.bIsCompare = true, false),
    CHANGED(StAsnCheckType, st.ulIndex = 1, false),
    CHANGED(StAsnCheckType, st.lstSubItem.resize(1), false),
    CHANGED(StAsnCheckType, st.strExtInfo = "x", true),
    reordered("SubItems", &StAsnCheckType::lstSubItem),
    CHANGED(StAsnCheckOperationDef, st.strId = "x", false),
    CHANGED(StAsnCheckOperationDef, st.enOperationLevel = DCAsn1ClientToServer::Both, false),
    CHANGED(StAsnCheckOperationDef, st.nTaskType = 0, false),
    CHANGED(StAsnCheckOperationDef, st.lstCheckType.resize(1), false),
    CHANGED(StAsnCheckOperationDef, st.bIsCancelable = true, true),

    CHANGED(StAsnMenuOpDef, st.enType = DCAsn1ClientToServer::TaskOperation, false),
    CHANGED(StAsnMenuOpDef, st.strId = "x", false),
    CHANGED(StAsnPatchItem, st.strId = "x", false),
    CHANGED(StAsnPatchItem, st.enType = DCAsn1ClientToServer::TaskOperation, false),
    CHANGED(StAsnPatchStateDef, st.strName = "x", false),
    CHANGED(StAsnPatchStateDef, st.lstPatchItem.resize(1), false),
    CHANGED(StAsnPatchDef, st.enPatchType = DCAsn1ClientToServer::ColdPatch, false),
    CHANGED(StAsnPatchDef, st.lstPatchState.resize(1), false),
    CHANGED(StAsnPatchTypeMenuDef, st.enPatchType = DCAsn1ClientToServer::ColdPatch, false),
    CHANGED(StAsnPatchTypeMenuDef, st.lstMenuOp.resize(1), false),

    CHANGED(StAsnTaskOperationDef, st.enType = DCAsn1ClientToServer::TaskOperation, false),
    CHANGED(StAsnTaskOperationDef, st.strId = "x", false),
    CHANGED(StAsnTaskOperationDef, st.strDependsOn = "x", false),
    CHANGED(StAsnTaskOperationDef, st.strOperDescription = "x", false),
    CHANGED(StAsnTaskOperationDef, st.strIsSelect = "x", true),
    CHANGED(StAsnTaskOperationDef, st.strIsPauseBeforeOP = "x", true),
    CHANGED(StAsnTaskConfigOperation, st.strId = "x", false),
    CHANGED(StAsnTaskConfigOperation, st.strValue = "x", false),
    CHANGED(StAsnTaskConfigOperation, st.bIsRequired = true, false),
    CHANGED(StAsnTaskConfigOperation, st.strSelected = "x", true),
    CHANGED(StAsnTaskConfigOperation, st.lstOption.resize(1), false),
    CHANGED(StAsnTaskConfigOperation, st.lstTaskOperationDef.resize(1), false),
    CHANGED(StAsnTaskConfigOperation, st.lstOtherOperationDef.resize(1), false),
    CHANGED(StAsnTaskConfigInfoOperation, st.enTaskType = DCAsn1ClientToServer::PatchUpdate, false),
    CHANGED(StAsnTaskConfigInfoOperation, st.strGUITemplete = "x", false),
    CHANGED(StAsnTaskConfigInfoOperation, st.lstTaskConfigOperation.resize(1), false),

    CHANGED(StAsnUpgradeSubOperationDef, st.strId = "x", false),
    CHANGED(StAsnUpgradeSubOperationDef, st.enOperationLevel = DCAsn1ClientToServer::Both, false),
    CHANGED(StAsnUpgradeSubOperationDef, st.lstParameter.resize(1), false),
    CHANGED(StAsnUpgradeOperationDef, st.strId = "x", false),
    CHANGED(StAsnUpgradeOperationDef, st.enOperationLevel = DCAsn1ClientToServer::Both, false),
    CHANGED(StAsnUpgradeOperationDef, st.lstSubOperation.resize(1), false),

    CHANGED(StAsnDCErrorCodeInfo, st.ulErrorCode = 1, false),
    CHANGED(StAsnDCErrorCodeInfo, st.strErrorInfo = "x", false),
    CHANGED(StAsnOperationConfig, st.lstDevOperation.resize(1), false),
    CHANGED(StAsnOperationConfig, st.lstTaskOperation.resize(1), false),
    CHANGED(StAsnOperationConfig, st.lstPatchOperation.resize(1), false),
    CHANGED(StAsnOperationConfig, st.lstPatchDef.resize(1), false),
    CHANGED(StAsnOperationConfig, st.lstCheckOperation.resize(1), false),
    CHANGED(StAsnOperationConfig, st.lstCustomOperation.resize(1), false),
    CHANGED(StAsnOperationConfig, st.lstOtherOperation.resize(1), false),
    CHANGED(StAsnOperationConfig, st.lstUpgradeOperation.resize(1), false),
    CHANGED(StAsnViewConfig, st.lstDevViewPopupMenu.resize(1), false),
    CHANGED(StAsnViewConfig, st.lstPatchTypeMenu.resize(1), false),
    CHANGED(StAsnViewConfig, st.lstDevViewTab.resize(1), false),
    CHANGED(StAsnViewConfig, st.lstIsolationViewPopupMenu.resize(1), false),
    // Two roots of one content are equal, whatever type and versions they are of.
    CHANGED(StAsnDevTypeVerXMLInfo, st.strDevType = "x", true),
    CHANGED(StAsnDevTypeVerXMLInfo, st.strDevTypeVer = "x", true),
    CHANGED(StAsnDevTypeVerXMLInfo, st.lstDevVersion.resize(1), true),
    CHANGED(StAsnDevTypeVerXMLInfo, st.stOperationConfig.lstPatchDef.resize(1), false),
    CHANGED(StAsnDevTypeVerXMLInfo, st.stViewConfig.lstDevViewTab.resize(1), false),
    CHANGED(StAsnDevTypeVerXMLInfo, st.stDCErrorCodeInfo.ulErrorCode = 1, false),
    CHANGED(StAsnDevTypeVerXMLInfo, st.lstTaskConfigInfoOperation.resize(1), false),
};

TEST(RecordEqualityTest, ComparesTheFieldsOfItsTable)
{
    for (const StEqualityCase& stCase : EQUALITY_CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        EXPECT_EQ(stCase.bExpected, stCase.fnIsEqual());
    }
}

TEST(RecordEqualityTest, ReachesTheDeepestRecord)
{
    StAsnCheckType stTop;
    stTop.lstSubItem.emplace_back().lstSubItem.emplace_back();
    StAsnCheckType stOther                                        = stTop;
    stOther.lstSubItem.front().lstSubItem.front().strCompareParam = "x";
    EXPECT_FALSE(stTop == stOther);
}
} // namespace

// Which fields of each record equality compares, which it leaves out, and that
// order in a list matters.
#include "TestSupport.h"
#include "records/RootRecords.h"

namespace
{
// Gives a field of any kind another value.
struct StChange
{
    void operator()(bool& bField) const { bField = !bField; }
    void operator()(std::int32_t& nField) const { ++nField; }
    void operator()(std::uint32_t& ulField) const { ++ulField; }
    void operator()(std::string& strField) const { strField = "x"; }
    template <typename Enum>
    void operator()(AsnEnum<Enum>& enField) const
    {
        enField = static_cast<Enum>(enField.number() + 1);
    }
    template <typename Element>
    void operator()(std::list<Element>& lstField) const
    {
        lstField.resize(1);
    }
};

// Changes the fields of a default record one by one.
template <typename Record, typename... Field>
void expectCompared(bool bCompared, Record& stRecord, Field&... oFields)
{
    const Record stDefault;
    int          nField    = 0;
    const auto   fnCompare = [&](auto& oField)
    {
        SCOPED_TRACE(testing::Message() << typeid(Record).name() << " field " << ++nField);
        const auto oBefore = oField;
        StChange()(oField);
        EXPECT_EQ(bCompared, !(stDefault == stRecord));
        EXPECT_EQ(bCompared, !(stRecord == stDefault));
        oField = oBefore;
        EXPECT_TRUE(stDefault == stRecord);
    };
    (fnCompare(oFields), ...);
}

TEST(RecordEqualityTest, ComparesTheseFieldsAndNoOthers)
{
    StAsnDevVersion stVersion;
    expectCompared(true, stVersion, stVersion.strSoftVersion, stVersion.strPatchVersion);
    StAsnDevTypeInfo stType;
    expectCompared(true, stType, stType.strDevType, stType.strDevTypeVer);
    StAsnOptionInfo stOption;
    expectCompared(true, stOption, stOption.strId, stOption.ulValue, stOption.strTarget);
    StAsnOperParamDef stParam;
    expectCompared(true, stParam, stParam.strId, stParam.strValue, stParam.bIsRequired, stParam.lstOption);
    StAsnOperation stOper;
    expectCompared(true, stOper, stOper.strId, stOper.bIsCancelable, stOper.enOperationLevel, stOper.lstParam);
    StAsnCustomOperationDef stCustom;
    expectCompared(true, stCustom, stCustom.strId, stCustom.strResourceClass, stCustom.strShortcutKey,
                   stCustom.enOperationLevel, stCustom.enAvailableIn);
    StAsnOtherOperationDef stOther;
    expectCompared(true, stOther, stOther.strId, stOther.bIsSupported, stOther.lstParam);
    StAsnCheckType stItem;
    expectCompared(true, stItem, stItem.strId, stItem.strDescription, stItem.strCmdKey, stItem.strSubItemFrom,
                   stItem.nCompareType, stItem.strCompareParam, stItem.bSelected, stItem.bIsCompare, stItem.ulIndex,
                   stItem.lstSubItem);
    StAsnCheckOperationDef stCheck;
    expectCompared(true, stCheck, stCheck.strId, stCheck.enOperationLevel, stCheck.nTaskType, stCheck.lstCheckType);
    StAsnMenuOpDef stMenuOp;
    expectCompared(true, stMenuOp, stMenuOp.enType, stMenuOp.strId);
    StAsnPatchItem stPatchItem;
    expectCompared(true, stPatchItem, stPatchItem.strId, stPatchItem.enType);
    StAsnPatchStateDef stState;
    expectCompared(true, stState, stState.strName, stState.lstPatchItem);
    StAsnPatchDef stPatch;
    expectCompared(true, stPatch, stPatch.enPatchType, stPatch.lstPatchState);
    StAsnPatchTypeMenuDef stMenu;
    expectCompared(true, stMenu, stMenu.enPatchType, stMenu.lstMenuOp);
    StAsnTaskOperationDef stStep;
    expectCompared(true, stStep, stStep.enType, stStep.strId, stStep.strDependsOn, stStep.strOperDescription);
    StAsnTaskConfigOperation stBlock;
    expectCompared(true, stBlock, stBlock.strId, stBlock.strValue, stBlock.bIsRequired, stBlock.lstOption,
                   stBlock.lstTaskOperationDef, stBlock.lstOtherOperationDef);
    StAsnTaskConfigInfoOperation stTask;
    expectCompared(true, stTask, stTask.enTaskType, stTask.strGUITemplete, stTask.lstTaskConfigOperation);
    StAsnUpgradeSubOperationDef stSub;
    expectCompared(true, stSub, stSub.strId, stSub.enOperationLevel, stSub.lstParameter);
    StAsnUpgradeOperationDef stUpgrade;
    expectCompared(true, stUpgrade, stUpgrade.strId, stUpgrade.enOperationLevel, stUpgrade.lstSubOperation);
    StAsnDCErrorCodeInfo stError;
    expectCompared(true, stError, stError.ulErrorCode, stError.strErrorInfo);
    StAsnOperationConfig stOpers;
    expectCompared(true, stOpers, stOpers.lstDevOperation, stOpers.lstTaskOperation, stOpers.lstPatchOperation,
                   stOpers.lstPatchDef, stOpers.lstCheckOperation, stOpers.lstCustomOperation,
                   stOpers.lstOtherOperation, stOpers.lstUpgradeOperation);
    StAsnViewConfig stViews;
    expectCompared(true, stViews, stViews.lstDevViewPopupMenu, stViews.lstPatchTypeMenu, stViews.lstDevViewTab,
                   stViews.lstIsolationViewPopupMenu);
    StAsnDevTypeVerXMLInfo stRoot;
    expectCompared(true, stRoot, stRoot.stOperationConfig.lstPatchDef, stRoot.stViewConfig.lstDevViewTab,
                   stRoot.stDCErrorCodeInfo.ulErrorCode, stRoot.lstTaskConfigInfoOperation);
    expectCompared(false, stParam, stParam.strSelected);
    expectCompared(false, stOper, stOper.bExtFlag, stOper.bIsSupported);
    expectCompared(false, stItem, stItem.strExtInfo);
    expectCompared(false, stCheck, stCheck.bIsCancelable);
    expectCompared(false, stStep, stStep.strIsSelect, stStep.strIsPauseBeforeOP);
    expectCompared(false, stBlock, stBlock.strSelected);
    // Two roots of one content are equal, whatever type and versions they are of.
    expectCompared(false, stRoot, stRoot.strDevType, stRoot.strDevTypeVer, stRoot.lstDevVersion);
}

TEST(RecordEqualityTest, SeesOrderAndTheDeepestRecord)
{
    StAsnCheckType stTop;
    stTop.lstSubItem.resize(2);
    stTop.lstSubItem.front().lstSubItem.resize(2);
    StAsnCheckType stDeep                                        = stTop;
    stDeep.lstSubItem.front().lstSubItem.front().strCompareParam = "x";
    EXPECT_FALSE(stTop == stDeep);
    StAsnCheckType stTurned = stDeep;
    stTurned.lstSubItem.front().lstSubItem.reverse();
    EXPECT_FALSE(stDeep == stTurned);
}
} // namespace

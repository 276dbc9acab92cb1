// What a capacity entry takes out of a configuration.
#include "ServerFixture.h"
#include "reader/CCapacityXMLConfig.h"
#include "reader/CDevTypeXMLResReader.h"

namespace
{
// "Backup(Kind[cfg=1 log=2 ]Path[])" of a list of operations.
template <typename Operation>
std::string operations(const std::list<Operation>& lstOper)
{
    std::string strText;
    for (const Operation& stOper : lstOper)
    {
        strText += stOper.strId + "(";
        for (const StAsnOperParamDef& stParam : stOper.lstParam)
        {
            strText += stParam.strId + "[";
            for (const StAsnOptionInfo& stOption : stParam.lstOption)
                strText += fmt::format("{}={} ", stOption.strId, stOption.ulValue);
            strText += "]";
        }
        strText += ")";
    }
    return strText;
}

// Every list that holds something, by its short name.
std::string text(const StAsnDevTypeVerXMLInfo& stInfo)
{
    const StAsnOperationConfig& stOper = stInfo.stOperationConfig;
    const StAsnViewConfig&      stView = stInfo.stViewConfig;
    std::string                 strPatchMenu;
    std::string                 strSteps;
    for (const StAsnPatchTypeMenuDef& stMenu : stView.lstPatchTypeMenu)
        strPatchMenu += "<" + ids(stMenu.lstMenuOp) + ">";
    for (const StAsnTaskConfigInfoOperation& stTask : stInfo.lstTaskConfigInfoOperation)
        for (const StAsnTaskConfigOperation& stContent : stTask.lstTaskConfigOperation)
            strSteps += "<" + ids(stContent.lstTaskOperationDef) + ">";
    // clang-format off
    const std::pair<const char*, std::string> LISTS[] = {
        {"dev ", operations(stOper.lstDevOperation)}, {"task ", ids(stOper.lstTaskOperation)},
        {"patch ", ids(stOper.lstPatchOperation)}, {"check ", ids(stOper.lstCheckOperation)},
        {"custom ", ids(stOper.lstCustomOperation)}, {"other ", operations(stOper.lstOtherOperation)},
        {"upgrade ", ids(stOper.lstUpgradeOperation)}, {"menu ", ids(stView.lstDevViewPopupMenu)},
        {"tab ", ids(stView.lstDevViewTab)}, {"patchmenu ", strPatchMenu},
        {"iso ", ids(stView.lstIsolationViewPopupMenu)}, {"steps ", strSteps},
    };
    // clang-format on
    std::string strText;
    for (const auto& [pszName, strList] : LISTS)
        strText += strList.empty() ? "" : pszName + strList + ";";
    return strText;
}

// The capacity entry of "a0 b1": a is not supported, b is.
std::string entry(const std::string& strOperations)
{
    std::string strXml;
    for (const std::string& strWord : words(strOperations))
        strXml +=
            fmt::format("<Operation id='{}' isSupported='{}'/>", strWord.substr(0, strWord.size() - 1), strWord.back());
    return strXml;
}
// That of a supported operation a.
std::string entryOfA(const std::string& strParameters)
{
    return "<Operation id='a' isSupported='1'>" + strParameters + "</Operation>";
}

void combineLists(StAsnDevTypeVerXMLInfo& stInfo, const std::list<StAsnOperation>& lstCapacity)
{
    CCapacityXMLConfig oConfig; // list by list, as a caller without a record does
    auto&              stOper = stInfo.stOperationConfig;
    oConfig.combineDevOperation(stOper.lstDevOperation, lstCapacity);
    oConfig.combineTaskOperation(stOper.lstTaskOperation, lstCapacity);
    oConfig.combinePatchOperation(stOper.lstPatchOperation, lstCapacity);
    oConfig.combineCheckOperation(stOper.lstCheckOperation, lstCapacity);
    oConfig.combineCustomOperation(stOper.lstCustomOperation, lstCapacity);
    oConfig.combineOtherOperation(stOper.lstOtherOperation, lstCapacity);
    oConfig.combineViewConfiguation(stInfo.stViewConfig, lstCapacity);
    oConfig.combineTaskConfiguration(stInfo.lstTaskConfigInfoOperation, lstCapacity);
}

TEST(CapacityPruneTest, LeavesWhatTheEntryAllows)
{
    const char* OPERATIONS =
        "<DeviceOperation><Operation id='a'/><Operation id='b'/></DeviceOperation>"
        "<TaskOperation><Operation id='a'/><Operation id='c'/></TaskOperation>"
        "<PatchOperation><Operation id='a'/><Operation id='d'/></PatchOperation>"
        "<OtherOperation id='a'/><OtherOperation id='e'/><UpgradeOperation><Operation id='a'/></UpgradeOperation>";
    const char* PARAMETERS =
        "<DeviceOperation><Operation id='a'><Parameter id='p'><Option id='x' value='1'/><Option id='y' value='2'/>"
        "</Parameter><Parameter id='q'><Option id='z' value='3'/></Parameter></Operation></DeviceOperation>";
    const char* OTHER  = "<OtherOperation id='a'><Parameter id='p'><Option id='x' value='1'/></Parameter><Parameter "
                         "id='q'/></OtherOperation>";
    const char* CHECKS = "<CheckOperations><Operation id='PreCheck'/><Operation id='a'/></CheckOperations>";
    const char* CUSTOM = "<CustomOperations><Operation id='a'/><Operation id='b'/></CustomOperations>";
    const char* VIEWS =
        "<DeviceViewPopupMenu><Item id='a'/><Item id='b'/></DeviceViewPopupMenu><DeviceViewTab><Item "
        "id='a'/></DeviceViewTab>"
        "<PatchViewPopupMenu><Patch><Item id='a'/><Item id='c'/></Patch><Patch type='ColdPatch'><Item id='a'/></Patch>"
        "</PatchViewPopupMenu>";
    const char* STEPS =
        "<TaskType id='PatchUpdate'><Parameter><TaskConfigOper id='a'/><TaskConfigOper id='b'/></Parameter><Parameter>"
        "<TaskConfigOper id='a'/></Parameter></TaskType>";
    const char* ALL     = "dev a()b();task a,c;patch a,d;other a()e();upgrade a;";
    const char* WITHOUT = "dev b();task c;patch d;other e();upgrade a;"; // upgrade operations are not pruned
    // clang-format off
    const struct
    {
        const char* pszConfig;
        std::string strEntry; // of the capacity document
        const char* pszLeft;
    } CASES[] = {
        {OPERATIONS, entry("z0"), ALL}, {OPERATIONS, entry("a1"), ALL}, {OPERATIONS, entry("a0"), WITHOUT},
        {OPERATIONS, "<Operation id='a' isSupported='true'/><Operation id='b'/>", "task c;patch d;other e();upgrade a;"},
        {OPERATIONS, entry("A0") + "<Operation id='a ' isSupported='0'/>", ALL},
        // The first match decides over operations, parameters and checks.
        {OPERATIONS, entry("a1 a0"), ALL}, {OPERATIONS, entry("a0 a1"), WITHOUT},
        {PARAMETERS, entryOfA("<Parameter id='q' isRequired='0'/><Parameter id='q' isRequired='1'/>") + entryOfA("<Parameter id='p' isRequired='0'/>"), "dev a(p[x=1 y=2 ]);"},
        {CHECKS, entry("UpgradeCheck1 UpgradeCheck0"), "check PreCheck,a;"}, {CHECKS, entry("UpgradeCheck0"), ""},
        {CHECKS, entry("PreCheck0"), "check PreCheck,a;"},
        {PARAMETERS, entryOfA("<Parameter id='z' isRequired='0'/>"), "dev a(p[x=1 y=2 ]q[z=3 ]);"},
        {PARAMETERS, entryOfA("<Parameter id='p' isRequired='0'><Option id='x' value='1'/></Parameter>"), "dev a(q[z=3 ]);"},
        {PARAMETERS, entryOfA("<Parameter id='p' isRequired='1'><Option id='x' value='2'/><Option id='y' value='2'/><Option id='n' value='9'/></Parameter>"), "dev a(p[y=2 ]q[z=3 ]);"},
        {PARAMETERS, entryOfA("<Parameter id='p' isRequired='1'><option id='x' value='1'/></Parameter>"), "dev a(p[x=1 ]q[z=3 ]);"},
        {PARAMETERS, entryOfA("<Parameter id='q' isRequired='1'/>"), "dev a(p[x=1 y=2 ]q[]);"},
        {OTHER, entryOfA("<Parameter id='p' isRequired='1'/><Parameter id='q'/>"), "other a(p[]);"},
        // The last one over custom operations and steps, the first one over views.
        {CUSTOM, entry("a1 a0"), "custom b;"}, {CUSTOM, entry("a0 a1"), "custom a,b;"},
        {STEPS, entry("a1 a0"), "steps <b><>;"}, {STEPS, entry("a0 a1"), "steps <a,b><a>;"},
        {VIEWS, entry("a0 a1"), "menu b;patchmenu <c><>;iso b;"},
        {VIEWS, entry("a1 a0"), "menu a,b;tab a;patchmenu <a,c><a>;iso a,b;"},
    };
    // clang-format on
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszConfig + stCase.strEntry);
        CParsedXml             oConfig(stCase.pszConfig);
        CParsedXml             oCapacity(stCase.strEntry);
        StAsnDevTypeVerXMLInfo stInfo;
        ASSERT_EQ(0u, CDevTypeXMLResReader("A", "V1", false).setDevXMLConfig(oConfig.parser(), &stInfo));
        std::list<StAsnOperation> lstCapacity;
        ASSERT_EQ(0u, CCapacityXMLConfig().fillOperInfo(oCapacity.root(), lstCapacity));
        StAsnDevTypeVerXMLInfo stByLists = stInfo;
        CCapacityXMLConfig().combineXMLInfo(&stInfo, lstCapacity);
        EXPECT_EQ(stCase.pszLeft, text(stInfo));
        combineLists(stByLists, lstCapacity);
        EXPECT_EQ(stCase.pszLeft, text(stByLists));
    }
    EXPECT_THAT(logLines(), testing::IsEmpty());
}
} // namespace

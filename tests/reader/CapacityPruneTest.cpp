// What a capacity entry takes out of a configuration.
#include "ServerFixture.h"
#include "reader/CCapacityXMLConfig.h"
#include "reader/CDevTypeXMLResReader.h"

namespace
{
std::string optionText(const StAsnOptionInfo& stOption)
{
    return fmt::format("{}={}", stOption.strId, stOption.ulValue);
}

// "Backup(Kind[cfg=1 log=2] Path[])"; an operation without parameters is its id.
template <typename Operation>
std::string operationText(const Operation& stOper)
{
    Lines lstParam;
    for (const StAsnOperParamDef& stParam : stOper.lstParam)
    {
        Lines lstOption;
        for (const StAsnOptionInfo& stOption : stParam.lstOption)
            lstOption.push_back(optionText(stOption));
        lstParam.push_back(fmt::format("{}[{}]", stParam.strId, fmt::join(lstOption, " ")));
    }
    return lstParam.empty() ? stOper.strId : fmt::format("{}({})", stOper.strId, fmt::join(lstParam, " "));
}

template <typename Operation>
std::string operations(const std::list<Operation>& lstOper)
{
    Lines lstText;
    for (const Operation& stOper : lstOper)
        lstText.push_back(operationText(stOper));
    return fmt::format("{}", fmt::join(lstText, ","));
}

// Every list that holds something, by its short name.
std::string text(const StAsnDevTypeVerXMLInfo& stInfo)
{
    const StAsnOperationConfig& stOper = stInfo.stOperationConfig;
    const StAsnViewConfig&      stView = stInfo.stViewConfig;
    std::string                 strPatchMenu;
    for (const StAsnPatchTypeMenuDef& stMenu : stView.lstPatchTypeMenu)
        strPatchMenu += "<" + ids(stMenu.lstMenuOp) + ">";
    std::string strSteps;
    for (const StAsnTaskConfigInfoOperation& stTask : stInfo.lstTaskConfigInfoOperation)
    {
        for (const StAsnTaskConfigOperation& stContent : stTask.lstTaskConfigOperation)
            strSteps += "<" + ids(stContent.lstTaskOperationDef) + ">";
    }
    const std::pair<const char*, std::string> LISTS[] = {
        {"dev", operations(stOper.lstDevOperation)},
        {"task", operations(stOper.lstTaskOperation)},
        {"patch", operations(stOper.lstPatchOperation)},
        {"check", ids(stOper.lstCheckOperation)},
        {"custom", ids(stOper.lstCustomOperation)},
        {"other", operations(stOper.lstOtherOperation)},
        {"upgrade", ids(stOper.lstUpgradeOperation)},
        {"menu", ids(stView.lstDevViewPopupMenu)},
        {"tab", ids(stView.lstDevViewTab)},
        {"patchmenu", strPatchMenu},
        {"iso", ids(stView.lstIsolationViewPopupMenu)},
        {"steps", strSteps},
    };
    Lines lstText;
    for (const auto& [pszName, strText] : LISTS)
    {
        if (!strText.empty())
            lstText.push_back(fmt::format("{}: {}", pszName, strText));
    }
    return fmt::format("{}", fmt::join(lstText, "; "));
}

struct StPruneCase
{
    const char* pszName;
    const char* pszConfig;
    const char* pszEntry; // of the capacity document
    const char* pszLeft;
};
class CapacityPruneTest : public testing::TestWithParam<StPruneCase>
{
};

TEST_P(CapacityPruneTest, LeavesWhatTheEntryAllows)
{
    CParsedXml             oConfig(GetParam().pszConfig);
    CParsedXml             oCapacity(GetParam().pszEntry);
    StAsnDevTypeVerXMLInfo stInfo;
    ASSERT_EQ(0u, CDevTypeXMLResReader("A", "V1", false).setDevXMLConfig(oConfig.parser(), &stInfo));
    std::list<StAsnOperation> lstCapacity;
    ASSERT_EQ(0u, CCapacityXMLConfig().fillOperInfo(oCapacity.root(), lstCapacity));
    CCapacityXMLConfig().combineXMLInfo(&stInfo, lstCapacity);
    EXPECT_EQ(GetParam().pszLeft, text(stInfo));
    EXPECT_THAT(logLines(), testing::IsEmpty());
}

constexpr const char* OPERATIONS =
    "<DeviceOperation><Operation id='a'/><Operation id='b'/></DeviceOperation>"
    "<TaskOperation><Operation id='a'/><Operation id='c'/></TaskOperation>"
    "<PatchOperation><Operation id='a'/><Operation id='d'/></PatchOperation>"
    "<OtherOperation id='a'/><OtherOperation id='e'/><UpgradeOperation><Operation id='a'/></UpgradeOperation>";
constexpr const char* PARAMETERS =
    "<DeviceOperation><Operation id='a'><Parameter id='p'><Option id='x' value='1'/><Option id='y' value='2'/>"
    "</Parameter><Parameter id='q'><Option id='z' value='3'/></Parameter></Operation></DeviceOperation>";
constexpr const char* OTHER_PARAMETERS = "<OtherOperation id='a'><Parameter id='p'><Option id='x' "
                                         "value='1'/></Parameter><Parameter id='q'/></OtherOperation>";
constexpr const char* CHECKS = "<CheckOperations><Operation id='PreCheck'/><Operation id='a'/></CheckOperations>";
constexpr const char* CUSTOM = "<CustomOperations><Operation id='a'/><Operation id='b'/></CustomOperations>";
constexpr const char* VIEWS =
    "<DeviceViewPopupMenu><Item id='a'/><Item id='b'/></DeviceViewPopupMenu><DeviceViewTab><Item "
    "id='a'/></DeviceViewTab>"
    "<PatchViewPopupMenu><Patch><Item id='a'/><Item id='c'/></Patch><Patch type='ColdPatch'><Item id='a'/></Patch>"
    "</PatchViewPopupMenu>";
constexpr const char* STEPS =
    "<TaskType id='PatchUpdate'><Parameter><TaskConfigOper id='a'/><TaskConfigOper id='b'/></Parameter><Parameter>"
    "<TaskConfigOper id='a'/></Parameter></TaskType>";

INSTANTIATE_TEST_SUITE_P(
    Operations, CapacityPruneTest,
    testing::ValuesIn(std::vector<StPruneCase>{
        {"NothingNamed", OPERATIONS, "<Operation id='z' isSupported='0'/>",
         "dev: a,b; task: a,c; patch: a,d; other: a,e; upgrade: a"},
        {"Supported", OPERATIONS, "<Operation id='a' isSupported='1'/>",
         "dev: a,b; task: a,c; patch: a,d; other: a,e; upgrade: a"},
        {"NotSupported", OPERATIONS, "<Operation id='a' isSupported='0'/>",
         "dev: b; task: c; patch: d; other: e; upgrade: a"}, // upgrade operations are not pruned
        {"SupportedSaysNumber", OPERATIONS, "<Operation id='a' isSupported='true'/><Operation id='b'/>",
         "task: c; patch: d; other: e; upgrade: a"},
        {"IdsCompareExactly", OPERATIONS, "<Operation id='A' isSupported='0'/><Operation id='a ' isSupported='0'/>",
         "dev: a,b; task: a,c; patch: a,d; other: a,e; upgrade: a"},
        {"FirstMatchKeeps", OPERATIONS, "<Operation id='a' isSupported='1'/><Operation id='a' isSupported='0'/>",
         "dev: a,b; task: a,c; patch: a,d; other: a,e; upgrade: a"},
        {"FirstMatchRemoves", OPERATIONS, "<Operation id='a' isSupported='0'/><Operation id='a' isSupported='1'/>",
         "dev: b; task: c; patch: d; other: e; upgrade: a"},
    }),
    rowName<StPruneCase>);

INSTANTIATE_TEST_SUITE_P(
    Parameters, CapacityPruneTest,
    testing::ValuesIn(std::vector<StPruneCase>{
        {"NotNamed", PARAMETERS, "<Operation id='a' isSupported='1'><Parameter id='z' isRequired='0'/></Operation>",
         "dev: a(p[x=1 y=2] q[z=3])"},
        {"NotRequired", PARAMETERS,
         "<Operation id='a' isSupported='1'><Parameter id='p' isRequired='0'><Option id='x' value='1'/></Parameter>"
         "</Operation>",
         "dev: a(q[z=3])"},
        {"OptionsByIdAndValue", PARAMETERS,
         "<Operation id='a' isSupported='1'><Parameter id='p' isRequired='1'><Option id='x' value='2'/>"
         "<Option id='y' value='2'/><Option id='n' value='9'/></Parameter></Operation>",
         "dev: a(p[y=2] q[z=3])"},
        {"OtherSpelling", PARAMETERS,
         "<Operation id='a' isSupported='1'><Parameter id='p' isRequired='1'><option id='x' value='1'/></Parameter>"
         "</Operation>",
         "dev: a(p[x=1] q[z=3])"},
        {"RequiredWithoutOptions", PARAMETERS,
         "<Operation id='a' isSupported='1'><Parameter id='q' isRequired='1'/></Operation>", "dev: a(p[x=1 y=2] q[])"},
        {"FirstMatchDecides", PARAMETERS,
         "<Operation id='a' isSupported='1'><Parameter id='q' isRequired='0'/><Parameter id='q' isRequired='1'/>"
         "</Operation><Operation id='a' isSupported='1'><Parameter id='p' isRequired='0'/></Operation>",
         "dev: a(p[x=1 y=2])"},
        {"OfOtherOperations", OTHER_PARAMETERS,
         "<Operation id='a' isSupported='1'><Parameter id='p' isRequired='1'/><Parameter id='q'/></Operation>",
         "other: a(p[])"},
    }),
    rowName<StPruneCase>);

INSTANTIATE_TEST_SUITE_P(
    Checks, CapacityPruneTest,
    testing::ValuesIn(std::vector<StPruneCase>{
        {"Absent", CHECKS, "<Operation id='PreCheck' isSupported='0'/>", "check: PreCheck,a"},
        {"Supported", CHECKS, "<Operation id='UpgradeCheck' isSupported='1'/>", "check: PreCheck,a"},
        {"NotSupported", CHECKS, "<Operation id='UpgradeCheck' isSupported='0'/>", ""},
        {"FirstMatchDecides", CHECKS,
         "<Operation id='UpgradeCheck' isSupported='1'/><Operation id='UpgradeCheck' isSupported='0'/>",
         "check: PreCheck,a"},
    }),
    rowName<StPruneCase>);

INSTANTIATE_TEST_SUITE_P(
    LastMatch, CapacityPruneTest,
    testing::ValuesIn(std::vector<StPruneCase>{
        {"CustomRemoved", CUSTOM, "<Operation id='a' isSupported='1'/><Operation id='a' isSupported='0'/>",
         "custom: b"},
        {"CustomKept", CUSTOM, "<Operation id='a' isSupported='0'/><Operation id='a' isSupported='1'/>", "custom: a,b"},
        {"StepsRemoved", STEPS, "<Operation id='a' isSupported='1'/><Operation id='a' isSupported='0'/>",
         "steps: <b><>"},
        {"StepsKept", STEPS, "<Operation id='a' isSupported='0'/><Operation id='a' isSupported='1'/>",
         "steps: <a,b><a>"},
    }),
    rowName<StPruneCase>);

INSTANTIATE_TEST_SUITE_P(Views, CapacityPruneTest,
                         testing::ValuesIn(std::vector<StPruneCase>{
                             {"Removed", VIEWS,
                              "<Operation id='a' isSupported='0'/><Operation id='a' isSupported='1'/>",
                              "menu: b; patchmenu: <c><>; iso: b"},
                             {"Kept", VIEWS, "<Operation id='a' isSupported='1'/><Operation id='a' isSupported='0'/>",
                              "menu: a,b; tab: a; patchmenu: <a,c><a>; iso: a,b"},
                         }),
                         rowName<StPruneCase>);
} // namespace

// What each section makes of its XML: whole records, grouped by rule.
#include "RecordText.h"
#include "platform/DeviceAdapter.h"
#include "reader/CCapacityXMLConfig.h"
#include "sections/CCheckOpXMLConfig.h"
#include "sections/CCustomOpXMLConfig.h"
#include "sections/CDevOpXMLConfig.h"
#include "sections/CDevViewPopupMenuConfig.h"
#include "sections/CIsolationViewPopupMenuConfig.h"
#include "sections/COtherOpXMLConfig.h"
#include "sections/CPatchViewPopupMenuConfig.h"
#include "sections/CPatchXMLConfig.h"
#include "sections/CTaskXMLConfig.h"
#include "sections/CUpgradeOpXMLConfig.h"

namespace
{
// Reads what stands below one element of the section's name.
template <typename Set>
SectionReader within(const std::string& strTag, Set pfnSet)
{
    const SectionReader fnRead = section(pfnSet);
    return [=](const std::string& strXml) { return fnRead("<" + strTag + ">" + strXml + "</" + strTag + ">"); };
}

struct CTelnetCheck : CCheckOpXMLConfig
{
    std::uint32_t set(xercesc::XercesDOMParser* pDOMParser, std::list<StAsnCheckOperationDef>* pLstOut)
    {
        return setCheckOpConfigurationTelnet(pDOMParser, pLstOut, EnCheckReportText);
    }
};

const SectionReader DEVICE  = within("DeviceOperation", &CDevOpXMLConfig::setDevOperXMLConfig);
const SectionReader TASK    = within("TaskOperation", &CDevOpXMLConfig::setTaskOperationXMLConfig);
const SectionReader PATCH   = within("PatchOperation", &CDevOpXMLConfig::setPatchOperXMLConfig);
const SectionReader CHECK   = within("CheckOperations", &CCheckOpXMLConfig::setCheckOpConfiguration);
const SectionReader FIXED   = within("DeviceType", &CCheckOpXMLConfig::setFixedCheckOpConfiguration);
const SectionReader TELNET  = within("DeviceType", &CTelnetCheck::set);
const SectionReader CUSTOM  = within("CustomOperations", &CCustomOpXMLConfig::setCustomOperXMLConfig);
const SectionReader OTHER   = section(&COtherOpXMLConfig::setOtherOperXMLConfig);
const SectionReader UPGRADE = within("UpgradeOperation", &CUpgradeOpXMLConfig::setUpgradeOperXMLConfig);
const SectionReader MENU    = within("DeviceViewPopupMenu", &CDevViewPopupMenuConfig::setDevViewPopupMenuConfig);
const SectionReader ISOLATION =
    within("DeviceViewPopupMenu", &CIsolationViewPopupMenuConfig::setIsolationViewPopupMenuConfig);
const SectionReader PATCH_STATE = within("PatchStateConfiguration", &CPatchXMLConfig::setPatchStateConfiguraion);
const SectionReader PATCH_MENU  = within("PatchViewPopupMenu", &CPatchViewPopupMenuConfig::setPatchViewPopupMenuConfig);
const SectionReader TASK_TYPE   = section(&CTaskXMLConfig::setTaskConfiguration);

// The operations of a capacity entry, which stand directly in it.
const SectionReader CAPACITY = [](const std::string& strXml)
{
    CParsedXml                oXml(strXml);
    std::list<StAsnOperation> lstOperation;
    EXPECT_EQ(0u, CCapacityXMLConfig().fillOperInfo(oXml.root(), lstOperation));
    return CRecordText::list(lstOperation);
};

struct StReadCase
{
    const char*   pszName;
    SectionReader fnRead;
    const char*   pszXml;
    const char*   pszRecords;
};

// clang-format off
const StReadCase CASES[] = {
    // What a section reads of an element, and what it does not. That every attribute reaches its field is
    // compared on the example server.
    {"PatchIsNeverCancelable", PATCH, "<Operation id='Load' operationLevel='BoardLevel' isCancelable='1'/>", "Load|0|1|[]|0|0"},
    {"PreChecksComeFirst", TELNET, "<TaskType id='PackageDowngrade'><PostCheck/><PreCheck/></TaskType><TaskType/>", "PreCheck|0|9|[]|0, PostCheck|0|9|[]|0"},
    {"FixedFile", FIXED,
     "<TaskType id='PatchUpdate'><Operation id='PreCheck' operationLevel='BoardLevel' isCancelable='1'><Parameter "
     "id='power' description='d' selected='1' cmdKey='not read'/><Parameter id='fan'/></Operation><Operation "
     "id='PostCheck'/></TaskType>",
     "PreCheck|1|2|[power|d|||0||1|0|0|[]|, fan||||0||0|0|1|[]|]|1, PostCheck|0|2|[]|0"},
    {"TaskTypeWithParameters", TASK_TYPE,
     "<TaskType id='SoftwareUpgrade'><Parameter id='p' value='v' isRequired='1' selected='not read'>"
     "<Option id='o' value='1' target='t'/><TaskConfigOper id='s'/><TaskFeatureConfiguration><Configuration id='f'/>"
     "</TaskFeatureConfiguration></Parameter><Parameter/></TaskType>",
     "0||[p|v|1||[o|1|t]|[6|s||||]|[], ||0||[]|[]|[]]"},

    {"Capacity", CAPACITY,
     "<Operation id='o' isSupported='2' isCancelable='1'><Parameter id='p' value='v' isRequired='1' selected='s'>"
     "<option id='x' value='3' target='t'/></Parameter></Operation>",
     "o|0|0|[p|v|1||[x|3|t]]|0|1"},

    // Words compare exactly, and an unknown one reads as the first of its kind.
    {"Levels", TASK,
     "<Operation operationLevel='BoardLevel'/><Operation operationLevel='Both'/><Operation operationLevel='both'/>"
     "<Operation operationLevel='Both '/>",
     "|0|1|[]|0|0, |0|2|[]|0|0, |0|0|[]|0|0, |0|0|[]|0|0"},
    {"Availability", CUSTOM,
     "<Operation AvailableIn='Tab'/><Operation AvailableIn='createTaskDialog'/><Operation AvailableIn="
     "'modifyTaskDialog'/><Operation AvailableIn='viewTaskDialog'/><Operation AvailableIn='PopupMenu'/><Operation "
     "AvailableIn='tab'/><Operation/>",
     "|||0|1, |||0|2, |||0|3, |||0|4, |||0|0, |||0|0, |||0|0"},
    {"PatchTypes", PATCH_STATE,
     "<Patch type='ColdPatch'><State name='n'><Item id='i' type='PatchOperation'/></State></Patch>"
     "<Patch type='HotPatch'/><Patch type='hotpatch'/><Patch type='Cold'/><Patch/>",
     "1|[n|[i|2]], 0|[], 0|[], 0|[], 0|[]"},
    {"PatchTypesOfTheMenu", PATCH_MENU, "<Patch type='hotpatch'/><Patch type='ColdPatch'><Item/></Patch><Patch/>", "0|[], 1|[6|], 0|[]"},
    {"Kinds", PATCH_MENU,
     "<Patch><Item type='DeviceOperation'/><Item type='TaskOperation'/><Item type='PatchOperation'/><Item "
     "type='CheckOperation'/><Item type='CustomOperation'/><Item type='OtherOperation'/><Item type='BoardOperation'/>"
     "<Item type='deviceoperation'/></Patch>",
     "0|[0|, 1|, 2|, 3|, 4|, 5|, 6|, 6|]"},
    {"KindsOfAState", PATCH_STATE, "<Patch><State><Item type='BoardOperation'/></State></Patch>", "0|[|[|6]]"},
    {"OtherParameter", OTHER, "<OtherOperation><Parameter selected='s'><Option value='4294967297' target='t'/></Parameter></OtherOperation>", "|0|[||0||[|1|]]"},
    {"UpgradeParameter", UPGRADE, "<Operation><SubOperation><Parameter value='v' selected='s'><Option target='t'/></Parameter></SubOperation></Operation>", "|0|[|0|[||0||[|0|]]]"},
    {"SectionsFollowEachOther", MENU, "<Item id='a'/></DeviceViewPopupMenu><G><DeviceViewPopupMenu><R><Item id='b'/></R></DeviceViewPopupMenu></G><DeviceViewPopupMenu>", "6|a, 6|b"},
    {"IsolationKinds", ISOLATION,
     "<Item type='TaskOperation'/><Item type='DeviceOperation'/><Item type='BoardOperation'/><Item "
     "type='OtherOperation' id='GetWeakBd'/>",
     "1|, 0|, 7|, 6|GetWeakBd"},
    {"TaskTypesOfTheTaskConfiguration", TASK_TYPE,
     "<TaskType id='PackageDowngrade'/><TaskType id='packagedowngrade'/><TaskType id='PackageDiffusionDowngrade'/>"
     "<TaskType id='OpticalModuleUpgrade'/><TaskType id='NuboMeterUpgrade'/>",
     "13||[||0||[]|[]|[]], 12||[||0||[]|[]|[]], 15||[||0||[]|[]|[]], 16||[||0||[]|[]|[]]"},

    // Base 10, kept to 32 bits, and a flag is a number that is not 0.
    {"Flags", OTHER,
     "<OtherOperation isSupported='2'/><OtherOperation isSupported='true'/><OtherOperation isSupported=' -1x'/>"
     "<OtherOperation isSupported='0x1'/><OtherOperation isSupported='4294967296'/>",
     "|1|[], |0|[], |1|[], |0|[], |0|[]"},
    {"SelectedOfACheckItem", CHECK, "<Operation><Parameter selected='true' isCompare='7'/></Operation>", "|0|-1|[||||0||0|1|0|[]|]|0"},

    // Names are found at any depth, also inside their own kind.
    {"OperationInOperation", DEVICE, "<Operation id='o'><Operation id='i'><Parameter id='p'/></Operation></Operation>", "o|0|0|[p||0||[]]|0|0, i|0|0|[p||0||[]]|0|0"},
    {"SubItemInSubItem", CHECK,
     "<Operation><Parameter id='p'><SubItem id='a'><SubItem id='b'/></SubItem></Parameter></Operation>",
     "|0|-1|[p||||0||0|0|0|[a||||0||0|0|0|[b||||0||0|0|0|[]|]|, b||||0||0|0|1|[]|]|]|0"},
    {"BelowUpgradeOperations", UPGRADE,
     "<G><Operation id='o'><G><SubOperation id='s'><G><Parameter id='p'><G><option id='x'/></G></Parameter></G>"
     "</SubOperation></G></Operation></G>",
     "o|0|[s|0|[p||0||[x|0|]]]"},
    {"OptionSpellings", OTHER,
     "<OtherOperation><Parameter><option id='small'/></Parameter><Parameter><option id='small'/><Option id='Big'/>"
     "</Parameter></OtherOperation>",
     "|0|[||0||[small|0|], ||0||[Big|0|]]"},
    {"LastResouceClass", CUSTOM,
     "<Operation><ResouceClass filename='a'/><ResouceClass filename='b'/></Operation><Operation><ResouceClass "
     "filename='a'/><ResouceClass/></Operation><Operation><ResourceClass filename='a'/></Operation>",
     "|b||0|0, |||0|0, |||0|0"},

    // A check item that is left out keeps its position.
    {"Integated", CHECK,
     "<Operation><Parameter integated='0'/><Parameter id='a' integated='1'><SubItem integated='true'/><SubItem "
     "id='s'/></Parameter><Parameter integated=' 1'/><Parameter id='b' integated=''/></Operation>",
     "|0|-1|[a||||0||0|0|1|[s||||0||0|0|1|[]|]|, b||||0||0|0|3|[]|]|0"},
    {"TelnetGuiAndIntegated", TELNET,
     "<TaskType><PreCheck><Parameter GUI='false'/><Parameter integated='0'/><Parameter id='a' GUI='FALSE'><SubItem "
     "GUI='false'/></Parameter></PreCheck></TaskType>",
     "PreCheck|0|-1|[a||||0||0|0|2|[]|]|0"},
    {"TelnetCheckedDecidesOverSelected", TELNET,
     "<TaskType id='PatchUpdate'><PostCheck><Parameter checked='true'/><Parameter checked='false' selected='1'/>"
     "<Parameter checked='1'/><Parameter selected='1'/></PostCheck></TaskType>",
     "PostCheck|0|2|[||||0||1|0|0|[]|, ||||0||0|0|1|[]|, ||||0||0|0|2|[]|, ||||0||1|0|3|[]|]|0"},
};
// clang-format on

// A caller names the elements by any text, in the local code page.
TEST(SectionReadTest, TagNameIsTheCallers)
{
    CParsedXml                             oXml("<Prüfung id='p'/><Schritt id='s'><Wert id='w'/></Schritt>");
    std::string                            strTagName = "Prüfung";
    std::list<StAsnCheckType>              lstItem;
    std::list<StAsnCheckType>              lstTelnetItem;
    std::list<StAsnUpgradeSubOperationDef> lstStep;
    std::list<StAsnOperParamDef>           lstParam;
    CCheckOpXMLConfig().fillCheckType(oXml.root(), strTagName, &lstItem);
    CCheckOpXMLConfig().fillCheckTypeTelnet(oXml.root(), strTagName, &lstTelnetItem);
    CUpgradeOpXMLConfig().fillSubOperType(oXml.root(), "Schritt", lstStep);
    CUpgradeOpXMLConfig().fillSubParaType(oXml.root(), "Wert", lstParam);
    EXPECT_EQ("p||||0||0|0|0|[]|", CRecordText::list(lstItem));
    EXPECT_EQ(lstItem, lstTelnetItem);
    EXPECT_EQ("s|0|[]", CRecordText::list(lstStep));
    EXPECT_EQ("w||0||[]", CRecordText::list(lstParam));
}

TEST(SectionReadTest, MakesTheseRecords)
{
    for (const StReadCase& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        EXPECT_EQ(stCase.pszRecords, stCase.fnRead(stCase.pszXml));
        EXPECT_THAT(logLines(), testing::IsEmpty());
    }
}
} // namespace

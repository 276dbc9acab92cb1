// Entries that depend on the server's settings and resources.
#include "RecordText.h"
#include "sections/CDevOpXMLConfig.h"
#include "sections/CDevViewPopupMenuConfig.h"
#include "sections/COtherOpXMLConfig.h"

namespace
{
// One setting of in-service upgrade, asked by two filters that differ in text and effect.
struct StIssuCase
{
    const char* pszName;
    const char* pszMode; // null: not set
    bool        bMenuKeeps;
    Lines       lstOtherLog;
    Lines       lstMenuLog;
};
class IssuFilterTest : public testing::TestWithParam<StIssuCase>
{
protected:
    void SetUp() override
    {
        const char* pszMode = GetParam().pszMode;
        m_oRoot.open(pszMode == nullptr
                         ? ""
                         : fmt::format("INSERT INTO setting VALUES ('WDM_SUPPORT_ISSU_UPGRADE', '{}');", pszMode));
    }
    CTempServerRoot m_oRoot;
};

TEST_P(IssuFilterTest, OtherOperationsAreStoredAllTheSame)
{
    CParsedXml oXml("<OtherOperation id='getweakbd'/><OtherOperation id='GetWeakBd' isSupported='1'/>");
    EXPECT_EQ((Lines{"getweakbd|0|[]", "GetWeakBd|1|[]"}),
              section(&COtherOpXMLConfig::setOtherOperXMLConfig)(oXml.parser()));
    EXPECT_EQ(GetParam().lstOtherLog, logLines());
}

TEST_P(IssuFilterTest, MenuAndTabsFollowTheSetting)
{
    constexpr const char* ITEMS = "<{0}><Item type='DeviceOperation' id='GetWeakBd'/>"
                                  "<Item type='OtherOperation' id='GetWeakBd'/>"
                                  "<Item type='OtherOperation' id='Ftp'/></{0}>";
    const Lines           lstExpected =
        GetParam().bMenuKeeps ? Lines{"0|GetWeakBd", "5|GetWeakBd", "5|Ftp"} : Lines{"0|GetWeakBd", "5|Ftp"};

    CParsedXml oMenu(fmt::format(ITEMS, "DeviceViewPopupMenu"));
    EXPECT_EQ(lstExpected, section(&CDevViewPopupMenuConfig::setDevViewPopupMenuConfig)(oMenu.parser()));
    EXPECT_EQ(GetParam().lstMenuLog, logLines());
    clearLog();
    CParsedXml oTab(fmt::format(ITEMS, "DeviceViewTab"));
    EXPECT_EQ(lstExpected, section(&CDevViewPopupMenuConfig::setDevViewTabConfig)(oTab.parser()));
    EXPECT_EQ(GetParam().lstMenuLog, logLines());
}

const std::string CONFIGED = "I [DCServer]ISSU item is configed.";
const std::string DISABLED = "I [DCServer]User does not enable ISSU item.";
const std::string CARELESS = "I [DCServer]User does not care ISSU mode.";
const std::string ILLEGAL  = "I [DCServer]ISSU mode value illigle.";
INSTANTIATE_TEST_SUITE_P(Mode, IssuFilterTest,
                         testing::ValuesIn(std::vector<StIssuCase>{
                             {"Unset", nullptr, false, {CONFIGED, DISABLED}, {CARELESS}},
                             {"Zero", "0", false, {CONFIGED, DISABLED}, {CARELESS}},
                             {"One", "1", true, {CONFIGED}, {}},
                             {"Two", "2", true, {CONFIGED}, {}},
                             {"Seven", "7", false, {CONFIGED, ILLEGAL}, {ILLEGAL}},
                             {"BlankOne", " 1", false, {CONFIGED, ILLEGAL}, {ILLEGAL}},
                             {"Empty", "", false, {CONFIGED, ILLEGAL}, {ILLEGAL}},
                         }),
                         rowName<StIssuCase>);

// The resource is asked once for every option 15 of the program file.
struct StProgramCase
{
    const char* pszName;
    const char* pszResource; // null: cannot be read
    bool        bKept;
};
class ProgramFileTest : public testing::TestWithParam<StProgramCase>
{
};

TEST_P(ProgramFileTest, FollowsTheResource)
{
    CTempServerRoot oRoot;
    const bool      bReadable = GetParam().pszResource != nullptr;
    oRoot.open(
        bReadable ? fmt::format("INSERT INTO resource VALUES ('BACKUP_PROGRAM_SUPPORT', '{}');", GetParam().pszResource)
                  : "");
    CParsedXml oXml("<DeviceOperation><Operation><Parameter><Option id='PROGFILE' value='15'/><Option id='PROGFILE' "
                    "value='14'/><Option id='progfile' value='15'/></Parameter></Operation></DeviceOperation>");
    EXPECT_EQ((Lines{fmt::format("|0|0|[||0||[{}PROGFILE|14|, progfile|15|]]|0|0",
                                 GetParam().bKept ? "PROGFILE|15|, " : "")}),
              section(&CDevOpXMLConfig::setDevOperXMLConfig)(oXml.parser()));
    EXPECT_EQ(bReadable ? Lines{}
                        : Lines{"E 3B0F0001 CDevOpXMLConfig::isBackupProgramEnable "
                                "[DCServer]CSysCommonFunc::readResourceFile failed for BACKUP_PROGRAM_SUPPORT."},
              logLinesWithPlace());
}
INSTANTIATE_TEST_SUITE_P(Resource, ProgramFileTest,
                         testing::ValuesIn(std::vector<StProgramCase>{
                             {"One", "1", true},
                             {"OneAndText", "1x", true},
                             {"LowBitsOne", "4294967297", true},
                             {"Two", "2", false},
                             {"Empty", "", false},
                             {"Unreadable", nullptr, false},
                         }),
                         rowName<StProgramCase>);
} // namespace

// Entries that depend on the server's settings and resources.
#include "RecordText.h"
#include "records/ResultCodes.h"
#include "sections/CDevOpXMLConfig.h"
#include "sections/CDevViewPopupMenuConfig.h"
#include "sections/COtherOpXMLConfig.h"

namespace
{
using testing::ElementsAreArray;
using Lines = std::vector<std::string>;

// One setting of in-service upgrade, asked by two filters that differ in text and effect.
TEST(SectionSettingTest, InServiceUpgradeFollowsTheSetting)
{
    const std::string CONFIGED = "I [DCServer]ISSU item is configed.";
    const std::string DISABLED = "I [DCServer]User does not enable ISSU item.";
    const std::string CARELESS = "I [DCServer]User does not care ISSU mode.";
    const std::string ILLEGAL  = "I [DCServer]ISSU mode value illigle.";
    const struct
    {
        std::string strSetting;
        bool        bMenuKeeps;
        Lines       lstOtherLog;
        Lines       lstMenuLog;
    } CASES[] = {
        {"", false, {CONFIGED, DISABLED}, {CARELESS}},
        {"INSERT INTO setting VALUES ('WDM_SUPPORT_ISSU_UPGRADE', '0');", false, {CONFIGED, DISABLED}, {CARELESS}},
        {"INSERT INTO setting VALUES ('WDM_SUPPORT_ISSU_UPGRADE', '1');", true, {CONFIGED}, {}},
        {"INSERT INTO setting VALUES ('WDM_SUPPORT_ISSU_UPGRADE', '2');", true, {CONFIGED}, {}},
        {"INSERT INTO setting VALUES ('WDM_SUPPORT_ISSU_UPGRADE', ' 1');", false, {CONFIGED, ILLEGAL}, {ILLEGAL}},
        {"INSERT INTO setting VALUES ('WDM_SUPPORT_ISSU_UPGRADE', '');", false, {CONFIGED, ILLEGAL}, {ILLEGAL}},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.strSetting);
        CTempServerRoot oRoot;
        oRoot.open(stCase.strSetting);
        clearLog();
        // The other operations are stored all the same.
        EXPECT_EQ("getweakbd|0|[], GetWeakBd|1|[]",
                  section(&COtherOpXMLConfig::setOtherOperXMLConfig)(
                      "<OtherOperation id='getweakbd'/><OtherOperation id='GetWeakBd' isSupported='1'/>"));
        EXPECT_THAT(logLines(), ElementsAreArray(stCase.lstOtherLog));

        const auto fnExpectItems = [&](const std::string& strTag, const SectionReader& fnRead)
        {
            clearLog();
            EXPECT_EQ(stCase.bMenuKeeps ? "0|GetWeakBd, 5|GetWeakBd" : "0|GetWeakBd",
                      fnRead("<" + strTag + "><Item type='DeviceOperation' id='GetWeakBd'/>" +
                             "<Item type='OtherOperation' id='GetWeakBd'/></" + strTag + ">"));
            EXPECT_THAT(logLines(), ElementsAreArray(stCase.lstMenuLog));
        };
        fnExpectItems("DeviceViewPopupMenu", section(&CDevViewPopupMenuConfig::setDevViewPopupMenuConfig));
        fnExpectItems("DeviceViewTab", section(&CDevViewPopupMenuConfig::setDevViewTabConfig));
    }
}

// The resource is asked once for every option 15 of the program file.
TEST(SectionSettingTest, ProgramFileFollowsTheResource)
{
    const std::string UNREADABLE = "E 3B0F0001 CDevOpXMLConfig::isBackupProgramEnable "
                                   "[DCServer]CSysCommonFunc::readResourceFile failed for BACKUP_PROGRAM_SUPPORT.";
    const struct
    {
        const char* pszResource;
        bool        bKept;
        Lines       lstLog;
    } CASES[] = {
        {"INSERT INTO resource VALUES ('BACKUP_PROGRAM_SUPPORT', '1x');", true, {}},
        {"INSERT INTO resource VALUES ('BACKUP_PROGRAM_SUPPORT', '4294967297');", true, {}}, // the low bits are 1
        {"INSERT INTO resource VALUES ('BACKUP_PROGRAM_SUPPORT', '2');", false, {}},
        {"INSERT INTO resource VALUES ('BACKUP_PROGRAM_SUPPORT', '');", false, {}},
        {"", false, {UNREADABLE}},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszResource);
        CTempServerRoot oRoot;
        oRoot.open(stCase.pszResource);
        EXPECT_EQ(fmt::format("|0|0|[||0||[{}PROGFILE|14|, progfile|15|]]|0|0", stCase.bKept ? "PROGFILE|15|, " : ""),
                  section(&CDevOpXMLConfig::setDevOperXMLConfig)(
                      "<DeviceOperation><Operation><Parameter><Option id='PROGFILE' value='15'/><Option id='PROGFILE' "
                      "value='14'/><Option id='progfile' value='15'/></Parameter></Operation></DeviceOperation>"));
        EXPECT_THAT(logLinesWithPlace(), ElementsAreArray(stCase.lstLog));
    }
}

// A platform call that throws ends the outermost operation, which keeps whole records alone: below it
// the results of readers are passed over, so one that stopped there would leave a part out silently.
TEST(SectionSettingTest, ThrownInTheMiddleEndsTheWholeOperation)
{
    CTempServerRoot oRoot;
    oRoot.open("INSERT INTO resource VALUES ('BACKUP_PROGRAM_SUPPORT', '1');");
    const std::string          strOption    = "<Option id='PROGFILE' value='15'/>";
    const std::string          strOperation = "<Operation><Parameter>" + strOption + "</Parameter></Operation>";
    CParsedXml                 oXml("<DeviceOperation>" + strOperation + strOperation + "</DeviceOperation>");
    const StAsnMenuOpDef       stEntry = {DCAsn1ClientToServer::OtherOperation, "GetWeakBd"};
    const std::exception_ptr   pThrown = std::make_exception_ptr(std::bad_alloc());
    std::list<StAsnOperation>  lstOperation;
    std::list<StAsnOptionInfo> lstOption;
    {
        const standalone::CFaultPoint oFault("CSysCommonFunc::readResourceFile", 2, pThrown);
        EXPECT_EQ(DC_RESULT_XML_ERROR, CDevOpXMLConfig().setDevOperXMLConfig(oXml.parser(), &lstOperation));
        EXPECT_EQ("|0|0|[||0||[PROGFILE|15|]]|0|0", CRecordText::list(lstOperation));
    }
    const standalone::CFaultPoint oResource("CSysCommonFunc::readResourceFile", 0, pThrown);
    const standalone::CFaultPoint oSetting("CDCSettingInfoTab::getValueByParam", 0, pThrown);
    EXPECT_EQ(DC_RESULT_XML_ERROR, CDevOpXMLConfig().fillOperOptionInfo(oXml.root(), lstOption));
    EXPECT_THAT(lstOption, testing::IsEmpty());
    EXPECT_FALSE(CDevOpXMLConfig::isBackupProgramEnable());
    EXPECT_TRUE(CDevViewPopupMenuConfig::JudgeFilterOndixISSUCapability(stEntry));
    EXPECT_TRUE(COtherOpXMLConfig::JudgeFilterOndixISSUCapability(stEntry.strId));
    EXPECT_THAT(logLinesWithPlace(),
                testing::ElementsAre(
                    "E 3B0004EE CDevOpXMLConfig::setDevOperXMLConfig [DCServer]Memory ran out.",
                    "E 3B0004EE CDevOpXMLConfig::fillOperOptionInfo [DCServer]Memory ran out.",
                    "E 3B0004EE CDevOpXMLConfig::isBackupProgramEnable [DCServer]Memory ran out.",
                    "E 3B0004EE CDevViewPopupMenuConfig::JudgeFilterOndixISSUCapability [DCServer]Memory ran out.",
                    "I COtherOpXMLConfig::JudgeFilterOndixISSUCapability [DCServer]ISSU item is configed.",
                    "E 3B0004EE COtherOpXMLConfig::JudgeFilterOndixISSUCapability [DCServer]Memory ran out."));
}
} // namespace

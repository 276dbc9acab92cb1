// What both alarm dictionaries promise: which file they read, and what becomes
// of one that cannot be read.
#include "alarm/AlarmSupport.h"

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;

TEST(AlarmTableTest, JoinsTheEnvironmentValuesAsTheyAre)
{
    const struct
    {
        const char* pszRoot;
        const char* pszLanguage;
        const char* pszFolder; // below the server root
    } CASES[] = {
        {"${ROOT}/", "en_US/", "pub/i18n/en_US/"},
        {"${ROOT}/srv", "en_US/", "srvpub/i18n/en_US/"},
        {"${ROOT}/", "en_US", "pub/i18n/en_US"},
        {"${ROOT}/", "", "pub/i18n/"},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszFolder);
        CAlarmRoot        oRoot(stCase.pszRoot, stCase.pszLanguage);
        const std::string strFolder   = stCase.pszFolder;
        const std::string strAlarm    = oRoot.write(strFolder + ALARM_FILE, "<t><record/></t>");
        const std::string strTransfer = oRoot.write(strFolder + TRANSFER_FILE, "<t><record/></t>");
        EXPECT_EQ(strAlarm, InitAlarmInfo::Instance()->path());
        EXPECT_EQ(strTransfer, InitTblRegInfo::Instance()->path());
        EXPECT_THAT(logLines(), ElementsAre("I [DCServer]alarm.alarmId:0 alarm.alarmName  alarm.explain ",
                                            "I [DCServer]alarm need to transfer:"));
        clearLog();
    }
}

struct StBadFileCase
{
    const char* pszName;
    const char* pszContent; // null: no file
    const char* pszProblem;
};
class AlarmTableBadFileTest : public testing::TestWithParam<StBadFileCase>
{
};

TEST_P(AlarmTableBadFileTest, LeavesTheDictionariesEmpty)
{
    CAlarmRoot oRoot;
    for (const std::string strFile : {ALARM_FILE, TRANSFER_FILE})
    {
        if (GetParam().pszContent != nullptr)
            oRoot.write("pub/i18n/en_US/" + strFile, GetParam().pszContent);
    }
    EXPECT_THAT(InitAlarmInfo::Instance()->alarms(), testing::IsEmpty());
    EXPECT_FALSE(InitTblRegInfo::Instance()->NeedTransfer({101, 5, "", ""}));
    EXPECT_THAT(
        logLinesWithPlace(),
        ElementsAre("E 3B0004EE InitAlarmInfo::InitAlarmInfo [DCServer]XercesDOMParser::getDocument failed :",
                    "E 3B0004EE InitTblRegInfo::InitTblRegInfo [DCServer]XercesDOMParser::getDocument failed :"));
    EXPECT_THAT(InitAlarmInfo::Instance()->problems(), ElementsAre(HasSubstr(GetParam().pszProblem)));
    EXPECT_THAT(InitTblRegInfo::Instance()->problems(), ElementsAre(HasSubstr(GetParam().pszProblem)));
}
INSTANTIATE_TEST_SUITE_P(
    Files, AlarmTableBadFileTest,
    testing::Values(StBadFileCase{"Missing", nullptr, "No such file"}, StBadFileCase{"Empty", "", "line 1"},
                    StBadFileCase{"TornOff", "<t><record><param name='FaultIDList'>101</param>", "line 1"}),
    rowName<StBadFileCase>);

TEST(AlarmTableTest, AChangedFileCountsAfterDestroyOnly)
{
    CAlarmRoot oRoot;
    oRoot.alarms("<record><param name='AlarmName'>Old</param></record>");
    oRoot.write("pub/i18n/en_US/" + std::string(ALARM_FILE), "<t/>");
    EXPECT_EQ("Old", InitAlarmInfo::Instance()->getAlarmNameByAlarmId(0).strAlarmName);
    EXPECT_EQ("", oRoot.alarms("<record/>").getAlarmNameByAlarmId(0).strAlarmName);

    EXPECT_TRUE(oRoot.transfers("<record><param name='FaultIDList'>1</param></record>").NeedTransfer({1, 0, "", ""}));
    EXPECT_FALSE(oRoot.transfers("").NeedTransfer({1, 0, "", ""}));
}
} // namespace

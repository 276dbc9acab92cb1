// The alarm explanation dictionary: what one record becomes, and what is logged.
#include "alarm/AlarmSupport.h"

namespace
{
using testing::ElementsAre;

TEST(InitAlarmInfoTest, StoresARecordUnderItsNumber)
{
    const struct
    {
        const char*   pszParams; // below one "record"
        std::uint64_t ulAlarmId;
        const char*   pszAlarmName;
        const char*   pszProblem; // "": none
    } CASES[] = {
        {"<param name='AlarmID'>\n\t 101 \n</param>", 101, "", ""},
        {"<param name='AlarmID'>18446744073709551615</param>", 18446744073709551615u, "", ""},
        {"<param name='AlarmID'>18446744073709551616</param>", 0, "",
         "record 1: \"18446744073709551616\" in \"AlarmID\" is too large and is passed over;"},
        {"<param name='AlarmID'>12x4</param>", 12, "", "record 1: \"12x4\" in \"AlarmID\" is read as 12;"},
        {"<param name='AlarmID'/>", 0, "", "record 1: \"\" in \"AlarmID\" is no number and is passed over;"},
        {"<param name='AlarmName'>A</param>", 0, "A", "record 1: no \"AlarmID\", so the record is stored under 0;"},
        {"<x><param name='AlarmID'>9</param><param name='AlarmID'>1<!-- 2 -->3</param></x>", 13, "", ""},
        {"<x><param name='AlarmID'>1</param><param name='AlarmName'><b>Fan</b> off</param></x>", 1, "Fan off", ""},
        {"<param name='AlarmID'>1</param><param name='alarmname'>A</param><param name='alarmname'/>", 1, "",
         "record 1: a param named \"alarmname\" is not known and is passed over wherever it stands;"},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszParams);
        CAlarmRoot           oRoot;
        const InitAlarmInfo& oInfo = oRoot.alarms("<record>" + std::string(stCase.pszParams) + "</record>");
        ASSERT_THAT(oInfo.alarms(), ElementsAre(testing::Key(stCase.ulAlarmId)));
        EXPECT_EQ(stCase.ulAlarmId, oInfo.alarms().begin()->second.ulAlarmId);
        EXPECT_EQ(stCase.pszAlarmName, oInfo.getAlarmNameByAlarmId(stCase.ulAlarmId).strAlarmName);
        EXPECT_EQ(stCase.pszProblem, joined(oInfo.problems()));
    }
}

TEST(InitAlarmInfoTest, LogsEveryRecordAndKeepsTheFirstOfAnId)
{
    CAlarmRoot           oRoot;
    const InitAlarmInfo& oInfo =
        oRoot.alarms("<record><param name='AlarmID'>101</param><param name='AlarmName'>Fan</param>"
                     "<param name='Explain'>L&#252;ck</param></record>"
                     "<group><record><param name='AlarmID'>101</param></record></group>");
    EXPECT_THAT(
        logLinesWithPlace(),
        ElementsAre(
            "I InitAlarmInfo::InitAlarmInfo [DCServer]alarm.alarmId:101 alarm.alarmName Fan alarm.explain L\u00FCck",
            "I InitAlarmInfo::InitAlarmInfo [DCServer]alarm.alarmId:101 alarm.alarmName  alarm.explain "));
    EXPECT_EQ("L\u00FCck", oInfo.getAlarmNameByAlarmId(101).strExplain);
    EXPECT_THAT(oInfo.problems(), ElementsAre("record 2: alarm 101 stands in an earlier record, which is kept"));

    const AlarmStaticInfo stUnknown = oInfo.getAlarmNameByAlarmId(404);
    EXPECT_EQ(404u, stUnknown.ulAlarmId);
    EXPECT_EQ("", stUnknown.strAlarmName + stUnknown.strExplain + stUnknown.strReserved);
}

TEST(InitAlarmInfoTest, ANullRecordIsLogged)
{
    CAlarmRoot      oRoot;
    AlarmStaticInfo stAlarm;
    oRoot.alarms("").fillAlarmInfo(nullptr, stAlarm);
    EXPECT_THAT(logLinesWithPlace(), ElementsAre("E 3B0004EE InitAlarmInfo::fillAlarmInfo [DCServer]pElm is null."));
}
} // namespace

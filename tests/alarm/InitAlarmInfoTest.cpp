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
    } CASES[] = {
        {"<param name='AlarmID'>\n\t 101 \n</param>", 101, ""},
        {"<param name='AlarmID'>18446744073709551615</param>", 18446744073709551615u, ""},
        {"<param name='AlarmID'>18446744073709551616</param>", 0, ""},
        {"<param name='AlarmID'>12x4</param>", 12, ""},
        {"<param name='AlarmID'/>", 0, ""},
        {"<param name='AlarmName'>A</param>", 0, "A"},
        {"<x><param name='AlarmID'>9</param><param name='AlarmID'>1<!-- 2 -->3</param></x>", 13, ""},
        {"<x><param name='AlarmID'>1</param><param name='AlarmName'><b>Fan</b> off</param></x>", 1, "Fan off"},
        {"<param name='AlarmID'>1</param><param name='alarmname'>A</param><param name='alarmname'/>", 1, ""},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszParams);
        CAlarmRoot           oRoot;
        const InitAlarmInfo& oInfo = oRoot.alarms("<record>" + std::string(stCase.pszParams) + "</record>");
        ASSERT_THAT(oInfo.alarms(), ElementsAre(testing::Key(stCase.ulAlarmId)));
        EXPECT_EQ(stCase.ulAlarmId, oInfo.alarms().begin()->second.ulAlarmId);
        EXPECT_EQ(stCase.pszAlarmName, oInfo.getAlarmNameByAlarmId(stCase.ulAlarmId).strAlarmName);
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

    const AlarmStaticInfo stUnknown = oInfo.getAlarmNameByAlarmId(404);
    EXPECT_EQ(404u, stUnknown.ulAlarmId);
    EXPECT_EQ("", stUnknown.strAlarmName + stUnknown.strExplain + stUnknown.strReserved);
}

TEST(InitAlarmInfoTest, ANullRecordIsLogged)
{
    CAlarmRoot      oRoot;
    AlarmStaticInfo stAlarm;
    InitAlarmInfo::fillAlarmInfo(nullptr, stAlarm);
    EXPECT_THAT(logLinesWithPlace(), ElementsAre("E 3B0004EE InitAlarmInfo::fillAlarmInfo [DCServer]pElm is null."));
}
} // namespace

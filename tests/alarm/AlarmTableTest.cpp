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
        std::string strFolder; // below the server root
    } CASES[] = {{"${ROOT}/srv", "en_US/", "srvpub/i18n/en_US/"}, {"${ROOT}/", "en_US", "pub/i18n/en_US"}};
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.strFolder);
        CAlarmRoot oRoot(stCase.pszRoot, stCase.pszLanguage);
        EXPECT_EQ(oRoot.path() + "/" + stCase.strFolder + ALARM_FILE, InitAlarmInfo::Instance()->path());
        EXPECT_EQ(oRoot.path() + "/" + stCase.strFolder + TRANSFER_FILE, InitTblRegInfo::Instance()->path());
    }
}

TEST(AlarmTableTest, ABadFileLeavesTheDictionariesEmpty)
{
    const std::pair<const char*, const char*> CASES[] = {
        {nullptr, "No such file"}, {"", "line 1"}, {"<t><record><param name='FaultIDList'>101</param>", "line 1"}};
    for (const auto& [pszContent, pszProblem] : CASES)
    {
        SCOPED_TRACE(pszProblem);
        CAlarmRoot oRoot;
        for (const std::string strFile : {ALARM_FILE, TRANSFER_FILE})
        {
            if (pszContent != nullptr)
                oRoot.write("pub/i18n/en_US/" + strFile, pszContent);
        }
        EXPECT_THAT(InitAlarmInfo::Instance()->alarms(), testing::IsEmpty());
        EXPECT_FALSE(InitTblRegInfo::Instance()->NeedTransfer({101, 5, "", ""}));
        EXPECT_THAT(
            logLinesWithPlace(),
            ElementsAre("E 3B0004EE InitAlarmInfo::InitAlarmInfo [DCServer]XercesDOMParser::getDocument failed :",
                        "E 3B0004EE InitTblRegInfo::InitTblRegInfo [DCServer]XercesDOMParser::getDocument failed :"));
        EXPECT_THAT(problemText(InitAlarmInfo::Instance()->problem()), HasSubstr(pszProblem));
        EXPECT_THAT(problemText(InitTblRegInfo::Instance()->problem()), HasSubstr(pszProblem));
        clearLog();
    }
}

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

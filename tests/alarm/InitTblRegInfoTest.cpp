// The transfer registration: which alarms it lets through, why, and what is logged.
#include "alarm/AlarmSupport.h"

#include "records/ResultCodes.h"

namespace
{
using testing::ElementsAre;

std::string record(const std::string& strFaultIds, const std::string& strDevType = "")
{
    return "<record>" + (strDevType.empty() ? "" : "<param name='DevType'>" + strDevType + "</param>") +
           "<param name='FaultIDList'>" + strFaultIds + "</param></record>";
}

TEST(InitTblRegInfoTest, LetsThroughWhatIsRegistered)
{
    const struct
    {
        std::string strRecords;
        const char* pszAll;  // of the faults 0 to 9 raised by device type 5: decided for all types
        const char* pszFive; // decided for device type 5
    } CASES[] = {
        {record("1,2") + record("7", "6"), "12", ""},
        {record("7", "5") + record("8,7", "5"), "", "78"},
        {record("1,2", "5") + record("1"), "1", "2"},
        {record("1", "18446744073709551615"), "1", ""}, // the largest number is no type
        {record("x, 1 ,3z,"), "13", ""},
        {record("1", "five"), "", ""},
        {record("7", "5") + "<record/>", "", "7"},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.strRecords);
        CAlarmRoot            oRoot;
        const InitTblRegInfo& oInfo = oRoot.transfers(stCase.strRecords);
        std::string           strAll;
        std::string           strFive;
        for (unsigned long ulFaultId = 0; ulFaultId < 10; ++ulFaultId)
        {
            const NS_UTIL::EnvAlarmInfo stAlarm{ulFaultId, 5, "", ""};
            const EnTransferBy          enBy = oInfo.findRegistration(stAlarm);
            EXPECT_EQ(enBy != EnTransferBy::None, oInfo.NeedTransfer(stAlarm));
            strAll += enBy == EnTransferBy::AllTypes ? std::to_string(ulFaultId) : "";
            strFive += enBy == EnTransferBy::DeviceType ? std::to_string(ulFaultId) : "";
        }
        EXPECT_EQ(stCase.pszAll, strAll);
        EXPECT_EQ(stCase.pszFive, strFive);
    }
}

TEST(InitTblRegInfoTest, LogsWhatItRegistersAndAnUnknownParam)
{
    CAlarmRoot            oRoot;
    const InitTblRegInfo& oInfo = oRoot.transfers(
        "<record><param name='Devtype'>5</param><param name='FaultIDList'>1,2</param></record>" + record("7,8", "5"));
    EXPECT_THAT(logLinesWithPlace(),
                ElementsAre("E 3B0004EE InitTblRegInfo::FillAlarmInfo Call Function return Error:"
                            "GetAlarmsAndDevType(paramNodeLst, devType, alaLst, j)",
                            "I InitTblRegInfo::AddAlarmToLst [DCServer]alarm need to transfer:1,2",
                            "I InitTblRegInfo::AddAlarmInfoToMap [DCServer]alarm need to transfer by devtype:5:7,8"));
    EXPECT_EQ(2u, oInfo.byDevType().at(5).at(7)); // the record that registered it
}

TEST(InitTblRegInfoTest, ReadsAMillionFaultIds)
{
    std::string strIds = "1";
    for (int nPiece = 2; nPiece <= 999'999; ++nPiece)
        strIds += ",1";
    CAlarmRoot            oRoot;
    const InitTblRegInfo& oInfo = oRoot.transfers(record(strIds) + record("2,3") + record("4", "5"));
    EXPECT_EQ(2u, oInfo.allTypes().size()); // 1 and 2
    EXPECT_THAT(logLines(), testing::Contains("E 3B0004EE [DCServer]The table holds too many fault ids."));
}

TEST(InitTblRegInfoTest, NullElementsAreLogged)
{
    CAlarmRoot               oRoot;
    InitTblRegInfo&          oInfo     = oRoot.transfers("");
    unsigned long            ulDevType = 3;
    std::list<unsigned long> lstFaultId;
    EXPECT_EQ(DC_RESULT_XML_ERROR, oInfo.GetAlarmsAndDevType({nullptr}, ulDevType, lstFaultId, 0));
    oInfo.FillAlarmInfo(nullptr);
    EXPECT_THAT(logLinesWithPlace(),
                ElementsAre("E 3B0004EE InitTblRegInfo::GetAlarmsAndDevType [DCServer]pElm is null.",
                            "E 3B0004EE InitTblRegInfo::FillAlarmInfo "
                            "[DCServer]DOMElement::getElementsByTagName failed :"));
}
} // namespace

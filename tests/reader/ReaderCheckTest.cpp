// Where the check operations of a device type come from.
#include "ServerFixture.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/ResultCodes.h"

namespace
{
constexpr const char* FIXED_ON    = "INSERT INTO config_item VALUES ('DC', 'FIXED_CHECK_ITEM', 1);";
constexpr const char* TELNET_FILE = "INSERT INTO check_file VALUES ('A', 'check.xml', 1);";

struct StCheckCase
{
    const char* pszName;
    std::string strSql;
    bool        bFixedFile;
    const char* pszInRecord; // ids of the record's check operations
    const char* pszAlone;    // ids of getCheckOperFromXml
};

class CheckSourceTest : public CServerTest, public testing::WithParamInterface<StCheckCase>
{
protected:
    void SetUp() override
    {
        m_oRoot.writeConfig("A.xml", "<C><CheckOperations><Operation id='Own'/></CheckOperations></C>");
        m_oRoot.write("check.xml", "<C><DeviceType><TaskType><PreCheck/><PostCheck/></TaskType></DeviceType></C>");
    }
};

TEST_P(CheckSourceTest, IsTheFirstThatApplies)
{
    if (GetParam().bFixedFile)
        m_oRoot.write("xml/access_snmp/fixedcheck/A.xml",
                      "<C><DeviceType><TaskType><Operation id='Fixed'/></TaskType></DeviceType></C>");
    open(GetParam().strSql);
    CDevTypeXMLResReader              oReader("A", "V1", false);
    std::list<StAsnCheckOperationDef> lstAlone;
    EXPECT_EQ(0u, CDevTypeXMLResReader("A", "V1", false).getCheckOperFromXml(&lstAlone));
    EXPECT_EQ(GetParam().pszAlone, ids(lstAlone));

    oReader.initializeCheck();
    for (int nRecord = 0; nRecord < 2; ++nRecord) // every record of one reader, not the first alone
    {
        COwnedRecords oRead;
        EXPECT_EQ(0u, oReader.readDevTypeVerXMLFile(oRead.lstInfo));
        ASSERT_EQ(1u, oRead.lstInfo.size());
        EXPECT_EQ(GetParam().pszInRecord, ids(oRead.lstInfo.front()->stOperationConfig.lstCheckOperation));
    }
    EXPECT_THAT(log(), testing::IsEmpty());
}
INSTANTIATE_TEST_SUITE_P(Source, CheckSourceTest,
                         testing::ValuesIn(std::vector<StCheckCase>{
                             {"OwnSection", "", false, "Own", "Own"},
                             {"FixedFileSwitchedOff", "", true, "Own", "Own"},
                             {"FixedFileMissing", FIXED_ON, false, "Own", "Own"},
                             {"FixedFile", FIXED_ON, true, "Fixed", "Own"},
                             {"TelnetFile", TELNET_FILE, false, "PreCheck,PostCheck", "PreCheck,PostCheck"},
                             {"TelnetFileBeforeFixedFile", std::string(FIXED_ON) + TELNET_FILE, true,
                              "PreCheck,PostCheck", "PreCheck,PostCheck"},
                         }),
                         rowName<StCheckCase>);

TEST_F(CServerTest, AdapterFailureBeforeTheCheckFileIsLogged)
{
    m_oRoot.writeConfig("A.xml", "<C><CheckOperations><Operation id='Own'/></CheckOperations></C>");
    open();
    const standalone::CFaultPoint     oFault("CDeviceAdapterInterface::getCheckFileAndType", 0, 7);
    std::list<StAsnCheckOperationDef> lstCheck;
    // The adapter named no file, so there is none.
    EXPECT_EQ(DC_RESULT_FILE_NOT_EXIST, CDevTypeXMLResReader("A", "V1", false).initializeCheck());
    EXPECT_EQ(0u, CDevTypeXMLResReader("A", "V1", false).getCheckOperFromXml(&lstCheck));
    EXPECT_EQ("Own", ids(lstCheck));
    const std::string strLine = "E 00000007 Call Function return Error:CDeviceAdapterInterface::getInstance()->"
                                "getCheckFileAndType(strDevType, strFilePath, m_enReportType): DeviceType = A";
    EXPECT_EQ((Lines{strLine, strLine}), log());
}

TEST_F(CServerTest, ChecksOfAnUnknownTypeAnswerTheAdaptersCode)
{
    open();
    std::list<StAsnCheckOperationDef> lstCheck;
    EXPECT_EQ(0x3B0F0001u, CDevTypeXMLResReader("Z", "V1", false).getCheckOperFromXml(&lstCheck));
    EXPECT_EQ((Lines{"E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->"
                     "searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)",
                     "E 3B0F0001 [DCServer]CDevTypeXMLResReader::initialize failed"}),
              log());
}
} // namespace

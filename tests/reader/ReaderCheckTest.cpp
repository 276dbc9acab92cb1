// Where the check operations of a device type come from.
#include "ServerFixture.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/ResultCodes.h"

#include <dlfcn.h>

namespace
{
std::uint32_t g_ulCheckFileResult = 0; // what the adapter answers with the path of a check file
}

// In place of the stand-alone adapter's, which answers a code or a path, never both.
std::uint32_t CDeviceAdapterInterface::getCheckFileAndType(const std::string& strDevType, std::string& strFilePath,
                                                           EnCheckReportType& enReportType)
{
    using Original = std::uint32_t (*)(CDeviceAdapterInterface*, const std::string&, std::string&, EnCheckReportType&);
    static const auto s_fnOriginal = reinterpret_cast<Original>(
        ::dlsym(RTLD_NEXT, "_ZN23CDeviceAdapterInterface19getCheckFileAndTypeERKNSt7__cxx1112basic_stringIcSt11char_"
                           "traitsIcESaIcEEERS5_R17EnCheckReportType"));
    const std::uint32_t ulResult = s_fnOriginal(this, strDevType, strFilePath, enReportType);
    return g_ulCheckFileResult != 0 ? g_ulCheckFileResult : ulResult;
}

namespace
{
TEST_F(CServerTest, ChecksComeFromTheFirstSourceThatApplies)
{
    const std::string TELNET = "INSERT INTO check_file VALUES ('A', 'check.xml', 1);";
    const std::string FIXED  = "INSERT INTO config_item VALUES ('DC', 'FIXED_CHECK_ITEM', 1);";
    const struct
    {
        const char* pszName;
        std::string strSql;
        const char* pszFixedFile; // its name
        const char* pszInRecord;  // ids of the record's check operations
        const char* pszAlone;     // ids of getCheckOperFromXml
    } CASES[] = {
        {"fixed file switched off", "", "A", "Own", "Own"},
        {"fixed file missing", FIXED, "X", "Own", "Own"},
        {"fixed file", FIXED, "A", "Fixed", "Own"},
        {"telnet file", TELNET, "X", "PreCheck,PostCheck", "PreCheck,PostCheck"},
        {"telnet file before fixed file", FIXED + TELNET, "A", "PreCheck,PostCheck", "PreCheck,PostCheck"},
    };
    m_oRoot.writeConfig("A.xml", "<C><CheckOperations><Operation id='Own'/></CheckOperations></C>");
    m_oRoot.write("check.xml", "<C><DeviceType><TaskType><PreCheck/><PostCheck/></TaskType></DeviceType></C>");
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        std::filesystem::remove_all(m_oRoot.path() + "/xml");
        m_oRoot.write("xml/access_snmp/fixedcheck/" + std::string(stCase.pszFixedFile) + ".xml",
                      "<C><DeviceType><TaskType><Operation id='Fixed'/></TaskType></DeviceType></C>");
        open(stCase.strSql);
        std::list<StAsnCheckOperationDef> lstAlone;
        EXPECT_EQ(0u, CDevTypeXMLResReader("A", "V1", false).getCheckOperFromXml(&lstAlone));
        EXPECT_EQ(stCase.pszAlone, ids(lstAlone));
        CDevTypeXMLResReader oReader("A", "V1", false);
        oReader.initializeCheck();
        for (int nRecord = 0; nRecord < 2; ++nRecord) // every record of one reader, not the first alone
        {
            COwnedRecords oRead;
            EXPECT_EQ(0u, oReader.readDevTypeVerXMLFile(oRead.lstInfo));
            EXPECT_EQ(stCase.pszInRecord, ids(oRead.lstInfo.front()->stOperationConfig.lstCheckOperation));
        }
    }
    EXPECT_EQ("", logText());
}

// A failing adapter that names a file all the same: the file counts.
TEST_F(CServerTest, FailingAdapterDoesNotHideTheFileThatItNames)
{
    m_oRoot.writeConfig("A.xml", "<C><CheckOperations><Operation id='Own'/></CheckOperations></C>");
    m_oRoot.write("check.xml", "<C><DeviceType><TaskType><PreCheck/></TaskType></DeviceType></C>");
    open("INSERT INTO check_file VALUES ('A', 'check.xml', 1);");
    std::list<StAsnCheckOperationDef> lstCheck;
    g_ulCheckFileResult = 7;
    EXPECT_EQ(7u, CDevTypeXMLResReader("A", "V1", false).initializeCheck());
    EXPECT_EQ(0u, CDevTypeXMLResReader("A", "V1", false).getCheckOperFromXml(&lstCheck));
    g_ulCheckFileResult = 0;
    EXPECT_EQ("PreCheck", ids(lstCheck));
}

TEST_F(CServerTest, AdapterFailuresBeforeTheCheckFileAreLogged)
{
    m_oRoot.writeConfig("A.xml", "<C><CheckOperations><Operation id='Own'/></CheckOperations></C>");
    open();
    const standalone::CFaultPoint     oFault("CDeviceAdapterInterface::getCheckFileAndType", 0, 7);
    std::list<StAsnCheckOperationDef> lstCheck;
    // The adapter named no file, so there is none.
    EXPECT_EQ(DC_RESULT_FILE_NOT_EXIST, CDevTypeXMLResReader("A", "V1", false).initializeCheck());
    EXPECT_EQ(0u, CDevTypeXMLResReader("A", "V1", false).getCheckOperFromXml(&lstCheck));
    EXPECT_EQ("Own", ids(lstCheck));
    EXPECT_EQ(0x3B0F0001u, CDevTypeXMLResReader("Z", "V1", false).getCheckOperFromXml(&lstCheck));
    const std::string strCall = " Call Function return Error:CDeviceAdapterInterface::getInstance()->";
    const std::string strCheck =
        "E 00000007" + strCall + "getCheckFileAndType(strDevType, strFilePath, m_enReportType): DeviceType = A\n";
    EXPECT_EQ(strCheck + strCheck + "E 3B0F0001" + strCall +
                  "searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)\n"
                  "E 3B0F0001 [DCServer]CDevTypeXMLResReader::initialize failed\n",
              logText());
}
} // namespace

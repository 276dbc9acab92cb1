// The start-up load: its whole log, what it stores, and what it says of itself.
#include "reader/ServerFixture.h"

namespace
{
const std::string TWIN = "INSERT INTO config_file VALUES ('A_telnet', 'common/dc/conf/dc/devtype_xmlconf/twin.xml');";
const std::string ADDED_A = "I CXMLConfigDatabase::storeDevTypeXMLConfig [DCServer]Added device A to MAP.\n";
const std::string ADDED_B = "I CXMLConfigDatabase::storeDevTypeXMLConfig [DCServer]Added device B to MAP.\n";

std::string missing(const std::string& strFile)
{
    return "E 3B0004EC CDevTypeXMLResReader::initialize [DCServer]Server config File "
           ":ROOT/common/dc/conf/dc/devtype_xmlconf/" +
           strFile + " not exist.\n";
}
std::string failedCall(const std::string& strCode, const std::string& strPlace, const std::string& strCall)
{
    return "E " + strCode + " " + strPlace + " Call Function return Error:" + strCall + "\n";
}
std::string failedType(const std::string& strCode, const std::string& strType, const std::string& strVersion)
{
    return failedCall(strCode, "CDevTypeXMLResReader::readDevTypeVerXMLFile", "parseNormalXML(pAsnDevTypeVerXMLInfo)") +
           "E " + strCode +
           " CXMLConfigDatabase::readAndStoreDevTypeXMLConfig [DCServer]readXMLfile Failed for strDevType = " +
           strType + ", strDevTypeVer = " + strVersion + "\nE " + strCode +
           " CXMLConfigDatabase::readAndStoreDevTypeXMLConfig [DCServer]readAndStoreDevTypeXMLConfig() fail." +
           strType + strVersion + "\n";
}
std::string failedStart(const std::string& strCode)
{
    return failedCall(strCode, "CDevTypeXMLResReader::parseNormalXML", "initialize(\"\", \"\", true)");
}

TEST_F(CServerTest, LoadStoresAndLogsExactlyThis)
{
    const std::string ADAPTER = "CDeviceAdapterInterface::getInstance()->";
    // clang-format off
    const struct
    {
        const char* pszName;
        std::string strSql;
        const char* pszFiles;   // one device operation each, of the file's name
        const char* pszFailing; // a platform call that answers 7, "" for none
        const char* pszStored;  // "key: ids of the device operations"
        std::string strLog;
    } CASES[] = {
        {"all well", "", "A B", "", "A: A;B: B;", ADDED_A + ADDED_B},
        {"registry empty", "DELETE FROM device_type;", "A", "", "", ""},
        {"registry fails", "", "A B", "CDeviceAdapterInterface::getALLDLLInfo", "",
         failedCall("00000007", "CXMLConfigDatabase::getExistDeviceTypes", ADAPTER + "getALLDLLInfo(strDllList)") +
             "E 00000007 CXMLConfigDatabase::readAndStoreDevTypeXMLConfig [DCServer]getSuppportedDeviceTypes() failed :\nE 00000007 CXMLConfigDatabase::getInstance [DCServer]readAndStoreDevTypeXMLConfig() failed :\n"},
        {"module folder closed", "", "A B", "KIVO_OS::opendir", "A: A;B: B;",
         "E 3B0004EC CModuleXMLResReader::parseXMLOfDirs [DCServer]CModuleXMLResReader::parseXMLOfDirs(): open dir failed! dirname: ROOT/etc/oss_cfg/dc/ne_script/importscript, errno: 7\n" +
             failedCall("3B0004EC", "CXMLConfigDatabase::readAndStoreModuleXMLConfig",
                        "oModuleXMLReader.parseXMLOfDirs(strModulePath, m_pModuleInfoMap)") +
             "E 3B0004EC CXMLConfigDatabase::readAndStoreDevTypeXMLConfig [DCServer]readAndStoreModuleXMLConfig failed\n" +
             ADDED_A + ADDED_B},
        {"twin serves", TWIN, "twin B", "", "A: twin;B: B;", missing("A.xml") + ADDED_A + ADDED_B},
        {"twin missing as well", TWIN, "B", "", "B: B;", missing("A.xml") + missing("twin.xml") + failedStart("3B000D21") + failedType("3B000D21", "A", "V1") + ADDED_B},
        {"no twin", "", "A", "", "A: A;",
         ADDED_A + missing("B.xml") +
             failedCall("3B0F0001", "CDevTypeXMLResReader::initialize",
                        ADAPTER + "getServerConfigFile(strDevTypeTemp, strFilePath)") +
             failedStart("3B0F0001") + failedType("3B0F0001", "B", "V2")},
        {"malformed", "UPDATE config_file SET path = 'torn.xml' WHERE device_type = 'A';", "B", "", "B: B;",
         "E 3B0004EE CDevOpXMLConfig::setDevOperXMLConfig [DCServer]XercesDOMParser::getDocument failed :\n" +
             failedType("3B0004EE", "A", "V1") + ADDED_B},
        {"search fails", "DELETE FROM device_type WHERE name = 'B';", "A", "CDeviceAdapterInterface::searchDeviceType",
         "",
         "E 00000007 CXMLConfigDatabase::isSupportCapacity [DCServer]CDeviceAdapterInterface::getInstance()->searchDeviceType failed.\n" +
             failedCall("00000007", "CDevTypeXMLResReader::initialize",
                        ADAPTER + "searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)") +
             failedStart("00000007") + failedType("00000007", "A", "V1")},
        // The storage key follows the version alone, and is what the file is looked up by.
        {"second version", "INSERT INTO device_type (name, version) VALUES ('A', 'V0');", "A B", "", "A: A;B: B;", ADDED_A + ADDED_B},
        {"telnet version", "INSERT INTO device_type (name, version) VALUES ('A', 'x_telnet_y');" + TWIN, "A B twin", "",
         "A: A;A_telnet: twin;B: B;",
         ADDED_A + "I CXMLConfigDatabase::storeDevTypeXMLConfig [DCServer]Added device A_telnet to MAP.\n" + ADDED_B},
        {"telnet name",
         "INSERT INTO device_type (name, version) VALUES ('A_telnet', 'V_telnet');INSERT INTO config_file VALUES ('A_telnet_telnet', 'common/dc/conf/dc/devtype_xmlconf/twin.xml');",
         "A B twin", "", "A: A;A_telnet_telnet: twin;B: B;",
         ADDED_A + "I CXMLConfigDatabase::storeDevTypeXMLConfig [DCServer]Added device A_telnet_telnet to MAP.\n" +
             ADDED_B},
    };
    // clang-format on
    makeModuleFolder();
    m_oRoot.write("torn.xml", "<C><DeviceOperation><Operation id='half'/>");
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        CXMLConfigDatabase::finalize();
        std::filesystem::remove_all(m_oRoot.configFolder());
        for (const std::string& strFile : words(stCase.pszFiles))
            m_oRoot.writeConfig(strFile + ".xml", deviceFile({strFile}));
        open(stCase.strSql);
        clearLog();
        std::string                            strStored;
        std::optional<standalone::CFaultPoint> oFault;
        if (*stCase.pszFailing != '\0')
            oFault.emplace(stCase.pszFailing, 0, 7);
        CXMLConfigDatabase::getInstance()->visitDevTypes(
            [&](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
            { strStored += strKey + ": " + ids(lstInfo.front()->stOperationConfig.lstDevOperation) + ";"; });
        EXPECT_EQ(stCase.pszStored, strStored);
        EXPECT_EQ(stCase.strLog, logText(logLinesWithPlace()));
    }
}

TEST_F(CServerTest, SecondFullLoadStartsItsReportAnew)
{
    makeModuleFolder();
    open();
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    EXPECT_EQ(0u, oDatabase.readAndStoreDevTypeXMLConfig());
    EXPECT_EQ(2u, oDatabase.getLoadReport().lstDevType.size());
}

TEST_F(CServerTest, FileNames)
{
    open();
    const std::string strFolder = m_oRoot.configFolder();
    const struct
    {
        const char* pszType;
        const char* pszOne;
        const char* pszTwo;
        const char* pszExtra;
        const char* pszName; // before "_ServerConfiguration.xml"
    } CASES[] = {
        {"AB 12/X", "V1", "", "", "AB_12_X_V1"},         {"a+b\\c  d", "", "", "", "a_b_c__d"},
        {"X", "V 1/2", "P+3", "", "X_V 1/2_P+3"},        {"X", "", "P", "", "X_P"},
        {"X Y", "1", "2", "V_telnet", "X_Y_telnet_1_2"}, {"X", "1", "", "V_Telnet", "X_1"},
        {"X", "_telnet", "", "", "X__telnet"},           {"", "", "", "", ""},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        const std::string strName = std::string(stCase.pszName) + "_ServerConfiguration.xml";
        EXPECT_EQ(strName, CXMLConfigDatabase::getDevTypeXMLFileName(stCase.pszType, stCase.pszOne, stCase.pszTwo,
                                                                     false, stCase.pszExtra));
        EXPECT_EQ(strFolder + strName, CXMLConfigDatabase::getDevTypeXMLFileName(stCase.pszType, stCase.pszOne,
                                                                                 stCase.pszTwo, true, stCase.pszExtra));
    }
    EXPECT_EQ(strFolder, CXMLConfigDatabase::getDevTypeXMLPath());
    EXPECT_EQ("Common_ServerConfiguration.xml", CXMLConfigDatabase::getCommonDevTypeXMLFileName(false));
    EXPECT_EQ(strFolder + "Common_ServerConfiguration.xml", CXMLConfigDatabase::getCommonDevTypeXMLFileName(true));
}
} // namespace

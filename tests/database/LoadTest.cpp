// The start-up load: its whole log, what it stores, and what it says of itself.
#include "reader/ServerFixture.h"

namespace
{
struct StFile
{
    const char* pszName; // in the configuration folder
    std::string strContent;
};

struct StLoadCase
{
    const char*         pszName;
    std::string         strSql;
    std::vector<StFile> lstFile;
    const char*         pszFailing; // a platform call that answers 7, "" for none
    Lines               lstStored;  // "key: ids of the device operations"
    Lines               lstLog;
};

class LoadTest : public CServerTest, public testing::WithParamInterface<StLoadCase>
{
protected:
    static Lines stored()
    {
        Lines lstText;
        CXMLConfigDatabase::getInstance()->visitDevTypes(
            [&](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
            {
                for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
                    lstText.push_back(strKey + ": " + ids(pInfo->stOperationConfig.lstDevOperation));
            });
        return lstText;
    }
};

TEST_P(LoadTest, LogsAndStoresExactlyThis)
{
    const StLoadCase& stCase = GetParam();
    std::filesystem::create_directories(moduleFolder());
    if (stCase.pszName == std::string("ModuleFolderMissing"))
        std::filesystem::remove_all(moduleFolder());
    for (const StFile& stFile : stCase.lstFile)
        m_oRoot.writeConfig(stFile.pszName, stFile.strContent);
    open(stCase.strSql);
    Lines lstStored;
    {
        const standalone::CFaultPoint oFault(stCase.pszFailing, 0, 7);
        lstStored = stored();
    }
    EXPECT_EQ(stCase.lstStored, lstStored);
    EXPECT_EQ(stCase.lstLog, log());
}

const StFile      FILE_A = {"A.xml", deviceFile({"Save"})};
const StFile      FILE_B = {"B.xml", deviceFile({"Backup"})};
const std::string FOLDER = "ROOT/common/dc/conf/dc/devtype_xmlconf/";

Lines failed(const std::string& strCode, const std::string& strType, const std::string& strVersion)
{
    return {"E " + strCode + " Call Function return Error:parseNormalXML(pAsnDevTypeVerXMLInfo)",
            "E " + strCode + " [DCServer]readXMLfile Failed for strDevType = " + strType +
                ", strDevTypeVer = " + strVersion,
            "E " + strCode + " [DCServer]readAndStoreDevTypeXMLConfig() fail." + strType + strVersion};
}
Lines joined(std::initializer_list<Lines> lstPart)
{
    Lines lstAll;
    for (const Lines& lstLine : lstPart)
        lstAll.insert(lstAll.end(), lstLine.begin(), lstLine.end());
    return lstAll;
}
const Lines ADDED_A              = {"I [DCServer]Added device A to MAP."};
const Lines ADDED_B              = {"I [DCServer]Added device B to MAP."};
const Lines INITIALIZE_FAILED_21 = {"E 3B000D21 Call Function return Error:initialize(\"\", \"\", true)"};

INSTANTIATE_TEST_SUITE_P(
    Whole, LoadTest,
    testing::ValuesIn(std::vector<StLoadCase>{
        {"AllWell", "", {FILE_A, FILE_B}, "", {"A: Save", "B: Backup"}, joined({ADDED_A, ADDED_B})},
        {"RegistryEmpty", "DELETE FROM device_type;", {FILE_A}, "", {}, {}},
        {"RegistryFails",
         "",
         {FILE_A, FILE_B},
         "CDeviceAdapterInterface::getALLDLLInfo",
         {},
         {"E 00000007 Call Function return Error:CDeviceAdapterInterface::getInstance()->getALLDLLInfo(strDllList)",
          "E 00000007 [DCServer]getSuppportedDeviceTypes() failed :",
          "E 00000007 [DCServer]readAndStoreDevTypeXMLConfig() failed :"}},
        {"ModuleFolderMissing",
         "",
         {FILE_A, FILE_B},
         "",
         {"A: Save", "B: Backup"},
         joined({{"E 3B0004EC [DCServer]CModuleXMLResReader::parseXMLOfDirs(): open dir failed! dirname: "
                  "ROOT/etc/oss_cfg/dc/ne_script/importscript, errno: 2",
                  "E 3B0004EC Call Function return Error:oModuleXMLReader.parseXMLOfDirs(strModulePath, "
                  "m_pModuleInfoMap)",
                  "E 3B0004EC [DCServer]readAndStoreModuleXMLConfig failed"},
                 ADDED_A,
                 ADDED_B})},
        {"OwnFileMissingWithTwin",
         "INSERT INTO config_file VALUES ('A_telnet', 'common/dc/conf/dc/devtype_xmlconf/twin.xml');",
         {{"twin.xml", deviceFile({"Twin"})}, FILE_B},
         "",
         {"A: Twin", "B: Backup"},
         joined({{"E 3B0004EC [DCServer]Server config File :" + FOLDER + "A.xml not exist."}, ADDED_A, ADDED_B})},
        {"OwnFileAndTwinMissing",
         "INSERT INTO config_file VALUES ('A_telnet', 'common/dc/conf/dc/devtype_xmlconf/twin.xml');",
         {FILE_B},
         "",
         {"B: Backup"},
         joined({{"E 3B0004EC [DCServer]Server config File :" + FOLDER + "A.xml not exist.",
                  "E 3B0004EC [DCServer]Server config File :" + FOLDER + "twin.xml not exist."},
                 INITIALIZE_FAILED_21,
                 failed("3B000D21", "A", "V1"),
                 ADDED_B})},
        {"OwnFileMissingWithoutTwin",
         "",
         {FILE_A},
         "",
         {"A: Save"},
         joined({ADDED_A,
                 {"E 3B0004EC [DCServer]Server config File :" + FOLDER + "B.xml not exist.",
                  "E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->"
                  "getServerConfigFile(strDevTypeTemp, strFilePath)",
                  "E 3B0F0001 Call Function return Error:initialize(\"\", \"\", true)"},
                 failed("3B0F0001", "B", "V2")})},
        {"FileMalformed",
         "",
         {{"A.xml", "<C><DeviceOperation><Operation id='half'/>"}, FILE_B},
         "",
         {"B: Backup"},
         joined(
             {{"E 3B0004EE [DCServer]XercesDOMParser::getDocument failed :"}, failed("3B0004EE", "A", "V1"), ADDED_B})},
        {"TypeUnknownToTheSearch",
         "DELETE FROM device_type WHERE name = 'B';",
         {FILE_A},
         "CDeviceAdapterInterface::searchDeviceType",
         {},
         joined({{"E 00000007 [DCServer]CDeviceAdapterInterface::getInstance()->searchDeviceType failed.",
                  "E 00000007 Call Function return Error:CDeviceAdapterInterface::getInstance()->"
                  "searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)",
                  "E 00000007 Call Function return Error:initialize(\"\", \"\", true)"},
                 failed("00000007", "A", "V1")})},
    }),
    rowName<StLoadCase>);

// The storage key follows the version alone, and is what the file is looked up by.
INSTANTIATE_TEST_SUITE_P(
    Keys, LoadTest,
    testing::ValuesIn(std::vector<StLoadCase>{
        {"SecondVersionReplacesTheFirst",
         "INSERT INTO device_type (name, version) VALUES ('A', 'V0');",
         {FILE_A, FILE_B},
         "",
         {"A: Save", "B: Backup"},
         joined({ADDED_A, ADDED_B})},
        {"TelnetVersionHasItsOwn",
         "INSERT INTO device_type (name, version) VALUES ('A', 'x_telnet_y');"
         "INSERT INTO config_file VALUES ('A_telnet', 'common/dc/conf/dc/devtype_xmlconf/twin.xml');",
         {FILE_A, FILE_B, {"twin.xml", deviceFile({"Twin"})}},
         "",
         {"A: Save", "A_telnet: Twin", "B: Backup"},
         joined({ADDED_A, {"I [DCServer]Added device A_telnet to MAP."}, ADDED_B})},
        {"TelnetNameGetsASecondSuffix",
         "INSERT INTO device_type (name, version) VALUES ('A_telnet', 'V_telnet'), ('A_Telnet', 'V_Telnet');"
         "INSERT INTO config_file VALUES ('A_telnet_telnet', 'common/dc/conf/dc/devtype_xmlconf/twin.xml'),"
         "('A_Telnet', 'common/dc/conf/dc/devtype_xmlconf/A.xml');",
         {FILE_A, FILE_B, {"twin.xml", deviceFile({"Twin"})}},
         "",
         {"A: Save", "A_Telnet: Save", "A_telnet_telnet: Twin", "B: Backup"},
         joined({ADDED_A,
                 {"I [DCServer]Added device A_Telnet to MAP.", "I [DCServer]Added device A_telnet_telnet to MAP."},
                 ADDED_B})},
    }),
    rowName<StLoadCase>);

TEST_F(CServerTest, ReportSaysWhereEveryTypeCameFromInLoadOrder)
{
    m_oRoot.writeConfig("A.xml", "<C/>");
    m_oRoot.writeConfig("twin.xml", "<C/>");
    m_oRoot.writeConfig("torn.xml", "<C>");
    m_oRoot.writeConfig("Common_ServerConfiguration.xml", "<C/>");
    open("DELETE FROM device_type; INSERT INTO device_type (name, version, config_file_type) VALUES ('B', '9', 0), "
         "('A', 'V9', 0), ('A', 'V1', 1), ('A', 'V5_telnet', 0), ('D', '1', 0), ('E', '1', 0);"
         "INSERT INTO config_file VALUES ('A_telnet', 'none.xml'), ('A_telnet_telnet', '" +
         configPath("twin.xml") + "'), ('D', '" + configPath("torn.xml") + "');");
    Lines lstRead;
    for (const StDevTypeLoad& stLoad : CXMLConfigDatabase::getInstance()->getLoadReport().lstDevType)
        lstRead.push_back(fmt::format("{} {} {} {:X} {}", stLoad.strKey, stLoad.strDevTypeVer,
                                      static_cast<int>(stLoad.stOrigin.enSource), stLoad.ulResult,
                                      stLoad.stOrigin.strProblem.substr(0, 6)));
    EXPECT_THAT(lstRead, testing::ElementsAre("A V9 1 0 ", "A V1 2 0 ", "A_telnet V5_telnet 3 0 ",
                                              "B 9 0 3B0F0001 the fi", "D 1 1 3B0004EE line 1", "E 1 0 3B0F0001 "));
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

// Which file a device type is read from, and what is said when there is none.
#include "ServerFixture.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/ResultCodes.h"

namespace
{
struct StChoiceCase
{
    const char*    pszName;
    std::string    strSql;  // on top of the registry entry and "own.xml"
    Lines          lstFile; // in the configuration folder
    const char*    pszSoftVersion;
    const char*    pszPatchVersion;
    bool           bUseCommon;
    std::uint32_t  ulResult;
    EnConfigSource enSource;
    const char*    pszFile;
    Lines          lstLog;
};

class ConfigFileChoiceTest : public CServerTest, public testing::WithParamInterface<StChoiceCase>
{
};

TEST_P(ConfigFileChoiceTest, FollowsTheRules)
{
    const StChoiceCase& stCase = GetParam();
    for (const std::string& strFile : stCase.lstFile)
        m_oRoot.writeConfig(strFile, "<C/>");
    m_oRoot.open("INSERT INTO device_type (name, version) VALUES ('X 1', 'V');"
                 "INSERT INTO config_file VALUES ('X 1', '" +
                 configPath("own.xml") + "'), ('Y_telnet', '" + configPath("other.xml") + "');" + stCase.strSql);
    CDevTypeXMLResReader oReader("X 1", "V", false);
    EXPECT_EQ(stCase.ulResult, oReader.initialize(stCase.pszSoftVersion, stCase.pszPatchVersion, stCase.bUseCommon));
    EXPECT_EQ(stCase.enSource, oReader.origin().enSource);
    if (stCase.pszFile != nullptr)
    {
        EXPECT_EQ(m_oRoot.configFolder() + stCase.pszFile, oReader.origin().strFile);
    }
    EXPECT_EQ(stCase.lstLog, log());
}

constexpr const char* ON_COMMON = "UPDATE device_type SET config_file_type = 1;";
constexpr const char* TWIN =
    "INSERT INTO config_file VALUES ('X 1_telnet', 'common/dc/conf/dc/devtype_xmlconf/twin.xml');";

std::string missing(const std::string& strFile)
{
    return "E 3B0004EC [DCServer]Server config File :ROOT/common/dc/conf/dc/devtype_xmlconf/" + strFile + " not exist.";
}
std::string failedCall(const std::string& strCall)
{
    return "E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->" + strCall;
}

INSTANTIATE_TEST_SUITE_P(
    Found, ConfigFileChoiceTest,
    testing::ValuesIn(std::vector<StChoiceCase>{
        {"OwnFile", "", {"own.xml"}, "", "", true, 0, EnConfigSource::OwnFile, "own.xml", {}},
        {"OwnFileThoughCommonIsThere",
         "",
         {"own.xml", "Common_ServerConfiguration.xml"},
         "",
         "",
         true,
         0,
         EnConfigSource::OwnFile,
         "own.xml",
         {}},
        {"CommonFile",
         ON_COMMON,
         {"own.xml", "Common_ServerConfiguration.xml"},
         "",
         "",
         true,
         0,
         EnConfigSource::CommonFile,
         "Common_ServerConfiguration.xml",
         {}},
        {"CommonFileBeforeVersions",
         ON_COMMON,
         {"Common_ServerConfiguration.xml", "X_1_S_P_ServerConfiguration.xml"},
         "S",
         "P",
         true,
         0,
         EnConfigSource::CommonFile,
         "Common_ServerConfiguration.xml",
         {}},
        {"CommonFileNotAskedFor", ON_COMMON, {"own.xml"}, "", "", false, 0, EnConfigSource::OwnFile, "own.xml", {}},
        {"FileOfAVersion",
         "",
         {"X_1_S 1+_P_ServerConfiguration.xml"},
         "S 1+",
         "P",
         false,
         0,
         EnConfigSource::OwnFile,
         "X_1_S 1+_P_ServerConfiguration.xml",
         {}},
        {"FileOfAPatchAlone",
         "",
         {"X_1_P_ServerConfiguration.xml"},
         "",
         "P",
         false,
         0,
         EnConfigSource::OwnFile,
         "X_1_P_ServerConfiguration.xml",
         {}},
        {"TelnetTwin",
         TWIN,
         {"twin.xml"},
         "",
         "",
         true,
         0,
         EnConfigSource::TelnetTwin,
         "twin.xml",
         {missing("own.xml")}},
        {"TelnetTwinOfACommonType",
         std::string(ON_COMMON) + TWIN,
         {"own.xml", "twin.xml"},
         "",
         "",
         true,
         0,
         EnConfigSource::TelnetTwin,
         "twin.xml",
         {missing("Common_ServerConfiguration.xml")}},
    }),
    rowName<StChoiceCase>);

INSTANTIATE_TEST_SUITE_P(NotFound, ConfigFileChoiceTest,
                         testing::ValuesIn(std::vector<StChoiceCase>{
                             {"NeitherFile",
                              TWIN,
                              {},
                              "",
                              "",
                              true,
                              DC_RESULT_FILE_NOT_EXIST,
                              EnConfigSource::None,
                              nullptr,
                              {missing("own.xml"), missing("twin.xml")}},
                             {"TwinUnknownToTheAdapter",
                              "",
                              {},
                              "",
                              "",
                              true,
                              0x3B0F0001,
                              EnConfigSource::None,
                              nullptr,
                              {missing("own.xml"), failedCall("getServerConfigFile(strDevTypeTemp, strFilePath)")}},
                             {"FileUnknownToTheAdapter",
                              "DELETE FROM config_file;",
                              {"own.xml"},
                              "",
                              "",
                              true,
                              0x3B0F0001,
                              EnConfigSource::None,
                              nullptr,
                              {failedCall("getServerConfigFile(m_strDevType, strFilePath)")}},
                             {"TypeUnknownToTheAdapter",
                              "DELETE FROM device_type;",
                              {"own.xml"},
                              "",
                              "",
                              true,
                              0x3B0F0001,
                              EnConfigSource::None,
                              nullptr,
                              {failedCall("searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)")}},
                         }),
                         rowName<StChoiceCase>);
} // namespace

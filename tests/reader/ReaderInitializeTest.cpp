// Which file a device type is read from, and what is said when there is none.
#include "ServerFixture.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/ResultCodes.h"

namespace
{
const std::string FOLDER    = "common/dc/conf/dc/devtype_xmlconf/";
const std::string ON_COMMON = "UPDATE device_type SET config_file_type = 1;";
const std::string TWIN      = "INSERT INTO config_file VALUES ('X 1_telnet', '" + FOLDER + "twin.xml');";
const std::string COMMON    = "Common_ServerConfiguration.xml";
const std::string VERSION   = "X_1_S+_P_ServerConfiguration.xml";
const std::string PATCH     = "X_1_P_ServerConfiguration.xml";

std::string missing(const std::string& strFile)
{
    return "E 3B0004EC [DCServer]Server config File :ROOT/" + FOLDER + strFile + " not exist.\n";
}
std::string failed(const std::string& strCall)
{
    return "E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->" + strCall + "\n";
}

TEST_F(CServerTest, ReadsTheConfigurationFileThatApplies)
{
    using From = EnConfigSource;
    const struct
    {
        const char*   pszName;
        std::string   strSql;   // on top of the registry entry and "own.xml"
        std::string   strFiles; // in the configuration folder
        const char*   pszVersion;
        const char*   pszPatch;
        bool          bUseCommon;
        std::uint32_t ulResult;
        From          enSource;
        std::string   strFile;
        std::string   strLog;
    } CASES[] = {
        {"own", "", "own.xml Common_ServerConfiguration.xml", "", "", true, 0, From::OwnFile, "own.xml", ""},
        {"common", ON_COMMON, "own.xml Common_ServerConfiguration.xml", "", "", true, 0, From::CommonFile, COMMON, ""},
        {"before versions", ON_COMMON, COMMON + " " + VERSION, "S+", "P", true, 0, From::CommonFile, COMMON, ""},
        {"common not asked for", ON_COMMON, "own.xml", "", "", false, 0, From::OwnFile, "own.xml", ""},
        {"of a version", "", VERSION, "S+", "P", false, 0, From::OwnFile, VERSION, ""},
        {"of a patch alone", "", PATCH, "", "P", false, 0, From::OwnFile, PATCH, ""},
        {"twin", TWIN, "twin.xml", "", "", true, 0, From::TelnetTwin, "twin.xml", missing("own.xml")},
        {"of a common type", ON_COMMON + TWIN, "twin.xml", "", "", true, 0, From::TelnetTwin, "twin.xml",
         missing(COMMON)},
        {"neither", TWIN, "", "", "", true, DC_RESULT_FILE_NOT_EXIST, From::None, "",
         missing("own.xml") + missing("twin.xml")},
        {"no twin", "", "", "", "", true, 0x3B0F0001, From::None, "",
         missing("own.xml") + failed("getServerConfigFile(strDevTypeTemp, strFilePath)")},
        {"no file", "DELETE FROM config_file;", "", "", "", true, 0x3B0F0001, From::None, "",
         failed("getServerConfigFile(m_strDevType, strFilePath)")},
        {"no type", "DELETE FROM device_type;", "", "", "", true, 0x3B0F0001, From::None, "",
         failed("searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)")},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        clearLog();
        std::filesystem::remove_all(m_oRoot.configFolder());
        for (const std::string& strFile : words(stCase.strFiles))
            m_oRoot.writeConfig(strFile, "<C/>");
        m_oRoot.open("INSERT INTO device_type (name, version) VALUES ('X 1', 'V');"
                     "INSERT INTO config_file VALUES ('X 1', '" +
                     FOLDER + "own.xml');" + stCase.strSql);
        CDevTypeXMLResReader oReader("X 1", "V", false);
        EXPECT_EQ(stCase.ulResult, oReader.initialize(stCase.pszVersion, stCase.pszPatch, stCase.bUseCommon));
        EXPECT_EQ(stCase.enSource, oReader.origin().enSource);
        EXPECT_THAT(oReader.origin().strFile, testing::EndsWith(stCase.strFile));
        EXPECT_EQ(stCase.strLog, logText());
    }
}
} // namespace

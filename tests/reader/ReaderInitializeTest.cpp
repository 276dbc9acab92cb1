// Which file a device type is read from, what is said when there is none, and that
// the plan names what a read takes.
#include "ServerFixture.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/ResultCodes.h"

#include <set>

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
    // clang-format off
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
        {"of a version", "", VERSION, "S+", "P", false, 0, From::CapacityDocument, VERSION, ""},
        {"of a patch alone", "", PATCH, "", "P", false, 0, From::CapacityDocument, PATCH, ""},
        {"twin", TWIN, "twin.xml", "", "", true, 0, From::TelnetTwin, "twin.xml", missing("own.xml")},
        {"of a common type", ON_COMMON + TWIN, "twin.xml", "", "", true, 0, From::TelnetTwin, "twin.xml", missing(COMMON)},
        {"neither", TWIN, "", "", "", true, DC_RESULT_FILE_NOT_EXIST, From::None, "", missing("own.xml") + missing("twin.xml")},
        {"no twin", "", "", "", "", true, 0x3B0F0001, From::None, "", missing("own.xml") + failed("getServerConfigFile(strDevTypeTemp, strFilePath)")},
        {"no file", "DELETE FROM config_file;", "", "", "", true, 0x3B0F0001, From::None, "", failed("getServerConfigFile(m_strDevType, strFilePath)")},
        {"no type", "DELETE FROM device_type;", "", "", "", true, 0x3B0F0001, From::None, "", failed("searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)")},
    };
    // clang-format on
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

// Notes what is asked for, and hands over documents that somebody else parsed.
class CNotingSource : public CDocumentSource
{
public:
    void parse(const std::string& strFile, EnConfigSource /*enSource*/, std::shared_ptr<CXmlParser>& pParser) override
    {
        setFile.insert(strFile);
        pParser = CXmlParser::create();
        pParser->parseText(strDocument);
    }

    std::set<std::string> setFile;
    std::string           strDocument;
};

TEST_F(CServerTest, ThePlanNamesTheFilesOfARead)
{
    const std::string RECORDS = "INSERT INTO version_in_service (device_type, device_type_version, soft_version) "
                                "VALUES ('X 1', 'V', '1'), ('X 1', 'V', '2'), ('X 1', 'V', '3');"
                                "INSERT INTO capacity (device_type, device_type_version, soft_version, full_config) "
                                "VALUES ('X 1', 'V', '1', 0), ('X 1', 'V', '3', 1);";
    const std::string FIXED   = "INSERT INTO config_item VALUES ('DC', 'FIXED_CHECK_ITEM', 1);";
    const std::string CHECK   = "INSERT INTO check_file VALUES ('X 1', 'check.xml', 1);";
    const struct
    {
        std::string strSql;
        bool        bCapacity;
        const char* pszFiles; // their names, in the order of the plan
    } CASES[] = {
        {"", false, "own.xml"},
        {ON_COMMON + FIXED, false, "Common_ServerConfiguration.xml X 1.xml"},
        {TWIN + "UPDATE config_file SET path = 'none.xml' WHERE device_type = 'X 1';" + CHECK + FIXED, false,
         "twin.xml check.xml"},
        {RECORDS + CHECK, true, "Common_ServerConfiguration.xml check.xml X_1_1_ServerConfiguration.xml own.xml"},
        {ON_COMMON, true, "Common_ServerConfiguration.xml"},
    };
    m_oRoot.write("xml/access_snmp/fixedcheck/X 1.xml", "");
    for (const char* pszFile :
         {"own.xml", "twin.xml", "Common_ServerConfiguration.xml", "X_1_1_ServerConfiguration.xml"})
        m_oRoot.writeConfig(pszFile, ""); // whatever they hold: the documents come from the source
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.strSql);
        m_oRoot.open("INSERT INTO device_type (name, version) VALUES ('X 1', 'V');"
                     "INSERT INTO config_file VALUES ('X 1', '" +
                     FOLDER + "own.xml');" + stCase.strSql);
        clearLog();
        const StConfigPlan         stPlan     = makeConfigPlan("X 1", "V", stCase.bCapacity);
        std::vector<StPlannedFile> lstPlanned = {stPlan.stConfig, stPlan.stCheck, stPlan.stFixedCheck};
        for (const StVersionPlan& stVersion : stPlan.lstVersion)
            lstPlanned.push_back(stVersion.stFile);
        std::set<std::string> setPlanned;
        std::string           strFiles;
        for (const StPlannedFile& stFile : lstPlanned)
        {
            if (!stFile.isFound())
                continue;
            setPlanned.insert(stFile.strFile);
            strFiles += (strFiles.empty() ? "" : " ") + std::filesystem::path(stFile.strFile).filename().string();
        }
        EXPECT_EQ(stCase.pszFiles, strFiles);
        EXPECT_EQ("", logText());

        CNotingSource oSource;
        oSource.strDocument =
            "<C><upgradecapacity sysoid=''/><DeviceOperation><Operation id='Save'/></DeviceOperation></C>";
        CDevTypeXMLResReader oReader("X 1", "V", stCase.bCapacity);
        oReader.readFrom(oSource);
        oReader.initializeCheck();
        COwnedRecords oRead;
        EXPECT_EQ(0u, oReader.readDevTypeVerXMLFile(oRead.lstInfo));
        EXPECT_EQ(setPlanned, oSource.setFile);
        EXPECT_EQ("Save", ids(oRead.lstInfo.front()->stOperationConfig.lstDevOperation));
    }
}
} // namespace

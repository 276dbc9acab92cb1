// Capacity mode: one read for each version in service, one record for each
// distinct result, and no version that costs another its configuration.
#include "ServerFixture.h"
#include "reader/CCapacityXMLConfig.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/ResultCodes.h"
#include "standalone/EventSink.h"

#include <algorithm>
#include <set>

namespace
{
class CCapacityTest : public CServerTest
{
protected:
    // Versions by their software version, "1 2"; a capacity record with "*" has the whole own configuration.
    void openCapacity(const std::string& strVersions, const std::string& strCapacity, const std::string& strSql = "")
    {
        std::string strInventory = "INSERT INTO device_type (name, version, type_id, sys_oid, config_file_type) VALUES "
                                   "('C', 'V', 7, '1.2', 0); INSERT INTO config_file VALUES ('C', '" +
                                   configPath("C.xml") + "');" + strSql;
        for (const std::string& strName : words(strVersions))
            strInventory += "INSERT INTO version_in_service (device_type, device_type_version, soft_version) VALUES "
                            "('C', 'V', '" +
                            strName + "');";
        for (const std::string& strName : words(strCapacity))
            strInventory += fmt::format("INSERT INTO capacity (device_type, device_type_version, soft_version, "
                                        "full_config) VALUES ('C', 'V', '{}', {});",
                                        strName[0], strName.size() - 1);
        open(strInventory);
        m_oRoot.writeConfig("C.xml", deviceFile({"Save", "Full"}));
        m_oRoot.writeConfig("Common_ServerConfiguration.xml", deviceFile({"Save", "Backup"}));
    }

    // The capacity document of a version: what it does not support.
    void writeCapacity(char cVersion, const std::string& strDenied, const std::string& strOid = "1.2")
    {
        m_oRoot.writeConfig(fmt::format("C_{}_ServerConfiguration.xml", cVersion),
                            "<C><upgradecapacity sysoid='" + strOid + "'><Operation id='" + strDenied +
                                "' isSupported='0'/></upgradecapacity></C>");
    }

    // Reads the type; "1,2: Save,Backup;" of each record.
    std::string read(std::uint32_t ulResult = 0)
    {
        COwnedRecords        oRead;
        CDevTypeXMLResReader oReader("C", "V", true);
        EXPECT_EQ(ulResult, oReader.readDevTypeVerXMLFile(oRead.lstInfo));
        m_stOrigin = oReader.origin();
        EXPECT_EQ(!oRead.lstInfo.empty(), m_stOrigin.enSource == EnConfigSource::Capacity);
        std::string strText;
        for (const StAsnDevTypeVerXMLInfo* pInfo : oRead.lstInfo)
        {
            EXPECT_EQ("C V", pInfo->strDevType + " " + pInfo->strDevTypeVer);
            for (const StAsnDevVersion& stVersion : pInfo->lstDevVersion)
                strText += stVersion.strSoftVersion + ",";
            strText += " " + ids(pInfo->stOperationConfig.lstDevOperation) + ";";
        }
        return strText;
    }

    // What the last read says of itself: "1 narrowed;2 failed FILE: problem;" and the type's own problem.
    std::string report() const
    {
        const char* OUTCOMES[] = {"narrowed", "full", "not narrowed", "no record", "failed"};
        std::string strText;
        for (const StVersionLoad& stLoad : m_stOrigin.lstVersion)
        {
            const char* pszOutcome = OUTCOMES[static_cast<int>(stLoad.enOutcome)];
            EXPECT_EQ(stLoad.isFailed(), stLoad.stProblem.isSet());
            strText += stLoad.strSoftVersion + " " + pszOutcome + problem(stLoad.stProblem) + ";";
        }
        return strText + problem(m_stOrigin.stProblem);
    }

    std::string problem(const StReadProblem& stProblem) const
    {
        const std::string strText = problemWithFile(stProblem);
        const bool        bFile   = strText.rfind(m_oRoot.configFolder(), 0) == 0;
        return (strText.empty() ? "" : " ") + (bFile ? strText.substr(m_oRoot.configFolder().size()) : strText);
    }

    StConfigOrigin m_stOrigin;
};

TEST_F(CCapacityTest, EveryVersionThatCanBeReadIsGiven)
{
    const std::string COMMON   = "Common_ServerConfiguration.xml";
    const std::string DOCUMENT = "C_2_ServerConfiguration.xml";
    const std::string LEFT_OUT = " [DCServer]Version is left out, DeviceType:C, SoftVersion:2, PatchVersion:\n";
    const std::string MISSING_DOCUMENT =
        "E 3B0004EC [DCServer]Server config File :ROOT/common/dc/conf/dc/devtype_xmlconf/C_2_ServerConfiguration.xml "
        "not exist.\n"
        "E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->getServerConfigFile("
        "strDevTypeTemp, strFilePath)\n"
        "E 3B0F0001 Call Function return Error:initialize(stAsnDevVersion.strSoftVersion, "
        "stAsnDevVersion.strPatchVersion, false)\n"
        "E 3B0F0001 [DCServer]CDevTypeXMLResReader::initialize failed\nE 3B0F0001" +
        LEFT_OUT;
    const std::string BROKEN_DOCUMENT =
        "E 3B0004EE [DCServer]XercesDOMParser::getDocument failed :\n"
        "E 3B0004EE Call Function return Error:CCapacityXMLConfig::parseCapacityXML(oStDeviceType.strDevSysOid, "
        "m_pXmlParser, pAsnDevTypeVerXMLInfo)\n"
        "E 3B0004EE [DCServer]CCapacityXMLConfig::parseCapacityXML failed\nE 3B0004EE" +
        LEFT_OUT;
    const std::string NO_ENTRY =
        "E 3B0004EE [DCServer]No capacity entry for sysoid :1.2, DeviceType:C, SoftVersion:2, PatchVersion:\n";
    const std::string NO_RECORD =
        "I [DCServer]Version has no capacity record, DeviceType:C, SoftVersion:2, PatchVersion:\n"
        "E 3B000D21 [DCServer] The capacity XML file is not exist for DeviceType:C\n";
    // clang-format off
    const struct
    {
        const char*   pszName;
        const char*   pszVersions;
        const char*   pszCapacity;
        const char*   pszSaveDenied; // versions with a document that denies "Save"
        const char*   pszBackupDenied;
        std::string   strTorn; // a file
        std::uint32_t ulResult;
        const char*   pszRead;
        const char*   pszReport;
        std::string   strLog;
    } CASES[] = {
        {"two configurations", "5 4 3 2 1", "1 2 3 4 5", "531", "42", "", 0, "5,3,1, Backup;4,2, Save;", "5 narrowed;4 narrowed;3 narrowed;2 narrowed;1 narrowed;", ""},
        {"full configuration", "1 2 3", "3* 2 1*", "2", "", "", 0, "1,3, Save,Full;2, Backup;", "1 full;2 narrowed;3 full;", ""},
        {"document missing", "1 2 3", "1 2 3", "13", "", "", 0, "1,3, Backup;", "1 narrowed;2 failed C_2_ServerConfiguration.xml: the file is not there;3 narrowed;", MISSING_DOCUMENT},
        {"document broken", "1 2 3", "1 2 3", "13", "", DOCUMENT, 0, "1,3, Backup;",
         "1 narrowed;2 failed C_2_ServerConfiguration.xml: line 1, column 4: input ended before all started tags were "
         "ended; last tag started is 'C';3 narrowed;",
         BROKEN_DOCUMENT},
        {"entry missing", "1 2", "1 2", "1", "", "", 0, "1, Backup;2, Save,Backup;", "1 narrowed;2 not narrowed C_2_ServerConfiguration.xml: no entry for sysoid \"1.2\";", NO_ENTRY},
        {"common file broken", "1 2", "1* 2", "2", "", COMMON, 0, "1, Save,Full;",
         "1 full;2 failed Common_ServerConfiguration.xml: line 1, column 4: input ended before all started tags were "
         "ended; last tag started is 'C';",
         BROKEN_DOCUMENT},
        {"no capacity record", "1 2", "1", "12", "", "", 0, "1, Backup;", "1 narrowed;2 no record the version has no capacity record;", NO_RECORD},
        {"no version readable", "2", "2", "", "", "", 0x3B0F0001, "",
         "2 failed C_2_ServerConfiguration.xml: the file is not there; C_2_ServerConfiguration.xml: the file is not "
         "there",
         MISSING_DOCUMENT},
        {"nothing to offer", "2", "", "2", "", "", 0, "", "2 no record the version has no capacity record; no version in service has a capacity record", NO_RECORD},
        {"no version in service", "", "1", "1", "", "", 0, " Save,Full;", "", ""},
    };
    // clang-format on
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszName);
        clearLog();
        std::filesystem::remove_all(m_oRoot.configFolder());
        openCapacity(stCase.pszVersions, stCase.pszCapacity);
        for (const char cVersion : std::string(stCase.pszSaveDenied))
            writeCapacity(cVersion, "Save");
        for (const char cVersion : std::string(stCase.pszBackupDenied))
            writeCapacity(cVersion, "Backup");
        if (stCase.strLog == NO_ENTRY)
            writeCapacity('2', "Save", "1.2.3");
        if (!stCase.strTorn.empty())
            m_oRoot.writeConfig(stCase.strTorn, "<C>");
        EXPECT_EQ(stCase.pszRead, read(stCase.ulResult));
        EXPECT_EQ(stCase.pszReport, report());
        EXPECT_EQ(stCase.strLog, logText());
    }
    openCapacity("", "", "UPDATE device_type SET config_file_type = 1;");
    EXPECT_EQ(" Save,Backup;", read()); // the common file serves where there is no version information
}

TEST_F(CCapacityTest, EveryDeviceOfAVersionWithoutARecordRaisesTheEvent)
{
    openCapacity("1 2", "1",
                 "INSERT INTO device (device_id, name, type_id, version_id, soft_version) VALUES "
                 "(3, 'south', 7, 0, '2'), (1, 'north', 7, 0, '2'), (2, 'other', 7, 0, '1'), (4, 'else', 8, 0, '2');");
    writeCapacity('1', "Save");
    std::string strEvents;
    standalone::setEventListener(
        [&](std::uint32_t ulEventID, const TEEventParam& st)
        {
            strEvents += fmt::format("{} {} {} {} {}/{};", ulEventID, st.ulDeviceID, st.strDeviceName, st.strDevType,
                                     st.strSoftVersion, st.strPatchVersion);
        });
    read();
    standalone::setEventListener({});
    EXPECT_EQ("10007 1 north C 2/;10007 3 south C 2/;", strEvents);
}

TEST_F(CCapacityTest, FailingPlatformCallsAreNamed)
{
    openCapacity("2", "");
    const struct
    {
        const char*   pszCall;
        std::uint32_t ulResult;
        const char*   pszLog;
    } CASES[] = {
        {"CDCCapacityManagerDB::readCapacity", DC_RESULT_FILE_NOT_EXIST, "E 3B000D21 [DCServer]readCapacity failed\n"},
        {"CDCDeviceInfoDB::getDevInfo", 0, // asked for the version without a record
         "I [DCServer]Version has no capacity record, DeviceType:C, SoftVersion:2, PatchVersion:\n"
         "E 00000007 Call Function return Error:CDCDeviceInfoDB::getDevInfo(m_strDevType, m_strDevTypeVer, "
         "stAsnDevVersion, lstDeviceInfo)\n"
         "E 3B000D21 [DCServer] The capacity XML file is not exist for DeviceType:C\n"},
        {"CDeviceAdapterInterface::searchDeviceType", 7,
         "E 00000007 Call Function return Error:CDeviceAdapterInterface::getInstance()->"
         "searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)\n"},
    };
    for (const auto& stCase : CASES)
    {
        clearLog();
        const standalone::CFaultPoint oFault(stCase.pszCall, 1, 7);
        EXPECT_EQ("", read(stCase.ulResult));
        EXPECT_EQ(stCase.pszLog, logText());
    }
}

// Every platform call of a read throws in turn: what is handed out is as whole as ever.
TEST_F(CCapacityTest, CallsThatThrowCostNoMoreThanTheirVersions)
{
    openCapacity("1 2 3", "1 2*", "INSERT INTO check_file VALUES ('C', 'check.xml', 1);");
    m_oRoot.write("check.xml", "<C><DeviceType><TaskType><PreCheck/></TaskType></DeviceType></C>");
    writeCapacity('1', "Save");
    const auto fnRead = [](std::set<std::string>& setRead)
    {
        COwnedRecords        oRead;
        CDevTypeXMLResReader oReader("C", "V", true);
        oReader.initializeCheck();
        const std::uint32_t ulResult = oReader.readDevTypeVerXMLFile(oRead.lstInfo);
        for (const StAsnDevTypeVerXMLInfo* pInfo : oRead.lstInfo)
            setRead.insert(pInfo->lstDevVersion.front().strSoftVersion + ids(pInfo->stOperationConfig.lstDevOperation) +
                           ids(pInfo->stOperationConfig.lstCheckOperation));
        return ulResult;
    };
    std::set<std::string> setWhole;
    ASSERT_EQ(0u, fnRead(setWhole));
    ASSERT_EQ((std::set<std::string>{"1BackupPreCheck", "2Save,FullPreCheck"}), setWhole);
    for (const std::string& strOperation : standalone::CFaultPoint::operations())
    {
        bool bMet = true;
        for (unsigned nCall = 1; bMet; ++nCall)
        {
            SCOPED_TRACE(fmt::format("{} {}", strOperation, nCall));
            const standalone::CFaultPoint oFault(strOperation, nCall, std::make_exception_ptr(std::bad_alloc()));
            std::set<std::string>         setRead;
            const std::uint32_t           ulResult = fnRead(setRead);
            bMet                                   = oFault.calls() >= nCall;
            EXPECT_EQ(ulResult == 0, !setRead.empty());
            EXPECT_TRUE(std::includes(setWhole.begin(), setWhole.end(), setRead.begin(), setRead.end()));
        }
    }
}

TEST_F(CCapacityTest, DocumentsCanBeReadAlone)
{
    openCapacity("", "");
    writeCapacity('1', "Save");
    const std::string       strFile     = m_oRoot.configFolder() + "C_1_ServerConfiguration.xml";
    const auto              pNoDocument = CXmlParser::create();
    StAsnDevTypeVerXMLInfo  stInfo;
    StAsnDevTypeVerXMLInfo* pInfo = &stInfo;
    StAsnDevTypeVerXMLInfo* pNone = nullptr;
    CCapacityXMLConfig      oCapacity;
    EXPECT_EQ(0u, oCapacity.parseCapacityXML("1.2", strFile));
    EXPECT_EQ(DC_RESULT_XML_ERROR, oCapacity.parseCapacityXML("1.20", strFile));
    EXPECT_EQ(DC_RESULT_XML_ERROR, oCapacity.parseCapacityXML("1.2", m_oRoot.configFolder()));
    clearLog();
    EXPECT_EQ(DC_RESULT_FILE_NOT_EXIST, oCapacity.parseCapacityXML("1.2", "/none.xml"));
    EXPECT_EQ(DC_RESULT_XML_ERROR, oCapacity.parseCapacityXML("1.2", nullptr, pInfo));
    EXPECT_EQ(DC_RESULT_INVALID_PARA, oCapacity.parseCapacityXML("1.2", pNoDocument.get(), pNone));
    EXPECT_EQ(DC_RESULT_XML_ERROR, oCapacity.parseCapacityXML("1.2", pNoDocument.get(), pInfo));
    oCapacity.combineXMLInfo(nullptr, {});
    EXPECT_EQ("E 3B0004EC [DCServer]Server config File :/none.xml not exist.\n"
              "E 3B0004EE [DCServer]DOMElement::setDevOperXMLConfig(): pDOMParser pointer is NULL:\n"
              "E 3B0004EC [DCServer]Pointer is  NULL\n"
              "E 3B0004EE [DCServer]XercesDOMParser::getDocument failed :\n",
              logText());
}
} // namespace

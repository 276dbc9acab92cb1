// Capacity mode: one read for each version in service, one record for each
// distinct result, and no version that costs another its configuration.
#include "ServerFixture.h"
#include "reader/CCapacityXMLConfig.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/ResultCodes.h"
#include "standalone/EventSink.h"

#include <sstream>

namespace
{
class CCapacityTest : public CServerTest
{
protected:
    // Versions by their software version, "1 2"; a capacity record with "*" has the whole own configuration.
    void openCapacity(const std::string& strVersions, const std::string& strCapacity, const std::string& strSql = "")
    {
        std::string        strInventory = strSql;
        std::istringstream oVersions(strVersions);
        std::istringstream oCapacity(strCapacity);
        for (std::string strName; oVersions >> strName;)
            strInventory += "INSERT INTO version_in_service (device_type, device_type_version, soft_version) VALUES "
                            "('C', 'V', '" +
                            strName + "');";
        for (std::string strName; oCapacity >> strName;)
        {
            const bool bFull = strName.back() == '*';
            strInventory += fmt::format("INSERT INTO capacity (device_type, device_type_version, soft_version, "
                                        "full_config) VALUES ('C', 'V', '{}', {});",
                                        strName.substr(0, strName.size() - (bFull ? 1 : 0)), bFull ? 1 : 0);
        }
        open("INSERT INTO device_type (name, version, type_id, sys_oid, config_file_type) VALUES "
             "('C', 'V', 7, '1.2', 0);"
             "INSERT INTO config_file VALUES ('C', '" +
             configPath("C.xml") + "');" + strInventory);
        m_oRoot.writeConfig("C.xml", deviceFile({"Save", "Full"}));
        m_oRoot.writeConfig("Common_ServerConfiguration.xml", deviceFile({"Save", "Backup"}));
    }

    // The capacity document of a version: what it does not support.
    void writeCapacity(const std::string& strVersion, const std::string& strDenied, const std::string& strOid = "1.2")
    {
        m_oRoot.writeConfig("C_" + strVersion + "_ServerConfiguration.xml",
                            "<C><upgradecapacity sysoid='" + strOid + "'><Operation id='" + strDenied +
                                "' isSupported='0'/></upgradecapacity></C>");
    }

    // "1,2: Save,Backup" of each record.
    static Lines text(const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
    {
        Lines lstText;
        for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
        {
            EXPECT_EQ("C", pInfo->strDevType);
            EXPECT_EQ("V", pInfo->strDevTypeVer);
            Lines lstVersion;
            for (const StAsnDevVersion& stVersion : pInfo->lstDevVersion)
                lstVersion.push_back(stVersion.strSoftVersion);
            lstText.push_back(
                fmt::format("{}: {}", fmt::join(lstVersion, ","), ids(pInfo->stOperationConfig.lstDevOperation)));
        }
        return lstText;
    }
};

struct StCapacityCase
{
    const char*              pszName;
    const char*              pszVersions;
    const char*              pszCapacity;
    std::vector<const char*> lstWithDocument; // versions with a document that denies "Save"
    const char*              pszSpoil;        // a file to make unreadable, "" for none
    std::uint32_t            ulResult;
    Lines                    lstRecord;
    Lines                    lstLog;
};
class CapacityReadTest : public CCapacityTest, public testing::WithParamInterface<StCapacityCase>
{
};

TEST_P(CapacityReadTest, GivesEveryVersionThatCanBeRead)
{
    const StCapacityCase& stCase = GetParam();
    openCapacity(stCase.pszVersions, stCase.pszCapacity);
    for (const char* pszVersion : stCase.lstWithDocument)
        writeCapacity(pszVersion, "Save");
    if (*stCase.pszSpoil != '\0')
        m_oRoot.writeConfig(stCase.pszSpoil, "<C>");
    COwnedRecords oRead;
    EXPECT_EQ(stCase.ulResult, CDevTypeXMLResReader("C", "V", true).readDevTypeVerXMLFile(oRead.lstInfo));
    EXPECT_EQ(stCase.lstRecord, text(oRead.lstInfo));
    EXPECT_EQ(stCase.lstLog, log());
}

const Lines MISSING_DOCUMENT = {
    ("E 3B0004EC [DCServer]Server config File :ROOT/common/dc/conf/dc/devtype_xmlconf/C_2_ServerConfiguration.xml "
     "not exist."),
    ("E 3B0F0001 Call Function return Error:CDeviceAdapterInterface::getInstance()->getServerConfigFile("
     "strDevTypeTemp, strFilePath)"),
    ("E 3B0F0001 Call Function return Error:initialize(stAsnDevVersion.strSoftVersion, "
     "stAsnDevVersion.strPatchVersion, false)"),
    "E 3B0F0001 [DCServer]CDevTypeXMLResReader::initialize failed",
    "E 3B0F0001 [DCServer]Version is left out, DeviceType:C, SoftVersion:2, PatchVersion:",
};
const Lines BROKEN_DOCUMENT = {
    "E 3B0004EE [DCServer]XercesDOMParser::getDocument failed :",
    "E 3B0004EE Call Function return Error:CCapacityXMLConfig::parseCapacityXML(oStDeviceType.strDevSysOid, "
    "m_pXmlParser, pAsnDevTypeVerXMLInfo)",
    "E 3B0004EE [DCServer]CCapacityXMLConfig::parseCapacityXML failed",
    "E 3B0004EE [DCServer]Version is left out, DeviceType:C, SoftVersion:2, PatchVersion:",
};
const Lines NO_RECORD = {
    "I [DCServer]Version has no capacity record, DeviceType:C, SoftVersion:2, PatchVersion:",
    "E 3B000D21 [DCServer] The capacity XML file is not exist for DeviceType:C",
};

INSTANTIATE_TEST_SUITE_P(
    Versions, CapacityReadTest,
    testing::ValuesIn(std::vector<StCapacityCase>{
        {"EqualVersionsShareARecord", "1 3 2", "1 2 3", {"1", "2", "3"}, "", 0, {"1,3,2: Backup"}, {}},
        {"FullConfiguration", "1 2 3", "3* 2 1*", {"2"}, "", 0, {"1,3: Save,Full", "2: Backup"}, {}},
        {"DocumentMissing", "1 2 3", "1 2 3", {"1", "3"}, "", 0, {"1,3: Backup"}, MISSING_DOCUMENT},
        {"DocumentBroken",
         "1 2 3",
         "1 2 3",
         {"1", "3"},
         "C_2_ServerConfiguration.xml",
         0,
         {"1,3: Backup"},
         BROKEN_DOCUMENT},
        {"NoCapacityRecord", "1 2", "1", {"1", "2"}, "", 0, {"1: Backup"}, NO_RECORD},
        {"NoVersionReadable", "2", "2", {}, "", 0x3B0F0001, {}, MISSING_DOCUMENT},
        // Nothing failed, there is just nothing to offer.
        {"NoVersionWithARecord", "2", "", {"2"}, "", 0, {}, NO_RECORD},
        {"NoVersionInService", "", "1", {"1"}, "", 0, {": Save,Full"}, {}},
    }),
    rowName<StCapacityCase>);

TEST_F(CCapacityTest, FiveVersionsCollapseIntoTwoConfigurations)
{
    openCapacity("5 4 3 2 1", "1 2 3 4 5");
    for (const char* pszVersion : {"5", "3", "1"})
        writeCapacity(pszVersion, "Save");
    for (const char* pszVersion : {"4", "2"})
        writeCapacity(pszVersion, "Backup");
    COwnedRecords oRead;
    EXPECT_EQ(0u, CDevTypeXMLResReader("C", "V", true).readDevTypeVerXMLFile(oRead.lstInfo));
    EXPECT_EQ((Lines{"5,3,1: Backup", "4,2: Save"}), text(oRead.lstInfo));
}

TEST_F(CCapacityTest, VersionWithoutAnEntryKeepsTheWholeConfiguration)
{
    openCapacity("1 2", "1 2");
    writeCapacity("1", "Save", "1.2.3");
    writeCapacity("2", "Save", "1.2");
    COwnedRecords oRead;
    EXPECT_EQ(0u, CDevTypeXMLResReader("C", "V", true).readDevTypeVerXMLFile(oRead.lstInfo));
    EXPECT_EQ((Lines{"1: Save,Backup", "2: Backup"}), text(oRead.lstInfo));
    EXPECT_EQ(Lines{"E 3B0004EE [DCServer]No capacity entry for sysoid :1.2, DeviceType:C, SoftVersion:1, "
                    "PatchVersion:"},
              log());
}

TEST_F(CCapacityTest, CommonFileServesWhereThereIsNoVersionInformation)
{
    openCapacity("", "", "UPDATE device_type SET config_file_type = 1;");
    open("INSERT INTO device_type (name, version, config_file_type) VALUES ('C', 'V', 1);");
    COwnedRecords oRead;
    EXPECT_EQ(0u, CDevTypeXMLResReader("C", "V", true).readDevTypeVerXMLFile(oRead.lstInfo));
    EXPECT_EQ(Lines{": Save,Backup"}, text(oRead.lstInfo));
}

// The record that the common file could not fill is destroyed under the reader.
TEST_F(CCapacityTest, BrokenCommonFileCostsTheVersionsThatNeedIt)
{
    openCapacity("1 2", "1 2*");
    writeCapacity("1", "Save");
    m_oRoot.writeConfig("Common_ServerConfiguration.xml", "<C>");
    COwnedRecords oRead;
    EXPECT_EQ(0u, CDevTypeXMLResReader("C", "V", true).readDevTypeVerXMLFile(oRead.lstInfo));
    EXPECT_EQ(Lines{"2: Save,Full"}, text(oRead.lstInfo));
    EXPECT_THAT(log(), testing::Contains("E 3B0004EE [DCServer]Version is left out, DeviceType:C, SoftVersion:1, "
                                         "PatchVersion:"));
}

TEST_F(CCapacityTest, EveryDeviceOfAVersionWithoutARecordRaisesTheEvent)
{
    openCapacity("1 2", "1",
                 "INSERT INTO device (device_id, name, type_id, version_id, soft_version) VALUES "
                 "(3, 'south', 7, 0, '2'), (1, 'north', 7, 0, '2'), (2, 'other', 7, 0, '1'), (4, 'else', 8, 0, '2');");
    writeCapacity("1", "Save");
    Lines lstEvent;
    standalone::setEventListener(
        [&](std::uint32_t ulEventID, const TEEventParam& stParam)
        {
            lstEvent.push_back(fmt::format("{} {} {} {} {}/{}", ulEventID, stParam.ulDeviceID, stParam.strDeviceName,
                                           stParam.strDevType, stParam.strSoftVersion, stParam.strPatchVersion));
        });
    COwnedRecords oRead;
    EXPECT_EQ(0u, CDevTypeXMLResReader("C", "V", true).readDevTypeVerXMLFile(oRead.lstInfo));
    standalone::setEventListener({});
    EXPECT_THAT(lstEvent, testing::ElementsAre("10007 1 north C 2/", "10007 3 south C 2/"));
}

TEST_F(CCapacityTest, FailingPlatformCallsAreNamed)
{
    openCapacity("1", "1");
    writeCapacity("1", "Save");
    const struct
    {
        const char*   pszCall;
        std::uint32_t ulResult;
        Lines         lstLog;
    } CASES[] = {
        {"CDCCapacityManagerDB::readCapacity",
         DC_RESULT_FILE_NOT_EXIST,
         {"E 3B000D21 [DCServer]readCapacity failed",
          "I [DCServer]Version has no capacity record, DeviceType:C, SoftVersion:1, PatchVersion:",
          "E 3B000D21 [DCServer] The capacity XML file is not exist for DeviceType:C"}},
        {"CDeviceAdapterInterface::searchDeviceType",
         7,
         {"E 00000007 Call Function return Error:CDeviceAdapterInterface::getInstance()->"
          "searchDeviceType(m_strDevType, m_strDevTypeVer, oStDeviceType)"}},
    };
    for (const auto& stCase : CASES)
    {
        SCOPED_TRACE(stCase.pszCall);
        clearLog();
        const standalone::CFaultPoint      oFault(stCase.pszCall, 1, 7);
        std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
        EXPECT_EQ(stCase.ulResult, CDevTypeXMLResReader("C", "V", true).readDevTypeVerXMLFile(lstInfo));
        EXPECT_THAT(lstInfo, testing::IsEmpty());
        EXPECT_EQ(stCase.lstLog, log());
    }
}

TEST(CapacityDocumentTest, MissingArgumentsAreNamed)
{
    CUnparsedXml            oNoDocument;
    StAsnDevTypeVerXMLInfo  stInfo;
    StAsnDevTypeVerXMLInfo* pInfo = &stInfo;
    StAsnDevTypeVerXMLInfo* pNone = nullptr;
    CCapacityXMLConfig      oCapacity;
    EXPECT_EQ(DC_RESULT_XML_ERROR, oCapacity.parseCapacityXML("1.2", nullptr, pInfo));
    EXPECT_EQ(DC_RESULT_INVALID_PARA, oCapacity.parseCapacityXML("1.2", oNoDocument.parser(), pNone));
    EXPECT_EQ(DC_RESULT_XML_ERROR, oCapacity.parseCapacityXML("1.2", oNoDocument.parser(), pInfo));
    oCapacity.combineXMLInfo(nullptr, {});
    EXPECT_EQ(
        (Lines{"E 3B0004EE [DCServer]DOMElement::setDevOperXMLConfig(): pDOMParser pointer is NULL:",
               "E 3B0004EC [DCServer]Pointer is  NULL", "E 3B0004EE [DCServer]XercesDOMParser::getDocument failed :"}),
        logLines());
}

TEST_F(CCapacityTest, DocumentIsJudgedByItsPath)
{
    openCapacity("", "");
    writeCapacity("1", "Save", "1.2");
    const std::string  strFile = m_oRoot.configFolder() + "C_1_ServerConfiguration.xml";
    CCapacityXMLConfig oCapacity;
    EXPECT_EQ(0u, oCapacity.parseCapacityXML("1.2", strFile));
    EXPECT_EQ(DC_RESULT_XML_ERROR, oCapacity.parseCapacityXML("1.20", strFile));
    EXPECT_EQ(DC_RESULT_XML_ERROR, oCapacity.parseCapacityXML("1.2", m_oRoot.configFolder()));
    EXPECT_EQ(DC_RESULT_FILE_NOT_EXIST, oCapacity.parseCapacityXML("1.2", strFile + "x"));
}
} // namespace

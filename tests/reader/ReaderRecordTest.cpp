// From a file to a record: what a reader hands out, what it destroys, and how
// records of one content come together.
#include "ServerFixture.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/ResultCodes.h"

namespace
{
class ReaderRecordTest : public CServerTest
{
protected:
    CDevTypeXMLResReader m_oReader{"A", "V1", false};
};

TEST_F(ReaderRecordTest, ReadsOneRecordUnderTheReadersNames)
{
    m_oRoot.writeConfig("A.xml", deviceFile({"Save", "Backup"}));
    open();
    COwnedRecords oRead;
    ASSERT_EQ(0u, m_oReader.readDevTypeVerXMLFile(oRead.lstInfo));
    ASSERT_EQ(1u, oRead.lstInfo.size());
    const StAsnDevTypeVerXMLInfo& stInfo = *oRead.lstInfo.front();
    EXPECT_EQ("A", stInfo.strDevType);
    EXPECT_EQ("V1", stInfo.strDevTypeVer);
    EXPECT_EQ("Save,Backup", ids(stInfo.stOperationConfig.lstDevOperation));
    EXPECT_TRUE(stInfo.stDCErrorCodeInfo == StAsnDCErrorCodeInfo());
    EXPECT_THAT(log(), testing::IsEmpty());

    const auto lstBefore = oRead.lstInfo;
    EXPECT_EQ(DC_RESULT_INVALID_PARA, m_oReader.readDevTypeVerXMLFile(oRead.lstInfo));
    EXPECT_EQ(lstBefore, oRead.lstInfo);
    EXPECT_EQ(Lines{"E 3B0004EC [DCServer]Invalid para."}, log());
}

// A failing section ends the read: nothing is handed out and nothing after it is
// read. The check file fails between the sections of the configuration file, and
// is the one that is named.
TEST_F(ReaderRecordTest, FailingSectionLeavesNoRecord)
{
    const std::string GOOD = deviceFile({"Save"});
    const std::string DEVICE =
        "E 3B0004EE CDevOpXMLConfig::setDevOperXMLConfig [DCServer]XercesDOMParser::getDocument failed :";
    const std::string CHECK =
        "E 3B0004EE CCheckOpXMLConfig::setCheckOpConfigurationTelnet [DCServer]XercesDOMParser::getDocument failed.";
    const struct
    {
        std::string strConfig;
        const char* pszCheckFile; // null: not there
        std::string strLine;
        const char* pszProblem;
    } CASES[] = {
        {"<C><DeviceOperation>", "<C/>", DEVICE, "A.xml: line 1, column 21: input ended"},
        {"<C>", "<C>", DEVICE, "A.xml: line 1, column 4: input ended"},
        {GOOD, "<C>\n <D>", CHECK, "check.xml: line 2, column 5: input ended"},
        {GOOD, nullptr, CHECK, "check.xml: No such file or directory"},
    };
    open("INSERT INTO check_file VALUES ('A', 'check.xml', 1);");
    for (const auto& stCase : CASES)
    {
        clearLog();
        m_oRoot.writeConfig("A.xml", stCase.strConfig);
        if (stCase.pszCheckFile != nullptr)
            m_oRoot.write("check.xml", stCase.pszCheckFile);
        else
            std::filesystem::remove(m_oRoot.path() + "/check.xml");
        EXPECT_EQ(0u, m_oReader.initializeCheck());
        std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
        EXPECT_EQ(DC_RESULT_XML_ERROR, m_oReader.readDevTypeVerXMLFile(lstInfo));
        EXPECT_THAT(lstInfo, testing::IsEmpty());
        EXPECT_THAT(problemWithFile(m_oReader.origin().stProblem),
                    testing::HasSubstr("/" + std::string(stCase.pszProblem)));
        auto* pInfo = new StAsnDevTypeVerXMLInfo; // the reader's from here on
        EXPECT_EQ(DC_RESULT_XML_ERROR, m_oReader.parseNormalXML(pInfo));
        EXPECT_EQ(nullptr, pInfo);
        EXPECT_EQ((Lines{stCase.strLine,
                         "E 3B0004EE CDevTypeXMLResReader::readDevTypeVerXMLFile Call Function return "
                         "Error:parseNormalXML(pAsnDevTypeVerXMLInfo)",
                         stCase.strLine}),
                  logLinesWithPlace());
    }
}

TEST_F(ReaderRecordTest, MissingFileLeavesTheCallersRecordAlone)
{
    open("UPDATE config_file SET path = 'none.xml';");
    StAsnDevTypeVerXMLInfo  stInfo;
    StAsnDevTypeVerXMLInfo* pInfo = &stInfo;
    EXPECT_EQ(0x3B0F0001u, m_oReader.parseNormalXML(pInfo));
    EXPECT_EQ(DC_RESULT_FILE_NOT_EXIST, m_oReader.parseCommonXML(pInfo));
    EXPECT_EQ(&stInfo, pInfo);
    EXPECT_EQ("", stInfo.strDevType);
    EXPECT_EQ("E 3B0004EC [DCServer]Server config File "
              ":ROOT/common/dc/conf/dc/devtype_xmlconf/Common_ServerConfiguration.xml not exist.",
              log().back());
}

TEST_F(ReaderRecordTest, RecordOfOneVersion)
{
    StAsnDevTypeVerXMLInfo* pInfo = nullptr;
    ASSERT_EQ(0u, m_oReader.initializeXMLInfo({"S", "P"}, pInfo));
    COwnedRecords oOwned;
    oOwned.lstInfo.push_back(pInfo);
    EXPECT_EQ("A", pInfo->strDevType);
    EXPECT_EQ("V1", pInfo->strDevTypeVer);
    EXPECT_EQ((std::list<StAsnDevVersion>{{"S", "P"}}), pInfo->lstDevVersion);
    EXPECT_TRUE(*pInfo == StAsnDevTypeVerXMLInfo());

    EXPECT_EQ(DC_RESULT_INVALID_PARA, m_oReader.initializeXMLInfo({"S2", ""}, pInfo));
    EXPECT_EQ(oOwned.lstInfo.front(), pInfo);
    EXPECT_EQ(1u, pInfo->lstDevVersion.size());
    EXPECT_EQ(DC_RESULT_INVALID_PARA, m_oReader.setDevXMLConfig(nullptr, nullptr));
    EXPECT_EQ((Lines{"E 3B0004EC [DCServer]Pointer must be NULL", "E 3B0004EC [DCServer]NULL pointer"}), log());
}

TEST_F(ReaderRecordTest, EqualRecordsBecomeOneWithBothVersions)
{
    COwnedRecords oRead;
    oRead.lstInfo.push_back(nullptr); // skipped
    const auto fnAdd = [&](const char* pszSoftVersion, const char* pszTabId)
    {
        StAsnDevTypeVerXMLInfo* pInfo = nullptr;
        m_oReader.initializeXMLInfo({pszSoftVersion, "P"}, pInfo);
        pInfo->stViewConfig.lstDevViewTab.emplace_back().strId = pszTabId;
        m_oReader.compareAndAdd(oRead.lstInfo, pInfo, {pszSoftVersion, "P"});
        return pInfo;
    };
    EXPECT_NE(nullptr, fnAdd("1", "a"));
    EXPECT_NE(nullptr, fnAdd("2", "b"));
    EXPECT_EQ(nullptr, fnAdd("3", "a"));
    EXPECT_EQ(nullptr, fnAdd("0", "a"));
    StAsnDevTypeVerXMLInfo* pNone = nullptr;
    m_oReader.compareAndAdd(oRead.lstInfo, pNone, {"9", "P"});

    ASSERT_EQ(3u, oRead.lstInfo.size());
    oRead.lstInfo.pop_front();
    EXPECT_EQ((std::list<StAsnDevVersion>{{"1", "P"}, {"3", "P"}, {"0", "P"}}), oRead.lstInfo.front()->lstDevVersion);
    EXPECT_EQ((std::list<StAsnDevVersion>{{"2", "P"}}), oRead.lstInfo.back()->lstDevVersion);
}
} // namespace

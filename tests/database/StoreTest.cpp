// Storing, fetching and freeing records: who owns what, and when a type is read.
#include "reader/ServerFixture.h"
#include "records/ResultCodes.h"

namespace
{
using RecordList = std::list<StAsnDevTypeVerXMLInfo*>;

class StoreTest : public CServerTest
{
protected:
    StoreTest()
    {
        makeModuleFolder();
        m_oRoot.writeConfig("A.xml", deviceFile({"Save"}));
        m_oRoot.writeConfig("B.xml", deviceFile({"Backup"}));
    }

    // The database with an empty registry behind it: every read is on demand.
    CXMLConfigDatabase& emptyDatabase()
    {
        const standalone::CFaultPoint oFault("CDeviceAdapterInterface::getALLDLLInfo", 1, 7);
        CXMLConfigDatabase&           oDatabase = *CXMLConfigDatabase::getInstance();
        clearLog();
        return oDatabase;
    }
};

TEST_F(StoreTest, FailedStartUpLeavesADatabaseThatReadsOnDemand)
{
    open();
    CXMLConfigDatabase& oDatabase = emptyDatabase();
    for (int nTime = 0; nTime < 2; ++nTime) // read once, then answered from the store
    {
        RecordList lstInfo;
        EXPECT_EQ(0u, oDatabase.getDevTypeXMLConfig("A", "V1", lstInfo, false));
        ASSERT_EQ(1u, lstInfo.size());
        EXPECT_EQ(lstInfo.front(), oDatabase.getFirstDevTypeXMLConfig("A", "another version"));
    }
    EXPECT_EQ(Lines{"I [DCServer]Added device A to MAP."}, log());
    EXPECT_EQ(&oDatabase, CXMLConfigDatabase::getInstance());
}

TEST_F(StoreTest, FailedReadOnDemandLeavesNothingBehindAndIsTriedAgain)
{
    open("UPDATE config_file SET path = 'late.xml' WHERE device_type = 'A';");
    CXMLConfigDatabase&    oDatabase = emptyDatabase();
    StAsnDevTypeVerXMLInfo stForeign;
    RecordList             lstInfo = {&stForeign}; // dropped, not freed
    EXPECT_EQ(0x3B0F0001u, oDatabase.getDevTypeXMLConfig("A", "V1", lstInfo, false));
    EXPECT_THAT(lstInfo, testing::IsEmpty());
    EXPECT_EQ(nullptr, oDatabase.getFirstDevTypeXMLConfig("A", "V1"));
    EXPECT_EQ("E 3B0F0001 [DCServer]getDevTypeXMLConfig Method Failed", log().back());
    oDatabase.visitDevTypes([](const std::string& strKey, const RecordList&) { ADD_FAILURE() << strKey; });

    m_oRoot.write("late.xml", deviceFile({"Late"}));
    EXPECT_NE(nullptr, oDatabase.getFirstDevTypeXMLConfig("A", "V1"));
}

TEST_F(StoreTest, StoringUnderAKeyFreesWhatDoesNotComeInAgain)
{
    open("DELETE FROM device_type;");
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    RecordList          lstGone   = {new StAsnDevTypeVerXMLInfo, new StAsnDevTypeVerXMLInfo};
    oDatabase.storeDevTypeXMLConfig("X", lstGone);
    RecordList  lstStored = {nullptr, new StAsnDevTypeVerXMLInfo, new StAsnDevTypeVerXMLInfo};
    const auto* pFirst    = *std::next(lstStored.begin());
    oDatabase.storeDevTypeXMLConfig("X", lstStored); // the first two are gone: the leak check sees to it
    EXPECT_EQ(pFirst, oDatabase.getFirstDevTypeXMLConfig("X", "V"));
    EXPECT_EQ("I [DCServer]Added device X to MAP.\n", logText());

    RecordList lstAnswer;
    EXPECT_EQ(0u, oDatabase.getDevTypeXMLConfig("X", "V", lstAnswer, false));
    oDatabase.storeDevTypeXMLConfig("X", lstAnswer); // an answer comes back
    oDatabase.visitDevTypes(                         // the stored list itself
        [&](const std::string& strKey, const RecordList& lstInfo)
        { oDatabase.storeDevTypeXMLConfig(strKey, const_cast<RecordList&>(lstInfo)); });
    EXPECT_EQ(0u, oDatabase.getDevTypeXMLConfig("X", "V", lstAnswer, false));
    EXPECT_EQ(2u, lstAnswer.size());
    EXPECT_EQ(pFirst, oDatabase.getFirstDevTypeXMLConfig("X", "V"));
    lstAnswer.pop_front(); // the other one goes
    oDatabase.storeDevTypeXMLConfig("X", lstAnswer);
    EXPECT_EQ(lstAnswer.front(), oDatabase.getFirstDevTypeXMLConfig("X", "V"));
}

TEST_F(StoreTest, FreeingKeepsTheNodes)
{
    RecordList lstInfo = {new StAsnDevTypeVerXMLInfo, nullptr, new StAsnDevTypeVerXMLInfo};
    for (int nTime = 0; nTime < 2; ++nTime)
    {
        CXMLConfigDatabase::getInstance()->freeXMLInfo(lstInfo);
        EXPECT_THAT(lstInfo, testing::ElementsAre(nullptr, nullptr, nullptr));
    }
}

TEST_F(StoreTest, FinalizeFreesAllAndTheNextInstanceLoadsAnew)
{
    open();
    for (int nTime = 0; nTime < 2; ++nTime)
    {
        EXPECT_NE(nullptr, CXMLConfigDatabase::getInstance()->getFirstDevTypeXMLConfig("A", "V1"));
        EXPECT_EQ(2u, log().size());
        clearLog();
        CXMLConfigDatabase::finalize();
    }
    CXMLConfigDatabase::finalize();
}

// Capacity-capable type "C" with versions 1 and 2, the second without "Save".
class CapacityStoreTest : public StoreTest
{
protected:
    void load(const std::string& strSql = "")
    {
        for (const auto& [strVersion, strDenied] : {std::pair{"1", "-"}, {"2", "Save"}})
            m_oRoot.writeConfig(
                fmt::format("C_{}_ServerConfiguration.xml", strVersion),
                fmt::format("<C><upgradecapacity sysoid='1'><Operation id='{}'/></upgradecapacity></C>", strDenied));
        m_oRoot.writeConfig("Common_ServerConfiguration.xml", deviceFile({"Save", "Backup"}));
        open("INSERT INTO device_type (name, version, sys_oid, support_upgrade, support_capacity, "
             "capacity_per_version) VALUES ('C', 'V', '1', 1, 1, 1);"
             "INSERT INTO version_in_service (device_type, device_type_version, soft_version) VALUES "
             "('C', 'V', '1'), ('C', 'V', '2');"
             "INSERT INTO capacity (device_type, device_type_version, soft_version) VALUES "
             "('C', 'V', '1'), ('C', 'V', '2');" +
             strSql);
        m_pDatabase = CXMLConfigDatabase::getInstance();
        clearLog();
    }

    CXMLConfigDatabase* m_pDatabase = nullptr;
    RecordList          m_lstInfo;
};

TEST_F(CapacityStoreTest, CapacityFlagReadsCapableTypesAnewAndNoOthers)
{
    load();
    for (int nTime = 0; nTime < 100; ++nTime)
    {
        // The pointers of the last answer die in this call and are never looked at.
        ASSERT_EQ(0u, m_pDatabase->getDevTypeXMLConfig("C", "V", m_lstInfo, true));
        ASSERT_EQ(2u, m_lstInfo.size());
        ASSERT_EQ("Save,Backup", ids(m_lstInfo.front()->stOperationConfig.lstDevOperation));
        ASSERT_EQ("Backup", ids(m_lstInfo.back()->stOperationConfig.lstDevOperation));
    }
    EXPECT_EQ("", logText());
    m_oRoot.writeConfig("Common_ServerConfiguration.xml", deviceFile({"Backup"}));
    m_oRoot.writeConfig("A.xml", deviceFile({"New"}));
    EXPECT_EQ(0u, m_pDatabase->getDevTypeXMLConfig("C", "V", m_lstInfo, true));
    ASSERT_EQ(1u, m_lstInfo.size()); // both versions say the same now
    EXPECT_EQ(2u, m_lstInfo.front()->lstDevVersion.size());
    EXPECT_EQ(m_lstInfo.front(), m_pDatabase->getFirstDevTypeXMLConfig("C", "V"));
    EXPECT_EQ(0u, m_pDatabase->getDevTypeXMLConfig("A", "V1", m_lstInfo, true)); // not capable: from the store
    EXPECT_EQ("Save", ids(m_lstInfo.front()->stOperationConfig.lstDevOperation));
}

TEST_F(CapacityStoreTest, FailedCapacityReadLeavesTheStoreAsItWas)
{
    load();
    const StAsnDevTypeVerXMLInfo* pStored = m_pDatabase->getFirstDevTypeXMLConfig("C", "V");
    m_oRoot.writeConfig("Common_ServerConfiguration.xml", "<C>");
    EXPECT_EQ(DC_RESULT_XML_ERROR, m_pDatabase->getDevTypeXMLConfig("C", "V", m_lstInfo, true));
    EXPECT_THAT(m_lstInfo, testing::IsEmpty());
    EXPECT_EQ(pStored, m_pDatabase->getFirstDevTypeXMLConfig("C", "V"));
    EXPECT_EQ("Save,Backup", ids(pStored->stOperationConfig.lstDevOperation));
}

TEST_F(CapacityStoreTest, TypeThatOffersNothingHasNoFirstRecord)
{
    load("DELETE FROM capacity;");
    EXPECT_EQ(nullptr, m_pDatabase->getFirstDevTypeXMLConfig("C", "V"));
    EXPECT_EQ("E 00000000 [DCServer]getDevTypeXMLConfig Method Failed", log().back());
    EXPECT_EQ(0u, m_pDatabase->getDevTypeXMLConfig("C", "V", m_lstInfo, false));
    EXPECT_THAT(m_lstInfo, testing::IsEmpty());
}
} // namespace

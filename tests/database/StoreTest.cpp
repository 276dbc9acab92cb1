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
        std::filesystem::create_directories(moduleFolder());
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

    static RecordList twoRecords() { return {new StAsnDevTypeVerXMLInfo, new StAsnDevTypeVerXMLInfo}; }
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

TEST_F(StoreTest, StoringUnderAKeyReplacesAndFrees)
{
    open("DELETE FROM device_type;");
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    RecordList          lstFirst  = twoRecords();
    oDatabase.storeDevTypeXMLConfig("X", lstFirst);
    EXPECT_EQ(lstFirst.front(), oDatabase.getFirstDevTypeXMLConfig("X", "V"));
    RecordList lstSecond = {nullptr, new StAsnDevTypeVerXMLInfo};
    oDatabase.storeDevTypeXMLConfig("X", lstSecond); // the first two are gone: the leak check sees to it
    EXPECT_EQ(lstSecond.back(), oDatabase.getFirstDevTypeXMLConfig("X", "V"));
    EXPECT_EQ(Lines{"I [DCServer]Added device X to MAP."}, log());
}

TEST_F(StoreTest, RecordsThatComeInAgainLiveOn)
{
    open("DELETE FROM device_type;");
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    RecordList          lstStored = twoRecords();
    oDatabase.storeDevTypeXMLConfig("X", lstStored);
    lstStored.front()->strDevType = "first";

    RecordList lstAnswer;
    EXPECT_EQ(0u, oDatabase.getDevTypeXMLConfig("X", "V", lstAnswer, false));
    oDatabase.storeDevTypeXMLConfig("X", lstAnswer); // an answer comes back
    oDatabase.visitDevTypes(                         // the stored list itself
        [&](const std::string& strKey, const RecordList& lstInfo)
        { oDatabase.storeDevTypeXMLConfig(strKey, const_cast<RecordList&>(lstInfo)); });
    EXPECT_EQ(0u, oDatabase.getDevTypeXMLConfig("X", "V", lstAnswer, false));
    EXPECT_EQ(2u, lstAnswer.size());
    EXPECT_EQ("first", oDatabase.getFirstDevTypeXMLConfig("X", "V")->strDevType);

    lstAnswer.pop_front(); // the other one goes
    oDatabase.storeDevTypeXMLConfig("X", lstAnswer);
    EXPECT_EQ("", oDatabase.getFirstDevTypeXMLConfig("X", "V")->strDevType);
}

TEST_F(StoreTest, FreeingKeepsTheNodes)
{
    CXMLConfigDatabase oDatabase;
    RecordList         lstInfo = twoRecords();
    lstInfo.insert(std::next(lstInfo.begin()), nullptr);
    oDatabase.freeXMLInfo(lstInfo);
    EXPECT_THAT(lstInfo, testing::ElementsAre(nullptr, nullptr, nullptr));
    oDatabase.freeXMLInfo(lstInfo);
    EXPECT_EQ(3u, lstInfo.size());
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
    CapacityStoreTest()
    {
        for (const char* pszVersion : {"1", "2"})
            m_oRoot.writeConfig("C_" + std::string(pszVersion) + "_ServerConfiguration.xml",
                                "<C><upgradecapacity sysoid='1'><Operation id='" +
                                    std::string(*pszVersion == '1' ? "-" : "Save") + "'/></upgradecapacity></C>");
        m_oRoot.writeConfig("Common_ServerConfiguration.xml", deviceFile({"Save", "Backup"}));
    }

    void openCapacity(const std::string& strSql = "")
    {
        open("INSERT INTO device_type (name, version, sys_oid, support_upgrade, support_capacity, "
             "capacity_per_version) VALUES ('C', 'V', '1', 1, 1, 1);"
             "INSERT INTO version_in_service (device_type, device_type_version, soft_version) VALUES "
             "('C', 'V', '1'), ('C', 'V', '2');"
             "INSERT INTO capacity (device_type, device_type_version, soft_version) VALUES "
             "('C', 'V', '1'), ('C', 'V', '2');" +
             strSql);
    }
};

TEST_F(CapacityStoreTest, CapacityFlagReadsCapableTypesAnewAndNoOthers)
{
    openCapacity();
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    RecordList          lstInfo;
    EXPECT_EQ(0u, oDatabase.getDevTypeXMLConfig("C", "V", lstInfo, false));
    EXPECT_EQ(2u, lstInfo.size());
    m_oRoot.writeConfig("Common_ServerConfiguration.xml", deviceFile({"Backup"}));
    m_oRoot.writeConfig("A.xml", deviceFile({"New"}));
    EXPECT_EQ(0u, oDatabase.getDevTypeXMLConfig("C", "V", lstInfo, true));
    ASSERT_EQ(1u, lstInfo.size()); // both versions say the same now
    EXPECT_EQ(2u, lstInfo.front()->lstDevVersion.size());
    EXPECT_EQ(lstInfo.front(), oDatabase.getFirstDevTypeXMLConfig("C", "V"));
    EXPECT_EQ(0u, oDatabase.getDevTypeXMLConfig("A", "V1", lstInfo, true)); // not capable: from the store
    EXPECT_EQ("Save", ids(lstInfo.front()->stOperationConfig.lstDevOperation));
}

TEST_F(CapacityStoreTest, HundredReadsWithAnEarlierAnswerComingIn)
{
    openCapacity();
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    RecordList          lstInfo;
    clearLog();
    for (int nTime = 0; nTime < 100; ++nTime)
    {
        // The pointers of the last answer die in this call and are never looked at.
        ASSERT_EQ(0u, oDatabase.getDevTypeXMLConfig("C", "V", lstInfo, true));
        ASSERT_EQ(2u, lstInfo.size());
        ASSERT_EQ("Save,Backup", ids(lstInfo.front()->stOperationConfig.lstDevOperation));
        ASSERT_EQ("Backup", ids(lstInfo.back()->stOperationConfig.lstDevOperation));
    }
    EXPECT_THAT(log(), testing::IsEmpty());
}

TEST_F(CapacityStoreTest, FailedCapacityReadLeavesTheStoreAsItWas)
{
    openCapacity();
    CXMLConfigDatabase&     oDatabase = *CXMLConfigDatabase::getInstance();
    StAsnDevTypeVerXMLInfo* pStored   = oDatabase.getFirstDevTypeXMLConfig("C", "V");
    RecordList              lstInfo;
    m_oRoot.writeConfig("Common_ServerConfiguration.xml", "<C>");
    EXPECT_EQ(DC_RESULT_XML_ERROR, oDatabase.getDevTypeXMLConfig("C", "V", lstInfo, true));
    EXPECT_THAT(lstInfo, testing::IsEmpty());
    EXPECT_EQ(pStored, oDatabase.getFirstDevTypeXMLConfig("C", "V"));
    EXPECT_EQ("Save,Backup", ids(pStored->stOperationConfig.lstDevOperation));
}

TEST_F(CapacityStoreTest, TypeThatOffersNothingHasNoFirstRecord)
{
    openCapacity("DELETE FROM capacity;");
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    clearLog();
    EXPECT_EQ(nullptr, oDatabase.getFirstDevTypeXMLConfig("C", "V"));
    EXPECT_EQ("E 00000000 [DCServer]getDevTypeXMLConfig Method Failed", log().back());
    RecordList lstInfo;
    EXPECT_EQ(0u, oDatabase.getDevTypeXMLConfig("C", "V", lstInfo, false));
    EXPECT_THAT(lstInfo, testing::IsEmpty());
}
} // namespace

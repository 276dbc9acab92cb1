// Many threads at one database: nobody sees it half-loaded, nobody is left
// waiting, and the loading thread never waits for itself.
#include "reader/ServerFixture.h"
#include "standalone/LogSink.h"

#include <atomic>
#include <set>
#include <string_view>
#include <thread>
#include <utility>

namespace
{
using std::chrono::milliseconds;

class DatabaseThreadTest : public CServerTest
{
protected:
    DatabaseThreadTest()
    {
        makeModuleFolder();
        m_oRoot.writeConfig("A.xml", deviceFile({"Save"}));
        m_oRoot.writeConfig("B.xml", deviceFile({"Backup"}));
        m_oRoot.writeConfig("D.xml", deviceFile({"Late"}));
        open("INSERT INTO config_file VALUES ('D', '" + configPath("D.xml") + "');");
    }
    ~DatabaseThreadTest() override { standalone::setTraceListener({}); }

    // Holds the load at its first step until so many threads have arrived.
    void holdLoadFor(int nThreads)
    {
        standalone::setTraceListener(
            [this, nThreads](const LocationInfo& stWhere)
            {
                while (stWhere.pszFunction == std::string_view("readAndStoreModuleXMLConfig") && m_nArrived < nThreads)
                    std::this_thread::sleep_for(milliseconds(1));
            });
    }

    template <typename Work>
    static void inThreads(int nThreads, Work fnWork)
    {
        std::vector<std::thread> lstThread;
        lstThread.reserve(static_cast<std::size_t>(nThreads));
        for (int nAt = 0; nAt < nThreads; ++nAt)
            lstThread.emplace_back(fnWork, nAt);
        for (std::thread& oThread : lstThread)
            oThread.join();
    }

    std::atomic<int> m_nArrived{0};
};

TEST_F(DatabaseThreadTest, FirstGetInstanceFromSixteenThreadsLoadsOnce)
{
    holdLoadFor(16);
    std::vector<CXMLConfigDatabase*> lstInstance(16);
    std::atomic<int>                 nSupported{0};
    inThreads(16,
              [&](int nAt)
              {
                  ++m_nArrived;
                  lstInstance[static_cast<std::size_t>(nAt)] = CXMLConfigDatabase::getInstance();
                  bool bIsSupported                          = false;
                  CXMLConfigDatabase::getInstance()->isDeviceOpSupported("B", "V2", "Backup", bIsSupported);
                  nSupported += bIsSupported ? 1 : 0;
              });
    EXPECT_EQ(1u, std::set<CXMLConfigDatabase*>(lstInstance.begin(), lstInstance.end()).size());
    EXPECT_EQ(16, nSupported);
    EXPECT_EQ((Lines{"I [DCServer]Added device A to MAP.", "I [DCServer]Added device B to MAP."}), log());
}

TEST_F(DatabaseThreadTest, MixedQuestionsWhileTheFirstLoadRunsAndAfter)
{
    open("INSERT INTO device_type (name, version, type_id, sys_oid, support_upgrade, support_capacity, "
         "capacity_per_version) VALUES ('C', 'V', 7, '1', 1, 1, 1), ('D', 'V', 8, '', 0, 0, 0);"
         "INSERT INTO device (device_id, type_id, version_id) VALUES (1, 7, 0);"
         "INSERT INTO config_file VALUES ('C', '" +
         configPath("A.xml") + "'), ('D', '" + configPath("D.xml") + "');");
    holdLoadFor(8);
    std::atomic<int> nWrong{0};
    inThreads(
        8,
        [&](int nAt)
        {
            ++m_nArrived;
            CXMLConfigDatabase&                oDatabase = *CXMLConfigDatabase::getInstance();
            std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
            bool                               bFound = false;
            std::string                        strName;
            const std::function<bool()>        QUESTIONS[] = {
                       // Read anew, its old records die.
                [&] { return oDatabase.getDevTypeXMLConfig("C", "V", lstInfo, true) == 0; },
                [&] { return oDatabase.isDeviceOpSupported("C", "V", "Save", bFound) == 0 && bFound; },
                // Never there, read on demand each time.
                [&] { return oDatabase.isDeviceOpSupported("Z", "V", "Save", bFound) != 0; },
                [&] { return oDatabase.getContentTypeId(1, 1, strName) == 0; },
                [&]
                { return oDatabase.getAllBackupContentTypeNameByDevTypeName("D", strName, EnDeviceTypeAccess) == 0; },
            };
            for (int nTime = 0; nTime < 20; ++nTime)
                nWrong += QUESTIONS[(nAt + nTime) % 5]() ? 0 : 1;
        });
    EXPECT_EQ(0, nWrong);
}

// Waiting with the mutex held twice would keep the load out for ever; waking one
// waiter alone would leave the others.
TEST_F(DatabaseThreadTest, QueriesOfAnUnloadedInstanceWaitForAnotherThreadsLoad)
{
    struct : CXMLConfigDatabase // loaded by nobody yet
    {
    } oDatabase;
    std::atomic<bool> bLoading{false};
    std::atomic<int>  nTooEarly{0};
    std::atomic<int>  nAnswered{0};
    standalone::setTraceListener(
        [&](const LocationInfo& stWhere)
        {
            // A query that does not wait would read the type itself.
            if (stWhere.pszFunction == std::string_view("readAndStoreDevTypeXMLConfig") && !bLoading)
                ++nTooEarly;
        });
    inThreads(9,
              [&](int nAt)
              {
                  if (nAt == 8)
                  {
                      while (m_nArrived < 8)
                          std::this_thread::sleep_for(milliseconds(1));
                      std::this_thread::sleep_for(milliseconds(20)); // most are waiting by now
                      bLoading = true;
                      EXPECT_EQ(0u, oDatabase.readAndStoreDevTypeXMLConfig());
                      return;
                  }
                  ++m_nArrived;
                  bool                               bFound = false;
                  std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
                  if (nAt % 2 == 0)
                      oDatabase.isDeviceOpSupported("A", "V1", "Save", bFound);
                  else
                      bFound = oDatabase.getDevTypeXMLConfig("B", "V2", lstInfo, false) == 0 && lstInfo.size() == 1;
                  nAnswered += bFound ? 1 : 0;
              });
    EXPECT_EQ(8, nAnswered);
    EXPECT_EQ(0, nTooEarly);
    EXPECT_EQ((Lines{"I [DCServer]Added device A to MAP.", "I [DCServer]Added device B to MAP."}), log());
}

TEST_F(DatabaseThreadTest, LoadingThreadGetsTheInstanceThatIsBeingLoaded)
{
    std::set<CXMLConfigDatabase*> setSeen;
    std::uint32_t                 ulResult = 1;
    bool                          bFound   = false;
    standalone::setLogFilter(
        [&](std::string& strText)
        {
            if (strText != "[DCServer]Added device A to MAP.")
                return;
            CXMLConfigDatabase* pLoading = CXMLConfigDatabase::getInstance();
            setSeen.insert(pLoading);
            ulResult = pLoading->isDeviceOpSupported("A", "V1", "Save", bFound); // must not wait for itself
        });
    bool bTraced = false;
    standalone::setTraceListener( // the load's very first call out
        [&](const LocationInfo&)
        {
            if (std::exchange(bTraced, true))
                return;
            EXPECT_NE(nullptr, CXMLConfigDatabase::getInstance()->getFirstDevTypeXMLConfig("B", "V2"));
        });
    setSeen.insert(CXMLConfigDatabase::getInstance());
    EXPECT_EQ(1u, setSeen.size());
    EXPECT_EQ(0u, ulResult);
    EXPECT_TRUE(bFound);
}

TEST_F(DatabaseThreadTest, TypeReadOnDemandByManyIsReadOnce)
{
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    open("INSERT INTO device_type (name, version) VALUES ('D', 'V');"
         "INSERT INTO config_file VALUES ('D', '" +
         configPath("D.xml") + "');");
    clearLog();
    std::atomic<int> nFound{0};
    inThreads(8,
              [&](int)
              {
                  bool bFound = false;
                  oDatabase.isDeviceOpSupported("D", "V", "Late", bFound);
                  nFound += bFound ? 1 : 0;
              });
    EXPECT_EQ(8, nFound);
    EXPECT_EQ(Lines{"I [DCServer]Added device D to MAP."}, log());
}
} // namespace

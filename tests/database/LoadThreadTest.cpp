// A load with any number of threads gives what a load with one gives; each file is
// read once, and as it is when its type's turn comes.
#include "reader/ServerFixture.h"

#include "common/ReadProblem.h"
#include "reader/LoadThreads.h"
#include "sections/RecordText.h"
#include "standalone/LogSink.h"

#include <chrono>
#include <fstream>
#include <map>
#include <stdlib.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace
{
Lines g_lstTold; // problems, in the order in which opxml would hear of them

class LoadThreadTest : public CServerTest
{
protected:
    LoadThreadTest() { makeModuleFolder(); }
    ~LoadThreadTest() override
    {
        ::unsetenv(loadThreads::VARIABLE); // no other thread is about. NOLINT(concurrency-mt-unsafe)
        setReadListener(nullptr);
        standalone::setTraceListener({});
    }

    static CXMLConfigDatabase& load(const std::string& strThreads)
    {
        ::setenv(loadThreads::VARIABLE, strThreads.c_str(), 1); // as above. NOLINT(concurrency-mt-unsafe)
        CXMLConfigDatabase::finalize();
        clearLog();
        return *CXMLConfigDatabase::getInstance();
    }

    // Store, report, log and problems of a load.
    static Lines everything(const std::string& strThreads)
    {
        g_lstTold.clear();
        setReadListener([](const StReadProblem& stProblem) { g_lstTold.push_back(problemWithFile(stProblem)); });
        CXMLConfigDatabase& oDatabase = load(strThreads);
        Lines               lstText   = logLinesWithPlace();
        lstText.insert(lstText.end(), g_lstTold.begin(), g_lstTold.end());
        oDatabase.visitDevTypes(
            [&](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
            {
                for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
                    lstText.push_back(strKey + ": " + CRecordText::list<StAsnDevTypeVerXMLInfo>({*pInfo}));
            });
        const auto fnProblem = [](const StReadProblem& stProblem)
        { return fmt::format("{} {}", problemWithFile(stProblem), static_cast<int>(stProblem.enKind)); };
        const StLoadReport stReport = oDatabase.getLoadReport();
        for (const StDevTypeLoad& stLoad : stReport.lstDevType)
        {
            const StConfigOrigin& stOrigin = stLoad.stOrigin;
            lstText.push_back(fmt::format("{} {} {} {} {} {} {:x}", stLoad.strDevType, stLoad.strDevTypeVer,
                                          stLoad.strKey, static_cast<int>(stOrigin.enSource), stOrigin.strFile,
                                          fnProblem(stOrigin.stProblem), stLoad.ulResult));
            for (const StVersionLoad& stVersion : stOrigin.lstVersion)
                lstText.push_back(fmt::format("{} {} {} {}", stVersion.strSoftVersion,
                                              static_cast<int>(stVersion.enOutcome), stVersion.strFile,
                                              fnProblem(stVersion.stProblem)));
        }
        return lstText;
    }

    void writeDeviceFile(const std::string& strName) { m_oRoot.writeConfig(strName + ".xml", deviceFile({strName})); }

    // Types with a file each, in this order.
    std::string typesWithFiles(const std::vector<std::string>& lstName)
    {
        std::string strSql;
        for (const std::string& strName : lstName)
        {
            writeDeviceFile(strName);
            strSql += fmt::format("INSERT INTO device_type (name, version) VALUES ('{0}', 'V');"
                                  "INSERT INTO config_file VALUES ('{0}', '{1}');",
                                  strName, configPath(strName + ".xml"));
        }
        return strSql;
    }

    // What is served in all: "A: Save;B: Save;".
    static std::string stored(CXMLConfigDatabase& oDatabase)
    {
        std::string strStored;
        oDatabase.visitDevTypes(
            [&](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
            { strStored += strKey + ": " + ids(lstInfo.front()->stOperationConfig.lstDevOperation) + ";"; });
        return strStored;
    }
};

TEST_F(LoadThreadTest, TheExampleServerIsTheSameWithAnyNumber)
{
    std::filesystem::copy(OPERATIONXML_SOURCE_DIR "/examples/server", m_oRoot.path(),
                          std::filesystem::copy_options::recursive);
    std::stringstream oSql;
    oSql << std::ifstream(OPERATIONXML_SOURCE_DIR "/examples/server/server.sql").rdbuf();
    m_oRoot.open(oSql.str());
    const Lines lstOne = everything("1");
    EXPECT_LT(50u, lstOne.size());
    for (const char* pszThreads : {"2", "8"})
        EXPECT_EQ(lstOne, everything(pszThreads)) << pszThreads;
}

TEST_F(LoadThreadTest, ABrokenRootIsTheSameWithAnyNumber)
{
    const std::string OID    = "<upgradecapacity sysoid='1.3'><Operation id='Save' isSupported='0'/></upgradecapacity>";
    const std::string CHECKS = "<C><CheckOperations><CheckOperation id='{}'/></CheckOperations></C>";
    std::string strSql = typesWithFiles({"bytes", "checked", "checked 2", "common", "common 2", "deep", "empty", "fine",
                                         "folder", "late", "missing", "pipe", "torn", "twin"});
    m_oRoot.writeConfig("bytes.xml", "<C>\n\xC3(</C>");
    m_oRoot.writeConfig("torn.xml", "<C><DeviceOperation><Operation id='half'/>\n<");
    m_oRoot.writeConfig("torn check.xml", "<C><CheckOperations>");
    m_oRoot.writeConfig("check.xml", fmt::format(fmt::runtime(CHECKS), "c"));
    m_oRoot.writeConfig("empty.xml", "");
    m_oRoot.writeConfig("Common_ServerConfiguration.xml", deviceFile({"Save", "Load"}));
    m_oRoot.writeConfig("capable_1_ServerConfiguration.xml", "<C>" + OID + "</C>");
    m_oRoot.writeConfig("capable_4_ServerConfiguration.xml", "<C>" + OID);
    writeDeviceFile("twin_telnet");
    std::string strDeep;
    for (int nLevel = 0; nLevel < 200; ++nLevel)
        strDeep += "<a>";
    m_oRoot.writeConfig("deep.xml", strDeep);
    for (const char* pszNone : {"folder.xml", "missing.xml", "pipe.xml", "twin.xml"})
        std::filesystem::remove(m_oRoot.configFolder() + pszNone);
    std::filesystem::create_directory(m_oRoot.configFolder() + "folder.xml");
    ASSERT_EQ(0, ::mkfifo((m_oRoot.configFolder() + "pipe.xml").c_str(), 0600));
    const std::string strCheck     = configPath("check.xml");
    const std::string strTornCheck = configPath("torn check.xml");
    strSql += "INSERT INTO check_file VALUES ('checked', '" + strCheck + "', 1), ('checked 2', '" + strCheck +
              "', 2), ('fine', '" + strTornCheck +
              "', 1), ('late', 'none.xml', 1);"
              "INSERT INTO device_type (name, version) VALUES ('torn', 'V2'), ('fine', 'V_telnet'), ('fine', 'V2'), "
              "('twin', 'V_telnet'), ('twin_telnet', 'V'), ('nowhere', 'V');"
              "INSERT INTO config_file VALUES ('twin_telnet', '" +
              configPath("twin_telnet.xml") + "'), ('fine_telnet', '" + configPath("torn.xml") + "'), ('capable', '" +
              configPath("fine.xml") +
              "');"
              "UPDATE device_type SET config_file_type = 1 WHERE name LIKE 'common%';"
              "INSERT INTO device_type (name, version, sys_oid, support_upgrade, support_capacity, "
              "capacity_per_version) VALUES ('capable', 'V', '1.3', 1, 1, 1);"
              "INSERT INTO version_in_service (device_type, device_type_version, soft_version) VALUES "
              "('capable', 'V', '1'), ('capable', 'V', '2'), ('capable', 'V', '3'), ('capable', 'V', '4'), "
              "('capable', 'V', '5');"
              "INSERT INTO capacity (device_type, device_type_version, soft_version, full_config) VALUES "
              "('capable', 'V', '1', 0), ('capable', 'V', '2', 1), ('capable', 'V', '4', 0), ('capable', 'V', '5', 0);";
    m_oRoot.open(strSql);
    for (const char* pszCommon : {"fine", "torn"})
    {
        SCOPED_TRACE(pszCommon);
        const Lines lstOne = everything("1");
        EXPECT_LT(80u, lstOne.size());
        EXPECT_THAT(g_lstTold,
                    testing::Contains(testing::HasSubstr("/torn.xml: line 2")).Times(3)); // each of its types
        for (const char* pszThreads : {"2", "8"})
            EXPECT_EQ(lstOne, everything(pszThreads)) << pszThreads;
        m_oRoot.writeConfig("Common_ServerConfiguration.xml", "<C>\n<torn>");
    }
}

// How often each file of a folder is opened.
class COpenCount
{
public:
    explicit COpenCount(const std::string& strFolder) : m_nFd(::inotify_init1(IN_NONBLOCK))
    {
        EXPECT_LE(0, ::inotify_add_watch(m_nFd, strFolder.c_str(), IN_OPEN));
    }
    ~COpenCount() { ::close(m_nFd); }
    COpenCount(const COpenCount&)            = delete;
    COpenCount& operator=(const COpenCount&) = delete;

    std::string text() const
    {
        std::map<std::string, int>  mapTimes;
        alignas(inotify_event) char arEvents[4096];
        for (ssize_t nRead = 0; (nRead = ::read(m_nFd, arEvents, sizeof(arEvents))) > 0;)
        {
            for (ssize_t nAt = 0; nAt < nRead;)
            {
                const auto* pEvent = reinterpret_cast<const inotify_event*>(arEvents + nAt);
                if (pEvent->len != 0)
                    ++mapTimes[pEvent->name];
                nAt += static_cast<ssize_t>(sizeof(inotify_event) + pEvent->len);
            }
        }
        std::string strText;
        for (const auto& [strName, nTimes] : mapTimes)
            strText += fmt::format("{} {};", strName, nTimes);
        return strText;
    }

private:
    int m_nFd;
};

TEST_F(LoadThreadTest, EachFileIsReadOnce)
{
    const std::string CAPABLE =
        "INSERT INTO device_type (name, version, support_upgrade, support_capacity, capacity_per_version) VALUES "
        "('X', 'V', 1, 1, 1), ('Y', 'V', 1, 1, 1);"
        "INSERT INTO config_file VALUES ('X', '" +
        configPath("A.xml") +
        "');"
        "INSERT INTO version_in_service (device_type, device_type_version, soft_version) VALUES "
        "('X', 'V', '1'), ('X', 'V', '2'), ('X', 'V', '3'), ('X', 'V', '4'), ('Y', 'V', '1');"
        "INSERT INTO capacity (device_type, device_type_version, soft_version, full_config) VALUES "
        "('X', 'V', '1', 0), ('X', 'V', '2', 0), ('X', 'V', '3', 1), ('X', 'V', '4', 1), ('Y', 'V', '1', 0);";
    const struct
    {
        const char* pszName;
        std::string strSql; // besides A, B and C with a file each
        const char* pszFiles;
    } CASES[] = {
        {"own files", "", "A.xml 1;B.xml 1;C.xml 1;"},
        {"three versions", "INSERT INTO device_type (name, version) VALUES ('B', 'V2'), ('B', 'V1');",
         "A.xml 1;B.xml 1;C.xml 1;"},
        {"two types name one file",
         "UPDATE config_file SET path = (SELECT path FROM config_file WHERE device_type = 'A') "
         "WHERE device_type = 'C';",
         "A.xml 1;B.xml 1;"},
        {"common file", "UPDATE device_type SET config_file_type = 1 WHERE name <> 'B';",
         "B.xml 1;Common_ServerConfiguration.xml 1;"},
        {"twin",
         "UPDATE config_file SET path = 'none.xml' WHERE device_type = 'A';"
         "INSERT INTO device_type (name, version) VALUES ('A_telnet', 'V'), ('A', 'V_telnet');"
         "INSERT INTO config_file SELECT 'A_telnet', path FROM config_file WHERE device_type = 'C';",
         "B.xml 1;C.xml 1;"},
        {"check file", "INSERT INTO check_file SELECT name, '" + configPath("check.xml") + "', 1 FROM device_type;",
         "A.xml 1;B.xml 1;C.xml 1;check.xml 1;"},
        {"capacity", "DELETE FROM device_type;" + CAPABLE,
         "A.xml 1;Common_ServerConfiguration.xml 1;X_1_ServerConfiguration.xml 1;X_2_ServerConfiguration.xml 1;"
         "Y_1_ServerConfiguration.xml 1;"},
    };
    const std::string strTypes = typesWithFiles({"A", "B", "C"});
    for (const char* pszName : {"Common", "X_1", "X_2", "Y_1"})
        m_oRoot.writeConfig(std::string(pszName) + "_ServerConfiguration.xml", deviceFile({pszName}));
    m_oRoot.writeConfig("check.xml", "<C/>");
    for (const auto& stCase : CASES)
    {
        for (const char* pszThreads : {"1", "2", "8"})
        {
            SCOPED_TRACE(fmt::format("{}, {} threads", stCase.pszName, pszThreads));
            m_oRoot.open(strTypes + stCase.strSql);
            const COpenCount oCount(m_oRoot.configFolder());
            load(pszThreads);
            EXPECT_EQ(stCase.pszFiles, oCount.text());
        }
    }
}

// Two documents that cannot wait beside each other: parsed again rather than kept.
TEST_F(LoadThreadTest, WhatDoesNotFitIsReadAgain)
{
    std::string strLong = "<C><DeviceOperation>";
    for (int nAt = 0; nAt < 120000; ++nAt)
        strLong += "<Operation/>";
    strLong += "</DeviceOperation></C>";
    const std::string strTypes = typesWithFiles({"A", "B", "C", "D", "E", "F"});
    m_oRoot.writeConfig("A.xml", strLong);
    m_oRoot.writeConfig("C.xml", strLong);
    m_oRoot.open(strTypes + "UPDATE config_file SET path = '" + configPath("A.xml") +
                 "' WHERE device_type IN ('B', 'D');"
                 "UPDATE config_file SET path = '" +
                 configPath("C.xml") + "' WHERE device_type = 'E';");
    const COpenCount oCount(m_oRoot.configFolder());
    load("2");
    EXPECT_EQ("A.xml 2;C.xml 2;F.xml 1;", oCount.text());
}

// A file that changes is read as it is when its type's turn comes, whether its
// document was kept or made ahead. The new one is as long as the old one.
TEST_F(LoadThreadTest, AFileThatChangesMeanwhileIsReadAnew)
{
    m_oRoot.open(typesWithFiles({"A", "B", "C", "D"}) +
                 "UPDATE device_type SET config_file_type = 1 WHERE name IN ('A', 'C');");
    for (const char* pszThreads : {"1", "2", "8"})
    {
        SCOPED_TRACE(pszThreads);
        const std::string strCommon = "Common_ServerConfiguration.xml";
        m_oRoot.writeConfig(strCommon, deviceFile({"old"}));
        m_oRoot.writeConfig("D.xml", deviceFile({"old"}));
        int nRead = 0;
        standalone::setTraceListener(
            [&](const LocationInfo& stWhere)
            {
                if (stWhere.pszFunction != std::string_view("readDevTypeVerXMLFile") || ++nRead != 2)
                    return;
                std::this_thread::sleep_for(std::chrono::milliseconds(30)); // for whoever parses ahead
                m_oRoot.writeConfig(strCommon, deviceFile({"new"}));
                m_oRoot.writeConfig("D.xml", deviceFile({"new"}));
            });
        EXPECT_EQ("A: old;B: B;C: new;D: new;", stored(load(pszThreads)));
    }
}

std::ptrdiff_t threads()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

TEST_F(LoadThreadTest, AsManyThreadsAsAskedForAndNoneAfterwards)
{
    const std::pair<const char*, std::ptrdiff_t> CASES[] = {{"1", 0}, {"2", 1}, {"5", 4}, {"64", 8}}; // one a file
    m_oRoot.open(typesWithFiles({"A", "B", "C", "D", "E", "F", "G", "H", "I"}));
    std::thread([] {}).join(); // a sanitizer's own thread comes with the first one
    for (const auto& [pszThreads, nExpected] : CASES)
    {
        SCOPED_TRACE(pszThreads);
        const std::ptrdiff_t nBefore = threads();
        std::ptrdiff_t       nMost   = 0;
        standalone::setTraceListener([&](const LocationInfo&) { nMost = std::max(nMost, threads()); });
        load(pszThreads);
        standalone::setTraceListener({});
        EXPECT_GE(nExpected, nMost - nBefore); // those that found nothing to do are gone
        EXPECT_EQ(nExpected == 0, nMost == nBefore);
        while (threads() != nBefore) // the system may still list what has been joined
            std::this_thread::yield();
    }
}

TEST_F(LoadThreadTest, TheGroupsOfTheProcessLimitIt)
{
    const struct
    {
        const char*                                      pszGroups;
        std::vector<std::pair<std::string, const char*>> lstFile;
        std::size_t                                      nExpected;
    } CASES[] = {
        {"0::/a/b\n", {}, 0},
        {"0::/a/b\n", {{"a/b/cpu.max", "max 100000"}}, 0},
        {"0::/a/b\n", {{"a/b/cpu.max", "200000 100000"}}, 2},
        {"0::/a/b\n", {{"a/b/cpu.max", "150000 100000"}}, 2},
        {"0::/a/b\n", {{"a/b/cpu.max", "10000 100000"}, {"a/cpu.max", "400000 100000"}}, 1},
        {"0::/a/b\n", {{"a/b/cpu.max", "400000 100000"}, {"a/cpu.max", "300000 100000"}}, 3},
        {"0::/\n", {{"cpu.max", "600000 100000"}}, 6},
        {"4:memory:/m\n3:cpu,cpuacct:/a\n",
         {{"cpu/a/cpu.cfs_quota_us", "250000"}, {"cpu/a/cpu.cfs_period_us", "100000"}},
         3},
        {"3:cpuset:/a\n2:cpu:/a\n", {{"cpu/a/cpu.cfs_quota_us", "-1"}, {"cpu/a/cpu.cfs_period_us", "100000"}}, 0},
        {"nonsense\n::\n", {}, 0},
    };
    for (const auto& stCase : CASES)
    {
        CTempServerRoot oMount;
        for (const auto& [strPath, pszText] : stCase.lstFile)
            oMount.write(strPath, pszText);
        const std::string strGroups = m_oRoot.write("cgroup", stCase.pszGroups);
        EXPECT_EQ(stCase.nExpected, loadThreads::allowedByGroups(strGroups, oMount.path())) << stCase.pszGroups;
    }
}
} // namespace

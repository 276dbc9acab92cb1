// A load with any number of threads gives what a load with one gives, and so does a
// read of all types for catalogs, for lint or for a comparison; each file is read once,
// and as it is when its type's turn comes.
#include "reader/ServerFixture.h"

#include "common/ReadProblem.h"
#include "lint/Lint.h"
#include "reader/LoadThreads.h"
#include "sections/RecordText.h"
#include "standalone/LogSink.h"
#include "tools/opxml/catalog/ServerCatalogs.h"
#include "tools/opxml/diff/RootDiff.h"
#include "tools/opxml/difftext/DiffPrinter.h"
#include "tools/opxml/report/Detail.h"

#include <xercesc/framework/MemoryManager.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <atomic>
#include <chrono>
#include <fstream>
#include <malloc.h>
#include <map>
#include <set>
#include <stdlib.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace
{
Lines g_lstTold; // problems, in the order in which opxml would hear of them

// What came of a read of all types.
struct StOutcome
{
    std::set<std::string> setStored; // of each key, the ids of its device operations: "A: Save"
    Lines                 lstText;   // all of it
};

std::string problemLine(const StReadProblem& stProblem)
{
    return fmt::format("{} {}", problemWithFile(stProblem), static_cast<int>(stProblem.enKind));
}

void addOrigin(const StConfigOrigin& stOrigin, StOutcome& stOutcome)
{
    stOutcome.lstText.push_back(fmt::format("{} {} {}", static_cast<int>(stOrigin.enSource), stOrigin.strFile,
                                            problemLine(stOrigin.stProblem)));
    for (const StVersionLoad& stVersion : stOrigin.lstVersion)
        stOutcome.lstText.push_back(fmt::format("{} {} {} {}", stVersion.strSoftVersion,
                                                static_cast<int>(stVersion.enOutcome), stVersion.strFile,
                                                problemLine(stVersion.stProblem)));
}

StOutcome load()
{
    StOutcome stOutcome;
    CXMLConfigDatabase::finalize();
    CXMLConfigDatabase& oDatabase = *CXMLConfigDatabase::getInstance();
    oDatabase.visitDevTypes(
        [&](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
        {
            stOutcome.setStored.insert(strKey + ": " + ids(lstInfo.front()->stOperationConfig.lstDevOperation));
            for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
                stOutcome.lstText.push_back(strKey + ": " + CRecordText::list<StAsnDevTypeVerXMLInfo>({*pInfo}));
        });
    for (const StDevTypeLoad& stLoad : oDatabase.getLoadReport().lstDevType)
    {
        stOutcome.lstText.push_back(
            fmt::format("{} {} {} {:x}", stLoad.strDevType, stLoad.strDevTypeVer, stLoad.strKey, stLoad.ulResult));
        addOrigin(stLoad.stOrigin, stOutcome);
    }
    return stOutcome;
}

void addCatalog(const catalog::StTypeCatalog& stType, StOutcome& stOutcome)
{
    stOutcome.lstText.push_back(
        fmt::format("{} {} {} {:x}", stType.strDevType, stType.strDevTypeVer, stType.strKey, stType.ulResult));
    addOrigin(stType.stOrigin, stOutcome);
    for (std::size_t nAt = 0; nAt < stType.lstConfiguration.size(); ++nAt)
        stOutcome.lstText.push_back(CDetailMaker().make(stType, nAt));
    if (stType.lstConfiguration.empty())
        return;
    Lines lstId;
    for (const catalog::StEntry& stEntry : stType.lstConfiguration.front().lstSection.front().lstEntry)
        lstId.push_back(stEntry.strId);
    stOutcome.setStored.insert(fmt::format("{}: {}", stType.strKey, fmt::join(lstId, ",")));
}

StOutcome makeCatalogs()
{
    StOutcome              stOutcome;
    catalog::CCatalogMaker oMaker;
    readCatalogs(oMaker, registeredTypes(),
                 [&](const catalog::StTypeCatalog& stType) { addCatalog(stType, stOutcome); });
    return stOutcome;
}

StOutcome lintAll()
{
    StOutcome         stOutcome;
    lint::StReadAlong stAlong;
    stAlong.fnType = [&](const catalog::StTypeCatalog& stType) { addCatalog(stType, stOutcome); };
    lint::lintServer(
        "inventory",
        [&](const lint::StFinding& st)
        {
            stOutcome.lstText.push_back(fmt::format("{}:{}:{}+{} {}: {} {} {}", st.strFile, st.ulLine, st.ulColumn,
                                                    st.ulLength, st.strRule, st.strMessage, st.strSource,
                                                    fmt::join(st.lstHelp, " ")));
        },
        stAlong);
    return stOutcome;
}

struct StReadCase
{
    const char* pszName;
    StOutcome (*pfnRead)();
    const char* pszReadAgain;   // what WhatDoesNotFitIsReadAgain opens
    const char* pszAfterChange; // what AFileThatChangesMeanwhileIsReadAnew finds for type A
};

class CThreadTest : public CServerTest
{
protected:
    CThreadTest() { makeModuleFolder(); }
    ~CThreadTest() override
    {
        ::unsetenv(loadThreads::VARIABLE); // no other thread is about. NOLINT(concurrency-mt-unsafe)
        setReadListener(nullptr);
        standalone::setTraceListener({});
    }

    static void setThreads(const std::string& strThreads)
    {
        ::setenv(loadThreads::VARIABLE, strThreads.c_str(), 1); // as above. NOLINT(concurrency-mt-unsafe)
    }
};

class DiffThreadTest : public CThreadTest
{
};

class LoadThreadTest : public CThreadTest, public testing::WithParamInterface<StReadCase>
{
protected:
    static StOutcome read(const std::string& strThreads)
    {
        setThreads(strThreads);
        clearLog();
        return GetParam().pfnRead();
    }

    // The outcome with log and problems.
    static Lines everything(const std::string& strThreads)
    {
        g_lstTold.clear();
        setReadListener([](const StReadProblem& stProblem) { g_lstTold.push_back(problemWithFile(stProblem)); });
        Lines lstText = read(strThreads).lstText;
        for (const Lines& lstMore : {logLinesWithPlace(), g_lstTold})
            lstText.insert(lstText.end(), lstMore.begin(), lstMore.end());
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
};

TEST_P(LoadThreadTest, TheExampleServerIsTheSameWithAnyNumber)
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

TEST_P(LoadThreadTest, ABrokenRootIsTheSameWithAnyNumber)
{
    const std::string OID    = "<upgradecapacity sysoid='1.3'><Operation id='Save' isSupported='0'/></upgradecapacity>";
    const std::string CHECKS = "<C><CheckOperations><CheckOperation id='{}'/></CheckOperations></C>";
    std::string strSql = typesWithFiles({"bytes", "checked", "checked 2", "common", "common 2", "deep", "empty", "fine",
                                         "folder", "late", "latin", "missing", "pipe", "torn", "twin"});
    m_oRoot.writeConfig("bytes.xml", "<C>\n\xC3(</C>");
    m_oRoot.writeConfig("latin.xml", "<?xml version='1.0' encoding='ISO-8859-1'?>\n<C><!-- \xE4 --><DeviceOperation>"
                                     "<!-- opxml-lint: allow \xF6 --><Operation id='\xE4'/></DeviceOperation></C>");
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

// By itself, its document takes more than 12 MB.
std::string longFile(int nOperations = 120000)
{
    std::string strLong = "<C><DeviceOperation>";
    for (int nAt = 0; nAt < nOperations; ++nAt)
        strLong += "<Operation/>";
    return strLong + "</DeviceOperation></C>";
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

TEST_P(LoadThreadTest, EachFileIsReadOnce)
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
            read(pszThreads);
            EXPECT_EQ(stCase.pszFiles, oCount.text());
        }
    }
}

// What the XML library takes is limited.
class CLimitedMemory final : public xercesc::MemoryManager
{
public:
    explicit CLimitedMemory(std::ptrdiff_t nMost) : m_nMost(nMost)
    {
        CXmlParser::create(); // starts the library, if nobody has
        m_pBefore = std::exchange(xercesc::XMLPlatformUtils::fgMemoryManager, this);
    }
    ~CLimitedMemory() override { xercesc::XMLPlatformUtils::fgMemoryManager = m_pBefore; }

    void* allocate(XMLSize_t nSize) override
    {
        if (m_nTaken + static_cast<std::ptrdiff_t>(nSize) > m_nMost)
            throw xercesc::OutOfMemoryException();
        void* const pBytes = m_pBefore->allocate(nSize);
        m_nTaken += static_cast<std::ptrdiff_t>(::malloc_usable_size(pBytes));
        return pBytes;
    }
    void deallocate(void* pBytes) override
    {
        m_nTaken -= static_cast<std::ptrdiff_t>(::malloc_usable_size(pBytes));
        m_pBefore->deallocate(pBytes);
    }
    xercesc::MemoryManager* getExceptionMemoryManager() override { return m_pBefore; }

private:
    xercesc::MemoryManager*     m_pBefore = nullptr;
    const std::ptrdiff_t        m_nMost;
    std::atomic<std::ptrdiff_t> m_nTaken{0};
};

TEST_P(LoadThreadTest, AFileThatIsTooLongForTheMemoryCostsItselfAlone)
{
    m_oRoot.open(typesWithFiles({"A", "B", "C", "D", "E"}));
    m_oRoot.writeConfig("B.xml", longFile());
    for (const char* pszThreads : {"1", "2", "5"})
    {
        SCOPED_TRACE(pszThreads);
        const CLimitedMemory oMemory(std::ptrdiff_t{12} << 20);
        EXPECT_THAT(everything(pszThreads), testing::Contains(testing::HasSubstr("/B.xml: out of memory")));
        EXPECT_THAT(read(pszThreads).setStored, testing::ElementsAre("A: A", "C: C", "D: D", "E: E"));
        CXMLConfigDatabase::finalize();
    }
}

// Two documents that cannot wait beside each other: parsed again rather than kept.
TEST_P(LoadThreadTest, WhatDoesNotFitIsReadAgain)
{
    const std::string strTypes = typesWithFiles({"A", "B", "C", "D", "E", "F"});
    m_oRoot.writeConfig("A.xml", longFile());
    m_oRoot.writeConfig("C.xml", longFile());
    m_oRoot.open(strTypes + "UPDATE config_file SET path = '" + configPath("A.xml") +
                 "' WHERE device_type IN ('B', 'D');"
                 "UPDATE config_file SET path = '" +
                 configPath("C.xml") + "' WHERE device_type = 'E';");
    const COpenCount oCount(m_oRoot.configFolder());
    read("2");
    EXPECT_EQ(GetParam().pszReadAgain, oCount.text());
}

// A file that changes is read as it is when its type's turn comes, whether its
// document was kept or made ahead. The new one is as long as the old one.
TEST_P(LoadThreadTest, AFileThatChangesMeanwhileIsReadAnew)
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
        const std::string strOfA = GetParam().pszAfterChange;
        EXPECT_THAT(read(pszThreads).setStored, testing::ElementsAre("A: " + strOfA, "B: B", "C: new", "D: new"));
    }
}

std::ptrdiff_t threads()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

TEST_P(LoadThreadTest, AsManyThreadsAsAskedForAndNoneAfterwards)
{
    const std::pair<const char*, std::ptrdiff_t> CASES[] = {{"1", 0}, {"2", 1}, {"5", 4}, {"64", 8}}; // one a file
    m_oRoot.open(typesWithFiles({"A", "B", "C", "D", "E", "F", "G", "H", "I"}));
    m_oRoot.writeConfig("A.xml", longFile(30000)); // somebody is at it when the first type is read
    std::thread([] {}).join();                     // a sanitizer's own thread comes with the first one
    for (const auto& [pszThreads, nExpected] : CASES)
    {
        SCOPED_TRACE(pszThreads);
        const std::ptrdiff_t nBefore = threads();
        std::ptrdiff_t       nMost   = 0;
        standalone::setTraceListener([&](const LocationInfo&) { nMost = std::max(nMost, threads()); });
        read(pszThreads);
        standalone::setTraceListener({});
        EXPECT_GE(nExpected, nMost - nBefore); // those that found nothing to do are gone
        EXPECT_EQ(nExpected == 0, nMost == nBefore);
        while (threads() != nBefore) // the system may still list what has been joined
            std::this_thread::yield();
    }
}

// Types with a pair of files each, one with that of another, one that is the same, files
// that break and come into being, and a type whose common file changes.
TEST_F(DiffThreadTest, AComparisonIsTheSameWithAnyNumber)
{
    CTempServerRoot oNew;
    std::string     strSql;
    for (const std::string strName : {"A", "B", "C", "D", "E", "F", "G", "H"})
    {
        strSql += fmt::format("INSERT INTO device_type (name, version) VALUES ('{0}', 'V');"
                              "INSERT INTO config_file VALUES ('{0}', '{1}');",
                              strName, configPath((strName == "D" ? "A" : strName) + ".xml"));
        m_oRoot.writeConfig(strName + ".xml", deviceFile({strName, "Lost"}));
        oNew.writeConfig(strName + ".xml", deviceFile(strName == "B" ? Lines{"B", "Lost"} : Lines{strName, "New"}));
    }
    strSql += "UPDATE device_type SET config_file_type = 1 WHERE name = 'G';";
    m_oRoot.writeConfig("Common_ServerConfiguration.xml", deviceFile({"Common"}));
    oNew.writeConfig("Common_ServerConfiguration.xml", deviceFile({"New"}));
    oNew.writeConfig("C.xml", "<C><DeviceOperation>");
    std::filesystem::remove(m_oRoot.configFolder() + "E.xml");
    oNew.open(strSql);
    m_oRoot.open(strSql);
    std::string strOne;
    for (const char* pszThreads : {"1", "2", "8"})
    {
        setThreads(pszThreads);
        std::string strText;
        printDiffJson(diffRoots(m_oRoot.path(), oNew.path()),
                      [&](const std::string& strPiece) { strText += strPiece; });
        strOne = strOne.empty() ? strText : strOne;
        EXPECT_EQ(strOne, strText) << pszThreads;
        for (const char* pszType : {"A", "C", "D", "E", "F", "G", "H"})
            EXPECT_THAT(strText, testing::HasSubstr(fmt::format("\"{}\"", pszType)));
    }
}

TEST(LoadThreadGroupTest, TheGroupsOfTheProcessLimitIt)
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
        const std::string strGroups = oMount.write("cgroup", stCase.pszGroups);
        EXPECT_EQ(stCase.nExpected, loadThreads::allowedByGroups(strGroups, oMount.path())) << stCase.pszGroups;
    }
}

// Lint goes by files: the types of one come together, and B comes before the common file.
// clang-format off
INSTANTIATE_TEST_SUITE_P(, LoadThreadTest, testing::Values(
    StReadCase{"Load", load, "A.xml 2;C.xml 2;F.xml 1;", "old"},
    StReadCase{"Catalogs", makeCatalogs, "A.xml 2;C.xml 2;F.xml 1;", "old"},
    StReadCase{"Lint", lintAll, "A.xml 1;C.xml 1;F.xml 1;", "new"}),
    [](const auto& oInfo) { return std::string(oInfo.param.pszName); });
// clang-format on
} // namespace

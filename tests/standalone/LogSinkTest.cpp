// The log sinks write exactly the lines they are given, whole and in one order.
#include "TestSupport.h"

#include "platform/Events.h"
#include "platform/Logging.h"
#include "standalone/EventSink.h"
#include "standalone/LogSink.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <thread>

namespace
{
constexpr LocationInfo HERE("CSource", "load", 12);

std::vector<std::string> linesOf(const std::string& strPath)
{
    std::ifstream            oFile(strPath);
    std::vector<std::string> lstLine;
    for (std::string strLine; std::getline(oFile, strLine);)
        lstLine.push_back(strLine);
    return lstLine;
}

// A JSON log that ends with the test.
class JsonLogTest : public testing::Test
{
protected:
    JsonLogTest()
    {
        std::string strError;
        EXPECT_TRUE(standalone::setJsonLog(m_strPath, strError)) << strError;
    }
    ~JsonLogTest() override
    {
        std::string strIgnored;
        standalone::setJsonLog("", strIgnored);
    }

    CTempServerRoot   m_oFolder;
    const std::string m_strPath = m_oFolder.path() + "/log.json";
};

TEST_F(JsonLogTest, WritesOneObjectALine)
{
    LogProcess::Error(0x3B0004EC, "[DCServer]Invalid \"para\".\n\x01", HERE);
    LogProcess::Info("[DCServer]é\xE9{}%s", HERE);
    EXPECT_THAT(
        linesOf(m_strPath),
        testing::ElementsAre(R"({"level":"error","code":989857004,"text":"[DCServer]Invalid \"para\".\n\u0001",)"
                             R"("file":"CSource","function":"load","line":12})",
                             "{\"level\":\"info\",\"code\":0,\"text\":\"[DCServer]é\xEF\xBF\xBD{}%s\","
                             "\"file\":\"CSource\",\"function\":\"load\",\"line\":12}"));
}

TEST_F(JsonLogTest, ThreadsKeepLinesWholeAndInTheListenersOrder)
{
    std::vector<std::thread> lstThread;
    lstThread.reserve(4);
    for (int nThread = 0; nThread < 4; ++nThread)
        lstThread.emplace_back(
            [nThread]
            {
                for (int nLine = 0; nLine < 200; ++nLine)
                    LogProcess::Error(1, std::to_string(nThread * 1000 + nLine), HERE);
            });
    for (std::thread& oThread : lstThread)
        oThread.join();
    std::vector<std::string> lstWritten;
    for (const std::string& strLine : linesOf(m_strPath))
        lstWritten.push_back("E 00000001 " + nlohmann::json::parse(strLine).at("text").get<std::string>());
    EXPECT_EQ(800u, lstWritten.size());
    EXPECT_EQ(logLines(), lstWritten);
}

TEST_F(JsonLogTest, AFileThatCannotBeOpenedLeavesTheOldOne)
{
    std::string strError;
    EXPECT_FALSE(standalone::setJsonLog(m_oFolder.path() + "/none/log", strError));
    EXPECT_THAT(strError, testing::HasSubstr("there is no folder " + m_oFolder.path() + "/none"));
    EXPECT_FALSE(std::filesystem::exists(m_oFolder.path() + "/none"));
    EXPECT_FALSE(standalone::setJsonLog(m_oFolder.path(), strError));
    LogProcess::Info("still here", HERE);
    EXPECT_EQ(1u, linesOf(m_strPath).size());
}

TEST_F(JsonLogTest, AFullDiskStopsNobody)
{
    std::string strError;
    ASSERT_TRUE(standalone::setJsonLog("/dev/full", strError)) << strError;
    testing::internal::CaptureStderr();
    LogProcess::Info("lost", HERE);
    LogProcess::Info("lost", HERE);
    const std::string strSaid = testing::internal::GetCapturedStderr();
    EXPECT_EQ(0u, strSaid.find("cannot write the log: "));
    EXPECT_EQ(strSaid.size() - 1, strSaid.find('\n')) << "said once";
}

TEST(ConsoleLog, EscapesWhatDrivesATerminal)
{
    testing::internal::CaptureStderr();
    standalone::setConsoleLog(standalone::EnConsoleLevel::Errors);
    LogProcess::Error(0x3B0004EC, "a\tb\n\x1B[31m\xC2\x9B\xE9 é{}", HERE);
    LogProcess::Info("not wanted", HERE);
    standalone::setConsoleLog(standalone::EnConsoleLevel::All);
    LogProcess::Info("wanted", HERE);
    standalone::setConsoleLog(standalone::EnConsoleLevel::Off);
    LogProcess::Error(1, "off", HERE);
    EXPECT_EQ("error 0x3B0004EC a\\tb\\n\\x1B[31m\\xC2\\x9B\\xE9 é{} (CSource::load:12)\n"
              "info wanted (CSource::load:12)\n",
              testing::internal::GetCapturedStderr());
}

TEST(Listeners, TraceFilterAndEvents)
{
    std::vector<std::string> lstSeen;
    standalone::setTraceListener([&](const LocationInfo& stWhere) { lstSeen.emplace_back(stWhere.pszFunction); });
    standalone::setLogFilter([](std::string& strText) { strText += "!"; });
    standalone::setEventListener([&](std::uint32_t ulEventID, const TEEventParam& stParam)
                                 { lstSeen.push_back(std::to_string(ulEventID) + stParam.strDevType); });
    TEEventParam stParam;
    stParam.strDevType  = "X";
    std::string strText = "text";
    for (int nRound = 0; nRound < 2; ++nRound) // the second round finds them gone
    {
        const _TraceFunction oTrace(HERE);
        NS_UTIL::CDCLogFilter::getInstance()->filter(strText);
        TEEventMgr::Instance()->raiseEvent(EVENT_CAPACITY_FILE_MISSING, stParam);
        standalone::setTraceListener({});
        standalone::setLogFilter({});
        standalone::setEventListener({});
    }
    EXPECT_THAT(lstSeen, testing::ElementsAre("load", "10007X"));
    EXPECT_EQ("text!", strText);
}
} // namespace

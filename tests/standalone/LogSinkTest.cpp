// The log sinks write exactly the lines they are given, whole and in one order.
#include "TestSupport.h"

#include "platform/Logging.h"
#include "standalone/LogSink.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>
#include <thread>

namespace
{
constexpr LocationInfo HERE("CSource", "load", 12);

// The lines of a log, its times as TIME.
std::vector<std::string> linesOf(std::istream&& oLog)
{
    static const std::regex  TIME(R"((\d{4}-\d\d-\d\dT)?\d\d:\d\d:\d\d\.\d{3}Z?)");
    std::vector<std::string> lstLine;
    for (std::string strLine; std::getline(oLog, strLine);)
        lstLine.push_back(std::regex_replace(strLine, TIME, "TIME"));
    return lstLine;
}

// A JSON log that ends with the test.
class JsonLogTest : public testing::Test
{
protected:
    JsonLogTest() { EXPECT_TRUE(standalone::setJsonLog(m_strPath, m_strError)) << m_strError; }
    ~JsonLogTest() override { standalone::setJsonLog("", m_strError); }

    CTempServerRoot   m_oFolder;
    const std::string m_strPath = m_oFolder.path() + "/log.json";
    std::string       m_strError;
};

TEST_F(JsonLogTest, WritesOneObjectALine)
{
    LogProcess::Error(0x3B0004EC, "[DCServer]Invalid \"para\".\n\x01", HERE);
    standalone::setLogNote("a.xml: line 3");
    LogProcess::Info("[DCServer]é\xE9{}%s", HERE);
    LogProcess::Error(1, "broken", HERE);
    standalone::setLogNote("taken back");
    standalone::setLogNote("");
    LogProcess::Error(1, "broken", HERE);
    EXPECT_THAT(linesOf(std::ifstream(m_strPath)),
                testing::ElementsAre(
                    R"({"time":"TIME","level":"error","code":989857004,"text":"[DCServer]Invalid \"para\".\n\u0001",)"
                    R"("file":"CSource","function":"load","line":12})",
                    "{\"time\":\"TIME\",\"level\":\"info\",\"code\":0,\"text\":\"[DCServer]é\xEF\xBF\xBD{}%s\","
                    "\"file\":\"CSource\",\"function\":\"load\",\"line\":12}",
                    R"({"time":"TIME","level":"error","code":1,"text":"broken","file":"CSource","function":"load",)"
                    R"("line":12,"about":"a.xml: line 3"})",
                    R"({"time":"TIME","level":"error","code":1,"text":"broken","file":"CSource","function":"load",)"
                    R"("line":12})"));
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
    for (const std::string& strLine : linesOf(std::ifstream(m_strPath)))
        lstWritten.push_back("E 00000001 " + nlohmann::json::parse(strLine).at("text").get<std::string>());
    EXPECT_EQ(800u, lstWritten.size());
    EXPECT_EQ(logLines(), lstWritten);
}

TEST_F(JsonLogTest, AFileThatCannotBeOpenedLeavesTheOldOne)
{
    EXPECT_FALSE(standalone::setJsonLog(m_oFolder.path() + "/none/log", m_strError));
    EXPECT_THAT(m_strError, testing::HasSubstr("there is no folder " + m_oFolder.path() + "/none"));
    LogProcess::Info("still here", HERE);
    EXPECT_EQ(1u, linesOf(std::ifstream(m_strPath)).size());
}

TEST_F(JsonLogTest, AFullDiskStopsNobodyAndIsSaidOnce)
{
    ASSERT_TRUE(standalone::setJsonLog("/dev/full", m_strError)) << m_strError;
    testing::internal::CaptureStderr();
    LogProcess::Info("lost", HERE);
    LogProcess::Info("lost", HERE);
    EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::MatchesRegex("cannot write the log: [^\n]*\n"));
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
    EXPECT_THAT(linesOf(std::istringstream(testing::internal::GetCapturedStderr())),
                testing::ElementsAre("TIME error 0x3B0004EC a\\tb\\n\\x1B[31m\\xC2\\x9B\\xE9 é{} (CSource::load:12)",
                                     "TIME info wanted (CSource::load:12)"));
}
} // namespace

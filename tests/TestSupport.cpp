// See TestSupport.h.
#include "TestSupport.h"

#include "records/Vocabulary.h"
#include "standalone/LogSink.h"
#include "standalone/ServerRoot.h"

#include <fmt/format.h>

#include <fstream>
#include <mutex>
#include <stdlib.h>

namespace
{
std::mutex               g_oLogMutex;
std::vector<std::string> g_lstLine;
std::vector<std::string> g_lstPlacedLine;

// Starts every test from nothing.
class CFreshStart : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo& /*oInfo*/) override
    {
        standalone::closeServerRoot();
        standalone::setLogFilter({});
        standalone::setTraceListener({});
        clearLog();
    }
};

void keepLine(const standalone::StLogLine& stLine)
{
    std::lock_guard<std::mutex> oGuard(g_oLogMutex);
    const std::string           strKind = stLine.bError ? fmt::format("E {:08X}", stLine.ulCode) : "I";
    g_lstLine.push_back(fmt::format("{} {}", strKind, stLine.strText));
    g_lstPlacedLine.push_back(
        fmt::format("{} {}::{} {}", strKind, stLine.stWhere.pszFile, stLine.stWhere.pszFunction, stLine.strText));
}
} // namespace

CParsedXml::CParsedXml(std::string_view strXml) : m_pParser(CXmlParser::create())
{
    m_pParser->parseText(fmt::format("<Configuration>{}</Configuration>", strXml));
    EXPECT_EQ("", m_pParser->problem().strText);
}

std::vector<std::string> logLines()
{
    std::lock_guard<std::mutex> oGuard(g_oLogMutex);
    return g_lstLine;
}

std::vector<std::string> logLinesWithPlace()
{
    std::lock_guard<std::mutex> oGuard(g_oLogMutex);
    return g_lstPlacedLine;
}

void clearLog()
{
    std::lock_guard<std::mutex> oGuard(g_oLogMutex);
    g_lstLine.clear();
    g_lstPlacedLine.clear();
}

CTempServerRoot::CTempServerRoot()
{
    std::string strTemplate = (std::filesystem::temp_directory_path() / "operationXml-XXXXXX").string();
    if (::mkdtemp(strTemplate.data()) == nullptr)
        ADD_FAILURE() << "no temporary folder " << strTemplate;
    m_oPath = strTemplate;
}

CTempServerRoot::~CTempServerRoot()
{
    standalone::closeServerRoot();
    std::error_code oIgnored;
    std::filesystem::remove_all(m_oPath, oIgnored);
}

std::string CTempServerRoot::write(const std::string& strPath, std::string_view strContent)
{
    const std::filesystem::path oFile = m_oPath / strPath;
    std::filesystem::create_directories(oFile.parent_path());
    std::ofstream(oFile, std::ios::binary) << strContent;
    return oFile.string();
}

std::string CTempServerRoot::writeConfig(const std::string& strName, std::string_view strContent)
{
    return write(std::string(Vocabulary::CONFIG_FOLDER) + strName, strContent);
}

std::string CTempServerRoot::configFolder() const
{
    return path() + "/" + std::string(Vocabulary::CONFIG_FOLDER);
}

void CTempServerRoot::open(std::string_view strInventory)
{
    write("server.sql", strInventory);
    std::string strError;
    EXPECT_TRUE(standalone::openServerRoot(path(), strError)) << strError;
}

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    standalone::setLogListener(keepLine);
    testing::UnitTest::GetInstance()->listeners().Append(new CFreshStart); // owned by the list
    return RUN_ALL_TESTS();
}

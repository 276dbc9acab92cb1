// See FuzzSupport.h.
#include "FuzzSupport.h"

#include "standalone/ServerRoot.h"
#include "tools/opxml/output/RecordJson.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <system_error>

namespace
{
std::size_t countObjects(const Json& oJson)
{
    std::size_t nObjects = oJson.is_object() ? 1 : 0;
    if (oJson.is_structured())
    {
        for (const Json& oValue : oJson)
            nObjects += countObjects(oValue);
    }
    return nObjects;
}
} // namespace

void broken(const char* pszRule)
{
    std::fprintf(stderr, "Rule broken: %s\n", pszRule);
    std::abort();
}

void requireSame(const StAsnDevTypeVerXMLInfo& stFirst, const StAsnDevTypeVerXMLInfo& stSecond)
{
    const StAsnDevTypeVerXMLInfo stCopy = stFirst;         // NOLINT(performance-unnecessary-copy-initialization)
    require(stFirst == stFirst, "a record equals itself"); // NOLINT(misc-redundant-expression)
    require(stFirst == stCopy && stCopy == stFirst, "a record equals its copy");
    require(stFirst == stSecond && stSecond == stFirst, "the same input gives the same record");
    require(jsonLine(toJson(stFirst)) == jsonLine(toJson(stSecond)), "the same input gives the same fields");
}

std::size_t countRecords(const StAsnDevTypeVerXMLInfo& stInfo)
{
    return countObjects(toJson(stInfo));
}

CFuzzRoot::CFuzzRoot()
{
    const char* pszMemory   = std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
    std::string strTemplate = std::string(pszMemory) + "/operationXml-fuzz-XXXXXX";
    require(::mkdtemp(strTemplate.data()) != nullptr, "there is a folder to write into");
    m_oPath = strTemplate;
}

CFuzzRoot::~CFuzzRoot()
{
    std::error_code oIgnored;
    std::filesystem::remove_all(m_oPath, oIgnored);
}

bool CFuzzRoot::write(const std::string& strPath, std::string_view strContent) const
{
    const std::filesystem::path oFile = m_oPath / strPath;
    std::error_code             oError;
    std::filesystem::create_directories(oFile.parent_path(), oError);
    std::ofstream oStream(oFile, std::ios::binary);
    oStream << strContent;
    return oStream.good();
}

void CFuzzRoot::open(std::string_view strInventory) const
{
    std::string strError;
    require(write("server.sql", strInventory), "the inventory can be written");
    if (!standalone::openServerRoot(path(), strError))
        std::fprintf(stderr, "%s\n", strError.c_str());
    require(strError.empty(), "the target's own inventory opens");
}

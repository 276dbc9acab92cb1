// See CModuleXMLResReader.h.
#include "reader/CModuleXMLResReader.h"

#include "common/Guarded.h"
#include "common/LogLine.h"
#include "platform/FileSystem.h"
#include "platform/Paths.h"
#include "reader/CDevTypeXMLConfig.h"
#include "reader/SectionChain.h"

#include <algorithm>
#include <cerrno>
#include <map>
#include <string_view>
#include <system_error>

namespace
{
constexpr const char* DC_SOURCE = "CModuleXMLResReader";
constexpr const char* UTF8      = "UTF-8";

constexpr std::size_t MAX_SAME_MODULE_TYPE = 4; // times that one module file may name one device type

// The whole path counts, so a file in a folder of such a name is read as well.
bool isModuleFile(const std::string& strFilePath)
{
    return strFilePath.find("ServerConfiguration.xml") != std::string::npos ||
           strFilePath.find("ServerConfiguration.XML") != std::string::npos;
}

// An open folder; closed on every path.
class CFolder
{
public:
    explicit CFolder(const std::string& strFolder)
        : m_pDir(KIVO_OS::opendir(strFolder.c_str(), UTF8)), m_nErrno(m_pDir == nullptr ? errno : 0)
    {
    }
    ~CFolder()
    {
        try
        {
            close();
        }
        catch (...) // of a platform that throws, while another exception is on its way
        {
            m_pDir = nullptr;
        }
    }
    CFolder(const CFolder&)            = delete;
    CFolder& operator=(const CFolder&) = delete;

    bool isOpen() const { return m_pDir != nullptr; }
    int  error() const { return m_nErrno; }

    // The names in it, sorted; a read error ends them.
    std::vector<std::string> readNames() const
    {
        std::vector<std::string> lstName;
        dirent                   stEntry = {};
        dirent*                  pEntry  = nullptr;
        while (KIVO_OS::readdir_r(m_pDir, &stEntry, &pEntry, UTF8) == 0 && pEntry != nullptr)
        {
            std::string strName = pEntry->d_name;
            if (strName != "." && strName != "..")
                lstName.push_back(std::move(strName));
        }
        std::sort(lstName.begin(), lstName.end());
        return lstName;
    }

    void close()
    {
        if (DIR* pDir = std::exchange(m_pDir, nullptr))
            KIVO_OS::closedir(pDir);
    }

private:
    DIR* m_pDir; // null when it could not be opened
    int  m_nErrno;
};

// The file that has given a module its name.
std::string fileOf(const std::vector<StModuleLoad>& lstFile, const std::string& strName)
{
    for (const StModuleLoad& stLoad : lstFile)
    {
        if (stLoad.ulResult == DC_RESULT_OK && stLoad.strName == strName)
            return stLoad.strFile;
    }
    return "another file"; // read by somebody else into the same map
}

// Every naming merges the whole module once more, so a small file could fill the
// memory. The name that passes the limit, or null.
const std::string* findNamedTooOften(const std::list<std::string>& lstDevType)
{
    std::map<std::string_view, std::size_t> mapTimes;
    for (const std::string& strDevType : lstDevType)
    {
        if (++mapTimes[strDevType] > MAX_SAME_MODULE_TYPE)
            return &strDevType;
    }
    return nullptr;
}

std::uint32_t requireFile(const LocationInfo& stWhere, const std::string& strPath)
{
    if (NS_UTIL::IsExists(strPath))
        return DC_RESULT_OK;
    logFail(stWhere, DC_RESULT_INVALID_PARA, "Server config File :" + strPath + " not exist.");
    return DC_RESULT_FILE_NOT_EXIST; // missing files are logged under another code everywhere
}
} // namespace

std::uint32_t CModuleXMLResReader::parseXMLOfDirs(const std::string& strFolder, ModuleInfoMap& mapModule)
try
{
    const _TraceFunction oTrace(DC_HERE);
    CFolder              oFolder(strFolder);
    if (!oFolder.isOpen())
    {
        m_lstProblem.push_back({strFolder, 0, 0, std::generic_category().message(oFolder.error())});
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA,
                       "CModuleXMLResReader::parseXMLOfDirs(): open dir failed! dirname: " + strFolder +
                           ", errno: " + std::to_string(oFolder.error()));
    }
    const std::vector<std::string> lstName = oFolder.readNames();
    oFolder.close(); // before going deeper: a deep tree must not use up descriptors
    if (!isFirstVisit(strFolder))
        return DC_RESULT_OK;
    for (const std::string& strName : lstName)
        readEntry(DC_HERE, strFolder + "/" + strName, mapModule);
    return DC_RESULT_OK;
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

void CModuleXMLResReader::readEntry(const LocationInfo& stWhere, const std::string& strFilePath,
                                    ModuleInfoMap& mapModule)
{
    struct stat oStatbuf = {};
    const int   nStatus  = KIVO_OS::stat(strFilePath.c_str(), &oStatbuf, UTF8);
    const int   nErrno   = errno;
    if (nStatus != 0)
    {
        m_lstProblem.push_back({strFilePath, 0, 0, std::generic_category().message(nErrno)});
        logCall(stWhere, static_cast<std::uint32_t>(nStatus),
                "KIVO_OS::stat(strFilePath.c_str(), &oStatbuf): " + strFilePath);
    }
    else if (S_ISDIR(oStatbuf.st_mode))
    {
        const std::uint32_t ulResult = parseXMLOfDirs(strFilePath, mapModule);
        if (ulResult != DC_RESULT_OK)
            logCall(stWhere, ulResult, "parseXMLOfDirs(strFilePath, pModuleInfoMap): " + strFilePath);
    }
    else if (isModuleFile(strFilePath))
    {
        const std::uint32_t ulResult = parseModuleXML(strFilePath, mapModule);
        if (ulResult != DC_RESULT_OK)
            logCall(stWhere, ulResult, "parseModuleXML(strFilePath, pModuleInfoMap): " + strFilePath);
    }
}

bool CModuleXMLResReader::isFirstVisit(const std::string& strFolder)
{
    struct stat oStatbuf = {};
    // A folder that was opened but cannot be asked who it is counts as new: its
    // modules must not be lost, and a path that goes round ends at the system's limit.
    if (KIVO_OS::stat(strFolder.c_str(), &oStatbuf, UTF8) != 0)
        return true;
    return m_setFolder.emplace(oStatbuf.st_dev, oStatbuf.st_ino).second;
}

std::uint32_t CModuleXMLResReader::parseModuleXML(const std::string& strPath, ModuleInfoMap& mapModule)
try
{
    const _TraceFunction oTrace(DC_HERE);
    StModuleLoad&        stLoad = m_lstFile.emplace_back();
    stLoad.strFile              = strPath;
    stLoad.ulResult             = DC_RESULT_XML_ERROR; // unless it is read to the end
    m_strName.clear();
    m_strWhy.clear();
    std::shared_ptr<CXmlParser> pXmlParser;
    std::uint32_t               ulResult = initialize(strPath, pXmlParser);
    if (ulResult != DC_RESULT_OK)
        logCall(DC_HERE, ulResult, "initialize(strPath, pXmlParser)");
    else
        ulResult = setDevXMLConfig(pXmlParser.get(), mapModule);
    stLoad.strName  = m_strName;
    stLoad.ulResult = ulResult;
    if (pXmlParser != nullptr)
        stLoad.stProblem = pXmlParser->problem();
    if (!stLoad.stProblem.isSet() && !m_strWhy.empty())
        stLoad.stProblem = {strPath, 0, 0, m_strWhy};
    return ulResult;
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CModuleXMLResReader::initialize(const std::string& strPath, CXmlParser* pXmlParser)
try
{
    const _TraceFunction oTrace(DC_HERE);
    const std::uint32_t  ulResult = requireFile(DC_HERE, strPath);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    if (pXmlParser == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, " pXmlParser is null :");
    pXmlParser->parseFile(strPath);
    return DC_RESULT_OK;
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CModuleXMLResReader::initialize(const std::string& strPath, std::shared_ptr<CXmlParser>& pXmlParser)
{
    const _TraceFunction oTrace(DC_HERE);
    const std::uint32_t  ulResult = requireFile(DC_HERE, strPath);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    m_pSource->parse(strPath, EnConfigSource::None, pXmlParser);
    if (pXmlParser == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, " pXmlParser is null :");
    return DC_RESULT_OK;
}

std::uint32_t CModuleXMLResReader::setDevXMLConfig(xercesc::XercesDOMParser* pDOMParser, ModuleInfoMap& mapModule)
try
{
    const _TraceFunction      oTrace(DC_HERE);
    StAsnModuleInfoVerXMLInfo stModule;
    std::uint32_t             ulResult = CDevTypeXMLConfig().setModuleXMLConfig(pDOMParser, m_strName);
    if (ulResult == DC_RESULT_OK)
        ulResult = CDevTypeXMLConfig().setDevTypeXMLConfig(pDOMParser, stModule);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    if (const std::string* pNamedTooOften = findNamedTooOften(stModule.lstSupportDevType))
    {
        m_strWhy = "device type \"" + *pNamedTooOften + "\" is named too many times";
        return logFail(DC_HERE, DC_RESULT_XML_ERROR,
                       "DeviceType is named too many times by one file :" + *pNamedTooOften);
    }
    ulResult = runSectionChain(pDOMParser, stModule);
    if (ulResult != DC_RESULT_OK)
        return ulResult;
    if (!mapModule.emplace(m_strName, std::move(stModule)).second)
    {
        m_strWhy = "its name \"" + m_strName + "\" is taken by " + fileOf(m_lstFile, m_strName) + ", which is kept";
        return logFail(DC_HERE, DC_RESULT_INVALID_PARA,
                       "DeviceType name is already taken by another file :" + m_strName);
    }
    return DC_RESULT_OK;
}
catch (...)
{
    return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

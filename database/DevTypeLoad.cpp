// The start-up load, the read of one device type, and the names of the files.
#include "database/CXMLConfigDatabase.h"

#include "common/Guarded.h"
#include "common/LogLine.h"
#include "platform/Paths.h"
#include "reader/CDevTypeXMLResReader.h"
#include "reader/LoadDocuments.h"
#include "reader/LoadThreads.h"
#include "records/Vocabulary.h"

#include <ace/Guard_T.h>

#include <algorithm>
#include <utility>

namespace
{
constexpr const char* DC_SOURCE = "CXMLConfigDatabase";

// What is known of the types before the first one is read.
std::vector<StLoadType> loadTypes(const std::multimap<std::string, StDeviceType>& mapDeviceType)
{
    std::vector<StLoadType> lstType;
    lstType.reserve(mapDeviceType.size());
    for (const auto& [strDevType, stDeviceType] : mapDeviceType)
        lstType.push_back({CXMLConfigDatabase::trans2TelnetDevType(strDevType, stDeviceType.strDevTypeVer),
                           stDeviceType.enConfigFileType == EnConfigFileCommon, isCapacityType(stDeviceType)});
    return lstType;
}
} // namespace

// The full load of one thread. Ends it whatever happens: nobody is left waiting, and
// the thread does not pass for the loading one for ever.
class CXMLConfigDatabase::CLoad
{
public:
    explicit CLoad(CXMLConfigDatabase& oDatabase) : m_oGuard(m_XMLConfigDBMutex), m_oDatabase(oDatabase)
    {
        m_oDatabase.m_oLoadingThread = std::this_thread::get_id();
        m_oDatabase.m_stLoadReport   = StLoadReport();
    }
    ~CLoad()
    {
        m_oDatabase.m_oLoadingThread = {};
        m_oDatabase.m_nLoadFinished  = 1;
        m_XML_cond.broadcast(); // every waiter gets through, not one of them
    }
    CLoad(const CLoad&)            = delete;
    CLoad& operator=(const CLoad&) = delete;

private:
    ACE_Guard<ACE_Recursive_Thread_Mutex> m_oGuard;
    CXMLConfigDatabase&                   m_oDatabase;
};

std::uint32_t CXMLConfigDatabase::readAndStoreDevTypeXMLConfig()
try
{
    const CEntry         oEntry;
    const CLoad          oLoad(*this);
    const _TraceFunction oTrace(DC_HERE); // after the load has begun: a listener may ask the database

    std::uint32_t ulResult = readAndStoreModuleXMLConfig();
    if (ulResult != DC_RESULT_OK)
        logFail(DC_HERE, ulResult, "readAndStoreModuleXMLConfig failed");

    std::multimap<std::string, StDeviceType> mapDeviceType;
    ulResult = getExistDeviceTypes(mapDeviceType);
    if (ulResult != DC_RESULT_OK)
        return logFail(DC_HERE, ulResult, "getSuppportedDeviceTypes() failed :");
    CLoadDocuments oDocuments(loadTypes(mapDeviceType), loadThreads::count(), LOAD_PARSERS);
    for (const auto& [strDevType, stDeviceType] : mapDeviceType)
    {
        const std::string&                 strDevTypeVer = stDeviceType.strDevTypeVer;
        std::list<StAsnDevTypeVerXMLInfo*> lstInfo; // the records are the store's
        StDevTypeLoad stLoad = {strDevType, strDevTypeVer, trans2TelnetDevType(strDevType, strDevTypeVer), {}, 0};
        stLoad.ulResult      = readDevType(DC_HERE, strDevType, strDevTypeVer, oDocuments, lstInfo, stLoad.stOrigin);
        if (stLoad.ulResult != DC_RESULT_OK)
            logFail(DC_HERE, stLoad.ulResult, "readAndStoreDevTypeXMLConfig() fail." + strDevType + strDevTypeVer);
        m_stLoadReport.lstDevType.push_back(std::move(stLoad));
        oDocuments.endType();
    }
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::uint32_t CXMLConfigDatabase::readAndStoreDevTypeXMLConfig(const std::string&                  strDevType,
                                                               const std::string&                  strDevTypeVer,
                                                               std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
try
{
    const CEntry   oEntry;
    StConfigOrigin stIgnored;
    return readDevType(DC_HERE, strDevType, strDevTypeVer, CDocumentSource::plain(), lstInfo, stIgnored);
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

// Whatever is thrown over one type, it fails and the others go on. The store owns the
// records as soon as it has them.
std::uint32_t CXMLConfigDatabase::readDevType(const LocationInfo& stWhere, const std::string& strDevType,
                                              const std::string& strDevTypeVer, CDocumentSource& oSource,
                                              std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, StConfigOrigin& stOrigin)
{
    std::uint32_t ulResult = DC_RESULT_XML_ERROR;
    bool          bIsOurs  = true;
    try
    {
        const _TraceFunction oTrace(stWhere);
        const bool           bCapacity = isSupportCapacity(strDevType, strDevTypeVer);
        // A name that ends in "_telnet" already, with a version that holds it, gets
        // the suffix a second time: the key follows the version alone.
        const std::string    strKey = trans2TelnetDevType(strDevType, strDevTypeVer);
        CDevTypeXMLResReader oReader(strKey, strDevTypeVer, bCapacity);
        oReader.readFrom(oSource);
        oReader.initializeCheck(); // most types have no check file of their own
        ulResult = oReader.readDevTypeVerXMLFile(lstInfo);
        stOrigin = oReader.origin();
        if (ulResult == DC_RESULT_OK)
        {
            if (m_pModuleInfoMap != nullptr)
                mergeModuleInfoToDev(strDevType, lstInfo); // modules name the type, never its telnet key
            bIsOurs = false;
            store(strKey, lstInfo);
        }
    }
    catch (...)
    {
        if (bIsOurs)
            freeXMLInfo(lstInfo);
        lstInfo.clear();
        ulResult = logThrown(stWhere, DC_RESULT_XML_ERROR);
    }
    if (ulResult != DC_RESULT_OK)
        logFail(stWhere, ulResult,
                "readXMLfile Failed for strDevType = " + strDevType + ", strDevTypeVer = " + strDevTypeVer);
    return ulResult;
}

std::uint32_t CXMLConfigDatabase::getExistDeviceTypes(std::multimap<std::string, StDeviceType>& mapDeviceType)
try
{
    const CEntry            oEntry;
    const _TraceFunction    oTrace(DC_HERE);
    std::list<StDeviceType> strDllList;
    const std::uint32_t     ulResult = CDeviceAdapterInterface::getInstance()->getALLDLLInfo(strDllList);
    if (ulResult != DC_RESULT_OK)
        return logCallUnfiltered(DC_HERE, ulResult,
                                 "CDeviceAdapterInterface::getInstance()->getALLDLLInfo(strDllList)");
    // Entries of one name keep the registry's order.
    for (StDeviceType& stDeviceType : strDllList)
    {
        std::string strDevType = stDeviceType.strDevType;
        mapDeviceType.emplace(std::move(strDevType), std::move(stDeviceType));
    }
    return DC_RESULT_OK;
}
catch (...)
{
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

std::string CXMLConfigDatabase::getDevTypeXMLPath()
try
{
    const CEntry oEntry;
    std::string  strPath;
    NS_UTIL::EmfGetServerPath_DC(strPath);
    NS_UTIL::AppendDirSeparator(strPath);
    return strPath.append(Vocabulary::CONFIG_FOLDER);
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return {};
}

std::string CXMLConfigDatabase::getCommonDevTypeXMLFileName(bool bWholePath)
try
{
    const CEntry oEntry;
    return (bWholePath ? getDevTypeXMLPath() : std::string()).append(Vocabulary::COMMON_FILE_NAME);
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return {};
}

std::string CXMLConfigDatabase::getDevTypeXMLFileName(const std::string& strDevType, const std::string& strVersionOne,
                                                      const std::string& strVersionTwo, bool bWholePath,
                                                      const std::string& strDevTypeVer)
try
{
    const CEntry oEntry;
    std::string  strName = strDevType;
    std::replace_if(
        strName.begin(), strName.end(),
        [](char cChar) { return Vocabulary::NAME_SEPARATORS.find(cChar) != std::string_view::npos; }, '_');
    if (!strDevTypeVer.empty())
        strName = trans2TelnetDevType(strName, strDevTypeVer);
    for (const std::string& strVersion : {strVersionOne, strVersionTwo})
    {
        if (!strVersion.empty())
            strName += "_" + strVersion; // as it is: only the type name is made safe
    }
    strName += Vocabulary::CONFIG_FILE_SUFFIX;
    return bWholePath ? getDevTypeXMLPath() + strName : strName;
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return {};
}

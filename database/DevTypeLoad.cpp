// The start-up load, the read of one device type, and the names of the files.
#include "database/CXMLConfigDatabase.h"

#include "common/LogLine.h"
#include "platform/Paths.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/Vocabulary.h"

#include <ace/Guard_T.h>

#include <algorithm>
#include <new>
#include <utility>

namespace
{
constexpr const char* DC_SOURCE = "CXMLConfigDatabase";
} // namespace

std::uint32_t CXMLConfigDatabase::readAndStoreDevTypeXMLConfig()
{
    const _TraceFunction                        oTrace(DC_HERE);
    const ACE_Guard<ACE_Recursive_Thread_Mutex> oGuard(m_XMLConfigDBMutex);
    m_oLoadingThread = std::this_thread::get_id();

    std::uint32_t ulResult = readAndStoreModuleXMLConfig();
    if (ulResult != DC_RESULT_OK)
        logFail(DC_HERE, ulResult, "readAndStoreModuleXMLConfig failed");

    std::multimap<std::string, StDeviceType> mapDeviceType;
    ulResult = getExistDeviceTypes(mapDeviceType);
    if (ulResult != DC_RESULT_OK)
    {
        logFail(DC_HERE, ulResult, "getSuppportedDeviceTypes() failed :");
        endLoad();
        return ulResult;
    }
    for (const auto& [strDevType, stDeviceType] : mapDeviceType)
    {
        const std::string&                 strDevTypeVer = stDeviceType.strDevTypeVer;
        std::list<StAsnDevTypeVerXMLInfo*> lstInfo; // the records are the store's
        StDevTypeLoad stLoad = {strDevType, strDevTypeVer, trans2TelnetDevType(strDevType, strDevTypeVer), {}, 0};
        stLoad.ulResult      = readDevType(strDevType, strDevTypeVer, lstInfo, stLoad.stOrigin);
        if (stLoad.ulResult != DC_RESULT_OK)
            logFail(DC_HERE, stLoad.ulResult, "readAndStoreDevTypeXMLConfig() fail." + strDevType + strDevTypeVer);
        m_stLoadReport.lstDevType.push_back(std::move(stLoad));
    }
    endLoad();
    return DC_RESULT_OK;
}

void CXMLConfigDatabase::endLoad()
{
    m_oLoadingThread = {};
    m_nLoadFinished  = 1;
    m_XML_cond.broadcast(); // every waiter gets through, not one of them
}

std::uint32_t CXMLConfigDatabase::readAndStoreDevTypeXMLConfig(const std::string&                  strDevType,
                                                               const std::string&                  strDevTypeVer,
                                                               std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    StConfigOrigin stIgnored;
    return readDevType(strDevType, strDevTypeVer, lstInfo, stIgnored);
}

std::uint32_t CXMLConfigDatabase::readDevType(const std::string& strDevType, const std::string& strDevTypeVer,
                                              std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, StConfigOrigin& stOrigin)
{
    const _TraceFunction oTrace(DC_HERE);
    const bool           bCapacity = isSupportCapacity(strDevType, strDevTypeVer);
    // A name that ends in "_telnet" already, with a version that holds it, gets
    // the suffix a second time: the key follows the version alone.
    const std::string    strKey = trans2TelnetDevType(strDevType, strDevTypeVer);
    CDevTypeXMLResReader oReader(strKey, strDevTypeVer, bCapacity);
    std::uint32_t        ulResult = DC_RESULT_XML_ERROR;
    try
    {
        oReader.initializeCheck(); // most types have no check file of their own
        ulResult = oReader.readDevTypeVerXMLFile(lstInfo);
        if (ulResult == DC_RESULT_OK && m_pModuleInfoMap != nullptr)
            mergeModuleInfoToDev(strDevType, lstInfo); // modules name the type, never its telnet key
    }
    catch (const std::bad_alloc&)
    {
        // Memory ran out over this type: it fails, the others go on.
        freeXMLInfo(lstInfo);
        lstInfo.clear();
        ulResult = DC_RESULT_XML_ERROR;
    }
    stOrigin = oReader.origin();
    if (ulResult != DC_RESULT_OK)
        return logFail(DC_HERE, ulResult,
                       "readXMLfile Failed for strDevType = " + strDevType + ", strDevTypeVer = " + strDevTypeVer);
    storeDevTypeXMLConfig(strKey, lstInfo);
    return DC_RESULT_OK;
}

std::uint32_t CXMLConfigDatabase::getExistDeviceTypes(std::multimap<std::string, StDeviceType>& mapDeviceType)
{
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

std::string CXMLConfigDatabase::getDevTypeXMLPath()
{
    std::string strPath;
    NS_UTIL::EmfGetServerPath_DC(strPath);
    NS_UTIL::AppendDirSeparator(strPath);
    return strPath.append(Vocabulary::CONFIG_FOLDER);
}

std::string CXMLConfigDatabase::getCommonDevTypeXMLFileName(bool bWholePath)
{
    return (bWholePath ? getDevTypeXMLPath() : std::string()).append(Vocabulary::COMMON_FILE_NAME);
}

std::string CXMLConfigDatabase::getDevTypeXMLFileName(const std::string& strDevType, const std::string& strVersionOne,
                                                      const std::string& strVersionTwo, bool bWholePath,
                                                      const std::string& strDevTypeVer)
{
    std::string strName = strDevType;
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

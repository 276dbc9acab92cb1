// Store and lifecycle: the singleton, its lock and condition, storing, fetching
// and freeing records.
#include "database/CXMLConfigDatabase.h"

#include "common/LogLine.h"
#include "database/QueryGuard.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/Vocabulary.h"

#include <cstdlib>
#include <set>
#include <utility>

namespace
{
constexpr const char* DC_SOURCE = "CXMLConfigDatabase";

// Hooks the clean-up into process exit; the pointer starts as null.
CXMLConfigDatabase* registerFinalize()
{
    std::atexit(&CXMLConfigDatabase::finalize);
    return nullptr;
}
} // namespace

// The clean-up is registered after these are built, so it runs before they die.
std::atomic<CXMLConfigDatabase*>          CXMLConfigDatabase::m_pInstance{nullptr};
CXMLConfigDatabase*                       CXMLConfigDatabase::m_pLoadingInstance = nullptr;
ACE_Recursive_Thread_Mutex                CXMLConfigDatabase::m_XMLConfigDBMutex;
ACE_Condition<ACE_Recursive_Thread_Mutex> CXMLConfigDatabase::m_XML_cond(m_XMLConfigDBMutex);
std::unique_ptr<ModuleInfoMap>            CXMLConfigDatabase::m_pModuleInfoMap;
CXMLConfigDatabase*                       CXMLConfigDatabase::m_XMLConfigDbDestroyer = registerFinalize();

CXMLConfigDatabase::CXMLConfigDatabase() = default;

CXMLConfigDatabase::~CXMLConfigDatabase()
{
    for (auto& [strKey, lstInfo] : m_mapDevType)
        freeXMLInfo(lstInfo);
}

CXMLConfigDatabase* CXMLConfigDatabase::getInstance()
{
    if (CXMLConfigDatabase* pPublished = m_pInstance.load(std::memory_order_acquire))
        return pPublished;
    const ACE_Guard<ACE_Recursive_Thread_Mutex> oGuard(m_XMLConfigDBMutex);
    if (CXMLConfigDatabase* pPublished = m_pInstance.load(std::memory_order_acquire))
        return pPublished;
    // Only the loading thread gets past the mutex while a load runs.
    if (m_pLoadingInstance != nullptr)
        return m_pLoadingInstance;

    auto pInstance               = std::make_unique<CXMLConfigDatabase>();
    m_pLoadingInstance           = pInstance.get();
    const std::uint32_t ulResult = pInstance->readAndStoreDevTypeXMLConfig();
    if (ulResult != DC_RESULT_OK)
        logFail(DC_HERE, ulResult, "readAndStoreDevTypeXMLConfig() failed :");
    // Published whatever the load gave: what is missing is read on demand.
    m_pLoadingInstance     = nullptr;
    m_XMLConfigDbDestroyer = pInstance.get();
    m_pInstance.store(pInstance.get(), std::memory_order_release);
    return pInstance.release();
}

void CXMLConfigDatabase::finalize()
{
    const std::unique_ptr<CXMLConfigDatabase> pInstance(m_pInstance.exchange(nullptr));
    m_XMLConfigDbDestroyer = nullptr;
    m_pModuleInfoMap.reset();
}

void CXMLConfigDatabase::waitUntilLoaded()
{
    while (m_nLoadFinished == 0 && m_oLoadingThread != std::this_thread::get_id())
        m_XML_cond.wait();
}

void CXMLConfigDatabase::storeDevTypeXMLConfig(const std::string& strKey, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    const _TraceFunction                    oTrace(DC_HERE);
    std::set<const StAsnDevTypeVerXMLInfo*> setNew; // each record is owned once, even if it is named twice
    std::list<StAsnDevTypeVerXMLInfo*>      lstNew(lstInfo);
    lstNew.remove_if([&setNew](const StAsnDevTypeVerXMLInfo* pNew)
                     { return pNew == nullptr || !setNew.insert(pNew).second; });
    const auto itStored = m_mapDevType.find(std::string_view(strKey));
    if (itStored == m_mapDevType.end())
    {
        m_mapDevType.emplace(strKey, std::move(lstNew));
        logInfo(DC_HERE, "Added device " + strKey + " to MAP.");
        return;
    }
    // A record that the new list names again lives on: the list may be an
    // earlier answer, or the stored list itself.
    std::list<StAsnDevTypeVerXMLInfo*>& lstOld = itStored->second;
    lstOld.remove_if([&setNew](const StAsnDevTypeVerXMLInfo* pOld) { return setNew.count(pOld) != 0; });
    freeXMLInfo(lstOld);
    lstOld = std::move(lstNew);
}

std::uint32_t CXMLConfigDatabase::getDevTypeXMLConfig(const std::string& strDevType, const std::string& strDevTypeVer,
                                                      std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, bool bCapacity)
{
    const _TraceFunction oTrace(DC_HERE);
    const CQueryGuard    oGuard(*this);
    // Pointers of an earlier answer may be dead by now: they are not looked at.
    lstInfo.clear();
    std::uint32_t ulResult = DC_RESULT_OK;
    if (bCapacity && isSupportCapacity(strDevType, strDevTypeVer))
    {
        ulResult = CDevTypeXMLResReader(strDevType, strDevTypeVer, true).parseCapacityXML(lstInfo);
        if (ulResult == DC_RESULT_OK)
            storeDevTypeXMLConfig(strDevType, lstInfo); // never under the telnet key
        return ulResult;
    }
    if (const auto* pStored = fetch(strDevType, strDevTypeVer, ulResult))
        lstInfo = *pStored;
    return ulResult;
}

StAsnDevTypeVerXMLInfo* CXMLConfigDatabase::getFirstDevTypeXMLConfig(const std::string& strDevType,
                                                                     const std::string& strDevTypeVer)
{
    const _TraceFunction oTrace(DC_HERE);
    const CQueryGuard    oGuard(*this);
    std::uint32_t        ulResult = DC_RESULT_OK;
    const auto*          pStored  = fetch(strDevType, strDevTypeVer, ulResult);
    if (pStored != nullptr && !pStored->empty())
        return pStored->front();
    logFail(DC_HERE, ulResult, "getDevTypeXMLConfig Method Failed");
    return nullptr;
}

const std::list<StAsnDevTypeVerXMLInfo*>*
CXMLConfigDatabase::fetch(const std::string& strDevType, const std::string& strDevTypeVer, std::uint32_t& ulResult)
{
    const auto* pStored = findStored(strDevType, strDevTypeVer);
    if (pStored != nullptr && !pStored->empty())
        return pStored;
    std::list<StAsnDevTypeVerXMLInfo*> lstRead;
    ulResult = readAndStoreDevTypeXMLConfig(strDevType, strDevTypeVer, lstRead);
    return ulResult == DC_RESULT_OK ? findStored(strDevType, strDevTypeVer) : nullptr;
}

const std::list<StAsnDevTypeVerXMLInfo*>* CXMLConfigDatabase::findStored(const std::string& strDevType,
                                                                         const std::string& strDevTypeVer) const
{
    // The key is the name itself for all but telnet variants: no copy for those.
    const bool bTelnet  = strDevTypeVer.find(Vocabulary::TELNET_SUFFIX) != std::string::npos;
    const auto itStored = bTelnet ? m_mapDevType.find(std::string_view(trans2TelnetDevType(strDevType, strDevTypeVer)))
                                  : m_mapDevType.find(std::string_view(strDevType));
    return itStored == m_mapDevType.end() ? nullptr : &itStored->second;
}

void CXMLConfigDatabase::freeXMLInfo(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    for (StAsnDevTypeVerXMLInfo*& pInfo : lstInfo)
        delete std::exchange(pInfo, nullptr);
}

StLoadReport CXMLConfigDatabase::getLoadReport()
{
    const CQueryGuard oGuard(*this);
    return m_stLoadReport;
}

void CXMLConfigDatabase::visitDevTypes(
    const std::function<void(const std::string&, const std::list<StAsnDevTypeVerXMLInfo*>&)>& fnVisit)
{
    const CQueryGuard oGuard(*this);
    for (const auto& [strKey, lstInfo] : m_mapDevType)
        fnVisit(std::string(strKey), lstInfo);
}

void CXMLConfigDatabase::visitModules(
    const std::function<void(const std::string&, const StAsnModuleInfoVerXMLInfo&)>& fnVisit)
{
    const CQueryGuard oGuard(*this);
    if (m_pModuleInfoMap == nullptr)
        return;
    for (const auto& [strName, stModule] : *m_pModuleInfoMap)
        fnVisit(strName, stModule);
}

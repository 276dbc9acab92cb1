// Store and lifecycle: the singleton, its lock and condition, storing, fetching
// and freeing records.
#include "database/CXMLConfigDatabase.h"

#include "common/Guarded.h"
#include "common/LogLine.h"
#include "database/QueryGuard.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/Vocabulary.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <set>
#include <utility>

namespace
{
constexpr const char* DC_SOURCE = "CXMLConfigDatabase";

// Where the one instance lives: no memory can be short of it.
class COneDatabase : public CXMLConfigDatabase
{
};
std::optional<COneDatabase> s_oInstance;

// Names the instance that is being loaded, whatever ends the load.
class CLoadingInstance
{
public:
    CLoadingInstance(CXMLConfigDatabase*& pLoading, CXMLConfigDatabase* pInstance) : m_pLoading(pLoading)
    {
        m_pLoading = pInstance;
    }
    ~CLoadingInstance() { m_pLoading = nullptr; }
    CLoadingInstance(const CLoadingInstance&)            = delete;
    CLoadingInstance& operator=(const CLoadingInstance&) = delete;

private:
    CXMLConfigDatabase*& m_pLoading;
};

// Hooks the clean-up into process exit; the pointer starts as null.
CXMLConfigDatabase* registerFinalize()
{
    std::atexit(&CXMLConfigDatabase::finalize);
    return nullptr;
}
} // namespace

// The clean-up is registered after these are built, so it runs before they die.
std::atomic<CXMLConfigDatabase*>                                    CXMLConfigDatabase::m_pInstance{nullptr};
CXMLConfigDatabase*                                                 CXMLConfigDatabase::m_pLoadingInstance = nullptr;
ACE_Recursive_Thread_Mutex                                          CXMLConfigDatabase::m_XMLConfigDBMutex;
ACE_Condition<ACE_Recursive_Thread_Mutex>                           CXMLConfigDatabase::m_XML_cond(m_XMLConfigDBMutex);
std::unique_ptr<ModuleInfoMap>                                      CXMLConfigDatabase::m_pModuleInfoMap;
std::map<std::string_view, std::vector<StAsnModuleInfoVerXMLInfo*>> CXMLConfigDatabase::m_mapModulesOfType;
CXMLConfigDatabase* CXMLConfigDatabase::m_XMLConfigDbDestroyer = registerFinalize();

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

    CXMLConfigDatabase* const pInstance = &s_oInstance.emplace();
    try
    {
        const CLoadingInstance oLoading(m_pLoadingInstance, pInstance);
        const std::uint32_t    ulResult = pInstance->readAndStoreDevTypeXMLConfig();
        if (ulResult != DC_RESULT_OK)
            logFail(DC_HERE, ulResult, "readAndStoreDevTypeXMLConfig() failed :");
    }
    catch (...)
    {
        logThrown(DC_HERE, DC_RESULT_XML_ERROR);
    }
    // Published whatever the load gave: what is missing is read on demand.
    m_XMLConfigDbDestroyer = pInstance;
    m_pInstance.store(pInstance, std::memory_order_release);
    return pInstance;
}

void CXMLConfigDatabase::finalize()
{
    m_pInstance            = nullptr;
    m_XMLConfigDbDestroyer = nullptr;
    s_oInstance.reset();
    m_mapModulesOfType.clear();
    m_pModuleInfoMap.reset();
}

void CXMLConfigDatabase::waitUntilLoaded()
{
    while (m_nLoadFinished == 0 && m_oLoadingThread != std::this_thread::get_id())
        m_XML_cond.wait();
}

void CXMLConfigDatabase::storeDevTypeXMLConfig(const std::string& strKey, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
try
{
    const CEntry oEntry;
    store(strKey, lstInfo);
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

void CXMLConfigDatabase::store(const std::string& strKey, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
{
    const LocationInfo stHere(DC_SOURCE, "storeDevTypeXMLConfig", __LINE__);
    bool               bIsNew = false;
    try
    {
        const _TraceFunction                    oTrace(stHere);
        std::set<const StAsnDevTypeVerXMLInfo*> setNew; // each record is owned once, even if it is named twice
        std::list<StAsnDevTypeVerXMLInfo*>      lstNew;
        for (StAsnDevTypeVerXMLInfo* pNew : lstInfo)
        {
            if (pNew != nullptr && setNew.insert(pNew).second)
                lstNew.push_back(pNew);
        }
        auto itStored = m_mapDevType.find(std::string_view(strKey));
        bIsNew        = itStored == m_mapDevType.end();
        if (bIsNew)
            itStored = m_mapDevType.emplace(strKey, std::list<StAsnDevTypeVerXMLInfo*>()).first;
        // Nothing throws from here on. A record that the new list names again lives
        // on: the list may be an earlier answer, or the stored list itself.
        std::list<StAsnDevTypeVerXMLInfo*>& lstOld = itStored->second;
        lstOld.remove_if([&setNew](const StAsnDevTypeVerXMLInfo* pOld) { return setNew.count(pOld) != 0; });
        freeXMLInfo(lstOld);
        lstOld.swap(lstNew);
    }
    catch (...)
    {
        freeUnstored(strKey, lstInfo);
        throw;
    }
    if (bIsNew)
        logInfo(stHere, "Added device " + strKey + " to MAP.");
}

void CXMLConfigDatabase::freeUnstored(const std::string& strKey, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo) noexcept
{
    const auto itStored = m_mapDevType.find(std::string_view(strKey));
    if (itStored != m_mapDevType.end())
    {
        if (&itStored->second == &lstInfo)
            return;
        for (StAsnDevTypeVerXMLInfo* pStored : itStored->second)
            lstInfo.remove(pStored);
    }
    while (!lstInfo.empty())
    {
        StAsnDevTypeVerXMLInfo* const pInfo = lstInfo.front();
        lstInfo.remove(pInfo); // each is freed once, even if it is named twice
        delete pInfo;
    }
}

std::uint32_t CXMLConfigDatabase::getDevTypeXMLConfig(const std::string& strDevType, const std::string& strDevTypeVer,
                                                      std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, bool bCapacity)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const CQueryGuard    oGuard(*this);
    // Pointers of an earlier answer may be dead by now: they are not looked at.
    lstInfo.clear();
    std::uint32_t ulResult = DC_RESULT_OK;
    if (bCapacity && isSupportCapacity(strDevType, strDevTypeVer))
    {
        ulResult = CDevTypeXMLResReader(strDevType, strDevTypeVer, true).parseCapacityXML(lstInfo);
        if (ulResult == DC_RESULT_OK)
            store(strDevType, lstInfo); // never under the telnet key
        return ulResult;
    }
    if (const auto* pStored = fetch(strDevType, strDevTypeVer, ulResult))
        lstInfo = *pStored;
    return ulResult;
}
catch (...)
{
    lstInfo.clear(); // what it held is the store's or gone
    return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

StAsnDevTypeVerXMLInfo* CXMLConfigDatabase::getFirstDevTypeXMLConfig(const std::string& strDevType,
                                                                     const std::string& strDevTypeVer)
try
{
    const CEntry         oEntry;
    const _TraceFunction oTrace(DC_HERE);
    const CQueryGuard    oGuard(*this);
    std::uint32_t        ulResult = DC_RESULT_OK;
    const auto*          pStored  = fetch(strDevType, strDevTypeVer, ulResult);
    if (pStored != nullptr && !pStored->empty())
        return pStored->front();
    logFail(DC_HERE, ulResult, "getDevTypeXMLConfig Method Failed");
    return nullptr;
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
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

void CXMLConfigDatabase::freeXMLInfo(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo) noexcept
{
    for (StAsnDevTypeVerXMLInfo*& pInfo : lstInfo)
        delete std::exchange(pInfo, nullptr);
}

StLoadReport CXMLConfigDatabase::getLoadReport()
try
{
    const CEntry      oEntry;
    const CQueryGuard oGuard(*this);
    return m_stLoadReport;
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
    return {};
}

void CXMLConfigDatabase::visitDevTypes(
    const std::function<void(const std::string&, const std::list<StAsnDevTypeVerXMLInfo*>&)>& fnVisit)
try
{
    const CEntry      oEntry;
    const CQueryGuard oGuard(*this);
    for (const auto& [strKey, lstInfo] : m_mapDevType)
        fnVisit(std::string(strKey), lstInfo);
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

void CXMLConfigDatabase::visitModules(
    const std::function<void(const std::string&, const StAsnModuleInfoVerXMLInfo&)>& fnVisit)
try
{
    const CEntry      oEntry;
    const CQueryGuard oGuard(*this);
    if (m_pModuleInfoMap == nullptr)
        return;
    for (const auto& [strName, stModule] : *m_pModuleInfoMap)
        fnVisit(strName, stModule);
}
catch (...)
{
    answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
}

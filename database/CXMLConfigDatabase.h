// CXMLConfigDatabase: the process-wide store of device-type configurations and
// the one place that answers questions about them.
//
// Threads. One recursive mutex, m_XMLConfigDBMutex, guards every instance;
// queries and lookups may come from any number of threads at any time, the first
// getInstance() included. Platform calls run while the mutex is held. finalize()
// is the exception: nothing else may use the database while it runs.
//
// Record pointers that an operation hands out belong to the store. They stay
// valid until their key is stored again (a capacity read of the type, or a read
// of a type whose list was empty) or finalize() runs; no lock of the caller's can
// extend that. Where another thread may do either, such a pointer is unsafe from
// the moment it is handed out, even for a copy: copy inside visitDevTypes, which
// holds the mutex. Queries copy their answers and hand out no pointer.
//
// Exceptions. None leaves: memory that runs out and platform calls that throw end in
// one log line, and DC_RESULT_XML_ERROR or the answer of a question that nobody can
// answer. What is stored stays whole; out values are then worth nothing.
//
// "The caller holds the mutex" means a caller inside the library: nobody else can.
// From outside, those operations are safe only while no other thread is about.
#ifndef OPERATIONXML_DATABASE_CXMLCONFIGDATABASE_H
#define OPERATIONXML_DATABASE_CXMLCONFIGDATABASE_H

#include "database/LoadReport.h"
#include "platform/DeviceAdapter.h"
#include "platform/DeviceDatabase.h"
#include "platform/Export.h"
#include "records/ModuleRecords.h"
#include "records/RootRecords.h"

#include <ace/Condition_Recursive_Thread_Mutex.h>
#include <ace/Recursive_Thread_Mutex.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

class CDocumentSource;
struct LocationInfo;

class OPERATIONXML_API CXMLConfigDatabase
{
public:
    // ---- Store and lifecycle (CXMLConfigDatabase.cpp) ----

    // The database, created and loaded on first use. Other threads wait for the
    // whole load; the loading thread itself gets the instance that is being
    // loaded. Never null: the instance needs no memory of its own, and a load that
    // failed or ran out of memory leaves a database that reads device types on demand.
    static CXMLConfigDatabase* getInstance();

    ~CXMLConfigDatabase();
    CXMLConfigDatabase(const CXMLConfigDatabase&)            = delete;
    CXMLConfigDatabase& operator=(const CXMLConfigDatabase&) = delete;

    // Destroys the database with all records, and the module map. Runs at process
    // exit; takes no lock, so no other thread may still use the database. A later
    // getInstance() loads anew.
    static void finalize();

    // Puts the records under a key; the store owns them from then on. Records
    // stored there before are freed, save those that the new list names again.
    // Null pointers are left out. When memory runs out the store is as before, the
    // new records are freed and lstInfo comes back empty. The caller holds the mutex
    // (the load and the lookups do).
    void storeDevTypeXMLConfig(const std::string& strKey, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo);

    // Fills lstInfo with the records of a device type; what it held before is
    // dropped, not freed and not looked at. With bCapacity a capacity-capable type
    // is read anew and its old records die. Otherwise the store answers, and a
    // type that is not there is read now. 0, or the reader's code: lstInfo is then
    // empty. Waits until the start-up load has ended, without a time limit.
    std::uint32_t getDevTypeXMLConfig(const std::string& strDevType, const std::string& strDevTypeVer,
                                      std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, bool bCapacity);

    // The first of those records, or null with one error line. The pointer lives as
    // said above: unsafe while other threads read capacities of the type.
    StAsnDevTypeVerXMLInfo* getFirstDevTypeXMLConfig(const std::string& strDevType, const std::string& strDevTypeVer);

    // Frees the records of a list and nulls its pointers; the list keeps its length.
    // Takes no lock, and is not for lists that the database filled: their records
    // are the store's and would be freed twice.
    void freeXMLInfo(std::list<StAsnDevTypeVerXMLInfo*>& lstInfo) noexcept;

    // The next three are for tools that show what was read; a server asks none of them.

    // What the start-up load did, entry by entry. A copy.
    StLoadReport getLoadReport();

    // Calls fnVisit for every key of the store in order. The mutex is held
    // meanwhile: fnVisit must not wait for other threads that ask the database, nor
    // read a capacity itself. What it is handed is valid until it returns. What it
    // throws ends the visit.
    void
    visitDevTypes(const std::function<void(const std::string&, const std::list<StAsnDevTypeVerXMLInfo*>&)>& fnVisit);

    // The same for every module by name.
    void visitModules(const std::function<void(const std::string&, const StAsnModuleInfoVerXMLInfo&)>& fnVisit);

    // ---- Load and file names (DevTypeLoad.cpp) ----

    // The full start-up load. 0, also when single types failed; the registry's
    // code when the installed types cannot be listed. The load report starts anew.
    std::uint32_t readAndStoreDevTypeXMLConfig();

    // Reads, merges and stores one device type, leaving its records in lstInfo,
    // which must come in empty. The caller holds the mutex.
    std::uint32_t readAndStoreDevTypeXMLConfig(const std::string& strDevType, const std::string& strDevTypeVer,
                                               std::list<StAsnDevTypeVerXMLInfo*>& lstInfo);

    // Adds every installed device type to the map, under its name. After a code
    // that is not 0 the map may hold some of them.
    std::uint32_t getExistDeviceTypes(std::multimap<std::string, StDeviceType>& mapDeviceType);

    // File names need no instance, so a reader may ask for them during the load.
    static std::string getDevTypeXMLPath(); // ends in a separator
    static std::string getCommonDevTypeXMLFileName(bool bWholePath);
    static std::string getDevTypeXMLFileName(const std::string& strDevType, const std::string& strVersionOne,
                                             const std::string& strVersionTwo, bool bWholePath,
                                             const std::string& strDevTypeVer);

    // ---- Module merge (ModuleMerge.cpp); the caller holds the mutex ----

    // Reads all module configurations. The map keeps what could be read.
    std::uint32_t readAndStoreModuleXMLConfig();

    // Appends what every module offers the device type to its first record; once
    // for each time that a module names the type.
    void mergeModuleInfoToDev(std::string strDevType, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo);

    // Appends copies of one module's operations and task configurations to a record,
    // or, when memory runs out, none.
    void mergeXmlConfig(StAsnModuleInfoVerXMLInfo& stModule, StAsnDevTypeVerXMLInfo* pInfo);

    // ---- Capability queries (CapabilityQueries.cpp) ----
    // They search the first record of the type. Ids compare exactly, the first
    // match decides. Without a record: DC_RESULT_INVALID_PARA, answer false.

    std::uint32_t isDeviceOpSupported(const std::string& strDevType, const std::string& strDevTypeVer,
                                      const std::string& strOperId, bool& bIsSupported);
    std::uint32_t isDeviceOpParaSupported(const std::string& strDevType, const std::string& strDevTypeVer,
                                          const std::string& strOperId, const std::string& strParamId,
                                          bool& bIsSupported);

    // The flag of the other operation, or whether its parameter is required.
    std::uint32_t isOtherOpSupported(const std::string& strDevType, const std::string& strDevTypeVer,
                                     const std::string& strOperId, bool& bIsSupported);
    std::uint32_t isOtherOpSupported(const std::string& strDevType, const std::string& strDevTypeVer,
                                     const std::string& strOperId, const std::string& strParamId, bool& bIsSupported);

    // True also when the device cannot be resolved; a check operation of the id
    // overrides a task operation of it.
    bool isCancelOperSupported(int nDeviceID, const std::string& strOperId);

    // The platform's code when the device cannot be resolved.
    std::uint32_t isSupportTaskType(int nDeviceID, DCAsn1ClientToServer::AsnTaskTypeEnum enTaskType,
                                    bool& bIsSupported);

    // These three take no lock and ask only the platform.
    bool               isSupportCapacity(const std::string& strDevType, const std::string& strDevTypeVer);
    static std::string trans2TelnetDevType(const std::string& strDevType, const std::string& strDevTypeVer);
    static bool        bTelnetToDev(const StDeviceInfo& stDeviceInfo);

    // For opxml alone: the same answer with the step that gave it. The first step
    // that applies decides; each always gives the same answer, save the last.
    enum class EnTelnetStep
    {
        Domain,       // no: the type is not datacom
        NoDevice,     // no: the id stands for no device
        LoginState,   // yes
        ConnectState, // no
        Snmp,         // no: managed over SNMP
        NotV3R7,      // yes
        OtherType,    // yes: compatible with another type
        Capability,   // what isSupportTelnetToDevice says
    };
    static bool bTelnetToDev(const StDeviceInfo& stDeviceInfo, EnTelnetStep& enDecided);

    // ---- Content types and board types (ContentTypes.cpp) ----
    // 0 with an untouched output when nothing matches, so callers pre-set it; the
    // platform's code when a device or id cannot be resolved;
    // DC_RESULT_INVALID_PARA without a record. All operations of the id and all
    // their parameters named "ContentType" are searched: in each parameter the first
    // option that matches counts, and of several parameters the last one that has one.

    // The name of a content-type value of a device: of an option of the device
    // operation "Backup", "LoadData" and "Backup". Only the third asks bTelnetToDev
    // and then looks at the telnet variant; the others look where the device
    // database says.
    std::uint32_t getContentTypeId(unsigned long ulDeviceID, int nContentType, std::string& strName);
    std::uint32_t getLoadDataContentTypeID(unsigned long ulDeviceID, int nContentType, std::string& strName);
    std::uint32_t getBackupContentTypeId(unsigned long ulDeviceID, int nContentType, std::string& strName);

    // Name of a value, and value of a name, of a device type's "SAM" operation.
    std::uint32_t getSAMContentTypeID(const std::string& strDevType, const std::string& strDevTypeVer,
                                      const int& nContentType, std::string& strName);
    std::uint32_t getSAMContentTypeValue(const std::string& strDevType, const std::string& strDevTypeVer,
                                         const std::string& strName, int& nContentType);

    // The name of a board type; DC_RESULT_FILE_NOT_EXIST when the type has no
    // task operations at all.
    std::uint32_t getBoardType(unsigned int ulDeviceTypeID, unsigned int ulDeviceTypeVersionID, int nBoardType,
                               std::string& strName);

    // Every backup content type as "value,name;", emptied first once there is a record.
    std::uint32_t getAllBackupContentTypeNameByDevTypeName(const std::string& strDevType, std::string& strList,
                                                           const EnDeviceType& enDeviceType);

protected:
    // Only getInstance() makes one: a database that nobody loads would let its first
    // question wait for ever.
    CXMLConfigDatabase();

private:
    class CQueryGuard;
    class CLoad;

    void waitUntilLoaded();
    // storeDevTypeXMLConfig, but throws when memory runs out.
    void store(const std::string& strKey, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo);
    void freeUnstored(const std::string& strKey, std::list<StAsnDevTypeVerXMLInfo*>& lstInfo) noexcept;
    // The stored list of a type, reading the type now when there is none: null with a code on failure.
    const std::list<StAsnDevTypeVerXMLInfo*>* fetch(const std::string& strDevType, const std::string& strDevTypeVer,
                                                    std::uint32_t& ulResult);
    const std::list<StAsnDevTypeVerXMLInfo*>* findStored(const std::string& strDevType,
                                                         const std::string& strDevTypeVer) const;
    std::uint32_t                             readDevType(const LocationInfo& stWhere, const std::string& strDevType,
                                                          const std::string& strDevTypeVer, CDocumentSource& oSource,
                                                          std::list<StAsnDevTypeVerXMLInfo*>& lstInfo, StConfigOrigin& stOrigin);
    std::uint32_t readContentName(const std::string& strDevType, const std::string& strDevTypeVer,
                                  std::string_view strOperId, int nValue, std::string& strName);
    std::uint32_t readDeviceContentName(const LocationInfo& stWhere, unsigned long ulDeviceID,
                                        std::string_view strOperId, int nValue, std::string& strName);

    // Guarded by m_XMLConfigDBMutex. Owns every record in its lists. Its nodes and
    // keys lie together, apart from the records: among ten thousand types a lookup
    // visits fifteen of them. Entries are never removed.
    using DevTypeMap = std::pmr::map<std::pmr::string, std::list<StAsnDevTypeVerXMLInfo*>, std::less<>>;
    std::pmr::monotonic_buffer_resource m_oKeyMemory;
    DevTypeMap                          m_mapDevType{&m_oKeyMemory};
    std::int32_t                        m_nLoadFinished = 0; // guarded; 0 until the full load has ended, then 1
    std::thread::id m_oLoadingThread; // guarded; who runs the full load, which must not wait for itself
    StLoadReport    m_stLoadReport;   // guarded

    static std::atomic<CXMLConfigDatabase*> m_pInstance;            // published when loaded
    static CXMLConfigDatabase*              m_pLoadingInstance;     // guarded; while getInstance() loads
    static CXMLConfigDatabase*              m_XMLConfigDbDestroyer; // its initialiser registers the exit handler
    static ACE_Recursive_Thread_Mutex       m_XMLConfigDBMutex;
    static ACE_Condition<ACE_Recursive_Thread_Mutex> m_XML_cond;       // the full load has ended
    static std::unique_ptr<ModuleInfoMap>            m_pModuleInfoMap; // guarded; null until read

    // Guarded; the modules of m_pModuleInfoMap by each device type that they name,
    // in the order of the merge, one entry for every naming.
    static std::map<std::string_view, std::vector<StAsnModuleInfoVerXMLInfo*>> m_mapModulesOfType;
};

#endif

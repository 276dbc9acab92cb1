// StInventory: a server root's inventory in memory, with the lookups that the
// services answer from. Filled once by the inventory reader, immutable from then
// on: any number of threads may ask at once. A service holds the pointer for the
// length of a call, so closing the root never pulls it away.
#ifndef OPERATIONXML_STANDALONE_INVENTORY_H
#define OPERATIONXML_STANDALONE_INVENTORY_H

#include "platform/CapacityDatabase.h"
#include "platform/DeviceAdapter.h"
#include "platform/DeviceDatabase.h"
#include "records/OperationRecords.h"

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace standalone
{
struct StCheckFile
{
    std::string       strPath;
    EnCheckReportType enReportType = EnCheckReportNone;
};

struct StDeviceClass
{
    EnDeviceType                 enDomain = EnDeviceTypeUnknown;
    bool                         bSnmp    = false;
    bool                         bV3R7    = false;
    std::optional<std::uint16_t> oCompatible; // none: compatible with itself
};

struct StManagedDevice
{
    StDeviceInfo    stInfo;
    StAsnDevVersion stVersion; // what it runs
};

struct StInventory
{
    // The root as the caller named it, without a trailing separator, so that
    // logs and results show what people typed. "" for the file system's root.
    std::string strRoot;

    std::vector<StDeviceType>            lstDeviceType; // registry order
    std::optional<std::set<std::string>> oListed;       // names withoutTelnet() that the adapter lists; none: all
    std::vector<StManagedDevice>         lstDevice;     // by device id

    std::unordered_map<std::string, std::string>                mapConfigFile; // storage key to whole path
    std::unordered_map<std::string, StCheckFile>                mapCheckFile;  // storage key, whole path
    std::unordered_map<std::uint32_t, StDeviceClass>            mapDeviceClass;
    std::set<std::pair<std::uint32_t, std::string>>             setTelnetSupport;
    std::unordered_map<std::string, std::list<StAsnDevVersion>> mapVersion;  // pairKey(storage key, version)
    std::unordered_map<std::string, std::list<StCapacityInfo>>  mapCapacity; // pairKey(storage key, version)
    std::unordered_map<std::string, std::string>                mapSetting;
    std::unordered_map<std::string, std::int64_t>               mapConfigItem; // pairKey(section, key)
    std::unordered_map<std::string, std::string>                mapResource;
    std::map<std::string, std::string>                          mapEnvironment; // as written, "${ROOT}" and all

    // Positions in the vectors; buildIndexes() makes them when the rows are in.
    std::unordered_map<std::string, std::size_t>              mapTypeByName; // first row of pairKey(name, version)
    std::unordered_map<std::uint64_t, std::size_t>            mapTypeById;   // first row of the two ids
    std::unordered_map<std::uint32_t, std::size_t>            mapDeviceById;
    std::unordered_map<std::string, std::vector<std::size_t>> mapDeviceByType; // pairKey of the device's type row

    void buildIndexes();

    // The first row of the name and version. The storage key of a telnet variant
    // finds it as well when no row bears the whole key; only one suffix is taken
    // off, so "X_telnet_telnet" finds "X_telnet".
    const StDeviceType* findType(const std::string& strName, const std::string& strVersion) const;

    // The first row of the two ids.
    const StDeviceType* findType(std::uint32_t ulDeviceTypeID, std::uint32_t ulDeviceTypeVersionID) const;

    const StManagedDevice* findDevice(unsigned long ulDeviceID) const;

    // Name and version of that row; RESULT_NOT_IN_INVENTORY and nothing written when there is none.
    std::uint32_t typeName(std::uint32_t ulDeviceTypeID, std::uint32_t ulDeviceTypeVersionID, std::string& strDevType,
                           std::string& strDevTypeVer) const;

    // The class of a type id, all defaults when it has no row.
    StDeviceClass classOf(std::uint32_t ulDeviceTypeID) const;

    // A path of the inventory, whole; "" stays empty.
    std::string wholePath(const std::string& strPath) const;

    // The value of an environment name or its default, "" when it has neither.
    std::string environment(const std::string& strName, bool bExpand) const;
};

// A type name or storage key without "_telnet" at its end, however often it stands there.
std::string withoutTelnet(std::string strName);

// Two texts as one map key. No text of an inventory holds a NUL byte.
std::string pairKey(const std::string& strFirst, const std::string& strSecond);

// The value of a key, or null.
template <typename Map, typename Key>
const typename Map::mapped_type* findValue(const Map& mapAny, const Key& oKey)
{
    const auto itFound = mapAny.find(oKey);
    return itFound == mapAny.end() ? nullptr : &itFound->second;
}

// The inventory of the open root; null when none is open.
std::shared_ptr<const StInventory> currentInventory();
void                               setCurrentInventory(std::shared_ptr<const StInventory> pInventory);
} // namespace standalone

#endif

// One row of this file's table for each table of schema.sql; the functions above
// take the columns in the order in which the row lists them.
#include "standalone/InventoryTables.h"

#include <strings.h>
#include <utility>

namespace standalone
{
namespace
{
using Number = std::int32_t;
using Id     = std::uint32_t;

void addDeviceType(CInventoryRow& oRow, StInventory& stInventory)
{
    StDeviceType stType;
    oRow.number<std::int64_t>(); // position: it has ordered the rows
    stType.strDevType            = oRow.text();
    stType.strDevTypeVer         = oRow.text();
    stType.ulDeviceTypeID        = oRow.number<Id>();
    stType.ulDeviceTypeVersionID = oRow.number<Id>();
    stType.enConfigFileType      = static_cast<EnConfigFileType>(oRow.number<Number>());
    stType.strDevSysOid          = oRow.text();
    stType.nSupportUpgrade       = oRow.number<Number>();
    stType.nSupportCapacity      = oRow.number<Number>();
    stType.nCapacityPerVersion   = oRow.number<Number>();
    stType.nSupportPatch         = oRow.number<Number>();
    stType.nSupportBackup        = oRow.number<Number>();
    stType.nMaxConcurrency       = oRow.number<Number>();
    stType.strDllName            = oRow.text();
    stType.strSeries             = oRow.text();
    stType.strDescription        = oRow.text();
    stType.strProtocol           = oRow.text();
    stType.strRemark             = oRow.text();
    stInventory.lstDeviceType.push_back(std::move(stType));
}

void addConfigFile(CInventoryRow& oRow, StInventory& stInventory)
{
    std::string strKey = oRow.text();
    oRow.requireNew(
        stInventory.mapConfigFile.try_emplace(std::move(strKey), stInventory.wholePath(oRow.text())).second);
}

void addCheckFile(CInventoryRow& oRow, StInventory& stInventory)
{
    std::string strKey = oRow.text();
    StCheckFile stFile;
    stFile.strPath      = stInventory.wholePath(oRow.text());
    stFile.enReportType = static_cast<EnCheckReportType>(oRow.number(EnCheckReportNone, EnCheckReportSummary));
    oRow.requireNew(stInventory.mapCheckFile.try_emplace(std::move(strKey), std::move(stFile)).second);
}

void addDeviceClass(CInventoryRow& oRow, StInventory& stInventory)
{
    const Id      ulTypeID = oRow.number<Id>();
    StDeviceClass stClass;
    stClass.enDomain = static_cast<EnDeviceType>(oRow.number(EnDeviceTypeUnset, EnDeviceTypeUnknown));
    stClass.bSnmp    = oRow.flag();
    stClass.bV3R7    = oRow.flag();
    if (!oRow.isNull())
        stClass.oCompatible = oRow.number<std::uint16_t>();
    oRow.requireNew(stInventory.mapDeviceClass.try_emplace(ulTypeID, stClass).second);
}

void addTelnetSupport(CInventoryRow& oRow, StInventory& stInventory)
{
    const Id ulTypeID = oRow.number<Id>();
    stInventory.setTelnetSupport.emplace(ulTypeID, oRow.text());
}

void addDevice(CInventoryRow& oRow, StInventory& stInventory)
{
    StManagedDevice stDevice;
    StDeviceInfo&   stInfo             = stDevice.stInfo;
    stInfo.ulDeviceID                  = oRow.number<Id>();
    stInfo.strDeviceName               = oRow.text();
    stInfo.ulDeviceTypeID              = oRow.number<Id>();
    stInfo.ulDeviceTypeVersionID       = oRow.number<Id>();
    stInfo.strIPAddress                = oRow.text();
    stDevice.stVersion.strSoftVersion  = oRow.text();
    stDevice.stVersion.strPatchVersion = oRow.text();
    stInfo.ulLoginState                = oRow.number<Id>();
    stInfo.ulConnectState              = oRow.number<Id>();
    stInfo.strTelnetCapability         = oRow.text();
    // The rows come ordered by this key.
    oRow.requireNew(stInventory.lstDevice.empty() ||
                    stInventory.lstDevice.back().stInfo.ulDeviceID != stInfo.ulDeviceID);
    stInventory.lstDevice.push_back(std::move(stDevice));
}

void addVersion(CInventoryRow& oRow, StInventory& stInventory)
{
    oRow.number<std::int64_t>(); // position
    std::string      strDevType = oRow.text();
    std::string      strVersion = oRow.text();
    StAsnDevVersion& stVersion  = stInventory.mapVersion[pairKey(strDevType, strVersion)].emplace_back();
    stVersion.strSoftVersion    = oRow.text();
    stVersion.strPatchVersion   = oRow.text();
}

void addCapacity(CInventoryRow& oRow, StInventory& stInventory)
{
    oRow.number<std::int64_t>(); // position
    std::string     strDevType = oRow.text();
    std::string     strVersion = oRow.text();
    StCapacityInfo& stCapacity = stInventory.mapCapacity[pairKey(strDevType, strVersion)].emplace_back();
    stCapacity.strSoftVersion  = oRow.text();
    stCapacity.strPatchVersion = oRow.text();
    stCapacity.bFullConfig     = oRow.flag();
}

void addConfigItem(CInventoryRow& oRow, StInventory& stInventory)
{
    const std::string strSection = oRow.text();
    const std::string strKey     = oRow.text();
    const auto        nValue     = oRow.number<std::int64_t>();
    oRow.requireNew(stInventory.mapConfigItem.try_emplace(pairKey(strSection, strKey), nValue).second, 1);
}

// The three tables of a name and a text.
template <typename Map, Map StInventory::*pMap>
void addText(CInventoryRow& oRow, StInventory& stInventory)
{
    std::string strName = oRow.text();
    oRow.requireNew((stInventory.*pMap).try_emplace(std::move(strName), oRow.text()).second);
}

constexpr auto* ADD_SETTING     = &addText<std::unordered_map<std::string, std::string>, &StInventory::mapSetting>;
constexpr auto* ADD_RESOURCE    = &addText<std::unordered_map<std::string, std::string>, &StInventory::mapResource>;
constexpr auto* ADD_ENVIRONMENT = &addText<std::map<std::string, std::string>, &StInventory::mapEnvironment>;
} // namespace

const std::vector<StInventoryTable>& inventoryTables()
{
    static const std::vector<StInventoryTable> lstTable = {
        {"device_type",
         {"position", "name", "version", "type_id", "version_id", "config_file_type", "sys_oid", "support_upgrade",
          "support_capacity", "capacity_per_version", "support_patch", "support_backup", "max_concurrency", "dll_name",
          "series", "description", "protocol", "remark"},
         "position",
         &addDeviceType},
        {"config_file", {"device_type", "path"}, "device_type", &addConfigFile},
        {"check_file", {"device_type", "path", "report_type"}, "device_type", &addCheckFile},
        {"device_class", {"type_id", "domain", "is_snmp", "is_v3r7", "compatible_type_id"}, "type_id", &addDeviceClass},
        {"telnet_support", {"type_id", "telnet_capability"}, "type_id", &addTelnetSupport},
        {"device",
         {"device_id", "name", "type_id", "version_id", "ip_address", "soft_version", "patch_version", "login_state",
          "connect_state", "telnet_capability"},
         "device_id",
         &addDevice},
        {"version_in_service",
         {"position", "device_type", "device_type_version", "soft_version", "patch_version"},
         "position",
         &addVersion},
        {"capacity",
         {"position", "device_type", "device_type_version", "soft_version", "patch_version", "full_config"},
         "position",
         &addCapacity},
        {"setting", {"name", "value"}, "name", ADD_SETTING},
        {"config_item", {"section", "key", "value"}, "section", &addConfigItem},
        {"resource", {"key", "value"}, "key", ADD_RESOURCE},
        {"environment", {"name", "value"}, "name", ADD_ENVIRONMENT},
    };
    return lstTable;
}

bool isInventoryTable(const char* pszName)
{
    for (const StInventoryTable& stTable : inventoryTables())
        if (::strcasecmp(stTable.pszName, pszName) == 0)
            return true;
    return false;
}
} // namespace standalone

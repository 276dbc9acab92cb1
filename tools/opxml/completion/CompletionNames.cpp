// See CompletionNames.h.
#include "tools/opxml/completion/CompletionNames.h"

#include "database/CXMLConfigDatabase.h"
#include "lint/Lint.h"
#include "platform/DeviceAdapter.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/WordTables.h"
#include "standalone/DeviceList.h"
#include "tools/opxml/query/QueryOperations.h"

#include <algorithm>
#include <list>
#include <memory>
#include <set>

namespace
{
std::list<StDeviceType> registeredTypes()
{
    std::list<StDeviceType> lstType;
    CDeviceAdapterInterface::getInstance()->getALLDLLInfo(lstType);
    return lstType;
}

std::string valueOf(const ArgumentValues& mapValue, const char* pszArgument)
{
    const auto itValue = mapValue.find(pszArgument);
    return itValue == mapValue.end() ? std::string() : itValue->second;
}

// Each type once, its versions beside it.
std::vector<StCandidate> types(const ArgumentValues& /*mapValue*/)
{
    std::vector<StCandidate>           lstName;
    std::map<std::string, std::size_t> mapPlace;
    for (const StDeviceType& stType : registeredTypes())
    {
        const auto [itPlace, bNew] = mapPlace.try_emplace(stType.strDevType, lstName.size());
        if (bNew)
            lstName.push_back({stType.strDevType, stType.strDevTypeVer});
        else
            lstName[itPlace->second].strDescription += ", " + stType.strDevTypeVer;
    }
    return lstName;
}

std::vector<StCandidate> versions(const ArgumentValues& mapValue)
{
    const std::string        strType = valueOf(mapValue, "TYPE");
    std::vector<StCandidate> lstName;
    for (const StDeviceType& stType : registeredTypes())
    {
        if (stType.strDevType == strType)
            lstName.push_back({stType.strDevTypeVer, ""});
    }
    return lstName;
}

std::string typeOfDevice(const StDeviceInfo& stDevice)
{
    std::string strType;
    std::string strVersion;
    CDeviceAdapterInterface::getInstance()->searchTypeName(stDevice.ulDeviceTypeID, stDevice.ulDeviceTypeVersionID,
                                                           strType, strVersion);
    return strType + (strVersion.empty() ? "" : " ") + strVersion;
}

std::vector<StCandidate> deviceIds(const ArgumentValues& /*mapValue*/)
{
    std::vector<StCandidate> lstName;
    for (const standalone::StListedDevice& stDevice : standalone::listDevices())
        lstName.push_back({std::to_string(stDevice.stInfo.ulDeviceID),
                           stDevice.stInfo.strDeviceName + ", " + typeOfDevice(stDevice.stInfo)});
    return lstName;
}

std::vector<StCandidate> devices(const ArgumentValues& mapValue)
{
    std::vector<StCandidate> lstName = deviceIds(mapValue);
    for (const standalone::StListedDevice& stDevice : standalone::listDevices())
    {
        if (!stDevice.stInfo.strDeviceName.empty())
            lstName.push_back({stDevice.stInfo.strDeviceName, typeOfDevice(stDevice.stInfo)});
    }
    return lstName;
}

// The type and version that the line speaks of, by name or by a device's id.
bool findEntry(const ArgumentValues& mapValue, StDeviceType& stEntry)
{
    const std::string strType    = valueOf(mapValue, "TYPE");
    const std::string strVersion = valueOf(mapValue, "VERSION");
    const std::string strDevice  = valueOf(mapValue, "DEVICE-ID") + valueOf(mapValue, "DEVICE");
    std::string       strDeviceType;
    for (const standalone::StListedDevice& stDevice : standalone::listDevices())
    {
        if (!strDevice.empty() &&
            (std::to_string(stDevice.stInfo.ulDeviceID) == strDevice || stDevice.stInfo.strDeviceName == strDevice))
            strDeviceType = typeOfDevice(stDevice.stInfo);
    }
    for (const StDeviceType& stType : registeredTypes())
    {
        const bool bNamed  = stType.strDevType == strType && (strVersion.empty() || stType.strDevTypeVer == strVersion);
        const bool bDevice = stType.strDevType + " " + stType.strDevTypeVer == strDeviceType;
        if (bNamed || bDevice)
        {
            stEntry = stType;
            return true;
        }
    }
    return false;
}

template <typename Record>
void addIds(std::set<std::string>& setId, const std::list<Record>& lstRecord)
{
    for (const Record& stRecord : lstRecord)
        setId.insert(stRecord.strId);
}

// Read as the server reads it, from this type's file alone: what modules add is not
// among them, and what a capacity document takes away is.
std::vector<StCandidate> operations(const ArgumentValues& mapValue)
{
    StDeviceType stEntry;
    if (!findEntry(mapValue, stEntry))
        return {};
    const std::string    strKey = CXMLConfigDatabase::trans2TelnetDevType(stEntry.strDevType, stEntry.strDevTypeVer);
    CDevTypeXMLResReader oReader(strKey, stEntry.strDevTypeVer, false);
    std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
    oReader.readDevTypeVerXMLFile(lstInfo);
    std::set<std::string> setId;
    for (StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
    {
        const std::unique_ptr<StAsnDevTypeVerXMLInfo> pOwned(pInfo);
        const StAsnOperationConfig&                   stConfig = pOwned->stOperationConfig;
        addIds(setId, stConfig.lstDevOperation);
        addIds(setId, stConfig.lstTaskOperation);
        addIds(setId, stConfig.lstPatchOperation);
        addIds(setId, stConfig.lstCheckOperation);
        addIds(setId, stConfig.lstCustomOperation);
        addIds(setId, stConfig.lstOtherOperation);
        addIds(setId, stConfig.lstUpgradeOperation);
    }
    std::vector<StCandidate> lstName(setId.size());
    std::transform(setId.begin(), setId.end(), lstName.begin(),
                   [](const std::string& strId) {
                       return StCandidate{strId, ""};
                   });
    return lstName;
}

std::vector<StCandidate> taskTypes(const ArgumentValues& /*mapValue*/)
{
    std::vector<StCandidate> lstName;
    for (const StTaskTypeWord& stWord : TASK_TYPE_WORDS)
        lstName.push_back({std::string(stWord.strWord), ""});
    return lstName;
}

std::vector<StCandidate> lintRules(const ArgumentValues& /*mapValue*/)
{
    std::vector<StCandidate> lstName;
    for (const lint::StRule& stRule : lint::rules())
        lstName.push_back({stRule.pszId, stRule.pszTitle});
    return lstName;
}

struct StNames
{
    const char* pszArgument;
    std::vector<StCandidate> (*pfnNames)(const ArgumentValues&);
};
constexpr StNames NAMES[] = {
    {"TYPE", types},     {"DEVICE-TYPE", types},    {"VERSION", versions},    {"DEVICE-ID", deviceIds},
    {"DEVICE", devices}, {"OPERATION", operations}, {"TASK-TYPE", taskTypes}, {"RULE", lintRules},
};
} // namespace

std::vector<StCandidate> namesFor(const std::string& strArgument, const ArgumentValues& mapValue)
{
    for (const StNames& stNames : NAMES)
    {
        if (strArgument == stNames.pszArgument)
            return stNames.pfnNames(mapValue);
    }
    return {};
}

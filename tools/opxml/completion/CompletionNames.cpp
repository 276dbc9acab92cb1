// See CompletionNames.h.
#include "tools/opxml/completion/CompletionNames.h"

#include "lint/Lint.h"
#include "platform/DeviceAdapter.h"
#include "reader/CDevTypeXMLResReader.h"
#include "records/WordTables.h"
#include "standalone/DeviceList.h"
#include "tools/opxml/output/DevTypes.h"

#include <algorithm>
#include <functional>
#include <list>
#include <memory>
#include <set>

namespace
{
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
    for (const StRegisteredType& stType : registeredTypes())
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
    for (const StRegisteredType& stType : registeredTypes())
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
bool findEntry(const ArgumentValues& mapValue, StRegisteredType& stEntry)
{
    const auto        lstType    = registeredTypes();
    const StNamedType stNamed    = splitTypeName(lstType, valueOf(mapValue, "TYPE"));
    const std::string strType    = stNamed.strName;
    const std::string strVersion = valueOf(mapValue, "VERSION") + stNamed.strVersion;
    const std::string strDevice  = valueOf(mapValue, "DEVICE-ID") + valueOf(mapValue, "DEVICE");
    std::string       strDeviceType;
    for (const standalone::StListedDevice& stDevice : standalone::listDevices())
    {
        if (!strDevice.empty() &&
            (std::to_string(stDevice.stInfo.ulDeviceID) == strDevice || stDevice.stInfo.strDeviceName == strDevice))
            strDeviceType = typeOfDevice(stDevice.stInfo);
    }
    for (const StRegisteredType& stType : lstType)
    {
        const bool bName   = stType.strDevType == strType || stType.strKey == strType;
        const bool bNamed  = bName && (strVersion.empty() || stType.strDevTypeVer == strVersion);
        const bool bDevice = stType.strDevType + " " + stType.strDevTypeVer == strDeviceType;
        if (bNamed || bDevice)
        {
            stEntry = stType;
            return true;
        }
    }
    return false;
}

using Visit = std::function<void(const StAsnDevTypeVerXMLInfo&)>;

// Read as the server reads it, from this type's file alone: what modules add is not
// among it, and what a capacity document takes away is.
void visitRecords(const ArgumentValues& mapValue, const Visit& fnVisit)
{
    StRegisteredType stEntry;
    if (!findEntry(mapValue, stEntry))
        return;
    CDevTypeXMLResReader               oReader(stEntry.strKey, stEntry.strDevTypeVer, false);
    std::list<StAsnDevTypeVerXMLInfo*> lstInfo;
    oReader.readDevTypeVerXMLFile(lstInfo);
    for (StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
        fnVisit(*std::unique_ptr<StAsnDevTypeVerXMLInfo>(pInfo));
}

std::vector<StCandidate> sorted(const std::set<std::string>& setId)
{
    std::vector<StCandidate> lstName(setId.size());
    std::transform(setId.begin(), setId.end(), lstName.begin(),
                   [](const std::string& strId) {
                       return StCandidate{strId, ""};
                   });
    return lstName;
}

template <typename Record>
void addIds(std::set<std::string>& setId, const std::list<Record>& lstRecord)
{
    for (const Record& stRecord : lstRecord)
        setId.insert(stRecord.strId);
}

std::vector<StCandidate> operations(const ArgumentValues& mapValue)
{
    std::set<std::string> setId;
    visitRecords(mapValue,
                 [&setId](const StAsnDevTypeVerXMLInfo& stInfo)
                 {
                     const StAsnOperationConfig& stConfig = stInfo.stOperationConfig;
                     addIds(setId, stConfig.lstDevOperation);
                     addIds(setId, stConfig.lstTaskOperation);
                     addIds(setId, stConfig.lstPatchOperation);
                     addIds(setId, stConfig.lstCheckOperation);
                     addIds(setId, stConfig.lstCustomOperation);
                     addIds(setId, stConfig.lstOtherOperation);
                     addIds(setId, stConfig.lstUpgradeOperation);
                 });
    return sorted(setId);
}

// Those of the operation that the line speaks of, whatever its kind.
void visitParameters(const ArgumentValues& mapValue, const std::function<void(const StAsnOperParamDef&)>& fnVisit)
{
    const std::string strOperation = valueOf(mapValue, "OPERATION");
    const auto        fnList       = [&](const auto& lstOperation)
    {
        for (const auto& stOperation : lstOperation)
        {
            if (stOperation.strId == strOperation)
                std::for_each(stOperation.lstParam.begin(), stOperation.lstParam.end(), fnVisit);
        }
    };
    visitRecords(mapValue,
                 [&fnList](const StAsnDevTypeVerXMLInfo& stInfo)
                 {
                     fnList(stInfo.stOperationConfig.lstDevOperation);
                     fnList(stInfo.stOperationConfig.lstTaskOperation);
                     fnList(stInfo.stOperationConfig.lstPatchOperation);
                     fnList(stInfo.stOperationConfig.lstOtherOperation);
                 });
}

std::vector<StCandidate> parameters(const ArgumentValues& mapValue)
{
    std::set<std::string> setId;
    visitParameters(mapValue, [&setId](const StAsnOperParamDef& stParam) { setId.insert(stParam.strId); });
    return sorted(setId);
}

std::vector<StCandidate> options(const ArgumentValues& mapValue)
{
    const std::string     strParameter = valueOf(mapValue, "PARAMETER");
    std::set<std::string> setId;
    visitParameters(mapValue,
                    [&](const StAsnOperParamDef& stParam)
                    {
                        if (stParam.strId == strParameter)
                            addIds(setId, stParam.lstOption);
                    });
    return sorted(setId);
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
    {"TYPE", types},          {"DEVICE-TYPE", types},    {"VERSION", versions},     {"DEVICE-ID", deviceIds},
    {"DEVICE", devices},      {"OPERATION", operations}, {"PARAMETER", parameters}, {"OPTION", options},
    {"TASK-TYPE", taskTypes}, {"RULE", lintRules},
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

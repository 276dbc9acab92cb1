// See Subject.h. What the configuration is made of: ConfigurationSteps.cpp.
#include "tools/opxml/explain/Subject.h"

#include "database/CXMLConfigDatabase.h"
#include "records/ResultCodes.h"
#include "records/Vocabulary.h"
#include "tools/opxml/explain/ConfigurationSteps.h"
#include "tools/opxml/explain/TelnetRule.h"
#include "tools/opxml/output/Names.h"

#include <fmt/format.h>

#include <algorithm>

namespace
{
using standalone::StListedDevice;

const std::string TELNET_SUFFIX(Vocabulary::TELNET_SUFFIX);

// By which of its names a device is meant; empty: by none. It may have none itself.
std::string deviceNamedBy(const StDeviceInfo& stDevice, const std::string& strName)
{
    if (strName.empty())
        return {};
    if (strName == std::to_string(stDevice.ulDeviceID))
        return "its id";
    if (strName == stDevice.strDeviceName)
        return "its name";
    return strName == stDevice.strIPAddress ? "its address" : "";
}

std::string keyRule(const StSubject& stSubject)
{
    return stSubject.strDevTypeVer.find(TELNET_SUFFIX) == std::string::npos
               ? "the name of the type"
               : "the name of the type and \"_telnet\", which its version holds";
}

// Cancelling and kinds of tasks are asked of the telnet variant wherever type and version
// have two names.
void addTaskStep(CServedKeys& oKeys, StSubject& stSubject, const std::string& strPlainVersion)
{
    const bool         bVariant = stSubject.strDevType != strPlainVersion;
    const StServedKey& stServed = oKeys.find(stSubject.strDevType, strPlainVersion + (bVariant ? TELNET_SUFFIX : ""));
    if (&stServed == stSubject.stServing.pServed)
        return;
    stSubject.lstStep.push_back(
        {"asked for cancelling and tasks", stServed.strProblem.empty() ? stServed.strKey : stServed.strProblem,
         bVariant ? "those questions look into the telnet variant wherever the names of type "
                    "and version differ"
                  : "those questions look into the type itself where its version has its name"});
}

// The same type as it is managed the other way.
void addVariantStep(CServedKeys& oKeys, StSubject& stSubject)
{
    const bool         bTelnet = stSubject.stServing.pServed->strKey != stSubject.strDevType;
    const StServedKey& stOther = oKeys.find(stSubject.strDevType, bTelnet ? "" : TELNET_SUFFIX);
    if (stOther.strProblem.empty())
        stSubject.lstStep.push_back({"other variant", stOther.strKey,
                                     fmt::format("for devices that are {}managed over telnet", bTelnet ? "not " : "")});
}

void lookInto(CServedKeys& oKeys, StSubject& stSubject)
{
    StLookedInto& stServing = stSubject.stServing;
    stServing.pServed       = &oKeys.find(stSubject.strDevType, stSubject.strDevTypeVer);
    stServing.strDevType    = stSubject.strDevType;
    stServing.strWhere      = fmt::format("\"{}\"", stServing.pServed->strKey);
    stSubject.strProblem    = stServing.pServed->strProblem;
    stSubject.lstStep.push_back({"storage key", stServing.pServed->strKey, keyRule(stSubject)});
    addConfigurationSteps(oKeys, stSubject);
}

void resolveDevice(CServedKeys& oKeys, StSubject& stSubject)
{
    const StDeviceInfo& stInfo = stSubject.oDevice->stInfo;
    std::string         strVersion;
    stSubject.stServing.strSoftVersion  = stSubject.oDevice->stVersion.strSoftVersion;
    stSubject.stServing.strPatchVersion = stSubject.oDevice->stVersion.strPatchVersion;
    if (CDCDeviceInfoDB::getDevTypeAndVersionName(stInfo.ulDeviceID, stSubject.strDevType, strVersion) != DC_RESULT_OK)
    {
        stSubject.strProblem = fmt::format("device {} is of type {}, version {}, which is not installed",
                                           stInfo.ulDeviceID, stInfo.ulDeviceTypeID, stInfo.ulDeviceTypeVersionID);
        stSubject.lstStep.push_back({"type", "none",
                                     fmt::format("type {}, version {}, is not installed", stInfo.ulDeviceTypeID,
                                                 stInfo.ulDeviceTypeVersionID)});
        return;
    }
    const StTelnetRule stTelnet = telnetRule(stInfo);
    stSubject.strDevTypeVer     = strVersion + (stTelnet.bTelnet ? TELNET_SUFFIX : "");
    stSubject.lstStep.push_back(
        {"type", fmt::format("{}, version {}", stSubject.strDevType, strVersion),
         fmt::format("its type is {} and its version {}", stInfo.ulDeviceTypeID, stInfo.ulDeviceTypeVersionID)});
    stSubject.lstStep.push_back({"managed over telnet", stTelnet.bTelnet ? "yes" : "no", stTelnet.strWhy});
    lookInto(oKeys, stSubject);
    stSubject.stServing.strWhere += fmt::format(" of device {}", stInfo.ulDeviceID);
    addTaskStep(oKeys, stSubject, strVersion);
}

bool findDevice(CServedKeys& oKeys, const std::string& strName, StSubject& stSubject)
{
    for (const StListedDevice& stDevice : standalone::listDevices())
    {
        const std::string strBy = deviceNamedBy(stDevice.stInfo, strName);
        if (strBy.empty())
            continue;
        const StDeviceInfo& stInfo = stDevice.stInfo;
        stSubject.oDevice          = stDevice;
        stSubject.strTitle         = fmt::format("device {} {}", stInfo.ulDeviceID, stInfo.strDeviceName);
        stSubject.lstStep.push_back({"device",
                                     fmt::format("{} {}{}{}", stInfo.ulDeviceID, stInfo.strDeviceName,
                                                 stInfo.strIPAddress.empty() ? "" : ", ", stInfo.strIPAddress),
                                     "by " + strBy});
        resolveDevice(oKeys, stSubject);
        return true;
    }
    return false;
}

// The entry of a type that is meant when none of its versions is named: the key of the
// plain name, as far as it has one.
const StRegisteredType* findEntry(const std::vector<StRegisteredType>& lstType, const StNamedType& stName)
{
    const StRegisteredType* pFound = nullptr;
    for (const StRegisteredType& stType : lstType)
    {
        const bool bNamed = stType.strDevType == stName.strName || stType.strKey == stName.strName;
        if (!bNamed || (!stName.strVersion.empty() && stType.strDevTypeVer != stName.strVersion))
            continue;
        const bool bBetter = stType.strKey == stName.strName;
        if (pFound == nullptr || bBetter) // of several the last, which the store keeps
            pFound = &stType;
    }
    return pFound;
}

void resolveType(CServedKeys& oKeys, const StNamedType& stName, const StRegisteredType& stType, StSubject& stSubject)
{
    stSubject.strDevType                = stType.strDevType;
    stSubject.strDevTypeVer             = stType.strDevTypeVer;
    stSubject.stServing.strSoftVersion  = stName.strSoftVersion;
    stSubject.stServing.strPatchVersion = stName.strPatchVersion;
    const std::string strRun            = versionText(stName.strSoftVersion, stName.strPatchVersion);
    stSubject.strTitle =
        fmt::format("\"{}\"{}{}", stType.strKey, stName.strVersion.empty() ? "" : " " + stName.strVersion,
                    strRun.empty() ? "" : " " + strRun);
    lookInto(oKeys, stSubject);
    addVariantStep(oKeys, stSubject);
}

std::string unknownText(const CServedKeys& oKeys, const std::string& strName)
{
    std::vector<std::string> lstName;
    for (const StRegisteredType& stType : oKeys.types())
        lstName.insert(lstName.end(), {stType.strDevType, stType.strKey});
    for (const StListedDevice& stDevice : standalone::listDevices())
        lstName.push_back(stDevice.stInfo.strDeviceName);
    return fmt::format("no device and no device type \"{}\"{}", strName, nearestNames(strName, lstName));
}
} // namespace

bool findSubject(CServedKeys& oKeys, const std::string& strName, StSubject& stSubject, std::string& strError)
{
    const StNamedType stName = splitTypeName(oKeys.types(), strName);
    if (const StRegisteredType* pType = findEntry(oKeys.types(), stName))
    {
        resolveType(oKeys, stName, *pType, stSubject);
        return true;
    }
    if (findDevice(oKeys, strName, stSubject))
        return true;
    strError = unknownVersionText(oKeys.types(), stName.strName, stName.strVersion);
    if (strError.empty())
        strError = unknownText(oKeys, strName);
    return false;
}

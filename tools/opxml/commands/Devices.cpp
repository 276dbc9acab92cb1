// See Devices.h.
#include "tools/opxml/commands/Devices.h"

#include "database/CXMLConfigDatabase.h"
#include "records/ResultCodes.h"
#include "records/Vocabulary.h"
#include "standalone/DeviceList.h"
#include "standalone/TypeList.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Progress.h"

#include <fmt/format.h>

#include <algorithm>
#include <list>
#include <map>
#include <set>
#include <utility>

namespace
{
// What the store and the load say about each key.
struct StKeyState
{
    bool                       bHeld = false;
    std::list<StAsnDevVersion> lstVersion; // of all its configurations
    const StDevTypeLoad*       pLoad = nullptr;
};
using KeyStates = std::map<std::string, StKeyState>;

KeyStates gatherKeys(const StLoadReport& stReport)
{
    KeyStates mapState;
    CXMLConfigDatabase::getInstance()->visitDevTypes(
        [&mapState](const std::string& strKey, const std::list<StAsnDevTypeVerXMLInfo*>& lstInfo)
        {
            StKeyState& stState = mapState[strKey];
            stState.bHeld       = !lstInfo.empty();
            for (const StAsnDevTypeVerXMLInfo* pInfo : lstInfo)
                stState.lstVersion.insert(stState.lstVersion.end(), pInfo->lstDevVersion.begin(),
                                          pInfo->lstDevVersion.end());
        });
    for (const StDevTypeLoad& stLoad : stReport.lstDevType)
    {
        StKeyState& stState = mapState[stLoad.strKey];
        if (stState.pLoad == nullptr || stLoad.isConfigured() || !stState.bHeld)
            stState.pLoad = &stLoad; // the last one that succeeded, else the last
    }
    return mapState;
}

void findConfiguration(StServedDevice& stDevice, const KeyStates& mapState)
{
    stDevice.strKey    = servingKey(stDevice);
    const auto itState = mapState.find(stDevice.strKey);
    if (itState == mapState.end() || itState->second.pLoad == nullptr)
    {
        stDevice.strProblem = fmt::format("no configuration \"{}\" is registered", stDevice.strKey);
        return;
    }
    const StKeyState& stState = itState->second;
    stDevice.strSource        = sourceText(stState.pLoad->stOrigin.enSource);
    stDevice.bByVersion       = std::any_of(stState.lstVersion.begin(), stState.lstVersion.end(),
                                            [&stDevice](const StAsnDevVersion& stVersion)
                                            {
                                          return stVersion.strSoftVersion == stDevice.stVersion.strSoftVersion &&
                                                 stVersion.strPatchVersion == stDevice.stVersion.strPatchVersion;
                                      });
    if (!stState.bHeld)
        stDevice.strProblem = failureText(*stState.pLoad);
}
} // namespace

bool isDeviceNamed(const StDeviceInfo& stDevice, const std::string& strName)
{
    return !strName.empty() && (strName == std::to_string(stDevice.ulDeviceID) || strName == stDevice.strDeviceName ||
                                strName == stDevice.strIPAddress); // a device may have no name
}

std::string servingKey(const StServedDevice& stDevice)
{
    const std::string strVersion =
        stDevice.strDevTypeVer + (stDevice.bTelnet ? std::string(Vocabulary::TELNET_SUFFIX) : "");
    return CXMLConfigDatabase::trans2TelnetDevType(stDevice.strDevType, strVersion);
}

std::vector<StServedDevice> gatherDevices()
{
    std::vector<StServedDevice> lstDevice;
    for (const standalone::StListedDevice& stListed : standalone::listDevices())
    {
        StServedDevice& stDevice = lstDevice.emplace_back();
        stDevice.stInfo          = stListed.stInfo;
        stDevice.stVersion       = stListed.stVersion;
        if (CDCDeviceInfoDB::getDevTypeAndVersionName(stListed.stInfo.ulDeviceID, stDevice.strDevType,
                                                      stDevice.strDevTypeVer) == DC_RESULT_OK)
            stDevice.bTelnet = CXMLConfigDatabase::bTelnetToDev(stListed.stInfo);
        else
            stDevice.strProblem = fmt::format("type {}, version {}, is not installed", stListed.stInfo.ulDeviceTypeID,
                                              stListed.stInfo.ulDeviceTypeVersionID);
    }
    return lstDevice;
}

void loadConfigurations(std::vector<StServedDevice>& lstDevice)
{
    std::set<std::string> setType;
    for (const StServedDevice& stDevice : lstDevice)
        setType.insert(stDevice.strDevType);
    standalone::listOnlyTypes(setType);
    const CProgress    oProgress;
    const StLoadReport stReport = CXMLConfigDatabase::getInstance()->getLoadReport();
    const KeyStates    mapState = gatherKeys(stReport);
    for (StServedDevice& stDevice : lstDevice)
    {
        if (stDevice.strProblem.empty())
            findConfiguration(stDevice, mapState);
    }
}

// See HurtDevices.h.
#include "tools/opxml/diff/HurtDevices.h"

#include "database/CXMLConfigDatabase.h"
#include "records/ResultCodes.h"
#include "records/Vocabulary.h"
#include "standalone/DeviceList.h"
#include "tools/opxml/output/DevTypes.h"

#include <algorithm>
#include <unordered_map>

namespace
{
// What breaks in one configuration.
struct StBroken
{
    std::uint32_t ulChange   = 0;
    std::uint32_t ulType     = 0;
    std::uint32_t ulSoftware = 0;
};
using BrokenOfKey = std::unordered_map<std::string, std::vector<StBroken>>;

BrokenOfKey gatherBroken(const StDiff& stDiff)
{
    BrokenOfKey mapBroken;
    for (std::size_t nAt = 0; nAt < stDiff.lstChange.size(); ++nAt)
    {
        const StChange& stChange = stDiff.lstChange[nAt];
        if (stChange.pRule->enImpact != EnImpact::Breaking)
            continue;
        for (const StDiffSite& stSite : stChange.lstSite)
            mapBroken[stDiff.lstType[stSite.ulType].strKey].push_back(
                {static_cast<std::uint32_t>(nAt), stSite.ulType, stSite.ulSoftware});
    }
    return mapBroken;
}

// Whether "V4.2 P03, V5.0" names the version; nothing names all.
bool isAmong(const std::string& strVersions, const std::string& strVersion)
{
    return strVersions.empty() || (", " + strVersions + ", ").find(", " + strVersion + ", ") != std::string::npos;
}
} // namespace

std::vector<StHurtDevice> findHurtDevices(const StDiff& stDiff)
{
    const BrokenOfKey         mapBroken = gatherBroken(stDiff);
    std::vector<StHurtDevice> lstHurt;
    if (mapBroken.empty())
        return lstHurt;
    for (const standalone::StListedDevice& stListed : standalone::listDevices())
    {
        const StDeviceInfo& stInfo = stListed.stInfo;
        StHurtDevice        stDevice;
        if (CDCDeviceInfoDB::getDevTypeAndVersionName(stInfo.ulDeviceID, stDevice.strDevType, stDevice.strDevTypeVer) !=
            DC_RESULT_OK)
            continue;
        const std::string strRegistered =
            stDevice.strDevTypeVer +
            (CXMLConfigDatabase::bTelnetToDev(stInfo) ? std::string(Vocabulary::TELNET_SUFFIX) : "");
        const auto itBroken =
            mapBroken.find(CXMLConfigDatabase::trans2TelnetDevType(stDevice.strDevType, strRegistered));
        if (itBroken == mapBroken.end())
            continue;
        const std::string strSoftware =
            versionText(stListed.stVersion.strSoftVersion, stListed.stVersion.strPatchVersion);
        for (const StBroken& stBroken : itBroken->second)
        {
            // An entry of the registry that went is that of its own version.
            const bool bOther = stDiff.lstChange[stBroken.ulChange].pKind == nullptr &&
                                stDiff.lstChange[stBroken.ulChange].strPath.empty() &&
                                stDiff.lstType[stBroken.ulType].strDevTypeVer != strRegistered;
            if (!bOther && isAmong(stDiff.lstSoftware[stBroken.ulSoftware], strSoftware))
                stDevice.lstChange.push_back(stBroken.ulChange);
        }
        auto& lstChange = stDevice.lstChange;
        std::sort(lstChange.begin(), lstChange.end());
        lstChange.erase(std::unique(lstChange.begin(), lstChange.end()), lstChange.end());
        if (lstChange.empty())
            continue;
        stDevice.ulDeviceID = stInfo.ulDeviceID;
        stDevice.strName    = stInfo.strDeviceName;
        stDevice.strAddress = stInfo.strIPAddress;
        lstHurt.push_back(std::move(stDevice));
    }
    return lstHurt;
}

// opxml devices: the devices of the inventory, how each resolves, and which
// configuration serves it.
#include "tools/opxml/commands/Command.h"
#include "tools/opxml/commands/Devices.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Names.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Table.h"
#include "tools/opxml/output/Terminal.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>

namespace
{
struct StDevicesOptions
{
    std::string strWord;
    bool        bJson = false;
};

bool isMentioned(const StServedDevice& stDevice, const std::string& strWord)
{
    return mentions(stDevice.stInfo.strDeviceName, strWord) || mentions(stDevice.stInfo.strIPAddress, strWord) ||
           mentions(stDevice.strDevType, strWord);
}

// The device that bears the word as id, name or address is the one that is meant;
// otherwise all that mention it.
std::vector<StServedDevice> devicesOf(const std::vector<StServedDevice>& lstAll, const std::string& strWord)
{
    std::vector<StServedDevice> lstFound;
    std::copy_if(lstAll.begin(), lstAll.end(), std::back_inserter(lstFound),
                 [&strWord](const StServedDevice& stDevice) { return isDeviceNamed(stDevice.stInfo, strWord); });
    if (lstFound.empty())
        std::copy_if(lstAll.begin(), lstAll.end(), std::back_inserter(lstFound),
                     [&strWord](const StServedDevice& stDevice) { return isMentioned(stDevice, strWord); });
    return lstFound;
}

std::string softwareOf(const StServedDevice& stDevice)
{
    return versionText(stDevice.stVersion.strSoftVersion, stDevice.stVersion.strPatchVersion);
}

std::string devicesTable(const std::vector<StServedDevice>& lstDevice)
{
    CTable oTable({{"ID"},
                   {"NAME"},
                   {"ADDRESS", 1},
                   {"TYPE"},
                   {"VERSION", 2},
                   {"SOFTWARE", 4},
                   {"TELNET", 3},
                   {"CONFIGURATION", 0},
                   {"FROM", 5}});
    for (const StServedDevice& stDevice : lstDevice)
    {
        std::vector<std::string> lstCell = {std::to_string(stDevice.stInfo.ulDeviceID),
                                            stDevice.stInfo.strDeviceName,
                                            stDevice.stInfo.strIPAddress,
                                            stDevice.strDevType,
                                            stDevice.strDevTypeVer,
                                            softwareOf(stDevice),
                                            stDevice.bTelnet ? "yes" : "no"};
        if (!stDevice.strProblem.empty())
        {
            lstCell.push_back(stDevice.strProblem);
            oTable.addWideRow(lstCell, true);
            continue;
        }
        lstCell.push_back(stDevice.strKey);
        lstCell.push_back(stDevice.strSource + (stDevice.bByVersion ? " of " + softwareOf(stDevice) : ""));
        oTable.addRow(lstCell);
    }
    return oTable.text();
}

std::string devicesJson(const std::vector<StServedDevice>& lstDevice)
{
    Json oDevices = Json::array();
    for (const StServedDevice& stDevice : lstDevice)
    {
        Json& oDevice = oDevices.emplace_back(Json{{"id", stDevice.stInfo.ulDeviceID},
                                                   {"name", stDevice.stInfo.strDeviceName},
                                                   {"address", stDevice.stInfo.strIPAddress},
                                                   {"type", stDevice.strDevType},
                                                   {"version", stDevice.strDevTypeVer},
                                                   {"softVersion", stDevice.stVersion.strSoftVersion},
                                                   {"patchVersion", stDevice.stVersion.strPatchVersion},
                                                   {"telnet", stDevice.bTelnet},
                                                   {"key", stDevice.strKey},
                                                   {"source", stDevice.strSource},
                                                   {"byVersion", stDevice.bByVersion},
                                                   {"loaded", stDevice.strProblem.empty()}});
        if (!stDevice.strProblem.empty())
            oDevice["reason"] = stDevice.strProblem;
    }
    return jsonText(oDevices) + "\n";
}

std::string noDeviceText(const std::vector<StServedDevice>& lstDevice, const std::string& strWord)
{
    std::vector<std::string> lstName;
    for (const StServedDevice& stDevice : lstDevice)
        lstName.insert(lstName.end(), {stDevice.stInfo.strDeviceName, stDevice.strDevType});
    return strWord.empty() ? "the inventory has no devices"
                           : "no device with \"" + strWord + "\"" + nearestNames(strWord, lstName);
}

int runDevices(const StGlobalOptions& stGlobal, const StDevicesOptions& stOptions)
{
    openRoot(stGlobal);
    const std::vector<StServedDevice> lstAll    = gatherDevices();
    std::vector<StServedDevice>       lstDevice = devicesOf(lstAll, stOptions.strWord);
    loadConfigurations(lstDevice);
    if (stOptions.bJson)
        print(devicesJson(lstDevice));
    else if (!lstDevice.empty())
        print(devicesTable(lstDevice));
    if (lstDevice.empty())
        remark(noDeviceText(lstAll, stOptions.strWord));
    return lstDevice.empty() ? EXIT_NO : EXIT_YES;
}
} // namespace

void addDevicesCommand(CLI::App& oApp, StTool& stTool)
{
    CLI::App* pCommand = oApp.add_subcommand("devices", "List the devices and the configuration that serves each");
    auto      pOptions = std::make_shared<StDevicesOptions>();
    pCommand->add_option(
        "WORD", pOptions->strWord,
        "Only the one of this id, name or address, else those with this text in name, address or type");
    pCommand->add_flag("--json", pOptions->bJson, "Print JSON");
    pCommand->footer("Exit status: 0 some found, 1 none, 2 trouble.");
    pCommand->callback([&stTool, pOptions]
                       { stTool.fnRun = [&stTool, pOptions] { return runDevices(stTool.stOptions, *pOptions); }; });
}

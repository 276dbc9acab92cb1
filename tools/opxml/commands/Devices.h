// The devices of the inventory with the configuration that serves each: for opxml
// devices, and for the commands that take a device in place of a type.
#ifndef OPERATIONXML_TOOLS_OPXML_COMMANDS_DEVICES_H
#define OPERATIONXML_TOOLS_OPXML_COMMANDS_DEVICES_H

#include "platform/DeviceDatabase.h"
#include "records/RootRecords.h"

#include <string>
#include <vector>

struct StServedDevice
{
    StDeviceInfo    stInfo;
    StAsnDevVersion stVersion;       // what it runs
    std::string     strDevType;      // empty when its type is not installed
    std::string     strDevTypeVer;   // of the registry, without "_telnet"
    bool            bTelnet = false; // managed over telnet
    std::string     strProblem;      // why there is no configuration; empty: there is one

    // Known when the configurations are loaded.
    std::string strKey;             // storage key of the configuration that serves it
    std::string strSource;          // where that came from, in words
    bool        bByVersion = false; // the key holds a configuration that names stVersion
};

// This is its id, its name or its address.
bool isDeviceNamed(const StDeviceInfo& stDevice, const std::string& strName);

// All of them by id. Nothing is loaded for it.
std::vector<StServedDevice> gatherDevices();

// The storage key of the configuration that would serve it.
std::string servingKey(const StServedDevice& stDevice);

// Has the database load the types of these devices, and no others, and finds the
// configuration of each.
void loadConfigurations(std::vector<StServedDevice>& lstDevice);

#endif

// The devices of the open root's inventory: for tools that list them. The platform
// services answer about one device at a time.
#ifndef OPERATIONXML_STANDALONE_DEVICELIST_H
#define OPERATIONXML_STANDALONE_DEVICELIST_H

#include "platform/DeviceDatabase.h"
#include "platform/Export.h"
#include "records/RootRecords.h"

#include <vector>

namespace standalone
{
struct StListedDevice
{
    StDeviceInfo    stInfo;
    StAsnDevVersion stVersion; // what it runs; empty where the inventory does not say
};

// By device id; none without a root.
OPERATIONXML_PLATFORM_API std::vector<StListedDevice> listDevices();
} // namespace standalone

#endif

// See DeviceList.h.
#include "standalone/DeviceList.h"

#include "standalone/Inventory.h"

#include <memory>

std::vector<standalone::StListedDevice> standalone::listDevices()
{
    std::vector<StListedDevice>              lstDevice;
    const std::shared_ptr<const StInventory> pInventory = currentInventory();
    if (pInventory == nullptr)
        return lstDevice;
    for (const StManagedDevice& stDevice : pInventory->lstDevice)
        lstDevice.push_back({stDevice.stInfo, stDevice.stVersion});
    return lstDevice;
}

// The device database, answered from the inventory.
#include "platform/DeviceDatabase.h"

#include "standalone/Fault.h"
#include "standalone/Inventory.h"
#include "standalone/ServerRoot.h"

using namespace standalone;

std::uint32_t CDCDeviceInfoDB::getDeviceInfo(unsigned long ulDeviceID, StDeviceInfo& stDeviceInfo)
{
    if (const auto oFault = armedFault("CDCDeviceInfoDB::getDeviceInfo"))
        return *oFault;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return RESULT_NO_ROOT;
    const StManagedDevice* pDevice = pInventory->findDevice(ulDeviceID);
    if (pDevice == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    stDeviceInfo = pDevice->stInfo;
    return 0;
}

std::uint32_t CDCDeviceInfoDB::getDevTypeAndVersionName(unsigned long ulDeviceID, std::string& strDevType,
                                                        std::string& strDevTypeVer)
{
    if (const auto oFault = armedFault("CDCDeviceInfoDB::getDevTypeAndVersionName"))
        return *oFault;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return RESULT_NO_ROOT;
    const StManagedDevice* pDevice = pInventory->findDevice(ulDeviceID);
    if (pDevice == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    const StDeviceType* pType =
        pInventory->findType(pDevice->stInfo.ulDeviceTypeID, pDevice->stInfo.ulDeviceTypeVersionID);
    if (pType == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    strDevType    = pType->strDevType;
    strDevTypeVer = pType->strDevTypeVer;
    return 0;
}

// Devices come in the order of their ids. A type without devices is no failure.
std::uint32_t CDCDeviceInfoDB::getDevInfo(const std::string& strDevType, const std::string& strDevTypeVer,
                                          const StAsnDevVersion&   stAsnDevVersion,
                                          std::list<StDeviceInfo>& lstDeviceInfo)
{
    if (const auto oFault = armedFault("CDCDeviceInfoDB::getDevInfo"))
        return *oFault;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return RESULT_NO_ROOT;
    const StDeviceType* pType = pInventory->findType(strDevType, strDevTypeVer);
    if (pType == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    const auto* pPositions = findValue(pInventory->mapDeviceByType, pairKey(pType->strDevType, pType->strDevTypeVer));
    if (pPositions == nullptr)
        return 0;
    for (const std::size_t nAt : *pPositions)
    {
        const StManagedDevice& stDevice = pInventory->lstDevice[nAt];
        if (stDevice.stVersion.strSoftVersion == stAsnDevVersion.strSoftVersion &&
            stDevice.stVersion.strPatchVersion == stAsnDevVersion.strPatchVersion)
            lstDeviceInfo.push_back(stDevice.stInfo);
    }
    return 0;
}

bool CDCDeviceInfoDB::getDevVerInfo(const std::string& strDevType, const std::string& strDevTypeVer,
                                    std::list<StAsnDevVersion>& lstDevVersion)
{
    if (armedFault("CDCDeviceInfoDB::getDevVerInfo"))
        return false;
    const auto pInventory = currentInventory();
    if (pInventory == nullptr)
        return false;
    const auto* pVersions = findValue(pInventory->mapVersion, pairKey(strDevType, strDevTypeVer));
    if (pVersions == nullptr)
        return false;
    lstDevVersion.insert(lstDevVersion.end(), pVersions->begin(), pVersions->end());
    return true;
}

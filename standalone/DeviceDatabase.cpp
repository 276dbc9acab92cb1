// The device database, answered from the inventory.
#include "platform/DeviceDatabase.h"

#include "standalone/Answer.h"

using namespace standalone;

std::uint32_t CDCDeviceInfoDB::getDeviceInfo(unsigned long ulDeviceID, StDeviceInfo& stDeviceInfo)
{
    return answerCode<operation("CDCDeviceInfoDB::getDeviceInfo")>(
        [&](const StInventory& stInventory)
        {
            const StManagedDevice* pDevice = stInventory.findDevice(ulDeviceID);
            return copyFound(pDevice == nullptr ? nullptr : &pDevice->stInfo, stDeviceInfo);
        });
}

std::uint32_t CDCDeviceInfoDB::getDevTypeAndVersionName(unsigned long ulDeviceID, std::string& strDevType,
                                                        std::string& strDevTypeVer)
{
    return answerCode<operation("CDCDeviceInfoDB::getDevTypeAndVersionName")>(
        [&](const StInventory& stInventory)
        {
            const StManagedDevice* pDevice = stInventory.findDevice(ulDeviceID);
            if (pDevice == nullptr)
                return RESULT_NOT_IN_INVENTORY;
            return stInventory.typeName(pDevice->stInfo.ulDeviceTypeID, pDevice->stInfo.ulDeviceTypeVersionID,
                                        strDevType, strDevTypeVer);
        });
}

// Devices come in the order of their ids. A type without devices is no failure.
std::uint32_t CDCDeviceInfoDB::getDevInfo(const std::string& strDevType, const std::string& strDevTypeVer,
                                          const StAsnDevVersion&   stAsnDevVersion,
                                          std::list<StDeviceInfo>& lstDeviceInfo)
{
    return answerCode<operation("CDCDeviceInfoDB::getDevInfo")>(
        [&](const StInventory& stInventory)
        {
            const StDeviceType* pType = stInventory.findType(strDevType, strDevTypeVer);
            if (pType == nullptr)
                return RESULT_NOT_IN_INVENTORY;
            const auto* pPositions =
                findValue(stInventory.mapDeviceByType, pairKey(pType->strDevType, pType->strDevTypeVer));
            if (pPositions == nullptr)
                return 0u;
            for (const std::size_t nAt : *pPositions)
            {
                const StManagedDevice& stDevice = stInventory.lstDevice[nAt];
                if (stDevice.stVersion.strSoftVersion == stAsnDevVersion.strSoftVersion &&
                    stDevice.stVersion.strPatchVersion == stAsnDevVersion.strPatchVersion)
                    lstDeviceInfo.push_back(stDevice.stInfo);
            }
            return 0u;
        });
}

bool CDCDeviceInfoDB::getDevVerInfo(const std::string& strDevType, const std::string& strDevTypeVer,
                                    std::list<StAsnDevVersion>& lstDevVersion)
{
    return answerValue<operation("CDCDeviceInfoDB::getDevVerInfo")>(
        [&](const StInventory& stInventory)
        {
            const auto* pVersions = findValue(stInventory.mapVersion, pairKey(strDevType, strDevTypeVer));
            if (pVersions != nullptr)
                lstDevVersion.insert(lstDevVersion.end(), pVersions->begin(), pVersions->end());
            return pVersions != nullptr;
        });
}

// The platform's device database: managed devices, and the versions of each
// device type that are in service. Asked by queries that start from a device id
// and by capacity reads, both under the configuration database's mutex.
// No call may throw; the library survives one that does, and answers without it.
#ifndef OPERATIONXML_PLATFORM_DEVICEDATABASE_H
#define OPERATIONXML_PLATFORM_DEVICEDATABASE_H

#include "platform/Export.h"

#include <cstdint>
#include <list>
#include <string>

struct StAsnDevVersion; // records/OperationRecords.h

// One managed device. The order of the numbers is the platform's; bTelnetToDev
// reads the five members whose comments name a role.
struct StDeviceInfo
{
    std::uint32_t ulDeviceID            = 0; // identifier; 0xEFFFFFFF (INVALID_DEVICE_ID) is never telnet-managed
    std::uint32_t ulDeviceTypeID        = 0;
    std::uint32_t ulDeviceTypeVersionID = 0;
    std::uint32_t ulSubnetID            = 0;
    std::uint32_t ulAdminState          = 0;
    std::uint32_t ulLoginState          = 0; // first state field: 5 or 6 is telnet-managed whatever follows
    std::uint32_t ulConnectState        = 0; // second state field: 1 or 2 is not telnet-managed
    std::string   strDeviceName;
    std::string   strIPAddress;
    std::string   strTelnetCapability; // handed to isSupportTelnetToDevice
};

constexpr std::uint32_t INVALID_DEVICE_ID = 0xEFFFFFFFu;

class OPERATIONXML_PLATFORM_API CDCDeviceInfoDB
{
public:
    // The record of one device; left as it came when the code is not 0.
    static std::uint32_t getDeviceInfo(unsigned long ulDeviceID, StDeviceInfo& stDeviceInfo);

    // Type name and version name of one device. The two are equal for a device
    // that is not managed per version.
    static std::uint32_t getDevTypeAndVersionName(unsigned long ulDeviceID, std::string& strDevType,
                                                  std::string& strDevTypeVer);

    // The devices of a type that run one software and patch version.
    static std::uint32_t getDevInfo(const std::string& strDevType, const std::string& strDevTypeVer,
                                    const StAsnDevVersion& stAsnDevVersion, std::list<StDeviceInfo>& lstDeviceInfo);

    // The software and patch versions of a device type that are in service, in
    // the platform's order. False: no version information.
    static bool getDevVerInfo(const std::string& strDevType, const std::string& strDevTypeVer,
                              std::list<StAsnDevVersion>& lstDevVersion);
};

#endif

// The platform's device adapter: the registry of installed device types, the
// files of each, and the classification of device type ids.
// Result codes are the platform's own (0 is success); the library logs a
// non-zero code and passes it up unchanged. All calls may run while the
// configuration database holds its mutex, so none may wait for that database.
// No call may throw; the library survives one that does, and answers without it.
#ifndef OPERATIONXML_PLATFORM_DEVICEADAPTER_H
#define OPERATIONXML_PLATFORM_DEVICEADAPTER_H

#include "platform/Export.h"

#include <cstdint>
#include <list>
#include <string>

// The domain of a device type. The library acts on the first two: the list of
// backup contents offers "AllFileType" for 1, telnet management exists for 2.
enum EnDeviceType : std::int32_t
{
    EnDeviceTypeUnset     = 0,
    EnDeviceTypeAccess    = 1,
    EnDeviceTypeDatacom   = 2,
    EnDeviceTypeTransport = 3,
    EnDeviceTypeMicrowave = 4,
    EnDeviceTypeUnknown   = 5, // what a caller starts from before asking searchDomain
};

// How the check file of a device type reports; handed on to the telnet check
// reader as it comes.
enum EnCheckReportType : std::int32_t
{
    EnCheckReportNone    = 0,
    EnCheckReportText    = 1,
    EnCheckReportSummary = 2,
};

// enConfigFileType of a registry entry: 1 selects the common file, any other
// value the device type's own file.
enum EnConfigFileType : std::int32_t
{
    EnConfigFileOwn    = 0,
    EnConfigFileCommon = 1,
};

// One registry entry: ten texts, then ten 32-bit numbers. The library reads the
// members whose comments say so; the others belong to other components.
struct StDeviceType
{
    std::string strDllName;      // 1  adapter library that brought the entry
    std::string strDevType;      // 2  device type name: the key of the device-type list
    std::string strDevTypeVer;   // 3  device type version; "_telnet" in it marks a telnet-managed variant
    std::string strDevSysOid;    // 4  system object identifier: selects the capacity entry
    std::string strSeries;       // 5
    std::string strDescription;  // 6
    std::string strIconName;     // 7
    std::string strProtocol;     // 8
    std::string strScriptFolder; // 9
    std::string strRemark;       // 10

    std::int32_t     nSupportUpgrade       = 0;               // 1  1 is one of three conditions of a capacity type
    std::int32_t     nSupportCapacity      = 0;               // 2  1 is one of three conditions of a capacity type
    EnConfigFileType enConfigFileType      = EnConfigFileOwn; // 3  see above
    std::uint32_t    ulDeviceTypeID        = 0;               // 4
    std::uint32_t    ulDeviceTypeVersionID = 0;               // 5
    std::int32_t     nSupportPatch         = 0;               // 6
    std::int32_t     nSupportBackup        = 0;               // 7
    std::int32_t     nMaxConcurrency       = 0;               // 8
    std::int32_t     nCapacityPerVersion   = 0;               // 9  1 is one of three conditions of a capacity type
    std::int32_t     nReserved             = 0;               // 10
};

class OPERATIONXML_PLATFORM_API CDeviceAdapterInterface
{
public:
    static CDeviceAdapterInterface* getInstance();

    // Appends every installed device type to the list, in registry order.
    std::uint32_t getALLDLLInfo(std::list<StDeviceType>& lstDllInfo);

    // Looks one entry up by name and version. The name may be a storage key: a
    // telnet-managed variant is found under its name with "_telnet" appended.
    // On failure the entry is left as it came.
    std::uint32_t searchDeviceType(const std::string& strDevType, const std::string& strDevTypeVer,
                                   StDeviceType& stDeviceType);

    // Turns the two ids of an entry into its name and version.
    std::uint32_t searchTypeName(std::uint32_t ulDeviceTypeID, std::uint32_t ulDeviceTypeVersionID,
                                 std::string& strDevType, std::string& strDevTypeVer);

    // The whole path of a type's server configuration file; the file need not
    // exist. Also asked for the "_telnet" twin of a type.
    std::uint32_t getServerConfigFile(const std::string& strDevType, std::string& strFilePath);

    // The whole path of a type's separate check file and how it reports; an
    // empty path with code 0 means that the type has none.
    std::uint32_t getCheckFileAndType(const std::string& strDevType, std::string& strFilePath,
                                      EnCheckReportType& enReportType);

    // Root folder of the XML resources, without a trailing separator.
    std::string initXMLPath();

    bool isSnmpDevice(std::uint32_t ulDeviceTypeID);
    bool isV3R7Device(std::uint32_t ulDeviceTypeID);

    // Whether a type whose devices report this telnet capability text is
    // managed over telnet.
    bool isSupportTelnetToDevice(std::uint32_t ulDeviceTypeID, const std::string& strTelnetCapability);

    // The domain of a type id; leaves enDomain as it came when the id is unknown.
    std::uint32_t searchDomain(std::uint32_t ulDeviceTypeID, EnDeviceType& enDomain);
};

class OPERATIONXML_PLATFORM_API CCompatibleAdapter
{
public:
    // The type id that a 16-bit type id is compatible with; its own id when it
    // stands for itself.
    static std::uint16_t getCompatibleDevType(std::uint16_t usDeviceTypeID);
};

#endif

// Platform events that the library raises.
// No call may throw; the library survives one that does, and answers without it.
#ifndef OPERATIONXML_PLATFORM_EVENTS_H
#define OPERATIONXML_PLATFORM_EVENTS_H

#include "platform/Export.h"

#include <cstdint>
#include <string>

// Raised for every device that runs a version without a capacity record.
constexpr std::uint32_t EVENT_CAPACITY_FILE_MISSING = 10007;

struct TEEventParam
{
    std::uint32_t ulDeviceID = 0;
    std::string   strDeviceName;
    std::string   strDevType;
    std::string   strSoftVersion;
    std::string   strPatchVersion;
};

class OPERATIONXML_PLATFORM_API TEEventMgr
{
public:
    static TEEventMgr* Instance();

    // Queues one event; must not wait for whoever handles it.
    void raiseEvent(std::uint32_t ulEventID, const TEEventParam& stParam);
};

#endif

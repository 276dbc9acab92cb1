// The platform's alarm record, as the transfer registration is asked about it.
#ifndef OPERATIONXML_PLATFORM_ALARM_H
#define OPERATIONXML_PLATFORM_ALARM_H

#include <string>

namespace NS_UTIL
{
struct EnvAlarmInfo
{
    unsigned long ulFaultId = 0; // which alarm
    unsigned long ulDevType = 0; // numeric device type of the device that raised it
    std::string   strDevName;
    std::string   strDetail;
};
} // namespace NS_UTIL

#endif

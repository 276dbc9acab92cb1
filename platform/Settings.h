// Server settings, configuration items and resource values, each read by name.
// Read afresh at every use: the library keeps no copy.
// No call may throw; the library survives one that does, and answers without it.
#ifndef OPERATIONXML_PLATFORM_SETTINGS_H
#define OPERATIONXML_PLATFORM_SETTINGS_H

#include "platform/Export.h"

#include <cstdint>
#include <string>

class OPERATIONXML_PLATFORM_API CDCSettingInfoTab
{
public:
    static CDCSettingInfoTab* Instance();

    // Writes the text of a named setting; leaves the value as it came (and
    // returns non-zero) when there is no such setting.
    std::uint32_t getValueByParam(const std::string& strParam, std::string& strValue);
};

namespace NS_UTIL
{
class OPERATIONXML_PLATFORM_API CConfigItem
{
public:
    static CConfigItem* Instance();

    // An integer configuration item, or the default when there is none. A number
    // beyond 32 bits keeps its low 32 bits.
    std::int32_t readCfgItemIntValueFromDB(const std::string& strSection, const std::string& strKey,
                                           std::int32_t nDefault);
};
} // namespace NS_UTIL

class OPERATIONXML_PLATFORM_API CSysCommonFunc
{
public:
    // Writes the text of a resource value and returns 0, or returns an error code.
    static std::uint32_t readResourceFile(const std::string& strKey, std::string& strValue);
};

#endif

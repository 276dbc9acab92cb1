// The names by which the library asks the server for settings, configuration items,
// resources and environment values, with the words that mean something. Compile-time
// data; opxml lint tells names that nobody asks for by these lists.
#ifndef OPERATIONXML_RECORDS_SERVERNAMES_H
#define OPERATIONXML_RECORDS_SERVERNAMES_H

#include <string_view>

namespace ServerNames
{
inline constexpr const char* ISSU_MODE              = "WDM_SUPPORT_ISSU_UPGRADE";
inline constexpr const char* ITEM_SECTION           = "DC";
inline constexpr const char* FIXED_CHECK_ITEM       = "FIXED_CHECK_ITEM";
inline constexpr const char* BACKUP_PROGRAM_SUPPORT = "BACKUP_PROGRAM_SUPPORT";
inline constexpr const char* APP_ROOT               = "APP_ROOT";
inline constexpr const char* ENV_ROOT               = "ENV_ROOT";
inline constexpr const char* LANGUAGE               = "OSS_LANG";

struct StName
{
    const char*      pszName;
    std::string_view strWords; // one character each
};

inline constexpr StName SETTINGS[]     = {{ISSU_MODE, "012"}};
inline constexpr StName CONFIG_ITEMS[] = {{FIXED_CHECK_ITEM, "01"}}; // of ITEM_SECTION
inline constexpr StName RESOURCES[]    = {{BACKUP_PROGRAM_SUPPORT, "01"}};
} // namespace ServerNames

#endif

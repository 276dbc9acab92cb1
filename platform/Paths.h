// Paths and environment of the server installation.
// No call may throw; the library survives one that does, and answers without it.
#ifndef OPERATIONXML_PLATFORM_PATHS_H
#define OPERATIONXML_PLATFORM_PATHS_H

#include "platform/Export.h"

#include <string>

namespace NS_UTIL
{
// Writes the server path of the DC module.
OPERATIONXML_PLATFORM_API void EmfGetServerPath_DC(std::string& strPath);

// Appends a directory separator unless the path ends in one.
OPERATIONXML_PLATFORM_API void AppendDirSeparator(std::string& strPath);

// Whether something stands at the path.
OPERATIONXML_PLATFORM_API bool IsExists(const std::string& strPath);
} // namespace NS_UTIL

namespace ns_kivosdk_wrap
{
// The value of a server environment setting, empty when there is none. The
// library always passes false and true for the two flags.
OPERATIONXML_PLATFORM_API std::string GetEnvValue(const std::string& strName, bool bReload, bool bExpand);
} // namespace ns_kivosdk_wrap

#endif

// File system wrappers of the platform. They follow the POSIX calls of the same
// names and take the encoding of the path (the library always passes "UTF-8").
// No call may throw; the library survives one that does, and answers without it.
#ifndef OPERATIONXML_PLATFORM_FILESYSTEM_H
#define OPERATIONXML_PLATFORM_FILESYSTEM_H

#include "platform/Export.h"

#include <dirent.h>
#include <sys/stat.h>

namespace KIVO_OS
{
// Null with errno set when the folder cannot be opened.
OPERATIONXML_PLATFORM_API DIR* opendir(const char* pszPath, const char* pszEncoding);

// 0 with *ppResult set to pEntry; 0 with *ppResult null at the end; an errno
// value on a read error.
OPERATIONXML_PLATFORM_API int readdir_r(DIR* pDir, dirent* pEntry, dirent** ppResult, const char* pszEncoding);

// 0, or -1 with errno set. Follows links.
OPERATIONXML_PLATFORM_API int stat(const char* pszPath, struct ::stat* pStatbuf, const char* pszEncoding);

OPERATIONXML_PLATFORM_API int closedir(DIR* pDir);
} // namespace KIVO_OS

#endif

// Code page conversion of the platform.
// No call may throw; the library survives one that does, and answers without it.
#ifndef OPERATIONXML_PLATFORM_CODEPAGE_H
#define OPERATIONXML_PLATFORM_CODEPAGE_H

#include "platform/Export.h"

#include <string>

namespace kIVOGlobalUtils
{
// A text of the server's local code page, in UTF-8.
OPERATIONXML_PLATFORM_API std::string LOCTOUTF8(const std::string& strLocal);
} // namespace kIVOGlobalUtils

#endif

// A regular file as bytes, within the limit on its size. Called by the parsers.
// Stateless; safe on any thread.
#ifndef OPERATIONXML_COMMON_FILEBYTES_H
#define OPERATIONXML_COMMON_FILEBYTES_H

#include "platform/Export.h"

#include <string>

// Reads the whole file; returns why it could not, or an empty text. Never waits: a
// pipe opens at once and is then refused.
OPERATIONXML_API std::string readFileBytes(const std::string& strPath, std::string& strBytes);

#endif

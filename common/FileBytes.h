// A regular file as bytes, within the limit on its size, and what shows that it is
// still the same one. Called by the parsers and by the load.
// Stateless; safe on any thread.
#ifndef OPERATIONXML_COMMON_FILEBYTES_H
#define OPERATIONXML_COMMON_FILEBYTES_H

#include "platform/Export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <sys/types.h>

// Which file it is and when it was written last.
struct StFileState
{
    ::dev_t      nDevice        = 0;
    ::ino_t      nInode         = 0;
    ::off_t      nSize          = 0;
    std::int64_t nModifiedNanos = 0;
    std::int64_t nChangedNanos  = 0;
};
bool operator==(const StFileState& stLeft, const StFileState& stRight);

// The state of now; none when there is no such file. Asked before the file is read,
// it belongs to bytes that are no older.
std::optional<StFileState> fileState(const std::string& strPath);

// Reads the whole file; returns why it could not, or an empty text. Never waits: a
// pipe opens at once and is then refused.
OPERATIONXML_API std::string readFileBytes(const std::string& strPath, std::string& strBytes);

#endif

// How many threads a start-up load may use, or a recorded read of many types. Asked by
// the database before a load, and by the catalog (catalog/PlacedSource.h).
#ifndef OPERATIONXML_READER_LOADTHREADS_H
#define OPERATIONXML_READER_LOADTHREADS_H

#include "platform/Export.h"

#include <cstddef>
#include <string>

namespace loadThreads
{
constexpr const char* VARIABLE = "OPERATIONXML_LOAD_THREADS";
constexpr std::size_t MOST     = 64; // that may be asked for

// The reading thread included: what the environment says, a number from 1 to MOST,
// else as many as this process may run on, and 8 at most. Reads the environment:
// nobody may change it meanwhile.
OPERATIONXML_API std::size_t count();

// What the cgroups of a process leave it: processors begun, or 0 for no limit.
// strGroups is its file of them (/proc/self/cgroup), strMount where they are mounted.
OPERATIONXML_API std::size_t allowedByGroups(const std::string& strGroups, const std::string& strMount);
} // namespace loadThreads

#endif

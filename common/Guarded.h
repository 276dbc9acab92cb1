// The boundary of an exported operation: whatever is thrown below it (memory that
// runs out, a platform call that throws although it must not) ends here as one log
// line and a code. The operation's body becomes a function-try-block:
//
//     std::uint32_t CSomeReader::read(...)
//     try
//     {
//         const CEntry oEntry;
//         ...
//     }
//     catch (...)
//     {
//         return answerThrown(DC_HERE, DC_RESULT_XML_ERROR);
//     }
//
// The code is DC_RESULT_XML_ERROR; an operation that answers a flag, a text or a
// pointer calls answerThrown and then returns what it answers where it knows nothing.
// Only the outermost entry of a thread stops what is thrown: exported operations
// call each other, some pass over a result by rule (a bad parameter never stops its
// siblings), and stopped there "out of memory" would become a record with a part
// missing. Where one of many may fail and the others go on (a device type, a
// module), logThrown stops it at any depth.
#ifndef OPERATIONXML_COMMON_GUARDED_H
#define OPERATIONXML_COMMON_GUARDED_H

#include "platform/Logging.h"
#include "records/ResultCodes.h"

#include <cstdint>

// Counts the exported operations that are under way on this thread. First local of
// the operation: it must be gone when the handler runs.
class CEntry
{
public:
    CEntry() noexcept;
    ~CEntry();
    CEntry(const CEntry&)            = delete;
    CEntry& operator=(const CEntry&) = delete;
};

// These three are for catch (...) only.

// Logs what was thrown, once and under the code, and answers the code. A log that
// throws too is passed over. Only the cancellation of the thread goes on: stopping
// it would end the process.
std::uint32_t logThrown(const LocationInfo& stWhere, std::uint32_t ulCode);

// The same for the outermost entry; below another one it lets everything through.
std::uint32_t answerThrown(const LocationInfo& stWhere, std::uint32_t ulCode);

// Passes over what was thrown, for what is only tried: the cancellation of the thread
// goes on as well.
void passOverThrown();

#endif

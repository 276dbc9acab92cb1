// The boundary of an exported operation: whatever is thrown below it (memory that
// runs out, a platform call that throws although it must not) ends here as one log
// line and a code. The operation's body becomes a function-try-block:
//
//     std::uint32_t CSomeReader::read(...)
//     try
//     {
//         ...
//     }
//     catch (...)
//     {
//         return logThrown(DC_HERE, DC_RESULT_XML_ERROR);
//     }
//
// The code is DC_RESULT_XML_ERROR; an operation that answers a flag, a text or a
// pointer calls logThrown and then returns what it answers where it knows nothing.
// Only outermost entries have a boundary. Code whose callers pass over a result by
// rule (a bad parameter never stops its siblings) must let the exception through:
// stopped there, "out of memory" would become a record with a part missing.
#ifndef OPERATIONXML_COMMON_GUARDED_H
#define OPERATIONXML_COMMON_GUARDED_H

#include "platform/Logging.h"
#include "records/ResultCodes.h"

#include <cstdint>

// For catch (...) only: logs what was thrown, once and under the code, and answers
// the code. A log that throws too is passed over. Only the cancellation of the
// thread goes on: stopping it would end the process.
std::uint32_t logThrown(const LocationInfo& stWhere, std::uint32_t ulCode);

#endif

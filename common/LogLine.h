// Log lines in one call: prefix, filter, write, and hand the code back, so that
// "log and return" is one statement where a failure arises. The mandated text
// stands whole at the point of use.
#ifndef OPERATIONXML_COMMON_LOGLINE_H
#define OPERATIONXML_COMMON_LOGLINE_H

#include "platform/Logging.h"
#include "records/ResultCodes.h"

#include <cstdint>
#include <string_view>

// The place of a log line. A source file defines DC_SOURCE, the class name that
// stands for it in the log.
#define DC_HERE LocationInfo(DC_SOURCE, __func__, __LINE__)

// An error the function found itself: "[DCServer]" and the text, under the code
// that is returned.
std::uint32_t logFail(const LocationInfo& stWhere, std::uint32_t ulCode, std::string_view strText);

// A call that failed: "Call Function return Error:" and the call as written in
// the source, under the callee's code, which is returned.
std::uint32_t logCall(const LocationInfo& stWhere, std::uint32_t ulCode, std::string_view strCall);

// The same without passing the text through the filter.
std::uint32_t logCallUnfiltered(const LocationInfo& stWhere, std::uint32_t ulCode, std::string_view strCall);

// An information line: "[DCServer]" and the text.
void logInfo(const LocationInfo& stWhere, std::string_view strText);

#endif

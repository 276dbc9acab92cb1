// Where the stand-alone log service writes: readable lines, a JSON file, and
// listeners of the tool and the tests. Off until asked for.
#ifndef OPERATIONXML_STANDALONE_LOGSINK_H
#define OPERATIONXML_STANDALONE_LOGSINK_H

#include "platform/Export.h"
#include "platform/Logging.h"

#include <cstdint>
#include <functional>
#include <string>

namespace standalone
{
struct StLogLine
{
    bool          bError = false; // an error line; otherwise information
    std::uint32_t ulCode = 0;     // 0 for information
    std::string   strText;        // exactly what the library passed
    LocationInfo  stWhere{"", "", 0};
};

// What reaches stderr as readable lines.
enum class EnConsoleLevel
{
    Off,
    Errors,
    All,
};
OPERATIONXML_PLATFORM_API void setConsoleLog(EnConsoleLevel enLevel);

// Appends one JSON object a line to the file, in the order written: level, code,
// text, file, function, line. An empty path ends it. False: the file cannot be
// opened, strError says why.
OPERATIONXML_PLATFORM_API bool setJsonLog(const std::string& strPath, std::string& strError);

// Called for every line, on the thread that writes it, before the next one.
OPERATIONXML_PLATFORM_API void setLogListener(std::function<void(const StLogLine&)> fnListener);

// Called at the entry of every traced operation.
OPERATIONXML_PLATFORM_API void setTraceListener(std::function<void(const LocationInfo&)> fnListener);

// Called with every text that passes the log filter; may rewrite it.
OPERATIONXML_PLATFORM_API void setLogFilter(std::function<void(std::string&)> fnFilter);
} // namespace standalone

#endif

// Where the stand-alone log service writes: readable lines, a JSON file, and
// listeners of the tool and the tests. Off until asked for. Every function here
// is safe from any thread; all sinks get whole lines in one order.
#ifndef OPERATIONXML_STANDALONE_LOGSINK_H
#define OPERATIONXML_STANDALONE_LOGSINK_H

#include "platform/Export.h"
#include "platform/Logging.h"

#include <chrono>
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
    std::string   strAbout; // the note of its thread

    std::chrono::system_clock::time_point oTime; // when it was written
};

// What reaches stderr as readable lines: local time, level, code, text and place,
// with control characters escaped; coloured on a terminal unless NO_COLOR is set.
enum class EnConsoleLevel
{
    Off,
    Errors,
    All,
};
OPERATIONXML_PLATFORM_API void setConsoleLog(EnConsoleLevel enLevel);

// Appends one JSON object a line to the file, in the order written: time (UTC),
// level, code, text, file, function, line, and about where there is a note. Bytes that are not UTF-8 become U+FFFD. Each line is
// handed to the system before the call returns, so a crash loses none. An empty
// path ends it. False: the file cannot be opened, strError says why and the log
// before goes on.
OPERATIONXML_PLATFORM_API bool setJsonLog(const std::string& strPath, std::string& strError);

// What the next error line of this thread is about ("FILE: line 3: TEXT"), for
// texts that name no file themselves. An empty note takes back the one before.
OPERATIONXML_PLATFORM_API void setLogNote(const std::string& strAbout);

// Called for every line, on the thread that writes it, before the next one: the
// log's mutex is held, so the listener must neither log nor change a sink. An
// empty function ends it, for this one and those below.
OPERATIONXML_PLATFORM_API void setLogListener(std::function<void(const StLogLine&)> fnListener);

// Called at the entry of every traced operation, on its thread, perhaps on several
// at once.
OPERATIONXML_PLATFORM_API void setTraceListener(std::function<void(const LocationInfo&)> fnListener);

// Called with every text that passes the log filter, on the thread that logs,
// perhaps on several at once; may rewrite it.
OPERATIONXML_PLATFORM_API void setLogFilter(std::function<void(std::string&)> fnFilter);
} // namespace standalone

#endif

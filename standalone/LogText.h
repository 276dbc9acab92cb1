// One log line as text: for a person, and as a JSON object. Called by the log
// service under its mutex; plain functions without state.
#ifndef OPERATIONXML_STANDALONE_LOGTEXT_H
#define OPERATIONXML_STANDALONE_LOGTEXT_H

#include "standalone/LogSink.h"

#include <string>

namespace standalone
{
// "0x3B0004EC [DCServer]Invalid para. (CXMLConfigDatabase::load:12)"; information
// has no code. Control characters and bytes that are not UTF-8 are escaped, so
// that no text of a file can drive the terminal.
std::string readableLine(const StLogLine& stLine);

// {"time":"2031-05-09T07:30:00.250Z","level":"error","code":989857004,"text":"...","file":"...","function":"...","line":12};
// bytes that are not UTF-8 become U+FFFD.
std::string jsonLine(const StLogLine& stLine);
} // namespace standalone

#endif

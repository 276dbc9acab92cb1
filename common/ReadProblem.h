// StReadProblem: what went wrong where while something was read. The one kind of
// value that carries it: the parser makes it, load report, module files, alarm
// tables and file-check rules hand it on, and people see it through the functions
// below. A plain value, safe on any thread.
#ifndef OPERATIONXML_COMMON_READPROBLEM_H
#define OPERATIONXML_COMMON_READPROBLEM_H

#include "platform/Export.h"

#include <cstdint>
#include <string>

// What kind of thing it is, for whoever tells people what to do about it.
enum class EnReadProblem : std::int32_t
{
    Content,  // what the file says is wrong or cannot be used
    Encoding, // its bytes are no characters of its encoding
    Limit,    // it passes a limit
    File,     // it is not there or cannot be read
};

struct StReadProblem
{
    std::string   strFile;      // empty when what was read is no file
    std::uint32_t ulLine   = 0; // counted from 1; 0 when there is no place
    std::uint32_t ulColumn = 0; // counted from 1 in characters; 0 when only the line is known
    std::string   strText;      // what is wrong; empty: nothing is
    EnReadProblem enKind = EnReadProblem::Content;

    bool isSet() const { return !strText.empty(); }
};

// For people who know the file: "line 12, column 7: TEXT", as far as the place is
// known; empty when nothing is wrong.
OPERATIONXML_API std::string problemText(const StReadProblem& stProblem);

// The same with the file in front: "FILE: line 12, column 7: TEXT".
OPERATIONXML_API std::string problemWithFile(const StReadProblem& stProblem);

// For opxml alone, whose log names the file beside the line of whoever finds that
// there is no document: called after every file that was parsed, on the thread that
// did, with what was wrong with it or with nothing. Null, as it is at first, ends it.
using ReadListener = void (*)(const StReadProblem& stProblem);
OPERATIONXML_API void setReadListener(ReadListener pfnListener);
OPERATIONXML_API void tellReadListener(const StReadProblem& stProblem);

#endif

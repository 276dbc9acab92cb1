// The platform's log service, its text filter and its function trace. Every
// source of the library writes through these and prints nothing itself.
// All calls may come from several threads at once. None may throw; the library
// survives one that does, and whatever was to be logged is then lost. Called back on
// the loading thread, CXMLConfigDatabase answers from what is loaded so far; other
// threads that ask it meanwhile wait for the load, so no call may wait for them.
#ifndef OPERATIONXML_PLATFORM_LOGGING_H
#define OPERATIONXML_PLATFORM_LOGGING_H

#include "platform/Export.h"

#include <cstdint>
#include <string>

// The place a log line comes from. Holds the pointers it is given: both texts
// are string literals (the class name stands for the source file).
struct LocationInfo
{
    constexpr LocationInfo(const char* pszFileName, const char* pszFunctionName, int nLineNumber) noexcept
        : pszFile(pszFileName), pszFunction(pszFunctionName), nLine(nLineNumber)
    {
    }

    const char* pszFile;
    const char* pszFunction;
    int         nLine;
};

class OPERATIONXML_PLATFORM_API LogProcess
{
public:
    // Writes one error line. ulCode is the result code the caller is about to
    // return, or the code of the call that failed. The text is written as it is.
    static void Error(std::uint32_t ulCode, const std::string& strText, const LocationInfo& stWhere);

    // Writes one information line.
    static void Info(const std::string& strText, const LocationInfo& stWhere);
};

// Marks the time spent in an operation, from construction to destruction. The
// entries trace: the operations of the database, of the readers of files, the
// dictionaries and the file-check rules, and the set... operation of each section.
// The readers of single elements do not, nor what only forms a name: they run
// thousands of times in a load. It must cost next to nothing while tracing is off.
class OPERATIONXML_PLATFORM_API _TraceFunction
{
public:
    explicit _TraceFunction(const LocationInfo& stWhere);
    ~_TraceFunction();
    _TraceFunction(const _TraceFunction&)            = delete;
    _TraceFunction& operator=(const _TraceFunction&) = delete;

private:
    LocationInfo m_stWhere;
};

namespace NS_UTIL
{
class OPERATIONXML_PLATFORM_API CDCLogFilter
{
public:
    static CDCLogFilter* getInstance();

    // May rewrite the text in place (to mask what must not reach a log file)
    // before it is written.
    void filter(std::string& strText);
};
} // namespace NS_UTIL

#endif

// The log service: readable lines and JSON lines through spdlog, and the
// listener. One mutex keeps lines whole and gives every sink the same order;
// while nothing listens, a line costs one relaxed atomic load.
#include "platform/Logging.h"

#include "standalone/Fault.h"
#include "standalone/Listener.h"
#include "standalone/LogSink.h"
#include "standalone/LogText.h"

#include <spdlog/logger.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/sinks/stdout_color_sinks.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <stdlib.h>
#include <system_error>
#include <thread>
#include <utility>

using namespace standalone;

namespace
{
// What is wanted by anybody, as bits.
constexpr unsigned WANT_ERRORS = 1;
constexpr unsigned WANT_INFO   = 2;

struct StSinks
{
    std::atomic<unsigned> nWanted{0};

    std::mutex                             oMutex; // guards what follows, and is held while a line is written
    EnConsoleLevel                         enConsole = EnConsoleLevel::Off;
    std::shared_ptr<spdlog::logger>        pConsole;
    std::shared_ptr<spdlog::logger>        pJson;
    std::function<void(const StLogLine&)>  fnListener;
    std::map<std::thread::id, std::string> mapNote; // of setLogNote

    CListener<const LocationInfo&> oTrace;
    CListener<std::string&>        oFilter;
};

StSinks& sinks()
{
    static StSinks* const pSinks = new StSinks; // never destroyed: exit handlers of the library still log
    return *pSinks;
}

// Under the mutex, after every change of a sink.
void updateWanted(StSinks& stSinks)
{
    const bool bInfo  = stSinks.enConsole == EnConsoleLevel::All || stSinks.pJson || stSinks.fnListener;
    const bool bError = bInfo || stSinks.enConsole == EnConsoleLevel::Errors;
    stSinks.nWanted.store((bError ? WANT_ERRORS : 0) | (bInfo ? WANT_INFO : 0), std::memory_order_relaxed);
}

std::shared_ptr<spdlog::logger> makeLogger(spdlog::sink_ptr pSink, const char* pszPattern)
{
    auto pLogger = std::make_shared<spdlog::logger>("", std::move(pSink));
    pLogger->set_pattern(pszPattern);
    pLogger->set_level(spdlog::level::info);
    pLogger->flush_on(spdlog::level::info); // a crash right after the line must not lose it
    // A log that cannot be written is said once; it never stops the caller.
    pLogger->set_error_handler(
        [bSaid = false](const std::string& strProblem) mutable
        {
            if (!std::exchange(bSaid, true))
                static_cast<void>(std::fprintf(stderr, "cannot write the log: %s\n", strProblem.c_str()));
        });
    return pLogger;
}

std::shared_ptr<spdlog::logger> makeConsole()
{
    const char* pszNoColor = ::getenv("NO_COLOR"); // NOLINT(concurrency-mt-unsafe): nobody here sets variables
    const bool  bNoColor   = pszNoColor != nullptr && *pszNoColor != '\0';
    return makeLogger(std::make_shared<spdlog::sinks::stderr_color_sink_st>(bNoColor ? spdlog::color_mode::never
                                                                                     : spdlog::color_mode::automatic),
                      "%H:%M:%S.%e %^%l%$ %v");
}

void write(StLogLine stLine)
{
    StSinks&                          stSinks = sinks();
    const std::lock_guard<std::mutex> oGuard(stSinks.oMutex);
    if (const auto itNote = stSinks.mapNote.find(std::this_thread::get_id());
        stLine.bError && itNote != stSinks.mapNote.end())
    {
        stLine.strAbout = std::move(itNote->second);
        stSinks.mapNote.erase(itNote);
    }
    const auto enLevel = stLine.bError ? spdlog::level::err : spdlog::level::info;
    if (stSinks.enConsole == EnConsoleLevel::All || (stLine.bError && stSinks.enConsole == EnConsoleLevel::Errors))
        stSinks.pConsole->log(stLine.oTime, {}, enLevel, spdlog::string_view_t(readableLine(stLine)));
    if (stSinks.pJson)
        stSinks.pJson->log(enLevel, spdlog::string_view_t(jsonLine(stLine)));
    if (stSinks.fnListener)
        stSinks.fnListener(stLine);
}

// Out of memory here loses the line, never the caller.
void writeSafely(bool bError, std::uint32_t ulCode, const std::string& strText, const LocationInfo& stWhere) noexcept
{
    try
    {
        if ((sinks().nWanted.load(std::memory_order_relaxed) & (bError ? WANT_ERRORS : WANT_INFO)) != 0)
            write({bError, ulCode, strText, stWhere, {}, std::chrono::system_clock::now()});
    }
    catch (const std::exception& oProblem)
    {
        static_cast<void>(std::fprintf(stderr, "cannot write the log: %s\n", oProblem.what()));
    }
}
} // namespace

void standalone::setConsoleLog(EnConsoleLevel enLevel)
{
    StSinks&                          stSinks = sinks();
    const std::lock_guard<std::mutex> oGuard(stSinks.oMutex);
    if (enLevel != EnConsoleLevel::Off)
        stSinks.pConsole = makeConsole();
    stSinks.enConsole = enLevel;
    updateWanted(stSinks);
}

bool standalone::setJsonLog(const std::string& strPath, std::string& strError)
{
    std::shared_ptr<spdlog::logger> pJson;
    try
    {
        // spdlog makes missing folders; a misspelt path is better refused.
        const std::filesystem::path oFolder = std::filesystem::path(strPath).parent_path();
        if (!oFolder.empty() && !std::filesystem::is_directory(oFolder))
        {
            strError = "cannot open the log file " + strPath + ": there is no folder " + oFolder.string();
            return false;
        }
        if (!strPath.empty())
            pJson = makeLogger(std::make_shared<spdlog::sinks::basic_file_sink_st>(strPath), "%v");
    }
    catch (const std::exception& oProblem)
    {
        strError = "cannot open the log file " + strPath + ": " + oProblem.what();
        return false;
    }
    StSinks&                          stSinks = sinks();
    const std::lock_guard<std::mutex> oGuard(stSinks.oMutex);
    stSinks.pJson = std::move(pJson);
    updateWanted(stSinks);
    return true;
}

void standalone::setLogNote(const std::string& strAbout)
{
    StSinks&                          stSinks = sinks();
    const std::lock_guard<std::mutex> oGuard(stSinks.oMutex);
    if (strAbout.empty())
        stSinks.mapNote.erase(std::this_thread::get_id());
    else
        stSinks.mapNote[std::this_thread::get_id()] = strAbout;
}

void standalone::setLogListener(std::function<void(const StLogLine&)> fnListener)
{
    StSinks&                          stSinks = sinks();
    const std::lock_guard<std::mutex> oGuard(stSinks.oMutex);
    stSinks.fnListener = std::move(fnListener);
    updateWanted(stSinks);
}

void standalone::setTraceListener(std::function<void(const LocationInfo&)> fnListener)
{
    sinks().oTrace.set(std::move(fnListener));
}

void standalone::setLogFilter(std::function<void(std::string&)> fnFilter)
{
    sinks().oFilter.set(std::move(fnFilter));
}

void LogProcess::Error(std::uint32_t ulCode, const std::string& strText, const LocationInfo& stWhere)
{
    if (!armedFault<operation("LogProcess::Error")>())
        writeSafely(true, ulCode, strText, stWhere);
}

void LogProcess::Info(const std::string& strText, const LocationInfo& stWhere)
{
    if (!armedFault<operation("LogProcess::Info")>())
        writeSafely(false, 0, strText, stWhere);
}

_TraceFunction::_TraceFunction(const LocationInfo& stWhere) : m_stWhere(stWhere)
{
    if (!armedFault<operation("_TraceFunction::_TraceFunction")>())
        sinks().oTrace.call(m_stWhere);
}

_TraceFunction::~_TraceFunction()
{
    // Only the entry is reported here; the server's own service measures.
}

NS_UTIL::CDCLogFilter* NS_UTIL::CDCLogFilter::getInstance()
{
    static CDCLogFilter oInstance;
    armedFault<operation("NS_UTIL::CDCLogFilter::getInstance")>();
    return &oInstance;
}

void NS_UTIL::CDCLogFilter::filter(std::string& strText)
{
    if (!armedFault<operation("NS_UTIL::CDCLogFilter::filter")>())
        sinks().oFilter.call(strText);
}

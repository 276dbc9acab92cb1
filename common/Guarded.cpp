// See Guarded.h. Who stops what was thrown, and its log line; each thread counts its own
// entries.
#include "common/Guarded.h"

#include "common/LogLine.h"

#include <cxxabi.h>
#include <exception>
#include <new>
#include <string>

namespace
{
thread_local unsigned s_uEntries = 0;
}

CEntry::CEntry() noexcept
{
    ++s_uEntries;
}

CEntry::~CEntry()
{
    --s_uEntries;
}

std::uint32_t answerThrown(const LocationInfo& stWhere, std::uint32_t ulCode)
{
    if (s_uEntries != 0)
        throw;
    return logThrown(stWhere, ulCode);
}

std::uint32_t logThrown(const LocationInfo& stWhere, std::uint32_t ulCode)
{
    try
    {
        try
        {
            throw;
        }
        catch (const std::bad_alloc&)
        {
            return logFail(stWhere, ulCode, "Memory ran out.");
        }
        catch (const abi::__forced_unwind&)
        {
            throw;
        }
        catch (const std::exception& oThrown)
        {
            return logFail(stWhere, ulCode, std::string("An exception was thrown :") + oThrown.what());
        }
        catch (...)
        {
            return logFail(stWhere, ulCode, "An exception was thrown.");
        }
    }
    catch (const abi::__forced_unwind&)
    {
        throw;
    }
    catch (...) // the log itself
    {
        return ulCode;
    }
}

void passOverThrown()
{
    try
    {
        throw;
    }
    catch (const abi::__forced_unwind&)
    {
        throw;
    }
    catch (...) // nobody waits for it
    {
    }
}

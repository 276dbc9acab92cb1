// What was thrown, told as one log line.
#include "common/Guarded.h"

#include "common/LogLine.h"

#include <cxxabi.h>
#include <exception>
#include <new>
#include <string>

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

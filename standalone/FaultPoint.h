// CFaultPoint: makes a platform call fail, for tests of what the library does
// then. Lives for a scope; one line arms it:
//   CFaultPoint oFault("CSysCommonFunc::readResourceFile", 1, 7u);   // the first call returns 7
// Safe from any thread. Every operation of platform/ has its point, under its
// class or namespace and name ("NS_UTIL::IsExists", "KIVO_OS::readdir_r").
#ifndef OPERATIONXML_STANDALONE_FAULTPOINT_H
#define OPERATIONXML_STANDALONE_FAULTPOINT_H

#include "platform/Export.h"

#include <cstdint>
#include <exception>
#include <string>
#include <vector>

namespace standalone
{
class OPERATIONXML_PLATFORM_API CFaultPoint
{
public:
    // Call number nCall (from 1) of the named platform operation, counted from
    // now on, answers ulResult without doing anything; with nCall 0 every call
    // does. Operations that answer a bool answer false, those that answer a
    // pointer or -1 do so with errno set to ulResult, texts answer empty; only
    // getInstance() and Instance() answer as ever. Several may be armed, for one
    // operation too; each counts the calls for itself. closedir still does its
    // work, as nobody closes a folder twice. Throws std::invalid_argument for a
    // name that no operation has.
    CFaultPoint(const std::string& strOperation, unsigned nCall, std::uint32_t ulResult);

    // The same with a call that throws.
    CFaultPoint(const std::string& strOperation, unsigned nCall, std::exception_ptr pThrown);
    ~CFaultPoint();
    CFaultPoint(const CFaultPoint&)            = delete;
    CFaultPoint& operator=(const CFaultPoint&) = delete;

    // How often the operation was called since.
    unsigned calls() const;

    // The names of all operations.
    static std::vector<std::string> operations();
};
} // namespace standalone

#endif

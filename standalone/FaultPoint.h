// CFaultPoint: makes a platform call fail, for tests of what the library does
// then. Lives for a scope; one line arms it:
//   CFaultPoint oFault("CSysCommonFunc::readResourceFile", 1, 7u);   // the first call returns 7
// Safe from any thread. Every operation of platform/ that answers something has
// its point, under its class or namespace and name ("NS_UTIL::IsExists",
// "KIVO_OS::readdir_r"); getInstance() and Instance() never fail.
#ifndef OPERATIONXML_STANDALONE_FAULTPOINT_H
#define OPERATIONXML_STANDALONE_FAULTPOINT_H

#include "platform/Export.h"

#include <cstdint>
#include <string>

namespace standalone
{
class OPERATIONXML_PLATFORM_API CFaultPoint
{
public:
    // Call number nCall (from 1) of the named platform operation, counted from
    // now on, answers ulResult without doing anything; with nCall 0 every call
    // does. Operations that answer a bool answer false, those that answer a
    // pointer or -1 do so with errno set to ulResult, texts answer empty. Several
    // may be armed, for one operation too; each counts the calls for itself.
    // closedir alone still does its work, as nobody closes a folder twice.
    CFaultPoint(std::string strOperation, unsigned nCall, std::uint32_t ulResult);
    ~CFaultPoint();
    CFaultPoint(const CFaultPoint&)            = delete;
    CFaultPoint& operator=(const CFaultPoint&) = delete;

private:
    std::string m_strOperation;
};
} // namespace standalone

#endif

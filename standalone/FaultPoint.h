// CFaultPoint: makes a platform call fail, for tests of what the library does
// then. Lives for a scope; one line arms it:
//   CFaultPoint oFault("CSysCommonFunc::readResourceFile", 1, 7u);   // the first call returns 7
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
    // pointer answer null with errno set to ulResult, texts answer empty.
    CFaultPoint(std::string strOperation, unsigned nCall, std::uint32_t ulResult);
    ~CFaultPoint();
    CFaultPoint(const CFaultPoint&)            = delete;
    CFaultPoint& operator=(const CFaultPoint&) = delete;

private:
    std::string m_strOperation;
};
} // namespace standalone

#endif

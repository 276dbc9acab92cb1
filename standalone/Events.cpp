// Platform events, handed to the listener of EventSink.h.
#include "platform/Events.h"

#include "standalone/EventSink.h"
#include "standalone/Fault.h"
#include "standalone/Listener.h"

#include <utility>

namespace
{
using CEventListener = standalone::CListener<std::uint32_t, const TEEventParam&>;

CEventListener& eventListener()
{
    static CEventListener* const pListener = new CEventListener; // never destroyed: exit handlers may still raise
    return *pListener;
}
} // namespace

void standalone::setEventListener(std::function<void(std::uint32_t, const TEEventParam&)> fnListener)
{
    eventListener().set(std::move(fnListener));
}

TEEventMgr* TEEventMgr::Instance()
{
    static TEEventMgr oInstance;
    standalone::armedFault<standalone::operation("TEEventMgr::Instance")>();
    return &oInstance;
}

void TEEventMgr::raiseEvent(std::uint32_t ulEventID, const TEEventParam& stParam)
{
    if (!standalone::armedFault<standalone::operation("TEEventMgr::raiseEvent")>())
        eventListener().call(ulEventID, stParam);
}

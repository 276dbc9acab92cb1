// Where the platform events go outside the server: to one listener of the tool
// or a test. Without a listener an event is dropped; nothing is queued.
#ifndef OPERATIONXML_STANDALONE_EVENTSINK_H
#define OPERATIONXML_STANDALONE_EVENTSINK_H

#include "platform/Events.h"
#include "platform/Export.h"

#include <cstdint>
#include <functional>

namespace standalone
{
// Called for every event, on the thread that raises it, which may hold the
// configuration database's mutex: the listener must not wait. It may run on
// several threads at once. An empty function ends it.
OPERATIONXML_PLATFORM_API void
setEventListener(std::function<void(std::uint32_t ulEventID, const TEEventParam& stParam)> fnListener);
} // namespace standalone

#endif

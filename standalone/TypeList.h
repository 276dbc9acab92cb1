// The registry of the open root's inventory: for tools that list it, and for those
// that want a few types loaded and not all of them.
#ifndef OPERATIONXML_STANDALONE_TYPELIST_H
#define OPERATIONXML_STANDALONE_TYPELIST_H

#include "platform/DeviceAdapter.h"
#include "platform/Export.h"

#include <set>
#include <string>
#include <vector>

namespace standalone
{
// Every entry of the registry, in its order; none without a root.
OPERATIONXML_PLATFORM_API std::vector<StDeviceType> listTypes();

// From here on the adapter's list of installed types has only those of these names,
// their telnet variants, and the types that they are telnet variants of: all that can
// share a storage key with them. A load then reads nothing else. Single entries are
// found as before. Without a root nothing happens; the next root lists all.
OPERATIONXML_PLATFORM_API void listOnlyTypes(const std::set<std::string>& setName);
} // namespace standalone

#endif

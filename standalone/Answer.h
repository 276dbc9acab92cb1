// How the services answer from the open root: an armed fault first, then what
// they say without a root, then what the inventory says. It stays for the length
// of the call, whoever closes the root meanwhile.
#ifndef OPERATIONXML_STANDALONE_ANSWER_H
#define OPERATIONXML_STANDALONE_ANSWER_H

#include "standalone/Fault.h"
#include "standalone/Inventory.h"
#include "standalone/ServerRoot.h"

namespace standalone
{
// For operations that return a code; fnAsk returns that of the inventory.
template <std::size_t nOperation, typename Ask>
std::uint32_t answerCode(Ask fnAsk)
{
    if (const auto oFault = armedFault<nOperation>())
        return *oFault;
    const auto pInventory = currentInventory();
    return pInventory == nullptr ? RESULT_NO_ROOT : fnAsk(*pInventory);
}

// For those that return a value: an empty one after a fault and without a root.
template <std::size_t nOperation, typename Ask>
auto answerValue(Ask fnAsk) -> decltype(fnAsk(StInventory()))
{
    if (armedFault<nOperation>())
        return {};
    const auto pInventory = currentInventory();
    return pInventory == nullptr ? decltype(fnAsk(*pInventory)){} : fnAsk(*pInventory);
}

// The code of a look-up; what was found is copied out.
template <typename Value>
std::uint32_t copyFound(const Value* pFound, Value& oOut)
{
    if (pFound == nullptr)
        return RESULT_NOT_IN_INVENTORY;
    oOut = *pFound;
    return 0;
}
} // namespace standalone

#endif

// The question that every platform operation asks first: is a fault armed for
// it (CFaultPoint)? One relaxed atomic load when none is armed anywhere.
#ifndef OPERATIONXML_STANDALONE_FAULT_H
#define OPERATIONXML_STANDALONE_FAULT_H

#include <atomic>
#include <cstdint>
#include <optional>
#include <string_view>

namespace standalone
{
extern std::atomic<int> g_nArmedFaults;

std::optional<std::uint32_t> countCall(std::string_view strOperation);

// What the operation is to answer instead of doing its work, if anything.
inline std::optional<std::uint32_t> armedFault(std::string_view strOperation)
{
    if (g_nArmedFaults.load(std::memory_order_relaxed) == 0)
        return std::nullopt;
    return countCall(strOperation);
}
} // namespace standalone

#endif

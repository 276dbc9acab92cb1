// The armed faults. Each counts the calls of its operation by itself; when
// several answer one call, the one armed first does.
#include "standalone/FaultPoint.h"

#include "standalone/Fault.h"

#include <algorithm>
#include <list>
#include <mutex>
#include <utility>

namespace standalone
{
std::atomic<int> g_nArmedFaults{0};

namespace
{
struct StArmed
{
    const CFaultPoint* pOwner;
    std::string        strOperation;
    unsigned           nCall; // 0: every call
    std::uint32_t      ulResult;
    unsigned           nSeen = 0;
};

struct StRegistry
{
    std::mutex         oMutex;
    std::list<StArmed> lstArmed; // guarded by oMutex
};

StRegistry& registry()
{
    static StRegistry* const pRegistry = new StRegistry; // never destroyed: exit handlers may still ask
    return *pRegistry;
}
} // namespace

std::optional<std::uint32_t> countCall(std::string_view strOperation)
{
    StRegistry&                       stRegistry = registry();
    const std::lock_guard<std::mutex> oGuard(stRegistry.oMutex);
    std::optional<std::uint32_t>      oResult;
    for (StArmed& stArmed : stRegistry.lstArmed)
    {
        if (stArmed.strOperation != strOperation)
            continue;
        ++stArmed.nSeen;
        if (!oResult && (stArmed.nCall == 0 || stArmed.nSeen == stArmed.nCall))
            oResult = stArmed.ulResult;
    }
    return oResult;
}

CFaultPoint::CFaultPoint(std::string strOperation, unsigned nCall, std::uint32_t ulResult)
    : m_strOperation(std::move(strOperation))
{
    StRegistry&                       stRegistry = registry();
    const std::lock_guard<std::mutex> oGuard(stRegistry.oMutex);
    stRegistry.lstArmed.push_back({this, m_strOperation, nCall, ulResult});
    g_nArmedFaults.fetch_add(1, std::memory_order_relaxed);
}

CFaultPoint::~CFaultPoint()
{
    StRegistry&                       stRegistry = registry();
    const std::lock_guard<std::mutex> oGuard(stRegistry.oMutex);
    stRegistry.lstArmed.remove_if([this](const StArmed& stArmed) { return stArmed.pOwner == this; });
    g_nArmedFaults.fetch_sub(1, std::memory_order_relaxed);
}
} // namespace standalone

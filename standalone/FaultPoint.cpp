// The armed faults. Each counts the calls of its operation by itself; when
// several answer one call, the one armed first does.
#include "standalone/FaultPoint.h"

#include "standalone/Fault.h"

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
    std::size_t        nOperation;
    unsigned           nCall; // 0: every call
    std::uint32_t      ulResult;
    std::exception_ptr pThrown; // null: it returns
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

void arm(StArmed stArmed)
{
    StRegistry&                       stRegistry = registry();
    const std::lock_guard<std::mutex> oGuard(stRegistry.oMutex);
    stRegistry.lstArmed.push_back(std::move(stArmed));
    g_nArmedFaults.fetch_add(1, std::memory_order_relaxed);
}
} // namespace

std::optional<std::uint32_t> countCall(std::size_t nOperation)
{
    StRegistry&                       stRegistry = registry();
    const std::lock_guard<std::mutex> oGuard(stRegistry.oMutex);
    const StArmed*                    pHit = nullptr;
    for (StArmed& stArmed : stRegistry.lstArmed)
    {
        if (stArmed.nOperation != nOperation)
            continue;
        ++stArmed.nSeen;
        if (pHit == nullptr && (stArmed.nCall == 0 || stArmed.nSeen == stArmed.nCall))
            pHit = &stArmed;
    }
    if (pHit == nullptr)
        return std::nullopt;
    if (pHit->pThrown != nullptr)
        std::rethrow_exception(pHit->pThrown);
    return pHit->ulResult;
}

CFaultPoint::CFaultPoint(const std::string& strOperation, unsigned nCall, std::uint32_t ulResult)
{
    arm({this, operation(strOperation), nCall, ulResult, nullptr});
}

CFaultPoint::CFaultPoint(const std::string& strOperation, unsigned nCall, std::exception_ptr pThrown)
{
    arm({this, operation(strOperation), nCall, 0, std::move(pThrown)});
}

CFaultPoint::~CFaultPoint()
{
    StRegistry&                       stRegistry = registry();
    const std::lock_guard<std::mutex> oGuard(stRegistry.oMutex);
    stRegistry.lstArmed.remove_if([this](const StArmed& stArmed) { return stArmed.pOwner == this; });
    g_nArmedFaults.fetch_sub(1, std::memory_order_relaxed);
}

unsigned CFaultPoint::calls() const
{
    StRegistry&                       stRegistry = registry();
    const std::lock_guard<std::mutex> oGuard(stRegistry.oMutex);
    unsigned                          nCalls = 0;
    for (const StArmed& stArmed : stRegistry.lstArmed)
        nCalls += stArmed.pOwner == this ? stArmed.nSeen : 0;
    return nCalls;
}

std::vector<std::string> CFaultPoint::operations()
{
    return {std::begin(PLATFORM_OPERATIONS), std::end(PLATFORM_OPERATIONS)};
}
} // namespace standalone

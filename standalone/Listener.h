// CListener: one replaceable callback of the tool or a test. The services call
// it from any thread; asking whether one is set costs one relaxed atomic load.
// The callback runs without a lock held and may set another one; a call under
// way when it is replaced still finishes.
#ifndef OPERATIONXML_STANDALONE_LISTENER_H
#define OPERATIONXML_STANDALONE_LISTENER_H

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>

namespace standalone
{
template <typename... Args>
class CListener
{
public:
    using Callback = std::function<void(Args...)>;

    void set(Callback fnListener)
    {
        const bool                        bIsSet = static_cast<bool>(fnListener);
        auto                              pNew   = std::make_shared<const Callback>(std::move(fnListener));
        const std::lock_guard<std::mutex> oGuard(m_oMutex);
        m_pListener.swap(pNew);
        m_bIsSet.store(bIsSet, std::memory_order_relaxed);
    }

    void call(Args... oArgs) const
    {
        if (!m_bIsSet.load(std::memory_order_relaxed))
            return;
        if (const std::shared_ptr<const Callback> pListener = get(); pListener && *pListener)
            (*pListener)(std::forward<Args>(oArgs)...);
    }

private:
    std::shared_ptr<const Callback> get() const
    {
        const std::lock_guard<std::mutex> oGuard(m_oMutex);
        return m_pListener;
    }

    std::atomic<bool>               m_bIsSet{false};
    mutable std::mutex              m_oMutex;
    std::shared_ptr<const Callback> m_pListener; // guarded by m_oMutex
};
} // namespace standalone

#endif

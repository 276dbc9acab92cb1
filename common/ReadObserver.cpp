// The one place that knows which thread is listened to. What the readers find in
// the pointer is never destroyed, so a thread that read it just before a recorded
// read ended does no harm.
#include "common/ReadObserver.h"

#include <thread>
#include <utility>

CReadObserver::~CReadObserver() = default;

namespace ReadObserver
{
std::atomic<CReadObserver*> g_pObserver{nullptr};

namespace
{
std::recursive_mutex g_oTurn; // of the one recorded read

class CListener final : public CReadObserver
{
public:
    // Whoever heard before, or null.
    CReadObserver* exchange(CReadObserver* pTarget)
    {
        m_oOwner.store(pTarget == nullptr ? std::thread::id() : std::this_thread::get_id());
        return std::exchange(m_pTarget, pTarget);
    }

    void lookup(const xercesc::DOMNode& oBelow, const char16_t* pszName) override
    {
        if (isMine())
            m_pTarget->lookup(oBelow, pszName);
    }
    void elementMet(const xercesc::DOMElement& oElement) override
    {
        if (isMine())
            m_pTarget->elementMet(oElement);
    }
    void attributeRead(const StAttributeRead& stRead) override
    {
        if (isMine())
            m_pTarget->attributeRead(stRead);
    }
    void textRead(const xercesc::DOMElement& oElement) override
    {
        if (isMine())
            m_pTarget->textRead(oElement);
    }
    void recordBegun(const xercesc::DOMElement& oElement, const void* pRecord, const void* pList) override
    {
        if (isMine())
            m_pTarget->recordBegun(oElement, pRecord, pList);
    }
    void recordEnded(const xercesc::DOMElement& oElement, const void* pRecord, EnFate enFate) override
    {
        if (isMine())
            m_pTarget->recordEnded(oElement, pRecord, enFate);
    }
    void sectionRead(std::size_t nRow, const void* pList) override
    {
        if (isMine())
            m_pTarget->sectionRead(nRow, pList);
    }
    void capacityRead(const xercesc::XercesDOMParser& oDOMParser, const xercesc::DOMElement* pEntry,
                      const std::list<StAsnOperation>& lstCapacity) override
    {
        if (isMine())
            m_pTarget->capacityRead(oDOMParser, pEntry, lstCapacity);
    }
    void recordCopied(const void* pFrom, const void* pTo) override
    {
        if (isMine())
            m_pTarget->recordCopied(pFrom, pTo);
    }
    void recordPruned(const void* pRecord, const std::string& strId, const void* pCapacity) override
    {
        if (isMine())
            m_pTarget->recordPruned(pRecord, strId, pCapacity);
    }

    // The target belongs to the owner's thread, and only that one gets past this.
    bool isMine() const { return m_oOwner.load() == std::this_thread::get_id(); }

private:
    std::atomic<std::thread::id> m_oOwner{};
    CReadObserver*               m_pTarget = nullptr;
};

CListener& listener()
{
    static CListener* const pListener = new CListener; // never destroyed, see above
    return *pListener;
}
} // namespace

bool isRecorded()
{
    return get() != nullptr && listener().isMine();
}

CScope::CScope(CReadObserver& oObserver) : m_oTurn(g_oTurn), m_pOuter(listener().exchange(&oObserver))
{
    g_pObserver.store(&listener());
}

CScope::~CScope()
{
    if (m_pOuter == nullptr)
        g_pObserver.store(nullptr);
    listener().exchange(m_pOuter);
}
} // namespace ReadObserver

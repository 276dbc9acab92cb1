// The one place that knows which thread is listened to. What the readers find in
// the pointer is never destroyed, so a thread that read it just before a recorded
// read ended does no harm.
#include "common/ReadObserver.h"

#include <thread>

CReadObserver::~CReadObserver() = default;

namespace ReadObserver
{
std::atomic<CReadObserver*> g_pObserver{nullptr};

namespace
{
std::mutex g_oTurn; // of the one recorded read

class CListener final : public CReadObserver
{
public:
    void start(CReadObserver& oTarget)
    {
        m_pTarget = &oTarget;
        m_oOwner.store(std::this_thread::get_id());
    }
    void stop()
    {
        m_oOwner.store({});
        m_pTarget = nullptr;
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
    void recordPruned(const void* pRecord, const void* pCapacity) override
    {
        if (isMine())
            m_pTarget->recordPruned(pRecord, pCapacity);
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

CScope::CScope(CReadObserver& oObserver) : m_oTurn(g_oTurn)
{
    listener().start(oObserver);
    g_pObserver.store(&listener());
}

CScope::~CScope()
{
    g_pObserver.store(nullptr);
    listener().stop();
}
} // namespace ReadObserver

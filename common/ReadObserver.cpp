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
    // Whoever heard before.
    StHearing exchange(const StHearing& stHearing)
    {
        m_oOwner.store(stHearing.pObserver == nullptr ? std::thread::id() : std::this_thread::get_id());
        return std::exchange(m_stHearing, stHearing);
    }

    void hearAlong(CReadObserver* pAlong) { m_stHearing.pAlong = pAlong; }

    void lookup(const xercesc::DOMNode& oBelow, const char16_t* pszName) override
    {
        tell(&CReadObserver::lookup, oBelow, pszName);
    }
    void elementMet(const xercesc::DOMElement& oElement) override { tell(&CReadObserver::elementMet, oElement); }
    void attributeRead(const StAttributeRead& stRead) override { tell(&CReadObserver::attributeRead, stRead); }
    void textRead(const xercesc::DOMElement& oElement) override { tell(&CReadObserver::textRead, oElement); }
    void recordBegun(const xercesc::DOMElement& oElement, const void* pRecord, const void* pList) override
    {
        tell(&CReadObserver::recordBegun, oElement, pRecord, pList);
    }
    void recordEnded(const xercesc::DOMElement& oElement, const void* pRecord, EnFate enFate) override
    {
        tell(&CReadObserver::recordEnded, oElement, pRecord, enFate);
    }
    void sectionRead(std::size_t nRow, const void* pList) override { tell(&CReadObserver::sectionRead, nRow, pList); }
    void capacityRead(const xercesc::XercesDOMParser& oDOMParser, const xercesc::DOMElement* pEntry,
                      const std::list<StAsnOperation>& lstCapacity) override
    {
        tell(&CReadObserver::capacityRead, oDOMParser, pEntry, lstCapacity);
    }
    void recordCopied(const void* pFrom, const void* pTo) override { tell(&CReadObserver::recordCopied, pFrom, pTo); }
    void recordPruned(const void* pRecord, const std::string& strId, const void* pCapacity) override
    {
        tell(&CReadObserver::recordPruned, pRecord, strId, pCapacity);
    }

    // Those that hear belong to the owner's thread, and only that one gets past this.
    bool isMine() const { return m_oOwner.load() == std::this_thread::get_id(); }

private:
    template <typename... Heard, typename... Told>
    void tell(void (CReadObserver::*pfnHear)(Heard...), const Told&... told)
    {
        if (!isMine())
            return;
        (m_stHearing.pObserver->*pfnHear)(told...);
        if (m_stHearing.pAlong != nullptr)
            (m_stHearing.pAlong->*pfnHear)(told...);
    }

    std::atomic<std::thread::id> m_oOwner{};
    StHearing                    m_stHearing;
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

CScope::CScope(CReadObserver& oObserver) : m_oTurn(g_oTurn), m_stOuter(listener().exchange({&oObserver, nullptr}))
{
    g_pObserver.store(&listener());
}

CScope::~CScope()
{
    if (m_stOuter.pObserver == nullptr)
        g_pObserver.store(nullptr);
    listener().exchange(m_stOuter);
}

CAlong::CAlong(CReadObserver& oObserver) : m_oTurn(g_oTurn)
{
    listener().hearAlong(&oObserver);
}

CAlong::~CAlong()
{
    listener().hearAlong(nullptr);
}
} // namespace ReadObserver

// See ParseAhead.h.
#include "reader/ParseAhead.h"

#include "common/Guarded.h"

#include <algorithm>
#include <csignal>
#include <utility>

namespace
{
constexpr std::size_t WINDOW           = 2;                     // files ahead for each worker
constexpr std::size_t BYTES_PER_WORKER = std::size_t{12} << 20; // of documents ahead, for each worker
constexpr std::size_t BYTES_PER_BYTE   = 16;                    // of a document for each of its file

// The signals of the process are for its own threads; what a thread does itself stays
// with it.
class CNoSignals
{
public:
    CNoSignals()
    {
        sigset_t stBlocked;
        ::sigfillset(&stBlocked);
        for (const int nOwn : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP, SIGSYS, SIGPROF})
            ::sigdelset(&stBlocked, nOwn);
        ::pthread_sigmask(SIG_SETMASK, &stBlocked, &m_stBefore);
    }
    ~CNoSignals() { ::pthread_sigmask(SIG_SETMASK, &m_stBefore, nullptr); }
    CNoSignals(const CNoSignals&)            = delete;
    CNoSignals& operator=(const CNoSignals&) = delete;

private:
    sigset_t m_stBefore = {};
};
} // namespace

CParseAhead::CParseAhead(CParserPool& oPool, const std::vector<std::string>& lstFile, std::size_t nWorkers)
    : m_oPool(oPool)
{
    m_lstAhead.reserve(lstFile.size());
    for (const std::string& strFile : lstFile)
    {
        const auto itPlace              = m_mapPlace.emplace(strFile, m_lstAhead.size()).first;
        m_lstAhead.emplace_back().pFile = &itPlace->first;
    }
    startWorkers(nWorkers);
}

CParseAhead::~CParseAhead()
{
    {
        const Lock oLock(m_oMutex);
        m_bEnd = true;
    }
    m_oChanged.notify_all();
    for (std::thread& oWorker : m_lstWorker)
        oWorker.join();
}

void CParseAhead::startWorkers(std::size_t nWorkers)
{
    const CNoSignals oNoSignals;
    const Lock       oLock(m_oMutex); // they begin when it is known how many there are
    try
    {
        m_lstWorker.reserve(nWorkers);
        while (m_lstWorker.size() < nWorkers)
            m_lstWorker.emplace_back([this] { work(); });
    }
    catch (...)
    {
        passOverThrown();
    }
    m_nWindow = WINDOW * m_lstWorker.size();
}

void CParseAhead::work() noexcept
{
    Lock oLock(m_oMutex);
    while (!m_bEnd && m_nNext < m_lstAhead.size())
    {
        if (mayBegin())
            parseNext(oLock);
        else
            m_oChanged.wait(oLock);
    }
}

StParsedFile CParseAhead::take(const std::string& strFile)
{
    const auto itPlace = m_mapPlace.find(strFile);
    if (itPlace == m_mapPlace.end())
        return {};
    Lock     oLock(m_oMutex);
    StAhead& stAhead = m_lstAhead[itPlace->second];
    passUntil(itPlace->second);
    while (stAhead.enState == EnState::Begun)
    {
        if (mayBegin())
            parseNext(oLock);
        else
            m_oChanged.wait(oLock);
    }
    StParsedFile stParsed = std::exchange(stAhead.stParsed, {});
    pass(stAhead);
    return stParsed;
}

void CParseAhead::stop() noexcept
{
    const Lock oLock(m_oMutex);
    m_bEnd = true;
    for (std::size_t nPlace = m_nWanted; nPlace < m_nNext; ++nPlace)
    {
        if (m_lstAhead[nPlace].enState == EnState::Ready)
            pass(m_lstAhead[nPlace]);
    }
    m_oChanged.notify_all();
}

// The file at this place is wanted: those before it no longer, and with it nobody else
// is to begin.
void CParseAhead::passUntil(std::size_t nPlace)
{
    for (; m_nWanted <= nPlace; ++m_nWanted)
    {
        StAhead&   stAhead = m_lstAhead[m_nWanted];
        const bool bReady  = stAhead.enState == EnState::Ready && m_nWanted != nPlace;
        if (bReady || stAhead.enState == EnState::Waiting)
            pass(stAhead);
    }
    m_nNext = std::max(m_nNext, m_nWanted);
    m_oChanged.notify_all();
}

void CParseAhead::pass(StAhead& stAhead)
{
    m_oPool.giveBack(std::exchange(stAhead.stParsed, {}).pParser);
    m_nBytes -= std::exchange(stAhead.nBytes, 0);
    stAhead.enState = EnState::Passed;
}

bool CParseAhead::mayBegin() const
{
    return !m_bEnd && m_nNext < m_lstAhead.size() && m_nNext < m_nWanted + m_nWindow;
}

// Parses the next file without the lock, on whichever thread has nothing else to do.
void CParseAhead::parseNext(Lock& oLock)
{
    const std::size_t nPlace  = m_nNext++;
    StAhead&          stAhead = m_lstAhead[nPlace];
    stAhead.enState           = EnState::Begun;
    oLock.unlock();
    StParsedFile stParsed;
    try
    {
        stParsed.oState = fileState(*stAhead.pFile);
        if (stParsed.oState.has_value() && fits(stAhead, *stParsed.oState))
            stParsed.pParser = m_oPool.parse(*stAhead.pFile);
    }
    catch (...)
    {
        passOverThrown();
        stParsed = {};
    }
    oLock.lock();
    m_bEnd = m_bEnd || (stParsed.pParser != nullptr && stParsed.pParser->memoryRanOut());
    if (stParsed.pParser != nullptr) // what it takes is known now
        m_nBytes += stParsed.pParser->bytesHeld() - std::exchange(stAhead.nBytes, stParsed.pParser->bytesHeld());
    stAhead.stParsed = std::move(stParsed);
    stAhead.enState  = EnState::Ready;
    if (nPlace + 1 < m_nWanted) // the load has gone past it meanwhile
        pass(stAhead);
    m_oChanged.notify_all();
}

// Whether the document of a file of this size may wait beside the others.
bool CParseAhead::fits(StAhead& stAhead, const StFileState& stState)
{
    const auto nBytes = BYTES_PER_BYTE * static_cast<std::size_t>(stState.nSize);
    const Lock oLock(m_oMutex);
    if (m_nBytes + nBytes > BYTES_PER_WORKER * m_lstWorker.size())
        return false;
    m_nBytes += nBytes;
    stAhead.nBytes = nBytes;
    return true;
}

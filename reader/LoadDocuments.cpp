// See LoadDocuments.h.
#include "reader/LoadDocuments.h"

#include "common/Guarded.h"
#include "common/ReadObserver.h"
#include "common/ReadProblem.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace
{
// Of documents that wait for another type, while a third one is read.
constexpr std::size_t MAX_WAITING_BYTES = std::size_t{12} << 20;
} // namespace

CLoadDocuments::CLoadDocuments(const std::vector<StLoadType>& lstType, std::size_t nThreads, const StParserKind& stKind)
    : m_oPool(stKind)
{
    try
    {
        // Xerces ends the process when it cannot start: before threads take memory.
        m_oPool.giveBack(m_oPool.take());
        m_oPlan                    = CLoadPlan(lstType);
        const std::size_t nWorkers = std::min(nThreads, m_oPlan.files().size());
        if (nWorkers > 1)
            m_pAhead = std::make_unique<CParseAhead>(m_oPool, m_oPlan.files(), nWorkers - 1);
    }
    catch (...)
    {
        passOverThrown(); // without a plan, or ahead of nothing, all is read the same
    }
}

CLoadDocuments::~CLoadDocuments() = default;

void CLoadDocuments::parse(const std::string& strFile, EnConfigSource enSource, std::shared_ptr<CXmlParser>& pParser)
{
    if (ReadObserver::isRecorded())
        return CDocumentSource::parse(strFile, enSource, pParser);
    hand(strFile, enSource, pParser);
}

bool CLoadDocuments::hand(const std::string& strFile, EnConfigSource enSource, std::shared_ptr<CXmlParser>& pParser)
{
    pParser.reset();
    const auto itDocument = find(strFile);
    const bool bIsNew     = itDocument == m_lstDocument.end();
    if (!bIsNew)
    {
        m_lstDocument.splice(m_lstDocument.end(), m_lstDocument, itDocument);
        makeRoom();
    }
    else
    {
        m_lstDocument.push_back({strFile, {}, m_oPlan.lastUser(strFile, enSource, m_nType)});
        makeRoom();
        m_lstDocument.back().stParsed = parseOrTake(strFile);
    }
    pParser = m_lstDocument.back().stParsed.pParser;
    if (pParser != nullptr)
        tellReadListener(pParser->problem());
    return bIsNew;
}

void CLoadDocuments::endType() noexcept
{
    for (auto itDocument = m_lstDocument.begin(); itDocument != m_lstDocument.end();)
    {
        const auto itEnded = itDocument++;
        if (itEnded->nLastUser <= m_nType)
            drop(itEnded);
    }
    ++m_nType;
}

// The document of a file as it is now; one of what it was is dropped.
CLoadDocuments::DocumentList::iterator CLoadDocuments::find(const std::string& strFile)
{
    const auto itDocument = std::find_if(m_lstDocument.begin(), m_lstDocument.end(),
                                         [&](const StDocument& stDocument) { return stDocument.strFile == strFile; });
    if (itDocument == m_lstDocument.end() || itDocument->stParsed.isAsNow(strFile))
        return itDocument;
    drop(itDocument);
    return m_lstDocument.end();
}

StParsedFile CLoadDocuments::parseOrTake(const std::string& strFile)
{
    StParsedFile stParsed = m_pAhead == nullptr ? StParsedFile() : m_pAhead->take(strFile);
    if (!stParsed.isAsNow(strFile))
    {
        m_oPool.giveBack(std::move(stParsed.pParser));
        stParsed = parseNow(strFile);
        if (stParsed.pParser != nullptr && stParsed.pParser->memoryRanOut())
        {
            stParsed = {};
            freeMemory(); // all that a load with nothing but this file would have
            stParsed = parseNow(strFile);
        }
    }
    return stParsed;
}

StParsedFile CLoadDocuments::parseNow(const std::string& strFile)
{
    const std::optional<StFileState> oState = fileState(strFile); // before it may change
    return {m_oPool.parse(strFile), oState};
}

// Gives up whatever is kept for later.
void CLoadDocuments::freeMemory() noexcept
{
    if (m_pAhead != nullptr)
        m_pAhead->stop();
    for (StDocument& stDocument : m_lstDocument)
    {
        if (stDocument.stParsed.pParser.use_count() == 1)
            stDocument.stParsed = {};
    }
    m_oPool.clear();
}

// Drops what was not used for the longest time, until what waits is within its bound.
// What a reader has, and the document that is wanted now, take their memory in any case.
void CLoadDocuments::makeRoom() noexcept
{
    const auto  itWanted = std::prev(m_lstDocument.end());
    std::size_t nWaiting = 0;
    for (auto itDocument = itWanted; itDocument != m_lstDocument.begin();)
    {
        const auto& pParser = (--itDocument)->stParsed.pParser;
        if (pParser.use_count() > 1)
            continue;
        nWaiting += pParser == nullptr ? 0 : pParser->bytesHeld();
        if (nWaiting > MAX_WAITING_BYTES)
            drop(itDocument++);
    }
}

void CLoadDocuments::drop(DocumentList::iterator itDocument) noexcept
{
    m_oPool.giveBack(std::move(itDocument->stParsed.pParser));
    m_lstDocument.erase(itDocument);
}

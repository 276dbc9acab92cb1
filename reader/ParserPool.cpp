// See ParserPool.h.
#include "reader/ParserPool.h"

#include "common/Guarded.h"

bool StParsedFile::isAsNow(const std::string& strFile) const
{
    return pParser != nullptr && pParser->isSettled() && oState.has_value() && oState == fileState(strFile);
}

std::shared_ptr<CXmlParser> CParserPool::take()
{
    {
        const std::lock_guard<std::mutex> oGuard(m_oMutex);
        if (!m_lstIdle.empty())
        {
            std::shared_ptr<CXmlParser> pParser = std::move(m_lstIdle.back());
            m_lstIdle.pop_back();
            return pParser;
        }
    }
    std::shared_ptr<CXmlParser> pParser = CXmlParser::create();
    if (pParser == nullptr)
        return nullptr;
    pParser->keepBlocks();
    pParser->leaveOutTexts();
    return pParser;
}

void CParserPool::clear() noexcept
{
    std::vector<std::shared_ptr<CXmlParser>> lstFreed;
    const std::lock_guard<std::mutex>        oGuard(m_oMutex);
    lstFreed.swap(m_lstIdle);
}

void CParserPool::giveBack(std::shared_ptr<CXmlParser> pParser) noexcept
{
    if (pParser == nullptr || pParser.use_count() != 1)
        return;
    pParser->releaseDocument();
    try
    {
        const std::lock_guard<std::mutex> oGuard(m_oMutex);
        m_lstIdle.push_back(std::move(pParser));
    }
    catch (...)
    {
        passOverThrown(); // the parser dies
    }
}

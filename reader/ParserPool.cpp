// See ParserPool.h.
#include "reader/ParserPool.h"

#include "common/Guarded.h"

namespace
{
std::shared_ptr<CXmlParser> makeParser()
{
    std::shared_ptr<CXmlParser> pParser = CXmlParser::create();
    if (pParser == nullptr)
        return nullptr;
    pParser->keepBlocks();
    pParser->leaveOutTexts(); // no section reads any
    return pParser;
}

void parseUntold(CXmlParser& oParser, const std::string& strFile)
{
    oParser.parseUntold(strFile);
}
} // namespace

const StParserKind LOAD_PARSERS = {makeParser, parseUntold};

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
    return m_stKind.pfnMake();
}

std::shared_ptr<CXmlParser> CParserPool::parse(const std::string& strFile)
{
    std::shared_ptr<CXmlParser> pParser = take();
    if (pParser != nullptr)
        m_stKind.pfnParse(*pParser, strFile);
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
    if (pParser == nullptr || pParser.use_count() != 1 || pParser->memoryRanOut())
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

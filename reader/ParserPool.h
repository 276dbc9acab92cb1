// CParserPool: parsers between two documents, for a load. They keep the memory of
// their last document for the next one, on whichever thread that is parsed.
// Any thread.
#ifndef OPERATIONXML_READER_PARSERPOOL_H
#define OPERATIONXML_READER_PARSERPOOL_H

#include "common/FileBytes.h"
#include "common/XmlParser.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

// A file that was parsed, with what it was at that time.
struct StParsedFile
{
    std::shared_ptr<CXmlParser> pParser;
    std::optional<StFileState>  oState;

    // Whether parsing the file now would give the same: document or problem.
    bool isAsNow(const std::string& strFile) const;
};

class CParserPool
{
public:
    // A parser without a document; null when none can be made.
    std::shared_ptr<CXmlParser> take();

    // Takes a parser back, unless somebody else holds it: its document dies.
    void giveBack(std::shared_ptr<CXmlParser> pParser) noexcept;

    // Frees the parsers that are here.
    void clear() noexcept;

private:
    std::mutex                               m_oMutex;
    std::vector<std::shared_ptr<CXmlParser>> m_lstIdle;
};

#endif

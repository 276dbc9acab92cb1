// CParserPool: parsers between two documents, for a load or a recorded read. They keep
// memory of their last document for the next one, on whichever thread that is parsed.
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

// What parsers a pool has. Both functions are called on any thread, and neither tells
// the read listener (ReadProblem.h) of a file: that is for whoever takes the document.
struct StParserKind
{
    std::shared_ptr<CXmlParser> (*pfnMake)(); // null when none can be made
    void (*pfnParse)(CXmlParser& oParser, const std::string& strFile);
};

// The parsers of a start-up load.
extern const StParserKind LOAD_PARSERS;

class CParserPool
{
public:
    explicit CParserPool(const StParserKind& stKind) : m_stKind(stKind) {}

    // A parser without a document; null when none can be made.
    std::shared_ptr<CXmlParser> take();

    // One that has parsed the file, or tried to.
    std::shared_ptr<CXmlParser> parse(const std::string& strFile);

    // Takes a parser back, unless somebody else holds it or its memory ran out: its
    // document dies.
    void giveBack(std::shared_ptr<CXmlParser> pParser) noexcept;

    // Frees the parsers that are here.
    void clear() noexcept;

private:
    const StParserKind                       m_stKind;
    std::mutex                               m_oMutex;
    std::vector<std::shared_ptr<CXmlParser>> m_lstIdle;
};

#endif

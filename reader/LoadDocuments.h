// CLoadDocuments: where the start-up load takes its documents from, and a recorded read
// those whose places are known (catalog/PlacedSource.h). Keeps what later types will
// want again, as long as the file does not change, and takes what was parsed ahead
// (ParseAhead.h). One for each of them, made and used by the reading thread; nothing is
// kept beyond it.
#ifndef OPERATIONXML_READER_LOADDOCUMENTS_H
#define OPERATIONXML_READER_LOADDOCUMENTS_H

#include "platform/Export.h"
#include "reader/DocumentSource.h"
#include "reader/LoadPlan.h"
#include "reader/ParseAhead.h"
#include "reader/ParserPool.h"

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <vector>

class OPERATIONXML_API CLoadDocuments final : public CDocumentSource
{
public:
    // The types in the order in which they are read, and how many threads may parse,
    // this one included. Without types nothing is parsed ahead.
    CLoadDocuments(const std::vector<StLoadType>& lstType, std::size_t nThreads, const StParserKind& stKind);
    ~CLoadDocuments() override;

    // For a load. What is recorded meanwhile passes it by: a listener's documents are
    // its own.
    void parse(const std::string& strFile, EnConfigSource enSource, std::shared_ptr<CXmlParser>& pParser) override;

    // The same for whoever has this for itself, and whether the file was parsed for
    // this read rather than kept from an earlier one.
    bool hand(const std::string& strFile, EnConfigSource enSource, std::shared_ptr<CXmlParser>& pParser);

    // The read of a type has ended, its reader is gone: the next one follows.
    void endType() noexcept;

private:
    struct StDocument
    {
        std::string  strFile;
        StParsedFile stParsed;
        std::size_t  nLastUser; // the type after whose read nobody wants it
    };
    using DocumentList = std::list<StDocument>;

    DocumentList::iterator find(const std::string& strFile);
    StParsedFile           parseOrTake(const std::string& strFile);
    StParsedFile           parseNow(const std::string& strFile);
    void                   freeMemory() noexcept;
    void                   makeRoom() noexcept;
    void                   drop(DocumentList::iterator itDocument) noexcept;

    CParserPool                  m_oPool;
    CLoadPlan                    m_oPlan;
    std::unique_ptr<CParseAhead> m_pAhead;      // null: with one thread, or little to do
    std::size_t                  m_nType = 0;   // whose files are read
    DocumentList                 m_lstDocument; // the one used last is the last one
};

#endif

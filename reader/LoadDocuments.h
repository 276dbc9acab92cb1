// CLoadDocuments: where the start-up load takes its documents from. One for each
// load, made and used by the loading thread; it dies with the load.
// Keeps parsers from one file to the next, with the memory of their documents.
#ifndef OPERATIONXML_READER_LOADDOCUMENTS_H
#define OPERATIONXML_READER_LOADDOCUMENTS_H

#include "reader/DocumentSource.h"

#include <vector>

class CLoadDocuments final : public CDocumentSource
{
public:
    void parse(const std::string& strFile, std::shared_ptr<CXmlParser>& pParser) override;

private:
    std::vector<std::shared_ptr<CXmlParser>> m_lstParser; // idle unless a reader holds it too
};

#endif

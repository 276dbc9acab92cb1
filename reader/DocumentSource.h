// CDocumentSource: where a reader takes the documents of its files from. The plan
// says which files a read wants (ConfigPlan.h), the reader makes records of their
// documents, and this stands between: derive from it to hand over documents that
// were parsed elsewhere, or to parse with a parser that notes more.
// Called on the thread of the reader that uses it, once for each file of a read.
#ifndef OPERATIONXML_READER_DOCUMENTSOURCE_H
#define OPERATIONXML_READER_DOCUMENTSOURCE_H

#include "common/XmlParser.h"
#include "platform/Export.h"
#include "reader/ConfigOrigin.h"

#include <memory>
#include <string>

class OPERATIONXML_API CDocumentSource
{
public:
    CDocumentSource()                                  = default;
    virtual ~CDocumentSource()                         = default;
    CDocumentSource(const CDocumentSource&)            = delete;
    CDocumentSource& operator=(const CDocumentSource&) = delete;

    // Leaves in pParser a parser that holds the file's document, or says why there
    // is none; null when no parser can be made. What pParser holds on entry is the
    // reader's last parser for a file of this kind: use it again, unless somebody
    // else holds it too, or put another in its place. The document may be asked
    // until the reader parses the next file of that kind, or dies.
    // enSource is what the file is for the read; None for a module's.
    // As it is here: parses the file now.
    virtual void parse(const std::string& strFile, EnConfigSource enSource, std::shared_ptr<CXmlParser>& pParser);

    // The source of every reader that was given none.
    static CDocumentSource& plain();
};

#endif

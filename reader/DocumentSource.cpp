// See DocumentSource.h.
#include "reader/DocumentSource.h"

void CDocumentSource::parse(const std::string&           strFile, EnConfigSource /*enSource*/,
                            std::shared_ptr<CXmlParser>& pParser)
{
    if (pParser == nullptr || pParser.use_count() > 1 || pParser->memoryRanOut())
        pParser = CXmlParser::create();
    if (pParser == nullptr)
        return;
    pParser->leaveOutTexts(); // no section reads any
    pParser->parseFile(strFile);
}

CDocumentSource& CDocumentSource::plain()
{
    static CDocumentSource s_oSource; // without state: any number of readers may use it at once
    return s_oSource;
}

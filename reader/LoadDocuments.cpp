// See LoadDocuments.h.
#include "reader/LoadDocuments.h"

#include <algorithm>

void CLoadDocuments::parse(const std::string& strFile, std::shared_ptr<CXmlParser>& pParser)
{
    pParser.reset(); // idle, if it is one of ours
    const auto itIdle =
        std::find_if(m_lstParser.begin(), m_lstParser.end(), [](const auto& pKept) { return pKept.use_count() == 1; });
    if (itIdle != m_lstParser.end())
        pParser = *itIdle;
    else if ((pParser = CXmlParser::create()) != nullptr)
    {
        pParser->keepBlocks();
        m_lstParser.push_back(pParser);
    }
    if (pParser != nullptr)
        pParser->parseFile(strFile);
}

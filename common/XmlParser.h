// CXmlParser: the one way this library parses an XML file into a DOM document.
// It adds to XercesDOMParser what every reader here relies on:
// - after a parse getDocument() answers the whole document or null, never the
//   partial one that Xerces keeps after a fatal error;
// - nothing is fetched from outside the file, and size, nesting, entities and time
//   are limited (XmlLimits.h), so no file exhausts the server;
// - no exception leaves it;
// - the elements of the document are indexed by name while it is parsed, since
//   every section asks the whole document for its own.
// A parser and its document belong to one thread. Nothing here is logged.
#ifndef OPERATIONXML_COMMON_XMLPARSER_H
#define OPERATIONXML_COMMON_XMLPARSER_H

#include "common/ReadProblem.h"
#include "common/XmlLimits.h"
#include "platform/Export.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

using ElementList = std::vector<const xercesc::DOMElement*>;

class OPERATIONXML_API CXmlParser : public xercesc::XercesDOMParser
{
public:
    // A new parser, or null when Xerces cannot be initialised. Initialises
    // Xerces on first use and never terminates it again, so a host process may
    // initialise and terminate it for itself at any time.
    static std::unique_ptr<CXmlParser> create();

    // Parses the file; the document of an earlier parse dies. A path that is no
    // regular file, cannot be read, is no well-formed XML or passes a limit
    // leaves no document, and problem() says why.
    void parseFile(const std::string& strPath);

    // The same for a document held in memory.
    void parseText(std::string_view strXml);

    // Frees the document, as if nothing had been parsed.
    void releaseDocument();

    // Why there is no document, and where in which file; not set after a good parse.
    const StReadProblem& problem() const { return m_stProblem; }

    // All elements of the document with this tag name, in document order.
    const ElementList& elements(const char16_t* pszName) const;

private:
    CXmlParser();

    // The parser's own hooks: follow the document type, and every element and what
    // it holds as it comes.
    void entityDecl(const xercesc::DTDEntityDecl& oEntity, bool bIsParameter, bool bIsIgnored) override;
    void startAttList(const xercesc::DTDElementDecl& oElement) override;
    void startElement(const xercesc::XMLElementDecl& oDecl, unsigned int nUri, const XMLCh* pszPrefix,
                      const xercesc::RefVectorOf<xercesc::XMLAttr>& lstAttr, XMLSize_t nAttrs, bool bIsEmpty,
                      bool bIsRoot) override;
    void endElement(const xercesc::XMLElementDecl& oDecl, unsigned int nUri, bool bIsRoot,
                    const XMLCh* pszPrefix) override;
    void docCharacters(const XMLCh* pszText, XMLSize_t nLength, bool bIsCData) override;
    void docComment(const XMLCh* pszText) override;
    void docPI(const XMLCh* pszTarget, const XMLCh* pszData) override;
    void openElement();
    void checkContent(std::size_t nCharacters);

    std::unordered_map<const XMLCh*, ElementList> m_mapElements; // by name; the document keeps each name once
    CNestingCheck                                 m_oNesting;
    bool                                          m_bInEmptyElement = false;
    std::size_t                                   m_nEntityText     = 0;
    StReadProblem                                 m_stProblem;
};

#endif

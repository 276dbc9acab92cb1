// CXmlParser: the one way this library parses an XML file into a DOM document.
// It adds to XercesDOMParser what every reader here relies on:
// - after a parse getDocument() answers the whole document or null, never the
//   partial one that Xerces keeps after a fatal error;
// - nothing is fetched from outside the file, and size, nesting, names and entities
//   are limited (XmlLimits.h), so no file exhausts the server;
// - no exception leaves it;
// - the elements of the document are indexed by name while it is parsed, since
//   every section asks the whole document for its own.
// A parser and its document belong to one thread. Nothing here is logged.
#ifndef OPERATIONXML_COMMON_XMLPARSER_H
#define OPERATIONXML_COMMON_XMLPARSER_H

#include "common/ParserMemory.h"
#include "common/ReadProblem.h"
#include "common/XmlNesting.h"
#include "platform/Export.h"

#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

using ElementList = std::vector<const xercesc::DOMElement*>;

class OPERATIONXML_API CXmlParser : private CParserMemory, public xercesc::XercesDOMParser
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

    // The same without telling the read listener (ReadProblem.h): for a thread that
    // parses for another one, which tells it when it takes the document.
    void parseUntold(const std::string& strPath);

    // The same for a document held in memory.
    void parseText(std::string_view strXml);

    // Frees the document, as if nothing had been parsed.
    void releaseDocument();

    // For a parser that is used for file after file.
    using CParserMemory::bytesHeld;

    // From now on documents get no nodes for texts between elements and for comments:
    // for those who read elements and attributes alone. Limits and problems stay the
    // same. Every other node of a configuration file is a text, and making one costs
    // as much as making an element.
    void leaveOutTexts() { m_bKeepsTexts = false; }

    // The same for blanks behind a tag alone, which is what nearly all texts of a
    // configuration file are: for those who look for texts that should not be there.
    void leaveOutBlanks() { m_bKeepsBlanks = false; }

    using CParserMemory::keepBlocks;

    // Why there is no document, and where in which file; not set after a good parse.
    const StReadProblem& problem() const { return m_stProblem; }

    // Whether the same bytes would end in the same way again: the parse did not end
    // because memory ran out, or because the file could not be read.
    bool isSettled() const { return !m_bMemoryRanOut && m_stProblem.enKind != EnReadProblem::File; }

    // The parser is of no more use then: Xerces leaves off in the middle of the file, and
    // would go on there with the next one.
    bool memoryRanOut() const { return m_bMemoryRanOut; }

    // All elements of the document with this tag name, in document order.
    const ElementList& elements(const char16_t* pszName) const;

    // Whether the document came from parseFile or parseText, so that it is within the
    // limits and elements() knows it. Parsing or freeing by the operations of the base
    // drops the index: whoever holds the parser as a XercesDOMParser may use it as one.
    bool hasIndex() const;

protected:
    CXmlParser();

    // Says in which file a problem of parseText is.
    void nameProblem(const std::string& strFile);

    // That is the problem, whatever was noted before: it may be a consequence.
    void noteMemoryRanOut();

    // For a parser that notes more of elements and comments as they come, and then
    // calls these.
    void startElement(const xercesc::XMLElementDecl& oDecl, unsigned int nUri, const XMLCh* pszPrefix,
                      const xercesc::RefVectorOf<xercesc::XMLAttr>& lstAttr, XMLSize_t nAttrs, bool bIsEmpty,
                      bool bIsRoot) override;
    void endElement(const xercesc::XMLElementDecl& oDecl, unsigned int nUri, bool bIsRoot,
                    const XMLCh* pszPrefix) override;
    void docComment(const XMLCh* pszText) override;

private:
    // Where these would go round the limits they cannot be called by mistake.
    using xercesc::XercesDOMParser::adoptDocument;
    using xercesc::XercesDOMParser::parse;
    using xercesc::XercesDOMParser::parseFirst;
    using xercesc::XercesDOMParser::parseNext;
    using xercesc::XercesDOMParser::parseReset;
    using xercesc::XercesDOMParser::reset;
    using xercesc::XercesDOMParser::resetDocumentPool;

    // The parser's own hooks: follow the document type, and every element and what
    // it holds as it comes. Outside parseText they do what the base does.
    void              error(unsigned int nCode, const XMLCh* pszDomain, xercesc::XMLErrorReporter::ErrTypes enType,
                            const XMLCh* pszText, const XMLCh* pszSystemId, const XMLCh* pszPublicId, XMLFileLoc nLine,
                            XMLFileLoc nColumn) override;
    void              resetDocument() override;
    void              startIntSubset() override;
    void              endIntSubset() override;
    void              entityDecl(const xercesc::DTDEntityDecl& oEntity, bool bIsParameter, bool bIsIgnored) override;
    void              notationDecl(const xercesc::XMLNotationDecl& oNotation, bool bIsIgnored) override;
    void              startAttList(const xercesc::DTDElementDecl& oElement) override;
    xercesc::DOMAttr* createAttr(const XMLCh* pszName) override;
    void              docCharacters(const XMLCh* pszText, XMLSize_t nLength, bool bIsCData) override;
    void              docPI(const XMLCh* pszTarget, const XMLCh* pszData) override;

    friend class CXmlStream; // what the parser takes in goes through it

    void              parseOnce(std::string_view strXml, std::size_t nBytewiseFrom);
    void              readDocument(std::string_view strXml, std::size_t nBytewiseFrom);
    void              clearReading();
    void              noteProblem(const std::string& strText, XMLFileLoc nLine, XMLFileLoc nColumn);
    [[noreturn]] void refuse(const std::string& strText);
    void              openElement();
    ElementList&      elementsNamed(const XMLCh* pszName);
    bool              keepsTexts() const { return m_bKeepsTexts || !m_bIsReading; }
    void              checkContent(std::size_t nCharacters);
    void              checkProgress();

    // By name, those of attributes included (with no elements). The document keeps
    // each name once, and the index never outlives the document.
    std::unordered_map<const XMLCh*, ElementList> m_mapElements;
    const xercesc::DOMDocument*                   m_pIndexed = nullptr; // the document of m_mapElements
    StReadProblem                                 m_stProblem;
    bool                                          m_bMemoryRanOut = false; // and that is the problem

    // While parseText reads.
    CNestingCheck m_oNesting;
    bool          m_bKeepsTexts     = true;
    bool          m_bKeepsBlanks    = true;
    bool          m_bIsReading      = false;
    bool          m_bInEmptyElement = false;
    bool          m_bInDocType      = false;
    bool          m_bIsBytesProblem = false; // the problem is one of bytes, which the parser takes in blocks
    std::size_t   m_nEntityText     = 0;
    std::size_t   m_nTaken          = 0; // bytes that the parser has taken in
    std::size_t   m_nTakenAtDocType = 0; // when the document type began
    std::size_t   m_nAllocated      = 0; // allocations when the last of the events above came
};

#endif

// Parsing a file safely: start-up of Xerces, options, limits, the index, and what
// is left after a failure.
#include "common/XmlParser.h"

#include "common/FileBytes.h"
#include "common/XmlLimits.h"
#include "common/XmlText.h"

#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/sax/InputSource.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/sax/SAXException.hpp>
#include <xercesc/util/BinMemInputStream.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLChar.hpp>
#include <xercesc/util/XMLExceptMsgs.hpp>
#include <xercesc/validators/DTD/DTDEntityDecl.hpp>

#include <algorithm>
#include <mutex>
#include <new>
#include <utility>

using namespace xercesc;

namespace
{
// Ends a parse whose problem has been noted.
struct StRefused
{
};

constexpr std::size_t BLOCK = 49152; // what the parser takes in at once
constexpr std::size_t WHOLE = static_cast<std::size_t>(-1);

// Attributes of a tag cannot be seen one by one; each that is new takes at least
// so many allocations, and the rest of a tag next to none.
constexpr std::size_t ALLOCATIONS_PER_ATTRIBUTE = 4;

class CEntityLimit : public SecurityManager
{
public:
    CEntityLimit() { setEntityExpansionLimit(XmlLimits::MAX_ENTITY_EXPANSION); }
};

// Keeps one initialisation of Xerces for the life of the process: the alarm
// dictionaries hold parsers until exit, and Terminate is not safe against
// another thread's parser.
bool initialiseXerces()
{
    static std::mutex           s_oMutex;
    static bool                 s_bDone = false;
    std::lock_guard<std::mutex> oGuard(s_oMutex);
    if (s_bDone)
        return true;
    try
    {
        XMLPlatformUtils::Initialize();
        s_bDone = true;
    }
    catch (const XMLException&)
    {
        return false;
    }
    return true;
}

// The bytes that tell the encoding, which the parser must see at once: an XML
// declaration, or the four that it looks at.
std::size_t declarationBytes(std::string_view strXml)
{
    const std::size_t nEnd = strXml.substr(0, 12).find('?') == std::string_view::npos ? 0 : strXml.find('>');
    return nEnd == std::string_view::npos ? 4 : nEnd + 2;
}
} // namespace

// Hands a text to the parser block by block, from some place on byte by byte.
class CXmlStream : public BinMemInputStream
{
public:
    CXmlStream(CXmlParser& oParser, std::string_view strText, std::size_t nBytewiseFrom)
        : BinMemInputStream(reinterpret_cast<const XMLByte*>(strText.data()), strText.size(), BufOpt_Reference),
          m_oParser(oParser), m_nBytewiseFrom(nBytewiseFrom)
    {
    }

    XMLSize_t readBytes(XMLByte* pToFill, XMLSize_t nMax) override
    {
        m_oParser.checkProgress();
        const std::size_t nTaken = m_oParser.m_nTaken;
        const std::size_t nMost  = nTaken < m_nBytewiseFrom ? m_nBytewiseFrom - nTaken : 1;
        const std::size_t nRead  = BinMemInputStream::readBytes(pToFill, std::min<XMLSize_t>(nMax, nMost));
        m_oParser.m_nTaken += nRead;
        return nRead;
    }

private:
    CXmlParser& m_oParser;
    std::size_t m_nBytewiseFrom;
};

namespace
{
class CXmlSource : public InputSource
{
public:
    CXmlSource(CXmlParser& oParser, std::string_view strText, std::size_t nBytewiseFrom)
        : InputSource(u"file"), m_oParser(oParser), m_strText(strText), m_nBytewiseFrom(nBytewiseFrom)
    {
    }

    BinInputStream* makeStream() const override // the parser deletes it
    {
        return new CXmlStream(m_oParser, m_strText, m_nBytewiseFrom);
    }

private:
    CXmlParser&      m_oParser;
    std::string_view m_strText;
    std::size_t      m_nBytewiseFrom;
};
} // namespace

std::unique_ptr<CXmlParser> CXmlParser::create()
{
    if (!initialiseXerces())
        return nullptr;
    return std::unique_ptr<CXmlParser>(new CXmlParser());
}

CXmlParser::CXmlParser() : XercesDOMParser(nullptr, memory())
{
    static CEntityLimit s_oEntityLimit; // every parser only reads it
    setSecurityManager(&s_oEntityLimit);
    setDisableDefaultEntityResolution(true);
}

void CXmlParser::releaseDocument()
{
    clearReading();
    m_stProblem      = {};
    m_bMemoryRanOut  = false;
    fParseInProgress = false; // left set by a parse that ran out of memory
    resetDocumentPool();
}

// Forgets what was noted while a document was read, its index first.
void CXmlParser::clearReading()
{
    m_pIndexed = nullptr;
    m_mapElements.clear();
    m_oNesting        = {};
    m_bInEmptyElement = false;
    m_bInDocType      = false;
    m_bIsBytesProblem = false;
    m_nEntityText     = 0;
    m_nTaken          = 0;
    m_nAllocated      = allocations();
}

void CXmlParser::parseFile(const std::string& strPath)
{
    parseUntold(strPath);
    tellReadListener(m_stProblem);
}

void CXmlParser::parseUntold(const std::string& strPath)
{
    releaseDocument();
    try
    {
        std::string       strBytes;
        const std::string strProblem = readFileBytes(strPath, strBytes);
        if (strProblem.empty())
            parseText(strBytes);
        else
            m_stProblem = {"", 0, 0, strProblem, EnReadProblem::File};
    }
    catch (const std::bad_alloc&)
    {
        noteMemoryRanOut();
    }
    nameProblem(strPath);
}

void CXmlParser::nameProblem(const std::string& strFile)
{
    if (m_stProblem.isSet())
        m_stProblem.strFile = strFile;
}

void CXmlParser::parseText(std::string_view strXml)
{
    parseOnce(strXml, WHOLE);
    if (!m_bIsBytesProblem)
        return;
    // Bytes are decoded a block ahead, so the place that was told is where the block
    // begins. Decoded one by one they give the true one.
    const std::size_t nNear = m_nTaken - std::min(m_nTaken, 2 * BLOCK);
    parseOnce(strXml, std::max(nNear, declarationBytes(strXml)));
}

void CXmlParser::parseOnce(std::string_view strXml, std::size_t nBytewiseFrom)
{
    releaseDocument();
    m_bIsReading = true;
    getScanner()->setErrorReporter(this);
    try
    {
        readDocument(strXml, nBytewiseFrom);
    }
    catch (const StRefused&) // it has been noted
    {
    }
    catch (const OutOfMemoryException&)
    {
        noteMemoryRanOut();
    }
    catch (const std::bad_alloc&)
    {
        noteMemoryRanOut();
    }
    m_bIsReading = false;
    getScanner()->setErrorReporter(nullptr);
    if (!m_stProblem.isSet())
    {
        m_pIndexed = getDocument();
        return;
    }
    StReadProblem     stProblem = std::exchange(m_stProblem, {});
    const bool        bMemory   = m_bMemoryRanOut;
    const bool        bBytes    = m_bIsBytesProblem;
    const std::size_t nTaken    = m_nTaken;
    releaseDocument(); // a half-read document is no document
    m_stProblem       = std::move(stProblem);
    m_bMemoryRanOut   = bMemory;
    m_bIsBytesProblem = bBytes;
    m_nTaken          = nTaken;
}

void CXmlParser::readDocument(std::string_view strXml, std::size_t nBytewiseFrom)
{
    try
    {
        parse(CXmlSource(*this, strXml, nBytewiseFrom));
        if (getDocument() == nullptr || getDocument()->getDocumentElement() == nullptr)
            noteProblem("the document has no root element", 0, 0);
    }
    catch (const XMLException& oProblem)
    {
        noteProblem(toLocal(oProblem.getMessage()), 0, 0);
    }
    catch (const DOMException& oProblem)
    {
        noteProblem(toLocal(oProblem.getMessage()), 0, 0);
    }
    catch (const SAXException& oProblem)
    {
        noteProblem(toLocal(oProblem.getMessage()), 0, 0);
    }
}

// The first problem is the cause, what comes after it are consequences.
void CXmlParser::noteProblem(const std::string& strText, XMLFileLoc nLine, XMLFileLoc nColumn)
{
    if (!m_stProblem.isSet())
        m_stProblem = {"", static_cast<std::uint32_t>(nLine), static_cast<std::uint32_t>(nColumn), strText, {}};
}

void CXmlParser::noteMemoryRanOut()
{
    m_bMemoryRanOut     = true;
    m_stProblem.strText = "out of memory";
}

void CXmlParser::refuse(const std::string& strText)
{
    const Locator* pPlace = getScanner()->getLocator(); // gone as soon as the scanner is left
    noteProblem(strText, pPlace->getLineNumber(), pPlace->getColumnNumber());
    m_stProblem.enKind = EnReadProblem::Limit;
    throw StRefused();
}

void CXmlParser::error(unsigned int nCode, const XMLCh* pszDomain, ErrTypes enType, const XMLCh* pszText,
                       const XMLCh* pszSystemId, const XMLCh* pszPublicId, XMLFileLoc nLine, XMLFileLoc nColumn)
{
    if (!m_bIsReading)
        return XercesDOMParser::error(nCode, pszDomain, enType, pszText, pszSystemId, pszPublicId, nLine, nColumn);
    const bool bIsEncoding = nCode == XMLErrs::ContradictoryEncoding && // a warning: it reads in another encoding
                             XMLString::equals(pszDomain, XMLUni::fgXMLErrDomain);
    if (enType == ErrType_Warning && !bIsEncoding)
        return;
    if (!m_stProblem.isSet()) // exceptions inside the parser: those of its decoders, and some more
        m_bIsBytesProblem = XMLString::equals(pszDomain, XMLUni::fgExceptDomain);
    noteProblem(toLocal(pszText), nLine, nColumn);
    if (bIsEncoding || (m_bIsBytesProblem && nCode != XMLExcepts::Gen_UnexpectedEOF))
        m_stProblem.enKind = EnReadProblem::Encoding;
}

void CXmlParser::resetDocument()
{
    if (!m_bIsReading) // a parse by the base
        clearReading();
    XercesDOMParser::resetDocument();
}

// What comes without an event for each piece is looked at whenever the parser takes
// in more: declarations, and the attributes of a tag that has not ended.
void CXmlParser::checkProgress()
{
    if (m_bInDocType && m_nTaken - m_nTakenAtDocType > XmlLimits::MAX_DOCTYPE_BYTES)
        refuse("the document type is too long");
    if (!m_bInDocType && allocations() - m_nAllocated > XmlLimits::MAX_ATTRIBUTES * ALLOCATIONS_PER_ATTRIBUTE)
        refuse("an element has too many attributes");
}

void CXmlParser::startIntSubset()
{
    m_bInDocType      = true;
    m_nTakenAtDocType = m_nTaken;
    XercesDOMParser::startIntSubset();
}

void CXmlParser::endIntSubset()
{
    m_bInDocType = false;
    m_nAllocated = allocations();
    XercesDOMParser::endIntSubset();
}

// A parameter entity, and the default of an attribute, are expanded before
// anything can count it. Device types need neither.
void CXmlParser::entityDecl(const DTDEntityDecl& oEntity, bool bIsParameter, bool bIsIgnored)
{
    if (m_bIsReading)
    {
        if (bIsParameter)
            refuse("the document type declares a parameter entity");
        if (oEntity.isExternal())
            refuse("the document type names another file");
        m_nEntityText += oEntity.getValueLen();
        if (m_nEntityText > XmlLimits::MAX_ENTITY_TEXT)
            refuse("the document type declares too much text as entities");
    }
    XercesDOMParser::entityDecl(oEntity, bIsParameter, bIsIgnored);
}

void CXmlParser::notationDecl(const XMLNotationDecl& oNotation, bool bIsIgnored)
{
    if (m_bIsReading)
        refuse("the document type declares a notation");
    XercesDOMParser::notationDecl(oNotation, bIsIgnored);
}

void CXmlParser::startAttList(const DTDElementDecl& oElement)
{
    if (m_bIsReading)
        refuse("the document type declares attributes");
    XercesDOMParser::startAttList(oElement);
}

void CXmlParser::startElement(const XMLElementDecl& oDecl, unsigned int nUri, const XMLCh* pszPrefix,
                              const RefVectorOf<XMLAttr>& lstAttr, XMLSize_t nAttrs, bool bIsEmpty, bool bIsRoot)
{
    m_bInEmptyElement = bIsEmpty; // the base ends an empty element before it returns
    if (m_bIsReading && nAttrs > XmlLimits::MAX_ATTRIBUTES)
        refuse("an element has too many attributes");
    XercesDOMParser::startElement(oDecl, nUri, pszPrefix, lstAttr, nAttrs, bIsEmpty, bIsRoot);
    if (!bIsEmpty)
        openElement();
}

void CXmlParser::endElement(const XMLElementDecl& oDecl, unsigned int nUri, bool bIsRoot, const XMLCh* pszPrefix)
{
    if (std::exchange(m_bInEmptyElement, false))
        openElement();
    if (m_bIsReading)
        m_oNesting.close();
    XercesDOMParser::endElement(oDecl, nUri, bIsRoot, pszPrefix);
}

void CXmlParser::openElement()
{
    if (!m_bIsReading)
        return;
    const auto*  pElement = static_cast<const DOMElement*>(fCurrentParent);
    const XMLCh* pszName  = pElement->getTagName();
    if (const char* pszPassed = m_oNesting.open(pszName))
        refuse(limitText(pszName, pszPassed));
    elementsNamed(pszName).push_back(pElement);
    checkContent(m_oNesting.isRepeated() ? attributeText(*pElement) : 0);
}

DOMAttr* CXmlParser::createAttr(const XMLCh* pszName)
{
    DOMAttr* pAttr = XercesDOMParser::createAttr(pszName);
    if (m_bIsReading)
        elementsNamed(pAttr->getName()); // counts; the document's own text of the name
    return pAttr;
}

ElementList& CXmlParser::elementsNamed(const XMLCh* pszName)
{
    ElementList& lstElement = m_mapElements[pszName];
    if (m_mapElements.size() > XmlLimits::MAX_NAMES)
        refuse("elements and attributes have too many different names");
    return lstElement;
}

void CXmlParser::docCharacters(const XMLCh* pszText, XMLSize_t nLength, bool bIsCData)
{
    checkContent(nLength);
    // The current node is the one before the text: the open element or its last child.
    const bool bLeftOut = !m_bKeepsBlanks && m_bIsReading && fCurrentNode->getNodeType() == DOMNode::ELEMENT_NODE &&
                          XMLChar1_0::isAllSpaces(pszText, nLength);
    if (keepsTexts() && !bLeftOut)
        XercesDOMParser::docCharacters(pszText, nLength, bIsCData);
}

void CXmlParser::docComment(const XMLCh* pszText)
{
    checkContent(XMLString::stringLen(pszText));
    if (keepsTexts())
        XercesDOMParser::docComment(pszText);
}

void CXmlParser::docPI(const XMLCh* pszTarget, const XMLCh* pszData)
{
    checkContent(XMLString::stringLen(pszData));
    XercesDOMParser::docPI(pszTarget, pszData);
}

void CXmlParser::checkContent(std::size_t nCharacters)
{
    m_nAllocated = allocations();
    if (!m_bIsReading || !m_oNesting.isRepeated())
        return;
    if (const char* pszPassed = m_oNesting.content(nCharacters))
        refuse(limitText(m_oNesting.openName(), pszPassed));
}

bool CXmlParser::hasIndex() const
{
    // getDocument() changes nothing; Xerces only forgot to say so.
    return m_pIndexed != nullptr && m_pIndexed == const_cast<CXmlParser*>(this)->getDocument();
}

const ElementList& CXmlParser::elements(const char16_t* pszName) const
{
    static const ElementList s_lstNone;
    if (!hasIndex())
        return s_lstNone;
    for (const auto& [pszStored, lstElement] : m_mapElements)
    {
        if (XMLString::equals(pszStored, pszName))
            return lstElement;
    }
    return s_lstNone;
}

// The readers of XmlRead.h.
#include "common/XmlRead.h"

#include "common/LogLine.h"
#include "common/XmlLimits.h"

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/TransService.hpp>

#include <cstdlib>
#include <new>

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "XmlRead";

// The parser's UTF-16 in the local code page, by way of the XML library.
std::string transcode(const XMLCh* pszText)
{
    try
    {
        char*       pszLocal = XMLString::transcode(pszText);
        std::string strLocal = pszLocal == nullptr ? "" : pszLocal;
        XMLString::release(&pszLocal);
        return strLocal;
    }
    catch (const OutOfMemoryException&)
    {
        throw std::bad_alloc();
    }
    catch (const XMLException&)
    {
        return {}; // not expressible in the local code page
    }
}

bool isTextNode(const DOMNode& oNode)
{
    return oNode.getNodeType() == DOMNode::TEXT_NODE || oNode.getNodeType() == DOMNode::CDATA_SECTION_NODE;
}

// Whether an element stands deeper, or inside more of its own name, than any
// document that is read may hold.
bool isNestedTooDeep(const DOMElement& oElement)
{
    std::size_t  nDepth    = 0;
    std::size_t  nSameName = 0;
    const XMLCh* pszName   = oElement.getNodeName();
    for (const DOMNode* pNode = oElement.getParentNode(); pNode != nullptr; pNode = pNode->getParentNode())
    {
        if (pNode->getNodeType() != DOMNode::ELEMENT_NODE)
            continue; // an entity reference is no level, whatever its name
        // Names of one document are pooled, so equal names are one pointer.
        nSameName += pNode->getNodeName() == pszName ? 1 : 0;
        ++nDepth;
    }
    return nDepth >= XmlLimits::MAX_DEPTH || nSameName >= XmlLimits::MAX_SAME_NAME_DEPTH;
}
} // namespace

const DOMDocument* documentOf(const XercesDOMParser* pDOMParser)
{
    // getDocument() changes nothing; Xerces only forgot to say so.
    auto* pParser = const_cast<XercesDOMParser*>(pDOMParser);
    if (pParser == nullptr || pParser->getDocument() == nullptr || pParser->getErrorCount() != 0)
        return nullptr;
    const DOMDocument* pDocument = pParser->getDocument();
    if (pDocument->getDocumentElement() == nullptr)
        return nullptr;
    if (dynamic_cast<const CXmlParser*>(pDOMParser) != nullptr)
        return pDocument;

    // A document that a caller parsed for itself has not been checked yet.
    const std::string strProblem = walkWithinLimits(*pDocument, [](const DOMElement&) {});
    if (strProblem.empty())
        return pDocument;
    logFail(DC_HERE, DC_RESULT_XML_ERROR, "XML document is refused: " + strProblem);
    return nullptr;
}

ElementList documentElements(const XercesDOMParser& oDOMParser, const char16_t* pszName)
{
    if (const auto* pXmlParser = dynamic_cast<const CXmlParser*>(&oDOMParser))
        return pXmlParser->elements(pszName);
    ElementList       lstElement;
    const DOMElement* pRoot = const_cast<XercesDOMParser&>(oDOMParser).getDocument()->getDocumentElement();
    if (XMLString::equals(pRoot->getTagName(), pszName))
        lstElement.push_back(pRoot);
    for (const DOMElement& oElement : CElements(pRoot, pszName))
        lstElement.push_back(&oElement);
    return lstElement;
}

std::string toLocal(const XMLCh* pszText)
{
    if (pszText == nullptr)
        return {};
    // ASCII is the same bytes in every local code page, and most texts are ASCII.
    std::size_t nLength = 0;
    while (pszText[nLength] != 0 && pszText[nLength] < 0x80)
        ++nLength;
    if (pszText[nLength] != 0)
        return transcode(pszText);
    std::string strLocal(nLength, '\0');
    for (std::size_t nAt = 0; nAt < nLength; ++nAt)
        strLocal[nAt] = static_cast<char>(pszText[nAt]);
    return strLocal;
}

std::string attrText(const DOMElement& oElement, const char16_t* pszName)
{
    return toLocal(oElement.getAttribute(pszName));
}

std::uint32_t toNumber(const std::string& strText)
{
    return static_cast<std::uint32_t>(std::strtol(strText.c_str(), nullptr, 10));
}

std::uint32_t attrNumber(const DOMElement& oElement, const char16_t* pszName)
{
    return toNumber(attrText(oElement, pszName));
}

bool attrFlag(const DOMElement& oElement, const char16_t* pszName)
{
    return attrNumber(oElement, pszName) != 0;
}

std::string elementText(const DOMElement& oElement)
{
    std::u16string strText;
    for (const DOMNode* pNode = &oElement; pNode != nullptr; pNode = nextInSubtree(*pNode, oElement))
    {
        if (isTextNode(*pNode))
            strText += pNode->getNodeValue();
    }
    return toLocal(strText.c_str());
}

const DOMNode* nextInSubtree(const DOMNode& oNode, const DOMNode& oRoot)
{
    if (const DOMNode* pChild = oNode.getFirstChild())
        return pChild;
    for (const DOMNode* pNode = &oNode; pNode != &oRoot; pNode = pNode->getParentNode())
    {
        if (const DOMNode* pSibling = pNode->getNextSibling())
            return pSibling;
    }
    return nullptr;
}

CElements::CElements(const DOMElement* pRoot, const char16_t* pszName)
    : m_pRoot(pRoot == nullptr || isNestedTooDeep(*pRoot) ? nullptr : pRoot), m_pszName(pszName)
{
}

CElements::Iterator& CElements::Iterator::operator++()
{
    const DOMNode* pNode = m_pCurrent;
    do
        pNode = nextInSubtree(*pNode, *m_pRoot);
    while (pNode != nullptr &&
           (pNode->getNodeType() != DOMNode::ELEMENT_NODE || !XMLString::equals(pNode->getNodeName(), m_pszName)));
    m_pCurrent = static_cast<const DOMElement*>(pNode);
    return *this;
}

CElements optionElements(const DOMElement* pParameter)
{
    const CElements oOptions(pParameter, u"Option");
    return oOptions.isEmpty() ? CElements(pParameter, u"option") : oOptions;
}

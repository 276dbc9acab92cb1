// The readers of XmlRead.h.
#include "common/XmlRead.h"

#include "common/LogLine.h"
#include "common/XmlLimits.h"
#include "common/XmlNesting.h"

#include <algorithm>

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "XmlRead";

bool isTextNode(const DOMNode& oNode)
{
    return oNode.getNodeType() == DOMNode::TEXT_NODE || oNode.getNodeType() == DOMNode::CDATA_SECTION_NODE;
}

// Whether an element stands directly inside more of its own name than any
// document that is read may hold. An element with nothing inside it is not asked
// for its ancestors: most are such.
bool isNestedTooDeep(const DOMElement& oElement)
{
    if (oElement.getFirstChild() == nullptr)
        return false;
    // Names of one document are pooled, so equal names are one pointer.
    const XMLCh*   pszName   = oElement.getNodeName();
    const DOMNode* pNode     = oElement.getParentNode();
    std::size_t    nSameName = 0;
    while (pNode != nullptr && pNode->getNodeName() == pszName && nSameName < XmlLimits::MAX_SAME_NAME_DEPTH)
    {
        pNode = pNode->getParentNode();
        ++nSameName;
    }
    return nSameName >= XmlLimits::MAX_SAME_NAME_DEPTH;
}

void tellElements(CReadObserver& oObserver, const DOMDocument& oDocument, const char16_t* pszName,
                  const ElementList& lstElement)
{
    oObserver.lookup(oDocument, pszName);
    for (const DOMElement* pElement : lstElement)
        oObserver.elementMet(*pElement);
}
} // namespace

const DOMDocument* documentOf(const XercesDOMParser* pDOMParser)
{
    // getDocument() changes nothing; Xerces only forgot to say so.
    auto*              pParser   = const_cast<XercesDOMParser*>(pDOMParser);
    const DOMDocument* pDocument = pParser == nullptr ? nullptr : pParser->getDocument();
    if (pDocument == nullptr || pDocument->getDocumentElement() == nullptr)
        return nullptr;
    const auto* pXmlParser = dynamic_cast<const CXmlParser*>(pDOMParser);
    if (pXmlParser != nullptr && pXmlParser->hasIndex())
        return pDocument;

    // A document that a caller parsed for itself is taken as it is, whatever its
    // parser reported, but it has not been held against the limits yet.
    const std::string strProblem = checkNesting(*pDocument);
    if (strProblem.empty())
        return pDocument;
    logFail(DC_HERE, DC_RESULT_XML_ERROR, "XML document is refused: " + strProblem);
    return nullptr;
}

ElementList documentElements(const XercesDOMParser& oDOMParser, const char16_t* pszName)
{
    const auto* pXmlParser = dynamic_cast<const CXmlParser*>(&oDOMParser);
    if (pXmlParser != nullptr && pXmlParser->hasIndex())
    {
        const ElementList& lstElement = pXmlParser->elements(pszName);
        if (CReadObserver* pObserver = ReadObserver::get())
            tellElements(*pObserver, *documentOf(&oDOMParser), pszName, lstElement);
        return lstElement;
    }
    ElementList       lstElement;
    const DOMElement* pRoot = const_cast<XercesDOMParser&>(oDOMParser).getDocument()->getDocumentElement();
    if (XMLString::equals(pRoot->getTagName(), pszName))
        lstElement.push_back(pRoot);
    for (const DOMElement& oElement : CElements(pRoot, pszName))
        lstElement.push_back(&oElement);
    return lstElement;
}

std::u16string_view valueOf(const DOMAttr& oAttr)
{
    const DOMNode* pText = oAttr.getFirstChild();
    if (pText == nullptr)
        return {};
    // Nearly all values are one text node, whose content is at hand; getValue()
    // casts its way through the class hierarchy at every call.
    if (pText->getNodeType() == DOMNode::TEXT_NODE && pText->getNextSibling() == nullptr)
        return {pText->getNodeValue(), static_cast<const DOMText*>(pText)->getLength()};
    return oAttr.getValue(); // entity references in it
}

CAttributes::CAttributes(const DOMElement& oElement)
    : m_oElement(oElement), m_nAttributes(oElement.getAttributes()->getLength())
{
    const DOMNamedNodeMap& oMap = *oElement.getAttributes();
    for (std::size_t nAt = 0; nAt < m_nAttributes && m_nAttributes <= REMEMBERED; ++nAt)
    {
        const auto* pAttr  = static_cast<const DOMAttr*>(oMap.item(nAt));
        m_arAttribute[nAt] = {pAttr->getName(), pAttr};
    }
}

const DOMAttr* CAttributes::find(const char16_t* pszName) const
{
    if (m_nAttributes > REMEMBERED)
        return m_oElement.getAttributeNode(pszName);
    for (std::size_t nAt = 0; nAt < m_nAttributes; ++nAt)
    {
        const StAttribute& stAttribute = m_arAttribute[nAt];
        if (stAttribute.pszName[0] == pszName[0] && stAttribute.pszName[1] == pszName[1] &&
            XMLString::equals(stAttribute.pszName, pszName))
            return stAttribute.pAttr;
    }
    return nullptr;
}

std::u16string_view CAttributes::value(const char16_t* pszName, EnReadAs enReadAs, const CWordTable& oWords) const
{
    const DOMAttr* pAttr = find(pszName);
    if (CReadObserver* pObserver = ReadObserver::get())
        pObserver->attributeRead({m_oElement, pszName, pAttr, enReadAs, oWords});
    return pAttr == nullptr ? std::u16string_view() : valueOf(*pAttr);
}

std::string attrText(const CAttributes& oAttributes, const char16_t* pszName)
{
    const std::u16string_view strValue = oAttributes.value(pszName, EnReadAs::Text);
    return toLocal(strValue.data(), strValue.size());
}

namespace
{
std::uint32_t readNumber(const CAttributes& oAttributes, const char16_t* pszName, EnReadAs enReadAs)
{
    const std::u16string_view strValue = oAttributes.value(pszName, enReadAs);
    if (strValue.empty())
        return 0;
    if (strValue.size() == 1 && strValue[0] >= u'0' && strValue[0] <= u'9') // nearly every number there is
        return static_cast<std::uint32_t>(strValue[0] - u'0');
    return toNumber(toLocal(strValue.data(), strValue.size()));
}
} // namespace

std::uint32_t attrNumber(const CAttributes& oAttributes, const char16_t* pszName)
{
    return readNumber(oAttributes, pszName, EnReadAs::Number);
}

bool attrFlag(const CAttributes& oAttributes, const char16_t* pszName)
{
    return readNumber(oAttributes, pszName, EnReadAs::Flag) != 0;
}

bool isWord(std::u16string_view strText, std::string_view strWord)
{
    return strText.size() == strWord.size() && std::equal(strText.begin(), strText.end(), strWord.begin());
}

std::string elementText(const DOMElement& oElement)
{
    if (CReadObserver* pObserver = ReadObserver::get())
        pObserver->textRead(oElement);
    std::u16string strText;
    CSubtreeWalk   oWalk(&oElement);
    while (const DOMNode* pNode = oWalk.next())
    {
        if (isTextNode(*pNode))
            strText += pNode->getNodeValue();
    }
    return toLocal(strText.c_str());
}

const DOMNode* CSubtreeWalk::parent() const
{
    return m_nDepth <= REMEMBERED ? m_arOpen[m_nDepth - 1] : m_pNode->getParentNode();
}

const DOMNode* CSubtreeWalk::next()
{
    const DOMNode* pChild = m_pNode == nullptr ? nullptr : m_pNode->getFirstChild();
    if (pChild != nullptr)
    {
        if (m_nDepth < REMEMBERED)
            m_arOpen[m_nDepth] = m_pNode;
        ++m_nDepth;
        return m_pNode = pChild;
    }
    return nextBeside();
}

const DOMNode* CSubtreeWalk::nextBeside()
{
    for (; m_pNode != nullptr && m_nDepth != 0; --m_nDepth)
    {
        if (const DOMNode* pSibling = m_pNode->getNextSibling())
            return m_pNode = pSibling;
        m_pNode = parent();
    }
    return m_pNode = nullptr;
}

CElements::CElements(const DOMElement* pRoot, const char16_t* pszName)
    : m_pRoot(pRoot == nullptr || isNestedTooDeep(*pRoot) ? nullptr : pRoot), m_pszName(pszName)
{
    if (CReadObserver* pObserver = ReadObserver::get(); pObserver != nullptr && m_pRoot != nullptr)
        pObserver->lookup(*m_pRoot, m_pszName);
}

CElements::Iterator& CElements::Iterator::operator++()
{
    const DOMNode* pNode = m_oWalk.next();
    while (pNode != nullptr)
    {
        // Every other node is the text between two elements: its name ("#text") is
        // no element's, and there is nothing below it.
        const XMLCh* pszName = pNode->getNodeName();
        if (*pszName == u'#')
            pNode = m_oWalk.nextBeside();
        else if (!XMLString::equals(pszName, m_pszName) || pNode->getNodeType() != DOMNode::ELEMENT_NODE)
            pNode = m_oWalk.next();
        else
            break;
    }
    m_pCurrent = static_cast<const DOMElement*>(pNode);
    if (CReadObserver* pObserver = ReadObserver::get(); pObserver != nullptr && m_pCurrent != nullptr)
        pObserver->elementMet(*m_pCurrent);
    return *this;
}

CElements optionElements(const DOMElement* pParameter)
{
    const CElements oOptions(pParameter, u"Option");
    return oOptions.isEmpty() ? CElements(pParameter, u"option") : oOptions;
}

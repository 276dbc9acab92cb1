// See XmlNesting.h.
#include "common/XmlNesting.h"

#include "common/XmlLimits.h"
#include "common/XmlText.h"

#include <algorithm>

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNamedNodeMap;
using xercesc::DOMNode;
using xercesc::XMLString;

const char* CNestingCheck::open(const XMLCh* pszName)
{
    const auto nSameName = static_cast<std::size_t>(std::count_if(
        m_lstOpen.begin(), m_lstOpen.end(), [pszName](const StOpen& stOpen) { return stOpen.pszName == pszName; }));

    const std::uint64_t nReads    = (m_lstOpen.empty() ? 1 : m_lstOpen.back().nReads) * (nSameName == 0 ? 1 : 2);
    const char*         pszPassed = nullptr;
    m_nRepeatedReads += nReads - 1;
    if (m_lstOpen.size() >= XmlLimits::MAX_DEPTH)
        pszPassed = "are nested too deep";
    else if (nSameName >= XmlLimits::MAX_SAME_NAME_DEPTH)
        pszPassed = "are nested in each other too deep";
    else if (m_nRepeatedReads > XmlLimits::MAX_REPEATED_READS)
        pszPassed = "are nested so that they would be read too many times";
    m_lstOpen.push_back({pszName, nReads});
    return pszPassed;
}

const char* CNestingCheck::content(std::size_t nCharacters)
{
    constexpr std::uint64_t NODE = 8; // what a lookup spends on passing over one node, in characters
    m_nRepeatedText += (m_lstOpen.back().nReads - 1) * (nCharacters + NODE);
    return m_nRepeatedText > XmlLimits::MAX_REPEATED_TEXT ? "hold too much for the times that they would be read"
                                                          : nullptr;
}

std::size_t attributeText(const DOMElement& oElement)
{
    const DOMNamedNodeMap& oAttributes = *oElement.getAttributes();
    std::size_t            nCharacters = 0;
    for (XMLSize_t nAt = 0; nAt < oAttributes.getLength(); ++nAt)
        nCharacters += XMLString::stringLen(oAttributes.item(nAt)->getNodeValue());
    return nCharacters;
}

std::string limitText(const XMLCh* pszName, const char* pszPassed)
{
    return "elements \"" + toLocal(pszName) + "\" " + pszPassed;
}

std::string checkNesting(const DOMDocument& oDocument)
{
    CNestingCheck               oNesting;
    std::vector<const DOMNode*> lstOpen; // every open node, elements or not
    const DOMNode*              pNode = oDocument.getDocumentElement();
    while (pNode != nullptr)
    {
        const bool  bElement  = pNode->getNodeType() == DOMNode::ELEMENT_NODE;
        const char* pszPassed = bElement ? oNesting.open(pNode->getNodeName()) : nullptr;
        if (pszPassed == nullptr && oNesting.isRepeated())
            pszPassed = oNesting.content(bElement ? attributeText(*static_cast<const DOMElement*>(pNode))
                                                  : XMLString::stringLen(pNode->getNodeValue()));
        if (pszPassed != nullptr)
            return limitText(oNesting.openName(), pszPassed);
        lstOpen.push_back(pNode);
        pNode = pNode->getFirstChild();
        while (pNode == nullptr && !lstOpen.empty())
        {
            if (lstOpen.back()->getNodeType() == DOMNode::ELEMENT_NODE)
                oNesting.close();
            pNode = lstOpen.size() == 1 ? nullptr : lstOpen.back()->getNextSibling();
            lstOpen.pop_back();
        }
    }
    return {};
}

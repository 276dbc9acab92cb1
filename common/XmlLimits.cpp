// See XmlLimits.h.
#include "common/XmlLimits.h"

#include "common/XmlRead.h"

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

    // A lookup chain may pick any of the open elements of each other name; the one
    // kind that is read recursively is read through every subset of its own.
    const std::uint64_t nChains   = m_lstOpen.empty() ? 1 : m_lstOpen.back().nChains;
    const std::uint64_t nOthers   = nChains / std::max<std::uint64_t>(nSameName, 1);
    std::uint64_t       nRepeats  = 0;
    const char*         pszPassed = nullptr;
    if (m_lstOpen.size() >= XmlLimits::MAX_DEPTH)
        pszPassed = "are nested too deep";
    else if (nSameName >= XmlLimits::MAX_SAME_NAME_DEPTH)
        pszPassed = "are nested in each other too deep";
    else if (nChains > 1 || nSameName > 0)
    {
        const std::uint64_t nOwn = XMLString::equals(pszName, u"SubItem") ? std::uint64_t{1} << nSameName : 1;
        nRepeats                 = nOthers * nOwn - 1;
        m_nRepeatedReads += nRepeats;
        if (m_nRepeatedReads > XmlLimits::MAX_REPEATED_READS)
            pszPassed = "are nested so that they would be read too many times";
    }
    m_lstOpen.push_back({pszName, nOthers * (nSameName + 1), nRepeats});
    return pszPassed;
}

const char* CNestingCheck::content(std::size_t nCharacters)
{
    constexpr std::uint64_t NODE = 8; // what a lookup spends on passing over one node, in characters
    m_nRepeatedText += m_lstOpen.back().nRepeats * (nCharacters + NODE);
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

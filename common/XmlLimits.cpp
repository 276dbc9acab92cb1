// One walk over a parsed document that holds its nesting against the limits.
#include "common/XmlLimits.h"

#include "common/XmlRead.h"

#include <algorithm>
#include <vector>

namespace
{
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMNode;

// The elements that the walk stands in, and how often the next element would be
// read: a lookup chain may pick any of the ancestors of each name.
class COpenElements
{
public:
    // Opens an element below the ones that are open. Returns the limit it
    // passes, or null.
    const char* open(const DOMElement& oElement)
    {
        const XMLCh*      pszName   = oElement.getTagName();
        const std::size_t nSameName = static_cast<std::size_t>(
            std::count_if(m_lstOpen.begin(), m_lstOpen.end(),
                          [pszName](const StOpen& stOpen) { return isSameName(stOpen.pszName, pszName); }));
        if (m_lstOpen.size() >= XmlLimits::MAX_DEPTH)
            return "are nested too deep";
        if (nSameName >= XmlLimits::MAX_SAME_NAME_DEPTH)
            return "are nested in each other too deep";

        // Chains through the open elements of other names, and for the one kind
        // that is read recursively every subset of its own ancestors.
        const std::uint64_t nChains = m_lstOpen.empty() ? 1 : m_lstOpen.back().nChains;
        const std::uint64_t nOthers = nChains / std::max<std::uint64_t>(nSameName, 1);
        const std::uint64_t nOwn    = isSameName(pszName, u"SubItem") ? std::uint64_t{1} << nSameName : 1;
        m_nRepeatedReads += nOthers * nOwn - 1;
        if (m_nRepeatedReads > XmlLimits::MAX_REPEATED_READS)
            return "are nested so that they would be read too many times";

        m_lstOpen.push_back({&oElement, pszName, nOthers * (nSameName + 1)});
        return nullptr;
    }

    // Closes every open element that does not contain the node.
    void closeUntil(const DOMNode* pParent)
    {
        while (!m_lstOpen.empty() && m_lstOpen.back().pElement != pParent)
            m_lstOpen.pop_back();
    }

private:
    struct StOpen
    {
        const DOMNode* pElement;
        const XMLCh*   pszName;
        std::uint64_t  nChains; // product over the open names of how many are open: below 3^34 at depth 100
    };

    static bool isSameName(const XMLCh* pszLeft, const XMLCh* pszRight)
    {
        return pszLeft == pszRight || xercesc::XMLString::equals(pszLeft, pszRight);
    }

    std::vector<StOpen> m_lstOpen;
    std::uint64_t       m_nRepeatedReads = 0;
};

// The element that a node stands in; entity references are looked through.
const DOMNode* parentElement(const DOMNode& oNode)
{
    const DOMNode* pParent = oNode.getParentNode();
    while (pParent != nullptr && pParent->getNodeType() == DOMNode::ENTITY_REFERENCE_NODE)
        pParent = pParent->getParentNode();
    return pParent;
}
} // namespace

std::string walkWithinLimits(const DOMDocument& oDocument, const std::function<void(const DOMElement&)>& fnVisit)
{
    COpenElements oOpen;
    for (const DOMNode* pNode = &oDocument; pNode != nullptr; pNode = nextInSubtree(*pNode, oDocument))
    {
        if (pNode->getNodeType() != DOMNode::ELEMENT_NODE)
            continue;
        const auto& oElement = static_cast<const DOMElement&>(*pNode);
        oOpen.closeUntil(parentElement(oElement));
        if (const char* pszPassed = oOpen.open(oElement))
            return "elements \"" + toLocal(oElement.getTagName()) + "\" " + pszPassed;
        fnVisit(oElement);
    }
    return {};
}

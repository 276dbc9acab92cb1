// The small readers that every section parser stands on: the document of a
// parser, elements by name, and an attribute as text, number, flag or word.
// Tag and attribute names are u"..." literals: XMLCh is char16_t, so a name costs
// no transcoding and no start-up order.
#ifndef OPERATIONXML_COMMON_XMLREAD_H
#define OPERATIONXML_COMMON_XMLREAD_H

#include "common/XmlParser.h"
#include "platform/Export.h"
#include "records/WordTables.h"

#include <xercesc/dom/DOM.hpp>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <type_traits>

static_assert(std::is_same_v<XMLCh, char16_t>, "names are written as u\"...\" literals");

// The parser's document, or null: no parser, no document, one that failed to
// parse half-way, or one whose nesting passes the limits (then logged).
const xercesc::DOMDocument* documentOf(const xercesc::XercesDOMParser* pDOMParser);

// All elements of the parser's document with this tag name, in document order.
// The parser has a document.
ElementList documentElements(const xercesc::XercesDOMParser& oDOMParser, const char16_t* pszName);

// A text in the server's local code page.
std::string toLocal(const XMLCh* pszText);

// An attribute: "" when it is missing.
std::string attrText(const xercesc::DOMElement& oElement, const char16_t* pszName);

// Base 10 by the C library's string-to-long rule, kept to its low 32 bits; text
// without digits gives 0.
std::uint32_t toNumber(const std::string& strText);
std::uint32_t attrNumber(const xercesc::DOMElement& oElement, const char16_t* pszName);

// True when that number is not 0, so "true" is false.
bool attrFlag(const xercesc::DOMElement& oElement, const char16_t* pszName);

// All text below an element, comments and processing instructions left out.
std::string elementText(const xercesc::DOMElement& oElement);

// The node after oNode in document order within the subtree of oRoot, or null.
const xercesc::DOMNode* nextInSubtree(const xercesc::DOMNode& oNode, const xercesc::DOMNode& oRoot);

// The descendants of one element with a tag name, at any depth, in document
// order, nested matches included: the DOM's descendant lookup as a range. Nothing
// is allocated. A lookup fails (isMissing) on a null element and below one that
// is itself nested beyond the limits: documents of CXmlParser never are, but a
// reader may be handed an element of any document.
class CElements
{
public:
    class Iterator
    {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type        = xercesc::DOMElement;
        using difference_type   = std::ptrdiff_t;
        using pointer           = const xercesc::DOMElement*;
        using reference         = const xercesc::DOMElement&;

        Iterator(const xercesc::DOMElement* pRoot, const char16_t* pszName)
            : m_pRoot(pRoot), m_pCurrent(pRoot), m_pszName(pszName)
        {
        }

        reference operator*() const { return *m_pCurrent; }
        Iterator& operator++();
        bool      operator!=(const Iterator& oOther) const { return m_pCurrent != oOther.m_pCurrent; }

    private:
        const xercesc::DOMElement* m_pRoot;
        const xercesc::DOMElement* m_pCurrent; // null at the end
        const char16_t*            m_pszName;
    };

    CElements(const xercesc::DOMElement* pRoot, const char16_t* pszName);

    bool     isMissing() const { return m_pRoot == nullptr; }
    bool     isEmpty() const { return !(begin() != end()); }
    Iterator begin() const { return isMissing() ? end() : ++Iterator(m_pRoot, m_pszName); }
    Iterator end() const { return Iterator(nullptr, m_pszName); }

private:
    const xercesc::DOMElement* m_pRoot; // null when the lookup failed
    const char16_t*            m_pszName;
};

// The options of a parameter: its "Option" elements, or those spelled "option"
// when it has no "Option" at all.
CElements optionElements(const xercesc::DOMElement* pParameter);

#endif

// The small readers that every section parser stands on: the document of a
// parser, elements by name, and an attribute as text, number, flag or word.
// Exported for lint and the catalog, which are a library of their own; not installed.
// Tag and attribute names are u"..." literals: XMLCh is char16_t, so a name costs
// no transcoding and no start-up order.
#ifndef OPERATIONXML_COMMON_XMLREAD_H
#define OPERATIONXML_COMMON_XMLREAD_H

#include "common/ReadObserver.h"
#include "common/XmlParser.h"
#include "common/XmlText.h"
#include "platform/Export.h"
#include "records/WordTables.h"

#include <xercesc/dom/DOM.hpp>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The parser's document, or null: no parser, no document, or one whose nesting
// passes the limits (then logged). A document that was not parsed by
// CXmlParser::parseFile or parseText is taken as it is: whether a parser that
// reports errors has a document to offer is for the caller who made it to know.
const xercesc::DOMDocument* documentOf(const xercesc::XercesDOMParser* pDOMParser);

// All elements of the parser's document with this tag name, in document order.
// The parser has a document.
OPERATIONXML_API ElementList documentElements(const xercesc::XercesDOMParser& oDOMParser, const char16_t* pszName);

// The value of an attribute, as the document keeps it.
OPERATIONXML_API std::u16string_view valueOf(const xercesc::DOMAttr& oAttr);

// The attributes of one element, at hand for several readings.
class OPERATIONXML_API CAttributes
{
public:
    explicit CAttributes(const xercesc::DOMElement& oElement);

    const xercesc::DOMElement* element() const { return &m_oElement; }

    // The value of an attribute, empty when it is missing. Whoever listens hears how it
    // is read.
    std::u16string_view value(const char16_t* pszName, EnReadAs enReadAs, const CWordTable& oWords = {}) const;

private:
    static constexpr std::size_t REMEMBERED = 12;

    struct StAttribute
    {
        const XMLCh*            pszName;
        const xercesc::DOMAttr* pAttr;
    };

    const xercesc::DOMAttr* find(const char16_t* pszName) const;

    const xercesc::DOMElement& m_oElement;
    std::size_t                m_nAttributes;
    StAttribute                m_arAttribute[REMEMBERED]; // filled unless the element has more
};

// One attribute of an element: as text ("" when it is missing), as a number by
// toNumber(), as a flag (true when that number is not 0, so "true" is false).
OPERATIONXML_API std::string attrText(const CAttributes& oAttributes, const char16_t* pszName);
std::uint32_t                attrNumber(const CAttributes& oAttributes, const char16_t* pszName);
bool                         attrFlag(const CAttributes& oAttributes, const char16_t* pszName);

// Whether a text is this word, exact and case-sensitive. Words are plain ASCII.
bool isWord(std::u16string_view strText, std::string_view strWord);

// The row of a word table that one attribute names, or null. A row with an empty
// word stands for a missing attribute.
template <typename Row, std::size_t nRows>
const Row* attrRow(const CAttributes& oAttributes, const char16_t* pszName, const Row (&arRows)[nRows])
{
    const std::u16string_view strText = oAttributes.value(pszName, EnReadAs::Word, CWordTable(arRows));
    for (const Row& stRow : arRows)
    {
        if (isWord(strText, stRow.strWord))
            return &stRow;
    }
    return nullptr;
}

// The value of that row, or the fallback.
template <typename Value, std::size_t nWords>
Value attrWord(const CAttributes& oAttributes, const char16_t* pszName, const StWord<Value> (&arWords)[nWords],
               Value fallback)
{
    const StWord<Value>* pWord = attrRow(oAttributes, pszName, arWords);
    return pWord == nullptr ? fallback : pWord->value;
}

// All text below an element, comments and processing instructions left out.
std::string elementText(const xercesc::DOMElement& oElement);

// Walks the nodes below one root in document order. Remembers the way down for
// the usual depths: asking Xerces for a parent casts through its class hierarchy.
class OPERATIONXML_API CSubtreeWalk
{
public:
    explicit CSubtreeWalk(const xercesc::DOMNode* pRoot) : m_pNode(pRoot) {} // null: nothing to walk

    // The next node, or null at the end.
    const xercesc::DOMNode* next();

    // The same, passing over what lies below the node that was answered last.
    const xercesc::DOMNode* nextBeside();

private:
    const xercesc::DOMNode* parent() const;

    static constexpr std::size_t REMEMBERED = 16;

    const xercesc::DOMNode* m_pNode;              // the root at first, null at the end
    std::size_t             m_nDepth = 0;         // of m_pNode below the root
    const xercesc::DOMNode* m_arOpen[REMEMBERED]; // the root, and what lies between it and m_pNode
};

// The descendants of one element with a tag name, at any depth, in document
// order, nested matches included: the DOM's descendant lookup as a range. Nothing
// is allocated. A lookup fails (isMissing) on a null element and below one that
// stands directly inside too many of its own kind: documents of CXmlParser hold
// no such element, but a reader may be handed an element of any document.
class OPERATIONXML_API CElements
{
public:
    struct StEnd
    {
    };

    class Iterator
    {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type        = xercesc::DOMElement;
        using difference_type   = std::ptrdiff_t;
        using pointer           = const xercesc::DOMElement*;
        using reference         = const xercesc::DOMElement&;

        Iterator(const xercesc::DOMElement* pRoot, const char16_t* pszName) : m_oWalk(pRoot), m_pszName(pszName)
        {
            ++*this; // to the first match
        }

        reference operator*() const { return *m_pCurrent; }
        Iterator& operator++();
        bool      operator!=(StEnd) const { return m_pCurrent != nullptr; }

    private:
        CSubtreeWalk               m_oWalk;
        const xercesc::DOMElement* m_pCurrent = nullptr; // null at the end
        const char16_t*            m_pszName;
    };

    CElements(const xercesc::DOMElement* pRoot, const char16_t* pszName);

    bool     isMissing() const { return m_pRoot == nullptr; }
    bool     isEmpty() const { return !(begin() != StEnd{}); }
    Iterator begin() const { return Iterator(m_pRoot, m_pszName); }
    StEnd    end() const { return {}; }

private:
    const xercesc::DOMElement* m_pRoot; // null when the lookup failed
    const char16_t*            m_pszName;
};

// The options of a parameter: its "Option" elements, or those spelled "option"
// when it has no "Option" at all.
CElements optionElements(const xercesc::DOMElement* pParameter);

#endif

// How elements stand inside each other, held against the limits: by CXmlParser
// while a file is parsed, by documentOf() for a document that was parsed elsewhere.
#ifndef OPERATIONXML_COMMON_XMLNESTING_H
#define OPERATIONXML_COMMON_XMLNESTING_H

#include "platform/Export.h"

#include <xercesc/dom/DOM.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Follows the elements of one document as they open and close.
class OPERATIONXML_API CNestingCheck
{
public:
    // An element opens below the ones that are open. Returns what it does beyond a
    // limit ("are nested too deep"), or null. Names are a document's own, which
    // keeps each of them once, so they compare by address.
    const char* open(const XMLCh* pszName);

    // Whether what the element opened last holds is read more than once. If so, its
    // attributes, texts, comments and processing instructions count: each with its
    // characters, and as some more for itself. The answer is that of open().
    bool        isRepeated() const { return !m_lstOpen.empty() && m_lstOpen.back().nReads > 1; }
    const char* content(std::size_t nCharacters);

    const XMLCh* openName() const { return m_lstOpen.back().pszName; }

    // The element opened last closes.
    void close() { m_lstOpen.pop_back(); }

private:
    struct StOpen
    {
        const XMLCh* pszName;

        // The times that it may be read: a lookup chain goes through any of the open
        // elements of a name, a recursive one through every subset of them, so each
        // element inside one of its own name doubles what is below. No overflow: it is
        // refused before it passes twice the limit.
        std::uint64_t nReads;
    };

    std::vector<StOpen> m_lstOpen;
    std::uint64_t       m_nRepeatedReads = 0;
    std::uint64_t       m_nRepeatedText  = 0;
};

// The characters of all attributes of an element.
std::size_t attributeText(const xercesc::DOMElement& oElement);

// How a passed limit is told: "elements "SubItem" are nested too deep".
std::string limitText(const XMLCh* pszName, const char* pszPassed);

// The same for a document that was parsed elsewhere: what passes a limit, or an
// empty text.
std::string checkNesting(const xercesc::DOMDocument& oDocument);

#endif

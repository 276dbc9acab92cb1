// The limits within which an XML file is read. Every lookup takes descendants at
// any depth, so elements nested in their own kind are read several times over;
// these limits are generous for people and keep the product harmless.
// docs/file-format.md states them for authors.
#ifndef OPERATIONXML_COMMON_XMLLIMITS_H
#define OPERATIONXML_COMMON_XMLLIMITS_H

#include "platform/Export.h"

#include <xercesc/dom/DOM.hpp>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace XmlLimits
{
constexpr std::size_t   MAX_FILE_BYTES       = std::size_t{256} << 20; // bytes of one file
constexpr std::uint32_t MAX_ENTITY_EXPANSION = 64;                     // expansions of internal entities in one file
constexpr std::size_t   MAX_DEPTH            = 100;                    // elements inside each other
constexpr std::size_t   MAX_SAME_NAME_DEPTH  = 16;                     // elements of one name inside each other
constexpr std::size_t   MAX_ENTITY_TEXT      = 16384;                  // characters of all declared entities together
constexpr std::uint64_t MAX_REPEATED_READS   = 100000;                 // readings beyond one per element, whole file
constexpr std::uint64_t MAX_REPEATED_TEXT    = 16'000'000;             // characters that these readings pass over
constexpr double        MIN_CPU_SECONDS      = 0.5;                    // CPU time that any file may take to parse,
constexpr double        CPU_SECONDS_PER_BYTE = 0.5e-6; // and more for its size: some twenty times the usual
constexpr std::size_t   MAX_SAME_MODULE_TYPE = 4;      // times that one module file may name one device type
} // namespace XmlLimits

// Follows the elements of one document as they open and close, and holds their
// nesting against the limits.
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
    bool        isRepeated() const { return !m_lstOpen.empty() && m_lstOpen.back().nRepeats != 0; }
    const char* content(std::size_t nCharacters);

    const XMLCh* openName() const { return m_lstOpen.back().pszName; }

    // The element opened last closes.
    void close() { m_lstOpen.pop_back(); }

private:
    struct StOpen
    {
        const XMLCh*  pszName;
        std::uint64_t nChains;  // ways to pick one open element of each name: below 3^34 at depth 100
        std::uint64_t nRepeats; // readings beyond one
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

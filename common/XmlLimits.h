// The limits within which an XML file is read. Every lookup takes descendants at
// any depth, so elements nested in their own kind are read several times over;
// these limits are generous for people and keep the product harmless.
// docs/file-format.md states them for authors.
#ifndef OPERATIONXML_COMMON_XMLLIMITS_H
#define OPERATIONXML_COMMON_XMLLIMITS_H

#include <xercesc/dom/DOM.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace XmlLimits
{
constexpr std::size_t   MAX_FILE_BYTES       = std::size_t{256} << 20; // bytes of one file
constexpr std::uint32_t MAX_ENTITY_EXPANSION = 64;                     // expansions of internal entities in one file
constexpr std::size_t   MAX_DEPTH            = 100;                    // elements inside each other
constexpr std::size_t   MAX_SAME_NAME_DEPTH  = 16;                     // elements of one name inside each other
constexpr std::uint64_t MAX_REPEATED_READS   = 100000;                 // readings beyond one per element, whole file
} // namespace XmlLimits

// Walks the document in document order, calls fnVisit for every element, and
// checks its nesting on the way. Returns what passes a limit, or an empty text.
std::string walkWithinLimits(const xercesc::DOMDocument&                            oDocument,
                             const std::function<void(const xercesc::DOMElement&)>& fnVisit);

#endif

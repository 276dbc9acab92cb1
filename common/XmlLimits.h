// The limits within which an XML file is read, all of them: numbers only.
// XmlParser.cpp holds files against them, XmlNesting.cpp the nesting ones also
// documents that were parsed elsewhere. All are counts, so that the same file is
// read or refused on every machine; docs/file-format.md states them for authors.
#ifndef OPERATIONXML_COMMON_XMLLIMITS_H
#define OPERATIONXML_COMMON_XMLLIMITS_H

#include <cstddef>
#include <cstdint>

namespace XmlLimits
{
constexpr std::size_t   MAX_FILE_BYTES       = std::size_t{256} << 20; // bytes of one file
constexpr std::size_t   MAX_DOCTYPE_BYTES    = 65536;                  // bytes of the document type
constexpr std::size_t   MAX_ENTITY_TEXT      = 16384;                  // characters of all declared entities together
constexpr std::uint32_t MAX_ENTITY_EXPANSION = 64;                     // expansions of internal entities in one file

// The parser's tables are searched one by one where names collide, and the
// attributes of an element are kept sorted by moving them.
constexpr std::size_t MAX_NAMES      = 1000; // different names of elements and attributes in one file
constexpr std::size_t MAX_ATTRIBUTES = 1000; // attributes of one element

// Every lookup takes descendants at any depth, so elements nested in their own
// kind are read several times over.
constexpr std::size_t   MAX_DEPTH           = 100;        // elements inside each other
constexpr std::size_t   MAX_SAME_NAME_DEPTH = 16;         // elements of one name inside each other
constexpr std::uint64_t MAX_REPEATED_READS  = 100000;     // readings beyond one per element, whole file
constexpr std::uint64_t MAX_REPEATED_TEXT   = 16'000'000; // characters that these readings pass over
} // namespace XmlLimits

#endif

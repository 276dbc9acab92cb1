// The text of a file as it was read: UTF-8, by lines, for places that are known as
// an offset, and for showing the line of a place. One thread: it remembers the line
// that was asked for last, as places are asked for nearly in their order.
#ifndef OPERATIONXML_CATALOG_SOURCETEXT_H
#define OPERATIONXML_CATALOG_SOURCETEXT_H

#include "platform/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace catalog
{
// Some characters of one line; lines and columns from 1, columns in characters, a
// tab as one. Line 0: no place, or the whole file.
struct StSpot
{
    std::uint32_t ulLine   = 0;
    std::uint32_t ulColumn = 0;
    std::uint32_t ulLength = 0;
};

class OPERATIONXML_API CSourceText
{
public:
    explicit CSourceText(std::string strBytes);

    const std::string& bytes() const { return m_strBytes; }

    // The text of a line without its end; nothing when there is no such line.
    std::string_view line(std::uint32_t ulLine) const;

    // The same for people; nothing of a longer line than anybody reads, as a file of one
    // line may be asked for it as often as it has bytes.
    std::string shownLine(std::uint32_t ulLine) const;

    // The spot of some bytes; its length ends with the line.
    StSpot spot(std::size_t nOffset, std::size_t nBytes) const;

private:
    std::size_t lineOf(std::size_t nOffset) const; // from 0
    std::size_t charactersBefore(std::size_t nOffset) const;
    std::size_t charactersBetween(std::size_t nBegin, std::size_t nEnd) const;

    std::string              m_strBytes;
    std::vector<std::size_t> m_lstLine;   // first byte of each line
    std::vector<std::size_t> m_lstBlock;  // characters before each block: a file may be one long line
    mutable std::size_t      m_nLine = 0; // asked for last
};
} // namespace catalog

#endif

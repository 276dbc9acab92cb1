// See SourceText.h.
#include "catalog/SourceText.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace catalog
{
namespace
{
constexpr std::size_t BLOCK         = 256;
constexpr std::size_t LONGEST_SHOWN = 4096;

// Of a block or less. A short number counts several bytes at once.
std::size_t countCharacters(std::string_view strText)
{
    std::uint16_t nCharacters = 0;
    for (const char cByte : strText)
        nCharacters = static_cast<std::uint16_t>(nCharacters + ((cByte & 0xC0) != 0x80 ? 1 : 0));
    return nCharacters;
}
} // namespace

CSourceText::CSourceText(std::string strBytes) : m_strBytes(std::move(strBytes))
{
    const std::string_view strText = m_strBytes;
    m_lstLine.push_back(0);
    for (std::size_t nAt = strText.find('\n'); nAt != std::string_view::npos; nAt = strText.find('\n', nAt + 1))
        m_lstLine.push_back(nAt + 1);
    std::size_t nCharacters = 0;
    for (std::size_t nAt = 0; nAt <= strText.size(); nAt += BLOCK)
    {
        m_lstBlock.push_back(nCharacters);
        nCharacters += countCharacters(strText.substr(nAt, BLOCK));
    }
}

std::string_view CSourceText::line(std::uint32_t ulLine) const
{
    if (ulLine == 0 || ulLine > m_lstLine.size())
        return {};
    const std::size_t nBegin = m_lstLine[ulLine - 1];
    std::size_t       nEnd   = ulLine < m_lstLine.size() ? m_lstLine[ulLine] - 1 : m_strBytes.size();
    if (nEnd > nBegin && m_strBytes[nEnd - 1] == '\r')
        --nEnd;
    return std::string_view(m_strBytes).substr(nBegin, nEnd - nBegin);
}

std::string CSourceText::shownLine(std::uint32_t ulLine) const
{
    const std::string_view strLine = line(ulLine);
    return strLine.size() > LONGEST_SHOWN ? std::string() : std::string(strLine);
}

StSpot CSourceText::spot(std::size_t nOffset, std::size_t nBytes) const
{
    nOffset                    = std::min(nOffset, m_strBytes.size());
    const std::size_t nLine    = lineOf(nOffset);
    const bool        bLast    = nLine + 1 == m_lstLine.size();
    const std::size_t nLineEnd = bLast ? m_strBytes.size() : m_lstLine[nLine + 1] - 1;
    const std::size_t nEnd     = std::max(nOffset, std::min(nOffset + nBytes, nLineEnd));

    StSpot stSpot;
    stSpot.ulLine   = static_cast<std::uint32_t>(nLine + 1);
    stSpot.ulColumn = static_cast<std::uint32_t>(charactersBetween(m_lstLine[nLine], nOffset) + 1);
    stSpot.ulLength = static_cast<std::uint32_t>(charactersBetween(nOffset, nEnd));
    return stSpot;
}

std::size_t CSourceText::lineOf(std::size_t nOffset) const
{
    const auto fnIsIn = [&](std::size_t nLine)
    {
        return nLine < m_lstLine.size() && nOffset >= m_lstLine[nLine] &&
               (nLine + 1 == m_lstLine.size() || nOffset < m_lstLine[nLine + 1]);
    };
    if (!fnIsIn(m_nLine) && !fnIsIn(++m_nLine))
    {
        const auto itAfter = std::upper_bound(m_lstLine.begin(), m_lstLine.end(), nOffset);
        m_nLine            = static_cast<std::size_t>(itAfter - m_lstLine.begin()) - 1;
    }
    return m_nLine;
}

std::size_t CSourceText::charactersBetween(std::size_t nBegin, std::size_t nEnd) const
{
    const std::size_t nFirst  = nBegin / BLOCK;
    const std::size_t nBehind = nEnd / BLOCK + 1;
    if (nBehind < m_lstBlock.size() && m_lstBlock[nBehind] - m_lstBlock[nFirst] == (nBehind - nFirst) * BLOCK)
        return nEnd - nBegin; // nearly always every byte is one
    if (nEnd - nBegin > BLOCK)
        return charactersBefore(nEnd) - charactersBefore(nBegin);
    return countCharacters(std::string_view(m_strBytes).substr(nBegin, nEnd - nBegin));
}

std::size_t CSourceText::charactersBefore(std::size_t nOffset) const
{
    const std::size_t nBlock = nOffset / BLOCK;
    return m_lstBlock[nBlock] +
           countCharacters(std::string_view(m_strBytes).substr(nBlock * BLOCK, nOffset - nBlock * BLOCK));
}
} // namespace catalog

// See SourceText.h.
#include "catalog/SourceText.h"

#include <algorithm>
#include <utility>

namespace catalog
{
namespace
{
constexpr std::size_t BLOCK         = 1024;
constexpr std::size_t LONGEST_SHOWN = 4096;

std::size_t countCharacters(std::string_view strText)
{
    return static_cast<std::size_t>(
        std::count_if(strText.begin(), strText.end(), [](char cByte) { return (cByte & 0xC0) != 0x80; }));
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
    nOffset = std::min(nOffset, m_strBytes.size());
    goTo(nOffset);
    const bool        bLast    = m_stLast.nLine + 1 == m_lstLine.size();
    const std::size_t nLineEnd = bLast ? m_strBytes.size() : m_lstLine[m_stLast.nLine + 1] - 1;
    const std::size_t nEnd     = std::max(nOffset, std::min(nOffset + nBytes, nLineEnd));

    StSpot stSpot;
    stSpot.ulLine   = static_cast<std::uint32_t>(m_stLast.nLine + 1);
    stSpot.ulColumn = static_cast<std::uint32_t>(m_stLast.nColumn + 1);
    stSpot.ulLength = static_cast<std::uint32_t>(charactersBetween(nOffset, nEnd));
    return stSpot;
}

// From the place that was asked for last when that is before it in its line, else
// from where the line begins.
void CSourceText::goTo(std::size_t nOffset) const
{
    const std::size_t nNext = m_stLast.nLine + 1;
    if (nOffset < m_stLast.nOffset || (nNext < m_lstLine.size() && nOffset >= m_lstLine[nNext]))
    {
        const auto itAfter = std::upper_bound(m_lstLine.begin(), m_lstLine.end(), nOffset);
        m_stLast.nLine     = static_cast<std::size_t>(itAfter - m_lstLine.begin()) - 1;
        m_stLast.nOffset   = m_lstLine[m_stLast.nLine];
        m_stLast.nColumn   = 0;
    }
    m_stLast.nColumn += charactersBetween(m_stLast.nOffset, nOffset);
    m_stLast.nOffset = nOffset;
}

std::size_t CSourceText::charactersBetween(std::size_t nBegin, std::size_t nEnd) const
{
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

// See Table.h.
#include "tools/opxml/output/Table.h"

#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace
{
constexpr std::size_t GAP         = 2;  // blanks between two columns
constexpr std::size_t NARROW_CELL = 24; // columns are left out before a cell gets narrower than this

std::size_t total(const std::vector<std::size_t>& lstWidth)
{
    return std::accumulate(lstWidth.begin(), lstWidth.end(), GAP * (lstWidth.size() - 1));
}

// Takes from the widest columns what is too much, and breaks words only where blanks
// and the like are not enough.
void shrink(std::vector<std::size_t>& lstWidth, const std::vector<std::size_t>& lstPiece, std::size_t nColumns)
{
    while (total(lstWidth) > nColumns)
    {
        std::size_t nWidest    = 0;
        bool        bAnyBreaks = false;
        for (std::size_t nAt = 0; nAt < lstWidth.size(); ++nAt)
        {
            const bool bBreaks = lstWidth[nAt] > lstPiece[nAt];
            if ((bBreaks && !bAnyBreaks) || (bBreaks == bAnyBreaks && lstWidth[nAt] > lstWidth[nWidest]))
                nWidest = nAt;
            bAnyBreaks = bAnyBreaks || bBreaks;
        }
        if (lstWidth[nWidest] <= 1)
            return;
        --lstWidth[nWidest];
    }
}

void appendPadded(std::string& strLine, const std::string& strCell, std::size_t nWidth)
{
    strLine += strCell;
    strLine.append(nWidth - std::min(nWidth, textWidth(strCell)), ' ');
}
} // namespace

CTable::CTable(std::vector<StColumn> lstColumn) : m_lstColumn(std::move(lstColumn))
{
}

void CTable::addRow(std::vector<std::string> lstCell)
{
    std::transform(lstCell.begin(), lstCell.end(), lstCell.begin(), printable);
    m_lstRow.push_back({std::move(lstCell)});
}

void CTable::addWideRow(std::vector<std::string> lstCell, bool bInRed)
{
    addRow(std::move(lstCell));
    m_lstRow.back().bWide  = true;
    m_lstRow.back().bInRed = bInRed;
}

std::string CTable::text() const
{
    const std::size_t nColumns = widthOf(stdout);
    const StLayout    stLayout = fit(nColumns);
    StRow             stHeading;
    for (const StColumn& stColumn : m_lstColumn)
        stHeading.lstCell.push_back(stColumn.strHeading);
    std::string strText = inBold(rowText(stHeading, stLayout, nColumns)) + "\n";
    for (const StRow& stRow : m_lstRow)
    {
        const std::string strRow = rowText(stRow, stLayout, nColumns);
        strText += (stRow.bInRed ? inRed(strRow) : strRow) + "\n";
    }
    return strText + missingText(stLayout, nColumns);
}

CTable::StWidths CTable::widths() const
{
    StWidths stWidths;
    for (const StColumn& stColumn : m_lstColumn)
    {
        stWidths.lstNatural.push_back(textWidth(stColumn.strHeading));
        stWidths.lstPiece.push_back(longestPiece(stColumn.strHeading));
    }
    for (const StRow& stRow : m_lstRow)
    {
        const std::size_t nCounted = std::min(stRow.lstCell.size() - (stRow.bWide ? 1 : 0), m_lstColumn.size());
        for (std::size_t nAt = 0; nAt < nCounted; ++nAt)
        {
            std::size_t& nNatural = stWidths.lstNatural[nAt];
            std::size_t& nPiece   = stWidths.lstPiece[nAt];
            nNatural              = std::max(nNatural, textWidth(stRow.lstCell[nAt]));
            nPiece                = std::max(nPiece, longestPiece(stRow.lstCell[nAt]));
        }
    }
    return stWidths;
}

CTable::StLayout CTable::fit(std::size_t nColumns) const
{
    const StWidths stWidths = widths();
    StLayout       stLayout;
    stLayout.lstColumn.resize(m_lstColumn.size());
    std::iota(stLayout.lstColumn.begin(), stLayout.lstColumn.end(), std::size_t{0});
    if (nColumns != UNLIMITED)
    {
        std::stable_sort(stLayout.lstColumn.begin(), stLayout.lstColumn.end(),
                         [this](std::size_t nLeft, std::size_t nRight)
                         { return m_lstColumn[nLeft].nRank < m_lstColumn[nRight].nRank; });
        std::size_t nKept = 0;
        std::size_t nUsed = 0;
        for (; nKept < stLayout.lstColumn.size(); ++nKept)
        {
            const std::size_t nColumn = stLayout.lstColumn[nKept];
            nUsed += std::min(stWidths.lstNatural[nColumn], NARROW_CELL) + (nKept == 0 ? 0 : GAP);
            if (nUsed > nColumns && m_lstColumn[nColumn].nRank > 0)
                break;
        }
        stLayout.lstColumn.resize(nKept);
        std::sort(stLayout.lstColumn.begin(), stLayout.lstColumn.end());
    }
    std::vector<std::size_t> lstPiece;
    for (const std::size_t nColumn : stLayout.lstColumn)
    {
        stLayout.lstWidth.push_back(stWidths.lstNatural[nColumn]);
        lstPiece.push_back(stWidths.lstPiece[nColumn]);
    }
    if (nColumns != UNLIMITED)
        shrink(stLayout.lstWidth, lstPiece, nColumns);
    return stLayout;
}

std::string CTable::rowText(const StRow& stRow, const StLayout& stLayout, std::size_t nColumns) const
{
    // What each shown column holds in this row, line by line.
    std::vector<std::vector<std::string>> lstCell;
    std::size_t                           nLines = 1;
    std::size_t                           nStart = 0;
    for (std::size_t nAt = 0; nAt < stLayout.lstColumn.size() && stLayout.lstColumn[nAt] < stRow.lstCell.size(); ++nAt)
    {
        const std::size_t nColumn = stLayout.lstColumn[nAt];
        if (stRow.bWide && nColumn + 1 == stRow.lstCell.size())
            break;
        lstCell.push_back(wrapText(stRow.lstCell[nColumn], nColumns == UNLIMITED ? UNLIMITED : stLayout.lstWidth[nAt]));
        nLines = std::max(nLines, lstCell.back().size());
        nStart += stLayout.lstWidth[nAt] + GAP;
    }
    if (stRow.bWide)
    {
        const std::size_t nRoom =
            nColumns == UNLIMITED ? UNLIMITED : nColumns - std::min(nStart, nColumns - NARROW_CELL);
        lstCell.push_back(wrapText(stRow.lstCell.back(), nRoom));
        nLines = std::max(nLines, lstCell.back().size());
    }
    std::string strText;
    for (std::size_t nLine = 0; nLine < nLines; ++nLine)
    {
        std::string strLine;
        for (std::size_t nAt = 0; nAt < lstCell.size(); ++nAt)
        {
            const bool bLast = nAt + 1 == lstCell.size();
            appendPadded(strLine, nLine < lstCell[nAt].size() ? lstCell[nAt][nLine] : "",
                         bLast ? 0 : stLayout.lstWidth[nAt] + GAP);
        }
        strLine.erase(strLine.find_last_not_of(' ') + 1);
        strText += (nLine == 0 ? "" : "\n") + strLine;
    }
    return strText;
}

std::string CTable::missingText(const StLayout& stLayout, std::size_t nColumns) const
{
    std::string strNames;
    for (std::size_t nAt = 0; nAt < m_lstColumn.size(); ++nAt)
    {
        if (!std::binary_search(stLayout.lstColumn.begin(), stLayout.lstColumn.end(), nAt))
            strNames += (strNames.empty() ? "" : ", ") + m_lstColumn[nAt].strHeading;
    }
    if (strNames.empty())
        return "";
    return joinLines(wrapText("(not shown: " + strNames + "; --wide shows all)", nColumns));
}

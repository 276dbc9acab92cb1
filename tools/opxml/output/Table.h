// A table with aligned columns, in as many columns of the terminal as there are:
// cells are broken at words, and columns that matter less are left out, which the
// last line then says.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_TABLE_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_TABLE_H

#include <cstddef>
#include <string>
#include <vector>

struct StColumn
{
    std::string strHeading;
    int         nRank = 0; // 0: always shown; of the others the lowest stay longest
};

class CTable
{
public:
    explicit CTable(std::vector<StColumn> lstColumn);
    void addRow(std::vector<std::string> lstCell);

    // A row whose last cell runs over the columns that are left.
    void addWideRow(std::vector<std::string> lstCell, bool bInRed);

    // For stdout.
    std::string text() const;

private:
    struct StRow
    {
        std::vector<std::string> lstCell; // printable
        bool                     bWide  = false;
        bool                     bInRed = false;
    };
    struct StWidths
    {
        std::vector<std::size_t> lstNatural; // of the widest cell
        std::vector<std::size_t> lstPiece;   // of the longest text that is broken only when it must
    };
    // The columns that are shown, with their widths.
    struct StLayout
    {
        std::vector<std::size_t> lstColumn;
        std::vector<std::size_t> lstWidth;
    };

    StWidths    widths() const;
    StLayout    fit(std::size_t nColumns) const;
    std::string rowText(const StRow& stRow, const StLayout& stLayout, std::size_t nColumns) const;
    std::string missingText(const StLayout& stLayout, std::size_t nColumns) const;

    std::vector<StColumn> m_lstColumn;
    std::vector<StRow>    m_lstRow;
};

#endif

// The room output/: how things look and are named, for all commands. Records as
// JSON or as a tree, sections and device types in words, the progress bar, exit
// codes; and here tables, trees, colours, result codes by name, and the names
// nearest to a misspelt one.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_OUTPUT_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_OUTPUT_H

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

// Writes to stdout; what cannot be written is found when the tool ends.
void print(const std::string& strText);

// Colours for a stream: only when it is a terminal and NO_COLOR is not set.
bool        isTerminal(std::FILE* pStream);
std::string inRed(const std::string& strText);
std::string inBold(const std::string& strText);

// How many columns a UTF-8 text takes, one for each character.
std::size_t textWidth(const std::string& strText);

// A text made safe for a terminal: control characters as \xNN.
std::string printable(const std::string& strText);

// Rows of cells with aligned columns; the last cell of a row is never padded, so
// a row may end early with a long text.
class CTable
{
public:
    explicit CTable(std::vector<std::string> lstHeading);
    void addRow(std::vector<std::string> lstCell);

    // A row whose last cell runs over the columns that are left.
    void addWideRow(std::vector<std::string> lstCell, bool bInRed);

    std::string text() const;

private:
    struct StRow
    {
        std::vector<std::string> lstCell;
        bool                     bWide  = false;
        bool                     bInRed = false;
    };
    std::vector<StRow> m_lstRow; // the first is the heading
};

// A tree of lines, printed with branches.
struct StTree
{
    std::string         strText;
    std::vector<StTree> lstChild;

    StTree& add(std::string strChild);
};
std::string treeText(const StTree& stTree);

// "989857004 (0x3B0004EC, DC_RESULT_INVALID_PARA)".
std::string resultText(std::uint32_t ulResult);
std::string resultName(std::uint32_t ulResult);

// "; did you mean A, B or C?" for the names nearest to a misspelt one; empty
// when none is near.
std::string nearestNames(const std::string& strMisspelt, const std::vector<std::string>& lstName);

#endif

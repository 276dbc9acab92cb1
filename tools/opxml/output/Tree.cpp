// See Tree.h.
#include "tools/opxml/output/Tree.h"

#include "tools/opxml/output/Terminal.h"
#include "tools/opxml/output/Text.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace
{
constexpr std::size_t BRANCH      = 3;  // columns of one level
constexpr std::size_t NARROW_TEXT = 24; // a deep line is not broken into less

void appendTree(std::string& strOut, const StTree& stTree, const std::string& strIndent, std::size_t nColumns)
{
    for (const StTree& stChild : stTree.lstChild)
    {
        const bool        bLast    = &stChild == &stTree.lstChild.back();
        const std::string strBelow = strIndent + (bLast ? "   " : "│  ");
        std::size_t       nRoom    = UNLIMITED;
        if (nColumns != UNLIMITED)
            nRoom = nColumns - std::min(textWidth(strBelow), nColumns - NARROW_TEXT);
        const std::vector<std::string> lstLine = wrapText(printable(stChild.strText), nRoom, BRANCH);
        strOut += strIndent + (bLast ? "└─ " : "├─ ") + lstLine.front() + "\n";
        for (std::size_t nAt = 1; nAt < lstLine.size(); ++nAt)
            strOut += strBelow + (stChild.lstChild.empty() ? lstLine[nAt] : "│" + lstLine[nAt].substr(1)) + "\n";
        appendTree(strOut, stChild, strBelow, nColumns);
    }
}
} // namespace

StTree& StTree::add(std::string strChild)
{
    lstChild.push_back({std::move(strChild), {}});
    return lstChild.back();
}

std::string treeText(const StTree& stTree)
{
    const std::size_t nColumns = widthOf(stdout);
    std::string       strOut;
    for (const std::string& strLine : wrapText(printable(stTree.strText), nColumns))
        strOut += inBold(strLine) + "\n";
    appendTree(strOut, stTree, "", nColumns);
    return strOut;
}

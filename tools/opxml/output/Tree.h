// A tree of lines, printed with branches; a line that is too long goes on beside
// its own branches.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_TREE_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_TREE_H

#include <string>
#include <vector>

struct StTree
{
    std::string         strText;
    std::vector<StTree> lstChild;

    StTree& add(std::string strChild);
};

// For stdout.
std::string treeText(const StTree& stTree);

#endif

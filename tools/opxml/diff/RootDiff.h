// Two server roots, or two configuration files, compared. Called by opxml diff and by the
// page. One at a time in a process: the platform has one root.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_ROOTDIFF_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_ROOTDIFF_H

#include "tools/opxml/diff/Diff.h"

#include <string>
#include <vector>

// Compares every type that either root registers, or those of these names (as
// typesNamed() takes them). Reads a type at a time, and only those of which a file
// differs. The new root is open afterwards. Throws CTrouble for a root that cannot be
// opened and for a name that neither has.
StDiff diffRoots(const std::string& strOldRoot, const std::string& strNewRoot,
                 const std::vector<std::string>& lstWanted = {});

// Compares two configuration files by themselves: what modules and capacity make of them
// is left out. Throws CTrouble for a file that holds something else.
StDiff diffFiles(const std::string& strOldFile, const std::string& strNewFile);

#endif

// What stands in an alarm table or a file-check file although its reader asks for
// nothing of that name there: for the --check of their commands. The files are read
// once more, for their lines; what cannot be parsed is the reader's to tell.
#ifndef OPERATIONXML_TOOLS_OPXML_COMMANDS_UNREADELEMENTS_H
#define OPERATIONXML_TOOLS_OPXML_COMMANDS_UNREADELEMENTS_H

#include "common/ReadProblem.h"

#include <string>
#include <vector>

std::vector<StReadProblem> findUnreadInTable(const std::string& strFile);
std::vector<StReadProblem> findUnreadInRules(const std::string& strFile);

#endif

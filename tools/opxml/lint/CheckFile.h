// The short form of opxml lint: one file of a known kind, for the commands that show
// such a file.
#ifndef OPERATIONXML_TOOLS_OPXML_LINT_CHECKFILE_H
#define OPERATIONXML_TOOLS_OPXML_LINT_CHECKFILE_H

#include "lint/Lint.h"

#include <string>
#include <vector>

// The findings about a file, under the name that people know it by.
std::vector<lint::StFinding> findMistakes(const std::string& strPath, const std::string& strShown,
                                          lint::EnFileKind enKind);

// Prints them as opxml lint does, or that there are none; EXIT_NO when there are any.
int printMistakes(const std::string& strPath, const std::string& strShown, lint::EnFileKind enKind, bool bJson);

#endif

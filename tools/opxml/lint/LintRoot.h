// Checks a whole server root: what the lint library finds through the platform, and
// what only the tool knows of: the inventory and the file-check rules beside it.
#ifndef OPERATIONXML_TOOLS_OPXML_LINT_LINTROOT_H
#define OPERATIONXML_TOOLS_OPXML_LINT_LINTROOT_H

#include "lint/Lint.h"

#include <cstddef>
#include <string>

// The root is open. Answers the number of files checked; stAlong hears of them, fnFile left out.
std::size_t lintRoot(const std::string& strRoot, const lint::FindingSink& fnFinding, lint::StReadAlong stAlong = {});

#endif

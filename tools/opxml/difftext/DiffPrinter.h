// The answer of a comparison as a whole, and the table of rules, in each format. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFFTEXT_DIFFPRINTER_H
#define OPERATIONXML_TOOLS_OPXML_DIFFTEXT_DIFFPRINTER_H

#include "tools/opxml/diff/Diff.h"

#include <string>

// For stdout: lines of its width. Nothing for no changes.
std::string diffText(const StDiff& stDiff);

// For a review; nothing for no changes.
std::string diffMarkdown(const StDiff& stDiff);

std::string diffJson(const StDiff& stDiff);

// "3 device types compared: 2 breaking, 1 cosmetic; 4 devices lose something".
std::string diffSummary(const StDiff& stDiff);

// The table of rules.
std::string diffRulesText();
std::string diffRulesMarkdown();
std::string diffRulesJson();

#endif

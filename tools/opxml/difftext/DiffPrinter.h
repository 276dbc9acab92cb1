// The answer of a comparison as a whole, and the table of rules, in each format. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFFTEXT_DIFFPRINTER_H
#define OPERATIONXML_TOOLS_OPXML_DIFFTEXT_DIFFPRINTER_H

#include "tools/opxml/diff/Diff.h"

#include <functional>
#include <string>

// Takes the text piece by piece: there may be very many changes.
using TextSink = std::function<void(const std::string&)>;

// For stdout: lines of its width. Nothing for no changes.
void printDiffText(const StDiff& stDiff, const TextSink& fnPrint);

// For a review; nothing for no changes.
void printDiffMarkdown(const StDiff& stDiff, const TextSink& fnPrint);

void printDiffJson(const StDiff& stDiff, const TextSink& fnPrint);

// "3 device types compared: 2 breaking, 1 cosmetic; 4 devices lose something".
std::string diffSummary(const StDiff& stDiff);

// The table of rules.
std::string diffRulesText();
std::string diffRulesMarkdown();
std::string diffRulesJson();

#endif

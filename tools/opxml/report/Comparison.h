// What changed since another root, for the page: the list of changes, and what of it
// shows in the matrix. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_COMPARISON_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_COMPARISON_H

#include "tools/opxml/diff/Diff.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/report/ReportData.h"

#include <string>

// Changes beyond these are counted and not listed; the worst come first.
constexpr std::size_t MOST_CHANGES = 5000;

// Gives the matrix rows and columns for what only the other root had.
void addGone(const StDiff& stDiff, StReport& stReport);

// page/comparison.js reads it.
Json comparisonJson(const StDiff& stDiff, const std::string& strOldRoot);

#endif

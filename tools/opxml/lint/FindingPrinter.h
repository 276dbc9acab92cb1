// How findings are printed: for people, and for programs in three formats. Each
// finding goes out as soon as it comes, so a large server needs no more memory than
// a small one. Called by opxml lint.
#ifndef OPERATIONXML_TOOLS_OPXML_LINT_FINDINGPRINTER_H
#define OPERATIONXML_TOOLS_OPXML_LINT_FINDINGPRINTER_H

#include "lint/Lint.h"

#include <memory>
#include <string>

// A finding as it is printed: under the path that the user knows it by.
struct StPrintedFinding
{
    const lint::StFinding& stFinding;
    std::string            strFingerprint; // stays when lines move
};

class CFindingPrinter
{
public:
    virtual ~CFindingPrinter() = default;
    virtual void begin() {}
    virtual void print(const StPrintedFinding& stPrinted) = 0;
    virtual void end() {}
};

// Compiler style, with the line and a caret; colours on a terminal.
std::unique_ptr<CFindingPrinter> makeTextPrinter();

// One JSON object with the list of findings.
std::unique_ptr<CFindingPrinter> makeJsonPrinter();

// SARIF 2.1.0, with the rules that exist and a stable fingerprint for each result.
std::unique_ptr<CFindingPrinter> makeSarifPrinter(const std::string& strToolVersion);

// Annotations of a GitHub workflow.
std::unique_ptr<CFindingPrinter> makeGithubPrinter();

// "error", "warning", "note".
const char* severityName(lint::EnSeverity enSeverity);

#endif

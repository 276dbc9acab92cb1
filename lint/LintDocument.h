// The rules of one document, applied to a parser that holds it: the step that a
// single file and a whole server share. One thread.
#ifndef OPERATIONXML_LINT_LINTDOCUMENT_H
#define OPERATIONXML_LINT_LINTDOCUMENT_H

#include "catalog/PlacedParser.h"
#include "lint/DocumentRules.h"
#include "lint/FileReport.h"
#include "lint/ReadMarks.h"

namespace lint
{
// Has the document read by the readers of its kind. A parser without one gives the one
// finding that says why.
void lintDocument(catalog::CPlacedParser& oParser, EnFileKind enKind, CFileReport& oReport, StLostNames& stLost);

// The same when those readers have read all of the document already: with what was heard.
void lintHeard(catalog::CPlacedParser& oParser, const CReadMarks& oMarks, EnFileKind enKind, CFileReport& oReport,
               StLostNames& stLost);
} // namespace lint

#endif

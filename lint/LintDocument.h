// The rules of one document, applied to a parser that holds it: the step that a
// single file and a whole server share.
#ifndef OPERATIONXML_LINT_LINTDOCUMENT_H
#define OPERATIONXML_LINT_LINTDOCUMENT_H

#include "catalog/PlacedParser.h"
#include "lint/DocumentRules.h"
#include "lint/FileReport.h"

namespace lint
{
// A parser without a document gives the one finding that says why.
void lintDocument(catalog::CPlacedParser& oParser, EnFileKind enKind, CFileReport& oReport, StLostNames& stLost);
} // namespace lint

#endif

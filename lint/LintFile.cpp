// One file by itself: parsed with its places, read by the readers of its kind while
// they are listened to, and held against the rules of one document.
#include "catalog/PlacedParser.h"
#include "common/ReadProblem.h"
#include "lint/DocumentRules.h"
#include "lint/FileKind.h"
#include "lint/LintDocument.h"

namespace lint
{
namespace
{
const char* ruleOf(EnReadProblem enKind)
{
    switch (enKind)
    {
    case EnReadProblem::Encoding:
        return "bad-encoding";
    case EnReadProblem::Limit:
        return "limit-passed";
    case EnReadProblem::File:
        return "file-missing";
    case EnReadProblem::Content:
        break;
    }
    return "not-well-formed";
}

// Whose records have rules of their own.
bool isTable(EnFileKind enKind)
{
    return enKind == EnFileKind::AlarmExplanation || enKind == EnFileKind::AlarmRegistration ||
           enKind == EnFileKind::FileCheck;
}
} // namespace

bool lintFile(const std::string& strPath, EnFileKind enKind, const FindingSink& fnFinding)
{
    const std::unique_ptr<catalog::CPlacedParser> pParser = catalog::CPlacedParser::create();
    if (pParser == nullptr)
        return false;
    pParser->parsePlaced(strPath);
    if (enKind == EnFileKind::Unknown && !pParser->problem().isSet())
    {
        enKind = kindOfFile(strPath, *pParser);
        if (enKind == EnFileKind::Unknown)
            return false;
    }
    CFileReport oReport(strPath, pParser->places().text());
    StLostNames stLost;
    lintDocument(*pParser, enKind, oReport, stLost);
    oReport.flush(fnFinding);
    return true;
}

void lintDocument(catalog::CPlacedParser& oParser, EnFileKind enKind, CFileReport& oReport, StLostNames& stLost)
{
    if (oParser.problem().isSet())
    {
        const StReadProblem& stProblem = oParser.problem();
        oReport.add(ruleOf(stProblem.enKind), {stProblem.ulLine, stProblem.ulColumn, 1}, stProblem.strText, "document");
        return;
    }
    CReadMarks oMarks;
    {
        const ReadObserver::CScope oScope(oMarks);
        readAs(enKind, oParser);
    }
    lintHeard(oParser, oMarks, enKind, oReport, stLost);
}

void lintHeard(catalog::CPlacedParser& oParser, const CReadMarks& oMarks, EnFileKind enKind, CFileReport& oReport,
               StLostNames& stLost)
{
    const CReadTree      oTree(*oParser.getDocument(), oParser.places(), oMarks);
    const StReadDocument stRead = {enKind, oTree, oParser.places()};
    takeAllowances(oParser.places(), oReport);
    checkNames(stRead, oReport, stLost);
    checkValues(stRead, oReport, stLost);
    checkEntries(stRead, oReport, stLost);
    if (isTable(enKind))
        return checkTable(stRead, oReport);
    checkDefinitions(stRead, oReport, stLost);
}
} // namespace lint

// See CheckFile.h.
#include "tools/opxml/lint/CheckFile.h"

#include "tools/opxml/lint/Baseline.h"
#include "tools/opxml/lint/FindingPrinter.h"
#include "tools/opxml/output/Exit.h"
#include "tools/opxml/output/Terminal.h"

std::vector<lint::StFinding> findMistakes(const std::string& strPath, const std::string& strShown,
                                          lint::EnFileKind enKind)
{
    std::vector<lint::StFinding> lstFinding;
    lint::lintFile(strPath, enKind,
                   [&](const lint::StFinding& stFinding)
                   {
                       lstFinding.push_back(stFinding);
                       lstFinding.back().strFile = strShown;
                   });
    return lstFinding;
}

int printMistakes(const std::string& strPath, const std::string& strShown, lint::EnFileKind enKind, bool bJson)
{
    const std::vector<lint::StFinding> lstFinding = findMistakes(strPath, strShown, enKind);
    if (lstFinding.empty() && !bJson)
    {
        printLine(strShown + ": no mistakes");
        return EXIT_YES;
    }
    const std::unique_ptr<CFindingPrinter> pPrinter = bJson ? makeJsonPrinter() : makeTextPrinter();
    CFingerprints                          oFingerprints;
    pPrinter->begin();
    for (const lint::StFinding& stFinding : lstFinding)
        pPrinter->print({stFinding, oFingerprints.next(stFinding, strShown)});
    pPrinter->end();
    return lstFinding.empty() ? EXIT_YES : EXIT_NO;
}

// Counts what lint finds, by rule and by file, and keeps the first findings.
#ifndef OPERATIONXML_TOOLS_OPXML_REPORT_FINDINGS_H
#define OPERATIONXML_TOOLS_OPXML_REPORT_FINDINGS_H

#include "lint/Lint.h"
#include "tools/opxml/report/ReportData.h"

#include <cstddef>
#include <map>
#include <string>

class CFindings
{
public:
    explicit CFindings(StReport& stReport) : m_stReport(stReport) {}

    void take(const lint::StFinding& stFinding);

private:
    std::size_t ruleNumber(const lint::StFinding& stFinding);
    std::size_t fileNumber(const lint::StFinding& stFinding);

    StReport&                          m_stReport;
    std::map<std::string, std::size_t> m_mapRule;
    std::map<std::string, std::size_t> m_mapFile;
};

#endif

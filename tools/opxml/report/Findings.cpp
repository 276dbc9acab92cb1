// See Findings.h.
#include "tools/opxml/report/Findings.h"

#include "tools/opxml/lint/FindingPrinter.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/report/ReadReport.h"

void CFindings::take(const lint::StFinding& stFinding)
{
    const std::size_t nRule = ruleNumber(stFinding);
    const std::size_t nFile = fileNumber(stFinding);
    ++m_stReport.lstRule[nRule].nFindings;
    ++m_stReport.lstFindingFile[nFile].arCount[static_cast<std::size_t>(stFinding.enSeverity)];
    if (m_stReport.lstFinding.size() < MOST_FINDINGS)
        m_stReport.lstFinding.push_back({nRule, nFile, stFinding.ulLine, stFinding.ulColumn, stFinding.strMessage});
}

std::size_t CFindings::ruleNumber(const lint::StFinding& stFinding)
{
    const auto [itRule, bFirst] = m_mapRule.try_emplace(stFinding.strRule, m_stReport.lstRule.size());
    if (bFirst)
    {
        const lint::StRule* pRule = lint::findRule(stFinding.strRule);
        m_stReport.lstRule.push_back(
            {stFinding.strRule, pRule == nullptr ? "" : pRule->pszTitle, severityName(stFinding.enSeverity), 0});
    }
    return itRule->second;
}

std::size_t CFindings::fileNumber(const lint::StFinding& stFinding)
{
    const auto [itFile, bFirst] = m_mapFile.try_emplace(stFinding.strFile, m_stReport.lstFindingFile.size());
    if (bFirst)
        m_stReport.lstFindingFile.push_back({shortPath(stFinding.strFile), {}});
    return itFile->second;
}

// See TypeReader.h.
#include "tools/opxml/report/TypeReader.h"

#include "reader/LoadThreads.h"
#include "tools/opxml/output/DevTypes.h"

#include <algorithm>
#include <iterator>

namespace
{
StDevTypeLoad loadOf(const catalog::StTypeCatalog& stType)
{
    return {stType.strDevType, stType.strDevTypeVer, stType.strKey, stType.stOrigin, stType.ulResult};
}

std::vector<StReportVersion> versionsOf(const StDevTypeLoad& stLoad)
{
    std::vector<StReportVersion> lstVersion;
    for (const StVersionLoad& stVersion : stLoad.stOrigin.lstVersion)
        lstVersion.push_back({versionText(stVersion.strSoftVersion, stVersion.strPatchVersion),
                              outcomeText(stVersion.enOutcome), shortPath(stVersion.strFile),
                              stVersion.isFailed() ? versionFailureText(stVersion) : ""});
    return lstVersion;
}

// What all rows of a type have in common.
StReportRow typeRow(const StDevTypeLoad& stLoad)
{
    StReportRow stRow;
    stRow.strDevType    = stLoad.strDevType;
    stRow.strDevTypeVer = stLoad.strDevTypeVer;
    stRow.strKey        = stLoad.strKey;
    stRow.strSource     = sourceText(stLoad.stOrigin.enSource);
    stRow.strFile       = shortPath(stLoad.stOrigin.strFile);
    return stRow;
}

// Another one is busy with parsing all the while: where there are two, a third would be
// in their way.
std::size_t packingThreads()
{
    return std::max<std::size_t>(loadThreads::count(), 2) - 1;
}
} // namespace

CTypeReader::CTypeReader(StReport& stReport, DetailSink fnDetail)
    : m_stReport(stReport), m_fnDetail(std::move(fnDetail)), m_oPacker(packingThreads())
{
    for (const StRegisteredType& stType : registeredTypes())
    {
        const std::size_t nEntry = m_lstEntry.size();
        m_lstEntry.emplace_back();
        m_mapEntry[{stType.strDevType, stType.strDevTypeVer}] = nEntry;
        m_mapKey[stType.strKey].push_back(nEntry);
    }
}

void CTypeReader::takeModules(const std::vector<catalog::StModuleCatalog>& lstModule)
{
    std::map<std::string, const catalog::StModuleCatalog*> mapModule; // they are merged by their names
    for (const catalog::StModuleCatalog& stModule : lstModule)
    {
        if (stModule.ulResult == 0)
            mapModule[stModule.strName] = &stModule;
    }
    for (const auto& [strName, pModule] : mapModule)
    {
        for (const catalog::StSupportedType& stSupported : pModule->lstSupported)
            m_mapModules[stSupported.strDevType].push_back(strName);
    }
}

void CTypeReader::take(const catalog::StTypeCatalog& stType)
{
    const auto itEntry = m_mapEntry.find({stType.strDevType, stType.strDevTypeVer});
    if (itEntry == m_mapEntry.end())
        return;
    StEntryRows&        stRows = m_lstEntry[itEntry->second];
    const StDevTypeLoad stLoad = loadOf(stType);
    stRows.bTaken              = true;
    if (stLoad.isConfigured() && !stType.lstConfiguration.empty())
    {
        stRows.lstRow    = configuredRows(stType);
        stRows.lstDetail = details(stType);
    }
    else
    {
        stRows.lstRow                    = {typeRow(stLoad)};
        stRows.lstRow.front().strProblem = failureText(stLoad);
    }
    stRows.lstRow.front().lstVersion     = versionsOf(stLoad);
    std::vector<std::size_t>& lstSharing = m_mapKey[stType.strKey];
    if (lstSharing.size() == 1)
        handOn(stRows);
    else if (std::all_of(lstSharing.begin(), lstSharing.end(),
                         [this](std::size_t nEntry) { return m_lstEntry[nEntry].bTaken; }))
        replaceEarlier(lstSharing);
}

std::vector<StReportRow> CTypeReader::configuredRows(const catalog::StTypeCatalog& stType)
{
    std::vector<StReportRow> lstRow;
    for (const catalog::StConfiguration& stConfiguration : stType.lstConfiguration)
    {
        StReportRow& stRow = lstRow.emplace_back(typeRow(loadOf(stType)));
        stRow.bFirst       = lstRow.size() == 1;
        stRow.lstCell      = makeCells(stConfiguration, m_stReport.oColumns);
        for (const catalog::StVersion& stVersion : stConfiguration.lstVersion)
            stRow.lstServed.push_back(versionText(stVersion.strSoftVersion, stVersion.strPatchVersion));
        if (stRow.bFirst)
            stRow.lstModule = m_mapModules[stType.strDevType];
    }
    return lstRow;
}

std::vector<PackedDetail> CTypeReader::details(const catalog::StTypeCatalog& stType)
{
    std::vector<PackedDetail> lstDetail;
    for (std::size_t nAt = 0; m_fnDetail && nAt < stType.lstConfiguration.size(); ++nAt)
        lstDetail.push_back(m_oPacker.pack(m_oDetails.make(stType, nAt)));
    return lstDetail;
}

void CTypeReader::handOn(StEntryRows& stRows)
{
    for (std::size_t nAt = 0; nAt < stRows.lstDetail.size(); ++nAt)
    {
        stRows.lstRow[nAt].nDetail = m_nDetails++;
        m_lstHandedOn.push_back(std::move(stRows.lstDetail[nAt]));
    }
    stRows.lstDetail.clear();
    writeAllBut(m_oPacker.most());
}

// In their order, whichever was packed first: the last ones may still be in work.
void CTypeReader::writeAllBut(std::size_t nLast)
{
    for (; m_lstHandedOn.size() > nLast; m_lstHandedOn.pop_front())
        m_fnDetail(m_nDetails - m_lstHandedOn.size(), m_lstHandedOn.front().get());
}

// Of the entries that share a key the last one that was read answers for all.
void CTypeReader::replaceEarlier(std::vector<std::size_t>& lstEntry)
{
    const auto itLast =
        std::find_if(lstEntry.rbegin(), lstEntry.rend(),
                     [this](std::size_t nEntry) { return m_lstEntry[nEntry].lstRow.front().strProblem.empty(); });
    if (itLast == lstEntry.rend())
        return;
    StEntryRows& stLast = m_lstEntry[*itLast];
    handOn(stLast);
    for (const std::size_t nEntry : lstEntry)
    {
        StEntryRows& stRows = m_lstEntry[nEntry];
        if (nEntry == *itLast)
            continue;
        StReportRow stRow   = stRows.lstRow.front();
        stRow.strReplacedBy = stLast.lstRow.front().strDevTypeVer;
        stRow.lstCell       = stLast.lstRow.front().lstCell;
        stRow.nDetail       = stLast.lstRow.front().nDetail;
        stRow.lstModule     = stLast.lstRow.front().lstModule;
        stRows.lstRow       = {std::move(stRow)};
        stRows.lstDetail.clear();
    }
}

void CTypeReader::finish()
{
    writeAllBut(0);
    m_stReport.lstRecord = m_oDetails.records();
    for (StEntryRows& stRows : m_lstEntry)
        std::move(stRows.lstRow.begin(), stRows.lstRow.end(), std::back_inserter(m_stReport.lstRow));
}

// See ReadReport.h.
#include "tools/opxml/report/ReadReport.h"

#include "alarm/InitAlarmInfo.h"
#include "alarm/InitTblRegInfo.h"
#include "catalog/CatalogMaker.h"
#include "tools/opxml/catalog/ServerCatalogs.h"
#include "tools/opxml/commands/AlarmTables.h"
#include "tools/opxml/commands/Devices.h"
#include "tools/opxml/lint/LintRoot.h"
#include "tools/opxml/output/DevTypes.h"
#include "tools/opxml/output/Progress.h"
#include "tools/opxml/output/Sections.h"
#include "tools/opxml/report/Findings.h"

#include <fmt/format.h>

#include <set>

namespace
{
// "Device operations 1, Check operations 2"
std::string addsText(const catalog::StModuleCatalog& stModule)
{
    std::string strText;
    for (const catalog::StSection& stSection : stModule.lstSection)
    {
        if (!stSection.lstEntry.empty())
            strText += fmt::format("{}{} {}", strText.empty() ? "" : ", ", SECTION_TITLES.at(stSection.nRow).pszTitle,
                                   stSection.lstEntry.size());
    }
    return strText;
}

void readModules(const catalog::CCatalogMaker& oMaker, CTypeReader& oTypes, StReport& stReport)
{
    oTypes.takeModules(oMaker.modules());
    for (const StReadProblem& stProblem : oMaker.moduleProblems())
        stReport.lstModuleProblem.push_back(shortPath(stProblem.strFile) + ": " + problemText(stProblem));
    for (const catalog::StModuleCatalog& stModule : oMaker.modules())
    {
        StReportModule& stShown = stReport.lstModule.emplace_back();
        stShown.strName         = stModule.strName;
        stShown.strFile         = shortPath(stModule.strFile);
        stShown.strAdds         = addsText(stModule);
        if (stModule.ulResult != 0)
            stShown.strProblem = problemText(stModule.stProblem);
        for (const catalog::StSupportedType& stSupported : stModule.lstSupported)
            stShown.lstSupported.push_back(stSupported.strDevType);
    }
}

void readDevices(StReport& stReport)
{
    std::set<std::string> setKey;
    for (const StReportRow& stRow : stReport.lstRow)
        setKey.insert(stRow.strKey);
    for (const StServedDevice& stServed : gatherDevices())
    {
        StReportDevice& stDevice = stReport.lstDevice.emplace_back();
        stDevice.ulId            = stServed.stInfo.ulDeviceID;
        stDevice.strName         = stServed.stInfo.strDeviceName;
        stDevice.strAddress      = stServed.stInfo.strIPAddress;
        stDevice.strDevType      = stServed.strDevType;
        stDevice.strDevTypeVer   = stServed.strDevTypeVer;
        stDevice.strVersion      = versionText(stServed.stVersion.strSoftVersion, stServed.stVersion.strPatchVersion);
        stDevice.bTelnet         = stServed.bTelnet;
        stDevice.strProblem      = stServed.strProblem;
        if (!stDevice.strProblem.empty())
            continue;
        stDevice.strKey = servingKey(stServed);
        if (setKey.count(stDevice.strKey) == 0)
            stDevice.strProblem = fmt::format("no configuration \"{}\" is registered", stDevice.strKey);
    }
}

template <typename Table>
StReportAlarmTable alarmTable(const std::string& strLanguage, const Table& oTable, const std::string& strHolds)
{
    StReportAlarmTable stTable = {strLanguage, shortPath(oTable.path()), "", strHolds};
    if (!oTable.isRead())
        stTable.strProblem = oTable.problem().isSet() ? problemText(oTable.problem()) : "cannot be read";
    return stTable;
}

std::string countText(std::size_t nCount, const char* pszWhat)
{
    return fmt::format("{} {}{}", nCount, pszWhat, nCount == 1 ? "" : "s");
}

void readAlarmTables(StReport& stReport)
{
    for (const std::string& strLanguage : alarmLanguages())
    {
        chooseAlarmLanguage(strLanguage);
        const InitAlarmInfo& oAlarms = *InitAlarmInfo::Instance();
        stReport.lstAlarmTable.push_back(alarmTable(strLanguage, oAlarms, countText(oAlarms.alarms().size(), "alarm")));
        const InitTblRegInfo& oTransfer = *InitTblRegInfo::Instance();
        std::size_t           nIds      = oTransfer.allTypes().size();
        for (const auto& [ulDevType, mapFaultId] : oTransfer.byDevType())
            nIds += mapFaultId.size();
        stReport.lstAlarmTable.push_back(alarmTable(strLanguage, oTransfer, countText(nIds, "registration")));
        InitAlarmInfo::Destroy();
        InitTblRegInfo::Destroy();
    }
}

// Lint makes the catalogs anyway: whoever listens to it need not read a second time.
void readWithLint(const std::string& strRoot, CTypeReader& oTypes, StReport& stReport)
{
    const CProgress   oProgress;
    CFindings         oFindings(stReport);
    lint::StReadAlong stAlong;
    stAlong.fnModules = [&](const catalog::CCatalogMaker& oMaker) { readModules(oMaker, oTypes, stReport); };
    stAlong.fnType    = [&oTypes](const catalog::StTypeCatalog& stType) { oTypes.take(stType); };
    lintRoot(
        strRoot, [&oFindings](const lint::StFinding& stFinding) { oFindings.take(stFinding); }, stAlong);
}

void readWithoutLint(CTypeReader& oTypes, StReport& stReport)
{
    catalog::CCatalogMaker oMaker;
    readModules(oMaker, oTypes, stReport);
    readCatalogs(oMaker, registeredTypes(), [&oTypes](const catalog::StTypeCatalog& stType) { oTypes.take(stType); });
}
} // namespace

void readReport(const std::string& strRoot, bool bLint, const DetailSink& fnDetail, StReport& stReport)
{
    CTypeReader oTypes(stReport, fnDetail);
    stReport.bLint = bLint;
    if (bLint)
        readWithLint(strRoot, oTypes, stReport);
    else
        readWithoutLint(oTypes, stReport);
    oTypes.finish();
    readDevices(stReport);
    readAlarmTables(stReport);
}

// A whole server: its files in their order, each with the types that are made of it.
// A type is looked at together with the first of its files, so a finding may concern a
// file that comes later, never one that is done. Where the reader of a type reads all of a
// document, the rules of documents hear that along, and it is read once.
#include "catalog/CatalogMaker.h"
#include "lint/LintDocument.h"
#include "lint/SenseRules.h"
#include "lint/ServerFiles.h"

#include <memory>
#include <numeric>
#include <optional>

namespace lint
{
namespace
{
class CServerCheck
{
public:
    CServerCheck(const std::string& strInventory, const FindingSink& fnFinding, const StReadAlong& stAlong)
        : m_strInventory(strInventory), m_fnFinding(fnFinding), m_stAlong(stAlong), m_stFiles(findServerFiles()),
          m_lstIsDone(m_stFiles.lstType.size()),
          m_oMaker([this](const std::string& strFile, catalog::EnOrigin enOrigin, catalog::CPlacedParser& oParser)
                   { takeDocument(strFile, enOrigin, oParser); })
    {
        // Any type may have something to say about a module.
        std::vector<std::size_t> lstAll(m_stFiles.lstType.size());
        std::iota(lstAll.begin(), lstAll.end(), std::size_t{0});
        for (const catalog::StModuleCatalog& stModule : m_oMaker.modules())
            m_stFiles.mapFile[stModule.strFile] = {EnFileKind::Module, lstAll};
        for (const StServerType& stType : m_stFiles.lstType)
            m_setSysOid.insert(stType.strDevSysOid);
        if (m_stAlong.fnModules)
            m_stAlong.fnModules(m_oMaker);
    }

    void run()
    {
        m_oMaker.expect(typesInOrder());
        reportMissing();
        for (const std::string& strFile : m_stFiles.lstUnused)
            reportOf(strFile).add("file-unused", {}, "no device type uses the file", "file");
        checkModuleFiles();
        for (const auto& [strFile, stFile] : m_stFiles.mapFile)
        {
            if (m_stAlong.fnFile)
                m_stAlong.fnFile(strFile);
            for (const std::size_t nType : stFile.lstType)
                checkType(nType);
            checkAlone(strFile, stFile.enKind);
            m_oTypeFindings.tell(strFile, reportOf(strFile));
            flushUpTo(strFile);
        }
        tellFileless();
        for (auto& [strFile, pReport] : m_mapReport)
            pReport->flush(m_fnFinding);
    }

private:
    CFileReport& reportOf(const std::string& strFile)
    {
        std::unique_ptr<CFileReport>& pReport = m_mapReport[strFile];
        if (pReport == nullptr)
            pReport = std::make_unique<CFileReport>(strFile, nullptr);
        return *pReport;
    }

    // Reports of files that are done, and of those between them that are not read.
    void flushUpTo(const std::string& strFile)
    {
        const auto itEnd = m_mapReport.upper_bound(strFile);
        for (auto itReport = m_mapReport.begin(); itReport != itEnd; itReport = m_mapReport.erase(itReport))
            itReport->second->flush(m_fnFinding);
    }

    // As they are checked: each with the first of its files.
    std::vector<catalog::StTypeName> typesInOrder() const
    {
        std::vector<catalog::StTypeName> lstOrder;
        std::vector<bool>                lstIsIn(m_stFiles.lstType.size());
        for (const auto& [strFile, stFile] : m_stFiles.mapFile)
        {
            for (const std::size_t nType : stFile.lstType)
            {
                const StServerType& stType = m_stFiles.lstType[nType];
                if (!lstIsIn[nType])
                    lstOrder.push_back({stType.strDevType, stType.strDevTypeVer});
                lstIsIn[nType] = true;
            }
        }
        return lstOrder;
    }

    // There is nothing to check of a type without files, but somebody may want to know of it.
    void tellFileless()
    {
        for (std::size_t nType = 0; m_stAlong.fnType && nType < m_lstIsDone.size(); ++nType)
        {
            const StServerType& stType = m_stFiles.lstType[nType];
            if (!m_lstIsDone[nType])
                m_stAlong.fnType(m_oMaker.make(stType.strDevType, stType.strDevTypeVer));
        }
    }

    void reportMissing()
    {
        for (const StServerType& stType : m_stFiles.lstType)
        {
            const StPlannedFile& stConfig = stType.stPlan.stConfig;
            if (stConfig.isFound() || !stConfig.stProblem.isSet())
                continue;
            reportOf(stConfig.strFile.empty() ? m_strInventory : stConfig.strFile)
                .add("file-missing", {},
                     stType.strDevType + " " + stType.strDevTypeVer +
                         " has no configuration: " + stConfig.stProblem.strText,
                     stType.strKey);
        }
    }

    // Modules come first: what was lost in them must be known when a type refers to it.
    void checkModuleFiles()
    {
        std::vector<std::string> lstType;
        for (const StServerType& stType : m_stFiles.lstType)
            lstType.push_back(stType.strDevType);
        for (const catalog::StModuleCatalog& stModule : m_oMaker.modules())
        {
            checkAlone(stModule.strFile, EnFileKind::Module);
            const StLostNames& stLost = m_mapLost[stModule.strFile];
            m_stLostInModules.setText.insert(stLost.setText.begin(), stLost.setText.end());
        }
        checkModules(m_oMaker.modules(), lstType, m_stLostInModules,
                     [this](const std::string& strFile) -> CFileReport& { return reportOf(strFile); });
    }

    // A type with all its files, of which each is checked when it is parsed.
    void checkType(std::size_t nType)
    {
        if (m_lstIsDone[nType])
            return;
        m_lstIsDone[nType]                  = true;
        const StServerType&          stType = m_stFiles.lstType[nType];
        const catalog::StTypeCatalog stMade = make(stType);
        StLostNames                  stLost = m_stLostInModules;
        if (m_stAlong.fnType)
            m_stAlong.fnType(stMade);
        for (const std::string& strFile : stMade.lstFile)
        {
            const auto itFile = m_stFiles.mapFile.find(strFile);
            if (itFile == m_stFiles.mapFile.end() || itFile->second.enKind == EnFileKind::Module)
                continue;
            checkAlone(strFile, itFile->second.enKind);
            const StLostNames& stOfFile = m_mapLost[strFile];
            stLost.setText.insert(stOfFile.setText.begin(), stOfFile.setText.end());
        }
        m_oTypeFindings.begin(stMade);
        checkSense(stMade, stLost, m_oTypeFindings);
        checkCapacity(stMade, m_setSysOid, stLost, m_oTypeFindings);
        checkVersions(stMade, reportOf(m_strInventory));
    }

    catalog::StTypeCatalog make(const StServerType& stType)
    {
        m_pReading                    = &stType;
        catalog::StTypeCatalog stMade = m_oMaker.make(stType.strDevType, stType.strDevTypeVer,
                                                      [this](std::uint32_t ulResult) { checkHeard(ulResult); });
        m_oHeard.reset(); // there still after an exception
        m_pReading = nullptr;
        return stMade;
    }

    // Whether the reader of the type asks a file for all that the readers of its kind would:
    // not where the checks have a file of their own, nor where each version is read by itself.
    bool isReadWhole(const std::string& strFile) const
    {
        const StConfigPlan& stPlan = m_pReading->stPlan;
        return strFile == stPlan.stConfig.strFile && stPlan.lstVersion.empty() && !stPlan.stCheck.isFound() &&
               !stPlan.stFixedCheck.isFound();
    }

    // The rules of a document that was read for its type. A section that failed has ended
    // that read: then it is read for them once more.
    void checkHeard(std::uint32_t ulResult)
    {
        if (!m_oHeard)
            return;
        StHeard& stHeard = *m_oHeard;
        if (ulResult == 0)
            lintHeard(stHeard.oParser, stHeard.oMarks, EnFileKind::Configuration, stHeard.oReport, stHeard.stLost);
        else
            lintDocument(stHeard.oParser, EnFileKind::Configuration, stHeard.oReport, stHeard.stLost);
        m_oHeard.reset();
    }

    // A file that is parsed for the catalog of a type, or as a module.
    void takeDocument(const std::string& strFile, catalog::EnOrigin enOrigin, catalog::CPlacedParser& oParser)
    {
        const auto itFile = m_stFiles.mapFile.find(strFile);
        if (enOrigin == catalog::EnOrigin::Module)
            checkDocument(strFile, EnFileKind::Module, oParser);
        else if (itFile != m_stFiles.mapFile.end())
            checkDocument(strFile, itFile->second.enKind, oParser);
    }

    // A file that no type has been made of.
    void checkAlone(const std::string& strFile, EnFileKind enKind)
    {
        if (m_mapLost.count(strFile) != 0)
            return;
        const std::unique_ptr<catalog::CPlacedParser> pParser = catalog::CPlacedParser::create();
        if (pParser == nullptr)
            return;
        pParser->parsePlaced(strFile);
        checkDocument(strFile, enKind, *pParser);
    }

    // Once for each file.
    void checkDocument(const std::string& strFile, EnFileKind enKind, catalog::CPlacedParser& oParser)
    {
        const auto [itLost, bFirst] = m_mapLost.try_emplace(strFile);
        if (!bFirst)
            return;
        CFileReport& oReport = reportOf(strFile);
        oReport.showLinesOf(oParser.places().text());
        if (m_pReading != nullptr && enKind == EnFileKind::Configuration && !oParser.problem().isSet() &&
            isReadWhole(strFile))
            m_oHeard.emplace(oParser, oReport, itLost->second);
        else
            lintDocument(oParser, enKind, oReport, itLost->second);
    }

    // A document whose read for its type is heard along.
    struct StHeard
    {
        StHeard(catalog::CPlacedParser& oOfParser, CFileReport& oOfReport, StLostNames& stOfLost)
            : oParser(oOfParser), oReport(oOfReport), stLost(stOfLost)
        {
        }

        catalog::CPlacedParser& oParser;
        CFileReport&            oReport;
        StLostNames&            stLost;
        CReadMarks              oMarks;
        ReadObserver::CAlong    oAlong{oMarks};
    };

    const std::string&                                  m_strInventory;
    const FindingSink&                                  m_fnFinding;
    const StReadAlong&                                  m_stAlong;
    StServerFiles                                       m_stFiles;
    std::vector<bool>                                   m_lstIsDone; // by type
    std::set<std::string>                               m_setSysOid;
    std::map<std::string, std::unique_ptr<CFileReport>> m_mapReport; // of files that are not done
    CTypeFindings                                       m_oTypeFindings;
    std::map<std::string, StLostNames>                  m_mapLost; // of the files that are checked
    StLostNames                                         m_stLostInModules;
    const StServerType*                                 m_pReading = nullptr; // null: modules, or a file by itself
    std::optional<StHeard>                              m_oHeard;
    catalog::CCatalogMaker                              m_oMaker; // calls back while it is made
};
} // namespace

void lintServer(const std::string& strInventory, const FindingSink& fnFinding, const StReadAlong& stAlong)
{
    CServerCheck(strInventory, fnFinding, stAlong).run();
}
} // namespace lint

// See LintRoot.h.
#include "tools/opxml/lint/LintRoot.h"

#include "lint/Nearness.h"
#include "records/ServerNames.h"
#include "records/Vocabulary.h"
#include "tools/opxml/lint/InventoryRules.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <tuple>
#include <vector>

namespace
{
// What only a stand-alone root has: rules that a server's caller would name.
constexpr const char* FILE_CHECK_RULES = "file_check.xml";

std::string nameOfFile(const std::string& strPath)
{
    return strPath.substr(strPath.rfind('/') + 1);
}

// Whether a row that is told may mean this file: under this name or nearly, wherever.
bool isNearTold(const StInventoryFindings& stInventory, const std::string& strFile)
{
    const std::string strName = nameOfFile(strFile);
    return std::any_of(stInventory.setToldFile.begin(), stInventory.setToldFile.end(),
                       [&strName](const std::string& strTold)
                       {
                           const std::string strToldName = nameOfFile(strTold);
                           return strToldName == strName || !lint::nearestName(strToldName, {strName}).empty();
                       });
}

// What the check file of a telnet type would bring.
bool isCheckOfTelnet(const std::string& strSubject)
{
    const std::string strId = strSubject.substr(strSubject.rfind('/') + 1);
    return strId == Vocabulary::OP_PRE_CHECK || strId == Vocabulary::OP_POST_CHECK;
}

// What follows from a row that is told is not told again where it shows.
bool followsFrom(const StInventoryFindings& stInventory, const lint::StFinding& stFinding)
{
    if (stFinding.strRule == "file-missing")
        return stInventory.setToldFile.count(stFinding.strFile) != 0;
    if (stFinding.strRule == "file-unused")
        return isNearTold(stInventory, stFinding.strFile);
    if (stFinding.strRule == "hidden-program-file")
        return stInventory.setMeantName.count(ServerNames::BACKUP_PROGRAM_SUPPORT) != 0;
    if (stFinding.strRule == "dangling-reference")
        return stInventory.setUnchecked.count(stFinding.strFile) != 0 && isCheckOfTelnet(stFinding.strSubject);
    return stFinding.strRule == "capacity-no-record" && stInventory.setToldVersion.count(stFinding.strSubject) != 0;
}

// What the server's check says of a version in service, with the row of that version.
lint::StFinding placed(const StInventoryFindings& stInventory, lint::StFinding stFinding)
{
    const auto itPlace = stInventory.mapUnrecorded.find(stFinding.strSubject);
    if (stFinding.strRule == "capacity-no-record" && itPlace != stInventory.mapUnrecorded.end())
        setPlace(stFinding, itPlace->second);
    return stFinding;
}

// Puts what is found about the tool's own files among the server's, by their names.
class CSorter
{
public:
    CSorter(std::vector<lint::StFinding> lstOwn, const lint::FindingSink& fnFinding)
        : m_lstOwn(std::move(lstOwn)), m_fnFinding(fnFinding)
    {
    }

    // The next finding of the server, whose findings are sorted.
    void take(const lint::StFinding& stFinding)
    {
        tellOwn([&stFinding](const lint::StFinding& stOwn) { return stOwn.strFile < stFinding.strFile; });
        m_fnFinding(stFinding);
    }

    // What the server's check says about one of the own files goes there.
    void add(const lint::StFinding& stFinding) { m_lstOwn.push_back(stFinding); }

    void end()
    {
        tellOwn([](const lint::StFinding& /*stOwn*/) { return true; });
    }

private:
    template <typename IsNext>
    void tellOwn(IsNext fnIsNext)
    {
        const auto fnPlace = [](const lint::StFinding& stFinding)
        { return std::tie(stFinding.strFile, stFinding.ulLine, stFinding.ulColumn); };
        std::stable_sort(m_lstOwn.begin(), m_lstOwn.end(),
                         [&](const lint::StFinding& stLeft, const lint::StFinding& stRight)
                         { return fnPlace(stLeft) < fnPlace(stRight); });
        auto itOwn = m_lstOwn.begin();
        for (; itOwn != m_lstOwn.end() && fnIsNext(*itOwn); ++itOwn)
            m_fnFinding(*itOwn);
        m_lstOwn.erase(m_lstOwn.begin(), itOwn);
    }

    std::vector<lint::StFinding> m_lstOwn;
    const lint::FindingSink&     m_fnFinding;
};
} // namespace

std::size_t lintRoot(const std::string& strRoot, const lint::FindingSink& fnTell, lint::StReadAlong stAlong)
{
    // "./" in front of every path would only be in the way.
    const lint::FindingSink fnFinding = [&](lint::StFinding stFinding)
    {
        if (strRoot == "." && stFinding.strFile.compare(0, 2, "./") == 0)
            stFinding.strFile.erase(0, 2);
        fnTell(stFinding);
    };
    const StInventoryFindings stInventory = lintInventory(strRoot);
    CSorter                   oSorter(stInventory.lstFinding, fnFinding);
    std::size_t               nFiles   = 1;
    const std::string         strRules = strRoot + "/" + FILE_CHECK_RULES;
    std::error_code           oIgnored;
    if (std::filesystem::is_regular_file(strRules, oIgnored))
    {
        lint::lintFile(strRules, lint::EnFileKind::FileCheck,
                       [&oSorter](const lint::StFinding& stFinding) { oSorter.add(stFinding); });
        ++nFiles;
    }
    stAlong.fnFile = [&nFiles](const std::string& /*strFile*/) { ++nFiles; };
    lint::lintServer(
        stInventory.strFile,
        [&](const lint::StFinding& stFinding)
        {
            if (followsFrom(stInventory, stFinding))
                return;
            if (stFinding.strFile == stInventory.strFile)
                oSorter.add(placed(stInventory, stFinding));
            else
                oSorter.take(stFinding);
        },
        stAlong);
    oSorter.end();
    return nFiles;
}

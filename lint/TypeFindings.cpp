// See TypeFindings.h.
#include "lint/TypeFindings.h"

#include "lint/Nearness.h"

#include <utility>

namespace lint
{
namespace
{
constexpr std::size_t NAMED_TYPES = 3;

// ' for "A", "B" and 5 more'.
std::string forTypes(const std::set<std::string>& setKey)
{
    std::vector<std::string> lstText;
    for (const std::string& strKey : setKey)
    {
        if (lstText.size() == NAMED_TYPES && setKey.size() > NAMED_TYPES + 1)
        {
            lstText.push_back(std::to_string(setKey.size() - NAMED_TYPES) + " more");
            break;
        }
        lstText.push_back("\"" + strKey + "\"");
    }
    return " for " + listText(lstText);
}
} // namespace

// By where their entries stand: the files of a catalog are also those of modules that
// the type has nothing of.
void CTypeFindings::begin(const catalog::StTypeCatalog& stType)
{
    std::set<std::uint32_t> setFile;
    for (const catalog::StConfiguration& stConfiguration : stType.lstConfiguration)
    {
        for (const catalog::StSection& stSection : stConfiguration.lstSection)
        {
            for (const catalog::StEntry& stEntry : stSection.lstEntry)
                setFile.insert(stEntry.stPlace.ulFile);
        }
    }
    for (const catalog::StCapacityDocument& stDocument : stType.lstCapacityDocument)
        setFile.insert(stDocument.ulFile);
    for (const std::uint32_t ulFile : setFile)
    {
        if (ulFile < stType.lstFile.size())
            m_mapUser[stType.lstFile[ulFile]].insert(stType.strKey);
    }
}

void CTypeFindings::add(const catalog::StTypeCatalog& stType, StTypeFinding stFinding)
{
    if (stFinding.stPlace.ulFile >= stType.lstFile.size())
        return;
    const catalog::StPlace& stPlace  = stFinding.stPlace;
    auto&                   mapPlace = m_mapFile[stType.lstFile[stPlace.ulFile]];
    if (mapPlace.size() >= MAX_FINDINGS)
        return;
    StShared& stShared = mapPlace[{stPlace.ulLine, stPlace.ulColumn, stFinding.pszRule, stFinding.strWhat}];
    stShared.setKey.insert(stType.strKey);
    if (stShared.stFinding.pszRule == nullptr)
        stShared.stFinding = std::move(stFinding);
}

void CTypeFindings::tell(const std::string& strFile, CFileReport& oReport)
{
    const auto itFile = m_mapFile.find(strFile);
    if (itFile == m_mapFile.end())
        return;
    for (auto& [oPlace, stShared] : itFile->second)
    {
        StTypeFinding&    stFinding = stShared.stFinding;
        const bool        bAll      = stShared.setKey.size() == m_mapUser[strFile].size();
        const std::string strTypes  = bAll ? "" : forTypes(stShared.setKey);
        oReport.setMeant(stFinding.strMeant);
        oReport.add(stFinding.pszRule,
                    {stFinding.stPlace.ulLine, stFinding.stPlace.ulColumn, stFinding.stPlace.ulLength},
                    stFinding.strWhat + strTypes + stFinding.strSo, stFinding.strSubject, std::move(stFinding.lstHelp));
    }
    m_mapFile.erase(itFile);
}

std::vector<std::string> CTypeFindings::files() const
{
    std::vector<std::string> lstFile;
    for (const auto& [strFile, mapPlace] : m_mapFile)
        lstFile.push_back(strFile);
    return lstFile;
}
} // namespace lint

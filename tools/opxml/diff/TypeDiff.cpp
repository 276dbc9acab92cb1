// See TypeDiff.h.
#include "tools/opxml/diff/TypeDiff.h"

#include "tools/opxml/catalog/ServerCatalogs.h"
#include "tools/opxml/output/DevTypes.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>

namespace
{
constexpr std::size_t NONE = static_cast<std::size_t>(-1);

// The versions in service of one side, each with its configuration, or NONE and why.
struct StVersionState
{
    std::size_t nConfiguration = NONE;
    std::string strWhy;
};
using VersionStates = std::map<std::string, StVersionState>;

VersionStates versionsOf(const catalog::StTypeCatalog& stType)
{
    VersionStates mapState;
    for (const StVersionLoad& stLoad : stType.stOrigin.lstVersion)
        mapState[versionText(stLoad.strSoftVersion, stLoad.strPatchVersion)].strWhy =
            stLoad.stProblem.isSet() ? problemWithFile(stLoad.stProblem) : outcomeText(stLoad.enOutcome);
    for (std::size_t nAt = 0; nAt < stType.lstConfiguration.size(); ++nAt)
    {
        for (const catalog::StVersion& stVersion : stType.lstConfiguration[nAt].lstVersion)
            mapState[versionText(stVersion.strSoftVersion, stVersion.strPatchVersion)].nConfiguration = nAt;
    }
    return mapState;
}

class CTypeDiff
{
public:
    CTypeDiff(const catalog::StTypeCatalog& stOld, const catalog::StTypeCatalog& stNew,
              const StPassedOver& stPassedOver)
        : m_stOld(stOld), m_stNew(stNew), m_stPassedOver(stPassedOver), m_mapOld(versionsOf(stOld)),
          m_mapNew(versionsOf(stNew))
    {
    }

    std::vector<StTypeChange> run()
    {
        const bool bOld = !m_stOld.lstConfiguration.empty();
        const bool bNew = !m_stNew.lstConfiguration.empty();
        if (bOld != bNew)
            tellUnread(bNew, whyNotRead(bNew ? m_stOld : m_stNew), {});
        if (!bOld || !bNew)
            return std::move(m_lstChange);
        comparePairs(pairVersions());
        return std::move(m_lstChange);
    }

private:
    using Pairs = std::map<std::pair<std::size_t, std::size_t>, std::vector<std::string>>;

    // Which configuration stands against which, and for which versions in service. The
    // first of each side answers the questions, so they are always a pair.
    Pairs pairVersions()
    {
        Pairs mapPair;
        mapPair[{0, 0}];
        for (const auto& [strVersion, stOld] : m_mapOld)
        {
            const auto           itNew = m_mapNew.find(strVersion);
            const StVersionState stNew = itNew != m_mapNew.end() ? itNew->second : m_mapNew.empty() ? first() : gone();
            comparePresence(strVersion, stOld, stNew, itNew != m_mapNew.end() || m_mapNew.empty(), mapPair);
        }
        for (const auto& [strVersion, stNew] : m_mapNew)
        {
            if (m_mapOld.empty())
                comparePresence(strVersion, first(), stNew, true, mapPair);
            else if (m_mapOld.count(strVersion) == 0)
                tellVersion(EnChange::Gained, "version-gained", strVersion);
        }
        return mapPair;
    }

    // A configuration for all versions serves this one, too.
    static StVersionState first() { return {0, {}}; }
    static StVersionState gone() { return {}; }

    void comparePresence(const std::string& strVersion, const StVersionState& stOld, const StVersionState& stNew,
                         bool bInService, Pairs& mapPair)
    {
        if (!bInService)
            tellVersion(EnChange::Lost, "version-lost", strVersion);
        else if (stOld.nConfiguration != NONE && stNew.nConfiguration != NONE)
            mapPair[{stOld.nConfiguration, stNew.nConfiguration}].push_back(strVersion);
        else if (stOld.nConfiguration != stNew.nConfiguration)
            tellUnread(stOld.nConfiguration == NONE, stOld.nConfiguration == NONE ? stOld.strWhy : stNew.strWhy,
                       {strVersion});
    }

    void tellVersion(EnChange enWhat, const char* pszRule, const std::string& strVersion)
    {
        StTypeChange& stChange                  = add(enWhat, pszRule);
        stChange.stEntryChange.stChange.strPath = strVersion;
        stChange.lstSoftware                    = {strVersion};
    }

    void tellUnread(bool bReadNow, const std::string& strWhy, const std::vector<std::string>& lstSoftware)
    {
        StTypeChange& stChange = add(EnChange::Unread, bReadNow ? "can-be-read" : "cannot-be-read");
        (bReadNow ? stChange.stEntryChange.stChange.strOld : stChange.stEntryChange.stChange.strNew) = strWhy;
        stChange.lstSoftware                                                                         = lstSoftware;
    }

    StTypeChange& add(EnChange enWhat, const char* pszRule)
    {
        StTypeChange& stChange                 = m_lstChange.emplace_back();
        stChange.stEntryChange.stChange.pRule  = &diffRule(pszRule);
        stChange.stEntryChange.stChange.enWhat = enWhat;
        return stChange;
    }

    // A change that several pairs have is told once, with all their versions.
    void comparePairs(const Pairs& mapPair)
    {
        std::map<ChangeKey, std::size_t> mapTold;
        std::vector<std::size_t>         lstPairs(m_lstChange.size()); // that have the change
        for (const auto& [oPair, lstVersion] : mapPair)
        {
            for (StEntryChange& stChange : diffConfigurations(m_stOld.lstConfiguration[oPair.first],
                                                              m_stNew.lstConfiguration[oPair.second], m_stPassedOver))
            {
                const auto [itTold, bNew] = mapTold.try_emplace(keyOf(stChange), m_lstChange.size());
                if (bNew)
                {
                    m_lstChange.push_back({std::move(stChange), {}});
                    lstPairs.push_back(0);
                }
                auto& lstSoftware = m_lstChange[itTold->second].lstSoftware;
                lstSoftware.insert(lstSoftware.end(), lstVersion.begin(), lstVersion.end());
                ++lstPairs[itTold->second];
            }
        }
        for (std::size_t nAt = 0; nAt < m_lstChange.size(); ++nAt)
        {
            if (lstPairs[nAt] == mapPair.size())
                m_lstChange[nAt].lstSoftware.clear();
        }
    }

    const catalog::StTypeCatalog& m_stOld;
    const catalog::StTypeCatalog& m_stNew;
    const StPassedOver&           m_stPassedOver;
    VersionStates                 m_mapOld;
    VersionStates                 m_mapNew;
    std::vector<StTypeChange>     m_lstChange;
};
} // namespace

std::vector<StTypeChange> diffTypes(const catalog::StTypeCatalog& stOld, const catalog::StTypeCatalog& stNew,
                                    const StPassedOver& stPassedOver)
{
    return CTypeDiff(stOld, stNew, stPassedOver).run();
}

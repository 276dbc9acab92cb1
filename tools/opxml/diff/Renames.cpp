// See Renames.h.
#include "tools/opxml/diff/Renames.h"

#include "lint/Nearness.h"
#include "tools/opxml/diff/OptionNumbers.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace
{
constexpr std::size_t COMPARED = 200; // of each list: where more went or came, nobody renamed them one by one

// An option of the same number, or the same but for the id with something in it.
bool isTwin(const catalog::StEntry& stLost, const catalog::StEntry& stGained)
{
    if (!numberOf(stLost).empty())
        return numberOf(stLost) == numberOf(stGained);
    return !stLost.lstChild.empty() && isSameButForId(stLost, stGained);
}

// The name that is nearest, when each is nearest to the other.
const catalog::StEntry* nearest(const catalog::StEntry& stEntry, const EntryList& lstOther)
{
    std::vector<std::string> lstId;
    for (const catalog::StEntry* pOther : lstOther)
        lstId.push_back(std::string_view(pOther->pszRecord) == stEntry.pszRecord ? pOther->strId : std::string());
    const std::string strNear = lint::nearestName(stEntry.strId, lstId);
    const auto        itNear  = std::find(lstId.begin(), lstId.end(), strNear);
    return strNear.empty() || itNear == lstId.end() ? nullptr
                                                    : lstOther[static_cast<std::size_t>(itNear - lstId.begin())];
}

class CRenames
{
public:
    CRenames(EntryList lstLost, EntryList lstGained) : m_lstLost(std::move(lstLost)), m_lstGained(std::move(lstGained))
    {
        m_lstLost.resize(std::min(m_lstLost.size(), COMPARED));
        m_lstGained.resize(std::min(m_lstGained.size(), COMPARED));
    }

    std::map<const catalog::StEntry*, std::string> run()
    {
        take(
            [this](const catalog::StEntry& stLost) -> const catalog::StEntry*
            {
                const auto itTwin =
                    std::find_if(m_lstGained.begin(), m_lstGained.end(),
                                 [&stLost](const catalog::StEntry* pGained) { return isTwin(stLost, *pGained); });
                return itTwin == m_lstGained.end() ? nullptr : *itTwin;
            });
        take(
            [this](const catalog::StEntry& stLost) -> const catalog::StEntry*
            {
                const catalog::StEntry* pNear = nearest(stLost, m_lstGained);
                return pNear != nullptr && nearest(*pNear, m_lstLost) == &stLost ? pNear : nullptr;
            });
        return std::move(m_mapRename);
    }

private:
    template <typename Find>
    void take(Find fnFind)
    {
        for (const catalog::StEntry* pLost : EntryList(m_lstLost))
        {
            const catalog::StEntry* pGained = fnFind(*pLost);
            if (pGained == nullptr)
                continue;
            m_mapRename[pLost]   = pGained->strId;
            m_mapRename[pGained] = pLost->strId;
            m_lstLost.erase(std::find(m_lstLost.begin(), m_lstLost.end(), pLost));
            m_lstGained.erase(std::find(m_lstGained.begin(), m_lstGained.end(), pGained));
        }
    }

    EntryList                                      m_lstLost;
    EntryList                                      m_lstGained;
    std::map<const catalog::StEntry*, std::string> m_mapRename;
};
} // namespace

std::map<const catalog::StEntry*, std::string> suggestRenames(const StEntryPairs& stPairs)
{
    if (stPairs.lstLost.empty() || stPairs.lstGained.empty())
        return {};
    return CRenames(stPairs.lstLost, stPairs.lstGained).run();
}

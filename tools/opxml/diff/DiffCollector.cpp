// See DiffCollector.h.
#include "tools/opxml/diff/DiffCollector.h"

#include "tools/opxml/catalog/EntryText.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace
{
// The number of a text in a list, at whose end it is put when it is new.
std::uint32_t numberIn(std::unordered_map<std::string, std::uint32_t>& mapNumber, std::vector<std::string>& lstText,
                       const std::string& strText)
{
    const auto [itNumber, bNew] = mapNumber.try_emplace(strText, static_cast<std::uint32_t>(lstText.size()));
    if (bNew)
        lstText.push_back(strText);
    return itNumber->second;
}
} // namespace

void CDiffCollector::add(const StRegisteredType& stType, const std::vector<StTypeChange>& lstChange,
                         const std::vector<std::string>& lstOldFile, const std::vector<std::string>& lstNewFile)
{
    if (lstChange.empty())
        return;
    const auto ulType = static_cast<std::uint32_t>(m_stDiff.lstType.size());
    m_stDiff.lstType.push_back(stType);
    for (const StTypeChange& stTypeChange : lstChange)
    {
        const StEntryChange& stEntry  = stTypeChange.stEntryChange;
        const StChange&      stChange = stEntry.stChange;
        const auto [itChange, bNew] =
            m_mapChange.try_emplace({stChange.pRule, stChange.enWhat, stChange.pKind, stChange.strPath,
                                     stChange.strField, stChange.strOld, stChange.strNew, stChange.strRename},
                                    m_stDiff.lstChange.size());
        if (bNew)
            m_stDiff.lstChange.push_back(stChange);
        m_stDiff.lstChange[itChange->second].lstSite.push_back({ulType, numberOf(stTypeChange.lstSoftware),
                                                                placeOf(stEntry.stOld, lstOldFile),
                                                                placeOf(stEntry.stNew, lstNewFile)});
    }
}

std::uint32_t CDiffCollector::numberOf(const std::vector<std::string>& lstSoftware)
{
    if (m_stDiff.lstSoftware.empty())
        numberIn(m_mapSoftware, m_stDiff.lstSoftware, {});
    return numberIn(m_mapSoftware, m_stDiff.lstSoftware, fmt::format("{}", fmt::join(lstSoftware, ", ")));
}

StDiffPlace CDiffCollector::placeOf(const catalog::StPlace& stPlace, const std::vector<std::string>& lstFile)
{
    if (stPlace.ulLine == 0 || stPlace.ulFile >= lstFile.size())
        return {};
    return {numberIn(m_mapFile, m_stDiff.lstFile, placeText(lstFile[stPlace.ulFile], {})), stPlace.ulLine,
            stPlace.ulColumn};
}

StDiff CDiffCollector::take()
{
    numberOf({});
    std::stable_sort(m_stDiff.lstChange.begin(), m_stDiff.lstChange.end(),
                     [](const StChange& stLeft, const StChange& stRight)
                     { return stLeft.pRule->enImpact < stRight.pRule->enImpact; });
    m_mapChange.clear();
    m_mapFile.clear();
    m_mapSoftware.clear();
    return std::exchange(m_stDiff, {});
}

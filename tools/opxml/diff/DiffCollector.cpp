// See DiffCollector.h.
#include "tools/opxml/diff/DiffCollector.h"

#include "tools/opxml/catalog/EntryText.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>
#include <tuple>
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

auto textsOf(const StChange& stChange)
{
    return std::tie(stChange.strPath, stChange.strField, stChange.strOld, stChange.strNew, stChange.strRename);
}
} // namespace

std::size_t CDiffCollector::StHash::operator()(std::size_t nAt) const
{
    const StChange&   st    = (*pChanges)[nAt];
    std::size_t       nHash = std::hash<const void*>()(st.pRule);
    const std::size_t nSalt = 0x9E3779B97F4A7C15U;
    for (const std::string* pText : {&st.strPath, &st.strField, &st.strOld, &st.strNew})
        nHash = (nHash * nSalt) ^ std::hash<std::string>()(*pText);
    return nHash;
}

bool CDiffCollector::StEqual::operator()(std::size_t nLeft, std::size_t nRight) const
{
    const StChange& stLeft  = (*pChanges)[nLeft];
    const StChange& stRight = (*pChanges)[nRight];
    return stLeft.pRule == stRight.pRule && stLeft.enWhat == stRight.enWhat && stLeft.pKind == stRight.pKind &&
           textsOf(stLeft) == textsOf(stRight);
}

void CDiffCollector::add(const StRegisteredType& stType, const std::vector<StTypeChange>& lstChange,
                         const std::vector<std::string>& lstOldFile, const std::vector<std::string>& lstNewFile)
{
    if (lstChange.empty())
        return;
    const auto ulType = static_cast<std::uint32_t>(m_stDiff.lstType.size());
    m_stDiff.lstType.push_back(stType);
    for (const StTypeChange& stTypeChange : lstChange)
    {
        const StEntryChange& stEntry = stTypeChange.stEntryChange;
        changeLike(stEntry.stChange)
            .lstSite.push_back({ulType, numberOf(stTypeChange.lstSoftware), placeOf(stEntry.stOld, lstOldFile),
                                placeOf(stEntry.stNew, lstNewFile)});
    }
}

// The one in the list that says the same, which is put there when there is none.
StChange& CDiffCollector::changeLike(const StChange& stChange)
{
    std::vector<StChange>& lstChange = m_stDiff.lstChange;
    lstChange.push_back(stChange);
    const auto [itChange, bNew] = m_setChange.insert(lstChange.size() - 1);
    if (!bNew)
        lstChange.pop_back();
    return lstChange[*itChange];
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
    m_setChange.clear(); // of places before the sort
    std::stable_sort(m_stDiff.lstChange.begin(), m_stDiff.lstChange.end(),
                     [](const StChange& stLeft, const StChange& stRight)
                     { return stLeft.pRule->enImpact < stRight.pRule->enImpact; });
    m_mapFile.clear();
    m_mapSoftware.clear();
    return std::exchange(m_stDiff, {});
}

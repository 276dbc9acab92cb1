// See Shadowing.h.
#include "catalog/Shadowing.h"

#include "database/ContentQuestions.h"
#include "reader/SectionTable.h"

#include <algorithm>
#include <string_view>
#include <type_traits>
#include <unordered_map>

namespace catalog
{
namespace
{
constexpr std::string_view PARAMETER = "StAsnOperParamDef";

// One row of the table of sections, as far as it matters here.
struct StAsked
{
    bool                                                       bById = false; // questions take the first of an id
    std::vector<std::pair<std::string_view, std::string_view>> lstEvery; // operation and parameter: every one of them
};

// The questions for operations, of whatever kind, go by their ids.
template <typename Section>
StAsked asked(const Section& stSection)
{
    StAsked stAsked;
    if constexpr (std::is_same_v<typename Section::OwnerOfList, StAsnOperationConfig> &&
                  std::is_same_v<decltype(stSection.pIdentity), std::string Section::RecordOfList::*>)
    {
        stAsked.bById    = true;
        const auto fnAdd = [&](const auto& stQuestion)
        {
            if constexpr (std::is_same_v<decltype(stQuestion.pList), decltype(stSection.pList)>)
            {
                if (stQuestion.pList == stSection.pList)
                    stAsked.lstEvery.emplace_back(stQuestion.strOperation, stQuestion.strParameter);
            }
        };
        std::apply([&](const auto&... stQuestion) { (fnAdd(stQuestion), ...); }, CONTENT_QUESTIONS);
    }
    return stAsked;
}

StAsked askedOfRow(std::size_t nRow)
{
    StAsked     stAsked;
    std::size_t nAt = 0;
    forEachSection(
        [&](const auto& stSection)
        {
            if (nAt++ == nRow)
                stAsked = asked(stSection);
        });
    return stAsked;
}

// Whether every parameter of the id is looked at in every operation of that id.
bool isEveryAsked(const StAsked& stAsked, std::string_view strOperation, std::string_view strParameter)
{
    return std::find(stAsked.lstEvery.begin(), stAsked.lstEvery.end(), std::pair(strOperation, strParameter)) !=
           stAsked.lstEvery.end();
}

bool isParameter(const StEntry& stEntry)
{
    return stEntry.enFate == EnEntryFate::Counts && stEntry.pszRecord == PARAMETER;
}

void shadow(StEntry& stEntry, const StPlace& stBecause)
{
    stEntry.enFate    = EnEntryFate::Shadowed;
    stEntry.stBecause = stBecause;
}

void markParameters(StEntry& stOperation, const StEntry& stFirst, const StAsked& stAsked)
{
    std::unordered_map<std::string_view, const StEntry*> mapFirst;
    for (StEntry& stParam : stOperation.lstChild)
    {
        if (!isParameter(stParam))
            continue;
        const StEntry* pFirst = mapFirst.emplace(stParam.strId, &stParam).first->second;
        if (isEveryAsked(stAsked, stOperation.strId, stParam.strId))
            continue;
        if (&stFirst != &stOperation) // of a later operation that is looked at for another parameter
            shadow(stParam, stFirst.stPlace);
        else if (pFirst != &stParam)
            shadow(stParam, pFirst->stPlace);
    }
}
} // namespace

void markShadowed(StSection& stSection)
{
    const StAsked stAsked = askedOfRow(stSection.nRow);
    if (!stAsked.bById)
        return;
    std::unordered_map<std::string_view, const StEntry*> mapFirst;
    for (StEntry& stEntry : stSection.lstEntry)
    {
        if (stEntry.enFate != EnEntryFate::Counts)
            continue;
        const StEntry* pFirst   = mapFirst.emplace(stEntry.strId, &stEntry).first->second;
        const auto&    lstParam = stEntry.lstChild;
        const bool     bReached =
            pFirst == &stEntry ||
            std::any_of(lstParam.begin(), lstParam.end(),
                        [&](const StEntry& stParam)
                        { return isParameter(stParam) && isEveryAsked(stAsked, stEntry.strId, stParam.strId); });
        if (bReached)
            markParameters(stEntry, *pFirst, stAsked);
        else
            shadow(stEntry, pFirst->stPlace);
    }
}
} // namespace catalog

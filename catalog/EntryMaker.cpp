// See EntryMaker.h.
#include "catalog/EntryMaker.h"

#include <algorithm>
#include <tuple>

namespace catalog
{
namespace
{
constexpr const char* IDENTITIES[] = {"strId", "strName", "enTaskType", "enPatchType"};
} // namespace

const StField* StEntry::field(const char* pszName) const
{
    const std::string_view strName = pszName;
    const auto             itField = std::find_if(lstField.begin(), lstField.end(),
                                                  [strName](const StField& stField) { return stField.pszName == strName; });
    return itField == lstField.end() ? nullptr : &*itField;
}

std::string identity(const StEntry& stEntry)
{
    for (const char* pszName : IDENTITIES)
    {
        if (const StField* pField = stEntry.field(pszName))
            return pField->strValue;
    }
    return {};
}

void insertLost(std::vector<StEntry>& lstEntry, std::size_t nFirst, StEntry stLost)
{
    const auto fnAt = [](const StPlace& stPlace) { return std::tie(stPlace.ulLine, stPlace.ulColumn); };
    auto       itAt = lstEntry.begin() + static_cast<std::ptrdiff_t>(nFirst);
    for (auto itEntry = itAt; itEntry != lstEntry.end(); ++itEntry)
    {
        if (itEntry->stPlace.ulFile == stLost.stPlace.ulFile && fnAt(itEntry->stPlace) <= fnAt(stLost.stPlace))
            itAt = itEntry + 1;
    }
    lstEntry.insert(itAt, std::move(stLost));
}
} // namespace catalog

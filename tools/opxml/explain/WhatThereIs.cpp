// See WhatThereIs.h.
#include "tools/opxml/explain/WhatThereIs.h"

#include <algorithm>

namespace
{
using catalog::StEntry;

void addEntry(const StEntry& stEntry, StThereIs& stThereIs)
{
    if (stEntry.enFate != catalog::EnEntryFate::Counts || stEntry.strId.empty())
        return;
    const catalog::StField* pValue   = stEntry.field("ulValue");
    std::string             strShown = (pValue == nullptr ? "" : pValue->strValue + " ") + stEntry.strId;
    stThereIs.lstName.push_back(stEntry.strId);
    auto& lstShown = stThereIs.lstShown;
    if (std::find(lstShown.begin(), lstShown.end(), strShown) == lstShown.end())
        lstShown.push_back(std::move(strShown));
}

bool isOfKind(const StEntryKind& stKind, const std::vector<EnEntryKind>& lstKind)
{
    if (lstKind.empty())
        return stKind.enRole == EnEntryRole::Operation || stKind.enKind == EnEntryKind::TaskType;
    return std::find(lstKind.begin(), lstKind.end(), stKind.enKind) != lstKind.end();
}
} // namespace

StThereIs whatThereIs(const catalog::StTypeCatalog& stCatalog, std::size_t nConfiguration, const StWanted& stMissing)
{
    StThereIs         stThereIs;
    const auto&       lstSection = stCatalog.lstConfiguration.at(nConfiguration).lstSection;
    const std::size_t nLevel     = stMissing.lstId.size();
    if (nLevel > 1)
    {
        for (const StStand& stAround : findStands(lstSection, stCatalog.lstFile, stMissing.upTo(nLevel - 1)))
        {
            if (!isFound(stAround, stMissing))
                continue;
            for (const StEntry& stEntry : stAround.entry().lstChild)
                addEntry(stEntry, stThereIs);
        }
        return stThereIs;
    }
    for (const catalog::StSection& stSection : lstSection)
    {
        for (const StEntry& stEntry : stSection.lstEntry)
        {
            if (isOfKind(kindOf(stSection.nRow, stEntry), stMissing.lstKind))
                addEntry(stEntry, stThereIs);
        }
    }
    return stThereIs;
}

// The sections of a catalog, made of the lists of a record. Templates; used by the
// makers of catalogs.
#ifndef OPERATIONXML_CATALOG_SECTIONMAKER_H
#define OPERATIONXML_CATALOG_SECTIONMAKER_H

#include "catalog/EntryMaker.h"
#include "catalog/Shadowing.h"
#include "reader/SectionTable.h"

#include <vector>

namespace catalog
{
// The sections of a type or module. Lost entries of a module are not known by its
// lists any more.
template <typename Root>
std::vector<StSection> makeSections(const CReadRecorder& oRecorder, const Root& stRoot,
                                    const std::vector<StLost>& lstModuleLost)
{
    std::vector<StSection> lstSection;
    forEachSection(
        [&](const auto& stRow)
        {
            StSection& stSection          = lstSection.emplace_back();
            stSection.nRow                = lstSection.size() - 1;
            const auto&         lstRecord = listOf(stRoot, stRow.pList);
            std::vector<StLost> lstLost   = oRecorder.lost(&lstRecord);
            for (const StLost& stLost : lstModuleLost)
            {
                if (stLost.nRow == stSection.nRow)
                    lstLost.push_back(stLost);
            }
            addEntries(oRecorder, lstRecord, lstLost, StLost::IN_SECTION, stSection.lstEntry);
            markShadowed(stSection);
        });
    return lstSection;
}
} // namespace catalog

#endif

// Which entry of one list is which of another: by record and id, and of several with one
// id the first with the first, since it is what questions take, then those that say the
// same, then the next with the next. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_ENTRYPAIRS_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_ENTRYPAIRS_H

#include "catalog/Catalog.h"

#include <set>
#include <utility>
#include <vector>

using EntryList = std::vector<const catalog::StEntry*>;
using EntryPair = std::pair<const catalog::StEntry*, const catalog::StEntry*>;

struct StEntryPairs
{
    std::vector<EntryPair> lstPair; // in the order of the old list
    EntryList              lstLost;
    EntryList              lstGained;

    // Of those two: entries of an id that the other list has, but not so often.
    std::set<const catalog::StEntry*> setTwin;
};

StEntryPairs pairEntries(const EntryList& lstOld, const EntryList& lstNew);

// Whether two entries say the same, with all that counts in them and in its order.
bool isSame(const catalog::StEntry& stOld, const catalog::StEntry& stNew);
bool isSameButForId(const catalog::StEntry& stOld, const catalog::StEntry& stNew);

// The entries of a list that count, or those that an earlier one of their id hides.
EntryList entriesOf(const std::vector<catalog::StEntry>& lstEntry, catalog::EnEntryFate enFate);

// Whether a difference of the field means anything: ids are compared already, and a
// position follows from the order.
bool isCompared(const catalog::StField& stField);

#endif

// A walk over the entries of a configuration, or of a module, in the order in which
// they are read, each with its kind and its path of ids.
#ifndef OPERATIONXML_TOOLS_OPXML_CATALOG_ENTRYWALK_H
#define OPERATIONXML_TOOLS_OPXML_CATALOG_ENTRYWALK_H

#include "tools/opxml/catalog/EntryKinds.h"

#include <functional>
#include <string>
#include <vector>

// Valid during the visit.
struct StWalkedEntry
{
    const StEntryKind*                   pKind = nullptr;
    std::size_t                          nRow  = 0;        // of the table of sections
    std::vector<const catalog::StEntry*> lstPath;          // from the section's entry to this one
    bool                                 bInEffect = true; // it and all those around it count

    const catalog::StEntry& entry() const { return *lstPath.back(); }
};

using EntryVisit = std::function<void(const StWalkedEntry&)>;

// All entries, also those that were dropped, pruned or are shadowed; an entry before
// those in it.
void walkEntries(const std::vector<catalog::StSection>& lstSection, const EntryVisit& fnVisit);

// "Backup/ContentType/CONFIG"; what has no id is left out.
std::string pathText(const std::vector<const catalog::StEntry*>& lstPath);

#endif

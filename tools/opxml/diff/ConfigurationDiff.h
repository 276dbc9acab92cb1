// Two configurations of one type compared entry by entry: what counts in both by what it
// says, the rest only by whether it is there. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_CONFIGURATIONDIFF_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_CONFIGURATIONDIFF_H

#include "tools/opxml/diff/Diff.h"

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <tuple>
#include <vector>

// A change of one type, with places in the files of the two catalogs.
struct StEntryChange
{
    StChange         stChange; // without its sites
    catalog::StPlace stOld;
    catalog::StPlace stNew;
};

// What makes a change the same as another one of the same type.
using ChangeKey = std::tuple<const StDiffRule*, EnChange, const StEntryKind*, std::string, std::string, std::string,
                             std::string, std::array<std::uint32_t, 6>>;
ChangeKey keyOf(const StEntryChange& stChange);

// Modules whose entries are passed over on either side: the other side could not read them.
struct StPassedOver
{
    std::set<std::string> setOldModule;
    std::set<std::string> setNewModule;
};

std::vector<StEntryChange> diffConfigurations(const catalog::StConfiguration& stOld,
                                              const catalog::StConfiguration& stNew, const StPassedOver& stPassedOver);

#endif

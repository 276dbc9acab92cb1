// Where something stands in a configuration: the entries of a path of ids, each with its
// kind, its place and whether it counts. Plain values; the entries are those of a
// catalog, and stay as long as that does.
#ifndef OPERATIONXML_TOOLS_OPXML_EXPLAIN_STANDS_H
#define OPERATIONXML_TOOLS_OPXML_EXPLAIN_STANDS_H

#include "tools/opxml/catalog/EntryKinds.h"

#include <cstddef>
#include <string>
#include <vector>

constexpr std::size_t OPTION_LEVEL = 3; // below operation and parameter: it may be meant by its number

// What is looked for: an operation, a parameter of it, an option of that; likewise the
// items of a check, the steps of an upgrade and whatever else stands below another.
struct StWanted
{
    std::vector<EnEntryKind> lstKind;          // the operation is of one of these kinds; empty: of any
    std::vector<std::string> lstId;            // operation, parameter, option: as many as are asked for
    bool                     bByName  = true;  // the option by its id
    bool                     bByValue = false; // or by its number
    bool                     bEvery   = false; // in later operations of an id, too, as content types are asked for

    StWanted upTo(std::size_t nLevels) const; // with the first ids alone
};

// One entry that is looked for.
struct StStand
{
    const StEntryKind*                   pKind = nullptr;
    const StEntryKind*                   pRoot = nullptr; // kind of what it stands in: the operation, say
    std::vector<const catalog::StEntry*> lstPath;         // from the section's entry to this one
    bool                                 bInEffect = false;
    bool                                 bPartly   = false; // an earlier operation answers, save for content types
    std::string                          strPlace;          // FILE:LINE:COLUMN
    std::string                          strBecause;        // likewise: of what shadows it or took it out

    const catalog::StEntry& entry() const { return *lstPath.back(); }
};

// All of them in the order in which they are read, in effect or not.
std::vector<StStand> findStands(const std::vector<catalog::StSection>& lstSection,
                                const std::vector<std::string>& lstFile, const StWanted& stWanted);

// Defines an operation or a task type; others use it, or are a part of one.
bool isDefinition(const StStand& stStand);

// It is in effect for what is wanted.
bool isFound(const StStand& stStand, const StWanted& stWanted);

// It is in effect, and switched on where it has a switch.
bool isOffered(const StStand& stStand);

// "a parameter of "Backup"".
std::string kindText(const StStand& stStand);

// What became of it: "counts", "shadowed by FILE:LINE:COLUMN", …
std::string fateText(const StStand& stStand);

#endif

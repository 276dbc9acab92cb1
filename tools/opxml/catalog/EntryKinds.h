// The room catalog/: the entries of a server root as the tool's questions see them.
// What kinds of entries there are (here), a walk over those of a configuration
// (EntryWalk.h), what an entry says and where it stands in words (EntryText.h), and the
// catalogs of the registered types one after the other (ServerCatalogs.h). On the
// library's catalog and output/; search, explanation, comparison and the page stand on
// it, and none of them knows a list of sections or records of its own.
//
// The kinds: one table with their words for --kind and JSON, and for people.
#ifndef OPERATIONXML_TOOLS_OPXML_CATALOG_ENTRYKINDS_H
#define OPERATIONXML_TOOLS_OPXML_CATALOG_ENTRYKINDS_H

#include "catalog/Catalog.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

enum class EnEntryKind : std::int32_t
{
    DeviceOperation,
    TaskOperation,
    PatchOperation,
    CheckOperation,
    CustomOperation,
    OtherOperation,
    UpgradeOperation,
    UpgradeStep,
    Parameter,
    Option,
    CheckItem,
    Menu,
    Tab,
    PatchMenu,
    IsolationMenu,
    PatchType,
    PatchState,
    PatchStateItem,
    TaskType,
    TaskStep,
    TaskFeature,
};
inline constexpr std::size_t ENTRY_KIND_COUNT = static_cast<std::size_t>(EnEntryKind::TaskFeature) + 1;

// What an entry is to a question for its id.
enum class EnEntryRole : std::int32_t
{
    Operation, // defines the operation of this id
    Reference, // offers or uses the operation of this id, which is defined elsewhere
    Part,      // of an operation
    Group,     // holds others, and has a word for an id
};

struct StEntryKind
{
    EnEntryKind      enKind;
    EnEntryRole      enRole;
    const char*      pszWord;    // "device": for --kind, and in JSON
    const char*      pszName;    // "device operation"
    const char*      pszPlural;  // "device operations"
    std::string_view strRecord;  // "StAsnOperation"
    const char*      pszSection; // the one list of a configuration that holds it, "lstDevOperation"; null: several do
};

// In the order of their table, which is that of EnEntryKind.
const std::vector<StEntryKind>& entryKinds();

const StEntryKind& kindOf(EnEntryKind enKind);

// Of an entry that stands, at whatever depth, in the section of this row of the table of
// sections.
const StEntryKind& kindOf(std::size_t nRow, const catalog::StEntry& stEntry);

// The kind of this word, or null.
const StEntryKind* findKind(const std::string& strWord);

// The words, for --kind.
std::vector<std::string> kindWords();

#endif

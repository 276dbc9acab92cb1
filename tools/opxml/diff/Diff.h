// The room diff/: what changed between two server roots, or two configuration files, by
// what they mean and not by their lines. Values come in, a list of changes goes out; it
// prints nothing, so that the command, the page and the tests see the same answer. A
// configuration is compared in ConfigurationDiff, a type in TypeDiff, two roots in
// RootDiff; what a change means for those who ask the server stands in the table of rules
// (DiffRules).
//
// This is the answer: each change once, with the types in which it is.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_DIFF_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_DIFF_H

#include "tools/opxml/catalog/EntryKinds.h"
#include "tools/opxml/diff/DiffRules.h"
#include "tools/opxml/output/DevTypes.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

enum class EnChange : std::int32_t
{
    Gained,
    Lost,
    Changed,
    Moved,  // others stand before it now
    Unread, // one side cannot be read, so nothing else is said about it
};

// Where something stands, in numbers, since there may be very many. Line 0: no place.
struct StDiffPlace
{
    std::uint32_t ulFile   = 0; // of StDiff::lstFile
    std::uint32_t ulLine   = 0;
    std::uint32_t ulColumn = 0;
};

// One type in which a change is.
struct StDiffSite
{
    std::uint32_t ulType     = 0; // of StDiff::lstType
    std::uint32_t ulSoftware = 0; // of StDiff::lstSoftware: the versions in service that it concerns
    StDiffPlace   stOld;          // of the entry, or of the value that changed
    StDiffPlace   stNew;
};

struct StChange
{
    const StDiffRule*       pRule  = nullptr; // id and impact
    EnChange                enWhat = EnChange::Changed;
    const StEntryKind*      pKind  = nullptr; // null: a type or a version as a whole
    std::string             strPath;          // "Backup/ContentType"; empty for a type as a whole
    std::string             strField;         // what changed of it, as authors write it: "isCancelable"
    std::string             strOld;           // what it said: the field, or all that is lost
    std::string             strNew;
    std::string             strRename; // of a loss or gain: the id that came or went in its place, perhaps
    std::vector<StDiffSite> lstSite;   // in the order of a load; never empty
};

// A device of the old side that loses something: breaking changes of the configuration
// that serves it.
struct StHurtDevice
{
    std::uint32_t              ulDeviceID = 0;
    std::string                strName;
    std::string                strAddress;
    std::string                strDevType;
    std::string                strDevTypeVer;
    std::vector<std::uint32_t> lstChange; // of StDiff::lstChange
};

struct StDiff
{
    std::vector<StChange>         lstChange;   // by impact, the worst first; then as they were met
    std::vector<StRegisteredType> lstType;     // registry entries with a change, in the order of a load
    std::vector<std::string>      lstSoftware; // "V4.2 P03, V5.0"; the first one is empty: all versions
    std::vector<std::string>      lstFile;     // of both sides, as they can be opened from here
    std::vector<StHurtDevice>     lstDevice;   // by id
    std::size_t                   nTypes = 0;  // registry entries that were compared

    bool isEmpty() const { return lstChange.empty(); }
};

#endif

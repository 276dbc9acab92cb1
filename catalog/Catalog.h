// The catalog: what stands where. Every entry of one device type's configuration as
// the server has it in effect, with modules merged and capacity applied: its path of
// ids, what it says, the place it was read from, where that file belongs, and whether
// it counts. Plain values, that outlive the documents they were read from.
// Made by the real readers while they are listened to (CCatalogMaker); lint's rules of
// sense, explanations, searches and comparisons stand on it, and none of them walks
// records by itself.
#ifndef OPERATIONXML_CATALOG_CATALOG_H
#define OPERATIONXML_CATALOG_CATALOG_H

#include "reader/ConfigPlan.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace catalog
{
// Some characters of one line of a file; lines and columns from 1, columns in
// characters, a tab as one. Line 0: no place, or the whole file.
struct StPlace
{
    std::uint32_t ulFile   = 0; // in StTypeCatalog::lstFile
    std::uint32_t ulLine   = 0;
    std::uint32_t ulColumn = 0;
    std::uint32_t ulLength = 0;
};

// Where an entry comes from.
enum class EnOrigin : std::int32_t
{
    OwnFile,
    CommonFile,
    TelnetTwin,
    TelnetCheckFile,
    FixedCheckFile,
    Module, // strModule says which
    CapacityDocument,
};

// What became of an entry.
enum class EnEntryFate : std::int32_t
{
    Counts,
    Shadowed, // a question for its id is answered by an earlier entry: stBecause
    Dropped,  // the reader left it out: strReason
    Pruned,   // a capacity entry took it out: stBecause
};

enum class EnFieldKind : std::int32_t
{
    Text,
    Number,
    Flag,
    Word,
};

// One field of a record, under its record name.
struct StField
{
    const char* pszName = nullptr; // "bIsCancelable"
    EnFieldKind enKind  = EnFieldKind::Text;
    std::string strValue; // as people read it: a number in decimal, a flag as 0 or 1, a word as written in files
                          // (empty where no word stands for what was read)
    StPlace stPlace;      // of the attribute's value; line 0 when the attribute is not there
};

// One record, and the records in it. One that was dropped or pruned has its id and
// place alone.
struct StEntry
{
    const char*          pszRecord = nullptr; // "StAsnOperation"
    std::string          strId;               // what tells it from its siblings: id, name or task type; may be empty
    std::vector<StField> lstField;            // in the order of the record's table, lists left out
    StPlace              stPlace;             // of the element's name
    EnOrigin             enOrigin = EnOrigin::OwnFile;
    std::string          strModule;
    EnEntryFate          enFate = EnEntryFate::Counts;
    StPlace              stBecause;
    std::string          strReason;
    std::vector<StEntry> lstChild; // all lists of the record, in its order

    const StField* field(const char* pszName) const; // null when the record has no such field
};

// The entries of one section, in the order of the record's list, and where they
// stood for those that are in no list any more.
struct StSection
{
    std::size_t          nRow = 0; // of the table of sections
    std::vector<StEntry> lstEntry;
};

struct StVersion
{
    std::string strSoftVersion;
    std::string strPatchVersion;
};

// One configuration. A capacity-capable type has one for each distinct result among
// its versions in service, any other type has one.
struct StConfiguration
{
    std::vector<StVersion> lstVersion;
    std::vector<StSection> lstSection; // every section, in the order of their table
};

// One entry of a capacity document.
struct StCapacityEntry
{
    std::string          strSysOid;
    StPlace              stPlace;         // of the sysoid
    bool                 bIsRead = false; // the one that narrows the type
    std::vector<StEntry> lstOperation;    // what it lists, if it is read: operations with parameters and options
};

// A document that narrows the common file; versions name it (StVersionLoad::strFile).
struct StCapacityDocument
{
    std::uint32_t                ulFile = 0; // in StTypeCatalog::lstFile
    std::vector<StCapacityEntry> lstEntry;   // all of the document, in its order
};

struct StTypeCatalog
{
    std::string                     strKey; // storage key
    std::string                     strDevType;
    std::string                     strDevTypeVer;
    std::string                     strDevSysOid;
    StConfigPlan                    stPlan;           // the files, each with its origin
    std::uint32_t                   ulResult = 0;     // of the read, as in the load report
    StConfigOrigin                  stOrigin;         // where the configuration came from, or why there is none
    std::vector<std::string>        lstFile;          // what the places name; those of the modules first
    std::vector<StConfiguration>    lstConfiguration; // the first one answers the questions; none when the read failed
    std::vector<StCapacityDocument> lstCapacityDocument;
};

// One device type that a module names.
struct StSupportedType
{
    std::string strDevType;
    StPlace     stPlace; // of the name
};

// One module file.
struct StModuleCatalog
{
    std::string                  strFile;
    std::uint32_t                ulFile = 0; // its number in the places, those of types included
    std::string                  strName;    // empty when it was not read that far
    StPlace                      stName;     // of the name
    std::vector<StSupportedType> lstSupported;
    std::vector<StSection>       lstSection;   // as of a type; none when the module is refused
    std::uint32_t                ulResult = 0; // 0: device types get it
    StReadProblem                stProblem;    // why not
};
} // namespace catalog

#endif

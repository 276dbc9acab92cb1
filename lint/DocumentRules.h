// The rules that one document is held against by itself, after its readers have read
// it: names that nobody asked for, and values that read as something else. Each
// mistake gives one finding, where it was made.
#ifndef OPERATIONXML_LINT_DOCUMENTRULES_H
#define OPERATIONXML_LINT_DOCUMENTRULES_H

#include "lint/FileReport.h"
#include "lint/ReadTree.h"

#include <set>
#include <string>

namespace lint
{
// A document that was read.
struct StReadDocument
{
    EnFileKind                      enKind;
    const CReadTree&                oTree;
    const catalog::CDocumentPlaces& oPlaces;
};

// What stands in a file and does not count because of a mistake that is told
// already: ids and names of entries that were lost with it. Nothing else is said
// about those.
struct StLostNames
{
    std::set<std::string> setText;
};

// Elements, attributes and texts that nobody reads (NameRules.cpp).
void checkNames(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost);

// Words, numbers and flags (ValueRules.cpp).
void checkValues(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost);

// Ids and attributes without which an entry is useless (EntryRules.cpp).
void checkEntries(const StReadDocument& stRead, CFileReport& oReport, StLostNames& stLost);

// What is said twice or inside something else; after all of the above, whose
// mistakes it does not repeat (DefinitionRules.cpp).
void checkDefinitions(const StReadDocument& stRead, CFileReport& oReport, const StLostNames& stLost);

// Records of alarm tables and file-check rules (TableRules.cpp).
void checkTable(const StReadDocument& stRead, CFileReport& oReport);

// Comments that allow something.
void takeAllowances(const catalog::CDocumentPlaces& oPlaces, CFileReport& oReport);
} // namespace lint

#endif

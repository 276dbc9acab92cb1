// Which rule a change of an entry falls under. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_ENTRYRULES_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_ENTRYRULES_H

#include "tools/opxml/diff/Diff.h"

#include <string_view>

// Of an entry that is on one side only; strSection is the list of the configuration that
// holds it.
const StDiffRule& ruleOfEntry(const StEntryKind& stKind, std::string_view strSection, const catalog::StEntry& stEntry,
                              EnChange enWhat);

// Of a field that says something else.
const StDiffRule& ruleOfField(const StEntryKind& stKind, std::string_view strSection, const catalog::StField& stOld,
                              const catalog::StField& stNew);

// Of siblings in another order; null where their order is no answer.
const StDiffRule* ruleOfOrder(const StEntryKind& stKind, bool bBackupContent);

#endif

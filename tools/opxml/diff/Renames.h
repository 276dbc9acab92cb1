// Which of the ids that came is what one that went is called now, perhaps. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_RENAMES_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_RENAMES_H

#include "tools/opxml/diff/EntryPairs.h"

#include <map>
#include <string>

// For entries that were lost or gained, the id of the one that was gained or lost in its
// place: its twin in all but the id, or one spelt nearly alike. Each is taken once.
std::map<const catalog::StEntry*, std::string> suggestRenames(const StEntryPairs& stPairs);

#endif

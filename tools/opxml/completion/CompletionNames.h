// Names that the server root knows, for completion: types, versions and devices from
// the inventory, operations from the file of the one type that is named.
#ifndef OPERATIONXML_TOOLS_OPXML_COMPLETION_COMPLETIONNAMES_H
#define OPERATIONXML_TOOLS_OPXML_COMPLETION_COMPLETIONNAMES_H

#include "tools/opxml/completion/Completion.h"

#include <map>
#include <string>
#include <vector>

// What stands in the line already, by the name of the argument: "TYPE", "VERSION", …
using ArgumentValues = std::map<std::string, std::string>;

// Candidates for an argument of this name, as the help has it ("TYPE", "DEVICE-ID");
// a name that means nothing here has none. What the root knows needs an open one.
std::vector<StCandidate> namesFor(const std::string& strArgument, const ArgumentValues& mapValue);

#endif

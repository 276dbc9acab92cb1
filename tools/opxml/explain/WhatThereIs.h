// What there is instead of something that is missing: the ids beside it, for offers and
// near misses.
#ifndef OPERATIONXML_TOOLS_OPXML_EXPLAIN_WHATTHEREIS_H
#define OPERATIONXML_TOOLS_OPXML_EXPLAIN_WHATTHEREIS_H

#include "tools/opxml/explain/Stands.h"

#include <cstddef>
#include <string>
#include <vector>

struct StThereIs
{
    std::vector<std::string> lstName;  // ids
    std::vector<std::string> lstShown; // each once, an option with its number: "1 CONFIG"
};

// At the level of the last id of what is missing: operations of the kinds that are wanted,
// parameters of the operation, options of the parameter.
StThereIs whatThereIs(const catalog::StTypeCatalog& stCatalog, std::size_t nConfiguration, const StWanted& stMissing);

#endif

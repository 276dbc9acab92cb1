// Which registry entries of two roots are compared, and which of those that came may be
// one that went. Stateless.
#ifndef OPERATIONXML_TOOLS_OPXML_DIFF_COMPAREDTYPES_H
#define OPERATIONXML_TOOLS_OPXML_DIFF_COMPAREDTYPES_H

#include "tools/opxml/diff/ServerSide.h"

#include <map>
#include <string>
#include <vector>

// Those of the old root, then those that the new one has beside them; of these names, if
// any are given. Throws CTrouble for a name that neither has.
std::vector<StRegisteredType> comparedTypes(const CServerSide& oOld, const CServerSide& oNew,
                                            const std::vector<std::string>& lstWanted);

// "LX 2400/S V3.7".
std::string fullName(const StRegisteredType& stType);

// By full name: what an entry that went may be called now, and the other way round.
// Another version of the type, or a type spelt nearly alike; each is taken once.
std::map<std::string, std::string> typeRenames(const CServerSide& oOld, const CServerSide& oNew);

#endif

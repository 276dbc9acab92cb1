// What modules have to do with something that is not offered.
#ifndef OPERATIONXML_TOOLS_OPXML_EXPLAIN_MODULEOBSTACLES_H
#define OPERATIONXML_TOOLS_OPXML_EXPLAIN_MODULEOBSTACLES_H

#include "tools/opxml/explain/Obstacles.h"

#include <string>
#include <vector>

// Modules that have it, and why the type has it not all the same.
std::vector<StObstacle> moduleObstacles(CServedKeys& oKeys, const std::string& strDevType, const StWanted& stWanted);

// Module files that could not be read and mention its last id.
std::vector<StObstacle> brokenModules(CServedKeys& oKeys, const StWanted& stWanted);

#endif

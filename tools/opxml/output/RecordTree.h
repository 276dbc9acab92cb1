// One configuration as a readable tree, section by section.
#ifndef OPERATIONXML_TOOLS_OPXML_OUTPUT_RECORDTREE_H
#define OPERATIONXML_TOOLS_OPXML_OUTPUT_RECORDTREE_H

#include "records/RootRecords.h"
#include "tools/opxml/output/Sections.h"
#include "tools/opxml/output/Tree.h"

#include <vector>

// Adds the sections of a record below stTree; what modules contributed is marked
// as theirs, and an id that the type defines itself is pointed out.
void addRecord(StTree& stTree, const StAsnDevTypeVerXMLInfo& stInfo,
               const std::vector<StContribution>& lstContribution);

#endif

// What one software module adds to the device types it names.
#ifndef OPERATIONXML_RECORDS_MODULERECORDS_H
#define OPERATIONXML_RECORDS_MODULERECORDS_H

#include "records/RootRecords.h"

#include <list>
#include <map>
#include <string>

struct StAsnModuleInfoVerXMLInfo
{
    std::list<std::string> lstSupportDevType; // "dev" names, document order, repeats kept
    StAsnOperationConfig   stOperationConfig;
    StAsnViewConfig        stViewConfig; // read, never merged; no isolation view menu: that list stays empty
    std::list<StAsnTaskConfigInfoOperation> lstTaskConfigInfoOperation;
};

// All modules by name.
using ModuleInfoMap = std::map<std::string, StAsnModuleInfoVerXMLInfo>;

#endif

// Where the module configurations lie, and what a device type gets of one that names
// it. Called by the database and by the catalog, which reads types a second time.
// Stateless; works on the caller's records. May throw.
#ifndef OPERATIONXML_READER_MODULEAPPEND_H
#define OPERATIONXML_READER_MODULEAPPEND_H

#include "platform/Export.h"
#include "records/ModuleRecords.h"

#include <string>

OPERATIONXML_API std::string moduleFolder();

// Appends copies of a module's operations and task configurations to a record, or,
// when something is thrown, none.
OPERATIONXML_API void appendModule(const StAsnModuleInfoVerXMLInfo& stModule, StAsnDevTypeVerXMLInfo& stInfo);

#endif

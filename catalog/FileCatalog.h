// The catalog of one configuration file by itself: its sections as the reader of device
// types would read them, without modules, capacity or check files. Needs no platform but
// the settings and the log; stateless. No exception leaves it.
#ifndef OPERATIONXML_CATALOG_FILECATALOG_H
#define OPERATIONXML_CATALOG_FILECATALOG_H

#include "catalog/Catalog.h"
#include "platform/Export.h"

#include <string>

namespace catalog
{
// A file that cannot be read gives a catalog without configuration, whose origin says
// why.
OPERATIONXML_API StTypeCatalog makeFileCatalog(const std::string& strFile);
} // namespace catalog

#endif

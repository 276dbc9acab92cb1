// Adds to what is shown of a configuration where each record stands. The catalog has
// the records of the store as entries in the same order, so that both are walked
// together.
#ifndef OPERATIONXML_TOOLS_OPXML_CATALOG_RECORDPLACES_H
#define OPERATIONXML_TOOLS_OPXML_CATALOG_RECORDPLACES_H

#include "catalog/Catalog.h"
#include "tools/opxml/output/RecordJson.h"
#include "tools/opxml/output/Tree.h"

// A tree as addRecord() makes it, by configuration of the catalog: FILE:LINE:COLUMN
// behind every line that stands for a record.
void addPlaces(StTree& stTree, const catalog::StTypeCatalog& stCatalog, std::size_t nConfiguration);

// Likewise the JSON form of the record: "place" in every record that was read from a file.
void addPlaces(Json& oInfo, const catalog::StTypeCatalog& stCatalog, std::size_t nConfiguration);

#endif

// The registered device types of the open root by name, and their catalogs one after the other:
// whatever the size of a server, one of them is in memory at a time.
#ifndef OPERATIONXML_TOOLS_OPXML_CATALOG_SERVERCATALOGS_H
#define OPERATIONXML_TOOLS_OPXML_CATALOG_SERVERCATALOGS_H

#include "catalog/CatalogMaker.h"
#include "tools/opxml/output/DevTypes.h"

#include <functional>
#include <string>
#include <vector>

// Those of this name: "TYPE", a storage key, or either with ":VERSION" behind it.
std::vector<StRegisteredType> typesNamed(const std::vector<StRegisteredType>& lstType, const std::string& strName);

// Their names, and keys that differ from them, for suggestions.
std::vector<std::string> namesOf(const std::vector<StRegisteredType>& lstType);

// Makes the catalog of each in turn, with a progress bar; their files are parsed ahead. A type that cannot be read has
// one without configurations.
void readCatalogs(catalog::CCatalogMaker& oMaker, const std::vector<StRegisteredType>& lstType,
                  const std::function<void(const catalog::StTypeCatalog&)>& fnType);

// Why a catalog has no configuration, with the file and the place in it; empty when it has one.
std::string whyNotRead(const catalog::StTypeCatalog& stType);

#endif

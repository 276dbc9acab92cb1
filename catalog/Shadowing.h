// Which entries no question reaches, because an earlier one of the id answers it.
// Called by the catalog's maker for every section. Stateless.
#ifndef OPERATIONXML_CATALOG_SHADOWING_H
#define OPERATIONXML_CATALOG_SHADOWING_H

#include "catalog/Catalog.h"

#include <cstddef>

namespace catalog
{
// Marks the entries of a section, and the parameters of its operations.
void markShadowed(StSection& stSection);
} // namespace catalog

#endif

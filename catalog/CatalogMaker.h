// CCatalogMaker: reads device types the way the start-up load would, while it is
// listened to, and hands out what they have in effect as values (Catalog.h).
// Called by lint and by tools that say where and why. Asks the platform what the load
// would ask and raises no event; the readers log what they would log. One thread at a
// time, and one maker: the observer of a read is one for the process. No exception
// leaves: a type over which one is thrown has failed.
#ifndef OPERATIONXML_CATALOG_CATALOGMAKER_H
#define OPERATIONXML_CATALOG_CATALOGMAKER_H

#include "catalog/Catalog.h"
#include "catalog/PlacedParser.h"
#include "platform/Export.h"

#include <memory>
#include <string>
#include <vector>

namespace catalog
{
class OPERATIONXML_API CCatalogMaker
{
public:
    // Reads all modules.
    CCatalogMaker();
    ~CCatalogMaker();
    CCatalogMaker(const CCatalogMaker&)            = delete;
    CCatalogMaker& operator=(const CCatalogMaker&) = delete;

    // Reads one type, named as in the registry, with modules merged and capacity applied.
    StTypeCatalog make(const std::string& strDevType, const std::string& strDevTypeVer);

    // Every module file, in the order in which they are found, and what could not be
    // looked into.
    const std::vector<StModuleCatalog>& modules() const;
    const std::vector<StReadProblem>&   moduleProblems() const;

    // The parsed file, for rules on documents: of the type that was made last, or the
    // common file. Null when it is not kept; valid until the next make().
    CPlacedParser* document(const std::string& strFile) const;

private:
    class CImpl;
    std::unique_ptr<CImpl> m_pImpl;
};
} // namespace catalog

#endif

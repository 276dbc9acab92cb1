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

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace catalog
{
// Is handed each file that was parsed, before it is read, also one without a document;
// valid for the call. It may have the document read for itself.
using DocumentSink = std::function<void(const std::string& strFile, EnOrigin enOrigin, CPlacedParser& oParser)>;

// Is told the result when the files of a type have been read, while the last documents
// are there still: for whoever heard along (common/ReadObserver.h).
using ReadSink = std::function<void(std::uint32_t ulResult)>;

// A device type as the registry names it.
struct StTypeName
{
    std::string strDevType;
    std::string strDevTypeVer;
};

class OPERATIONXML_API CCatalogMaker
{
public:
    // Reads all modules.
    explicit CCatalogMaker(const DocumentSink& fnParsed = {});
    ~CCatalogMaker();
    CCatalogMaker(const CCatalogMaker&)            = delete;
    CCatalogMaker& operator=(const CCatalogMaker&) = delete;

    // make() is called for these next, in this order: their files are parsed ahead, on
    // as many threads as a load takes. Their threads end with the maker.
    void expect(const std::vector<StTypeName>& lstType);

    // Reads one type, named as in the registry, with modules merged and capacity applied.
    StTypeCatalog make(const std::string& strDevType, const std::string& strDevTypeVer, const ReadSink& fnRead = {});

    // Every module file, in the order in which they are found, and what could not be
    // looked into.
    const std::vector<StModuleCatalog>& modules() const;
    const std::vector<StReadProblem>&   moduleProblems() const;

private:
    class CImpl;
    std::unique_ptr<CImpl> m_pImpl;
};
} // namespace catalog

#endif

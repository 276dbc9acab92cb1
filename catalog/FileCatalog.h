// The catalog of one configuration file by itself, and of two that are compared: their
// sections as the reader of device types would read them, without modules, capacity or
// check files. Needs no platform but the settings and the log. No exception leaves it.
#ifndef OPERATIONXML_CATALOG_FILECATALOG_H
#define OPERATIONXML_CATALOG_FILECATALOG_H

#include "catalog/Catalog.h"
#include "platform/Export.h"

#include <memory>
#include <string>
#include <vector>

namespace catalog
{
// A file that cannot be read gives a catalog without configuration, whose origin says
// why.
OPERATIONXML_API StTypeCatalog makeFileCatalog(const std::string& strFile);

struct StFilePair
{
    std::string strOld;
    std::string strNew;
};

// Reads two files of which only the differences matter: a section whose elements are
// written alike in both is left empty in both. One thread.
class OPERATIONXML_API CFilePairReader
{
public:
    CFilePairReader();
    ~CFilePairReader();
    CFilePairReader(const CFilePairReader&)            = delete;
    CFilePairReader& operator=(const CFilePairReader&) = delete;

    // make() is called for these next, in this order: their files are parsed ahead, on
    // as many threads as a load takes.
    void expect(const std::vector<StFilePair>& lstPair);

    // False when one of them cannot be read; the catalogs say nothing then.
    bool make(const std::string& strOld, const std::string& strNew, StTypeCatalog& stOld, StTypeCatalog& stNew);

private:
    class CImpl;
    std::unique_ptr<CImpl> m_pImpl;
};
} // namespace catalog

#endif

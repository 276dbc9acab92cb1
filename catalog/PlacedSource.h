// CPlacedSource: hands the readers documents whose places are known, and tells the
// recorder of each. Keeps a few of them parsed: the common file, which many types
// use, and the last ones. One thread.
#ifndef OPERATIONXML_CATALOG_PLACEDSOURCE_H
#define OPERATIONXML_CATALOG_PLACEDSOURCE_H

#include "catalog/CatalogMaker.h"
#include "catalog/ReadRecorder.h"
#include "reader/ConfigPlan.h"
#include "reader/DocumentSource.h"

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace catalog
{
class CPlacedSource final : public CDocumentSource
{
public:
    CPlacedSource(CReadRecorder& oRecorder, EnOrigin enOrigin, DocumentSink fnParsed = {})
        : m_oRecorder(oRecorder), m_enOrigin(enOrigin), m_fnParsed(std::move(fnParsed))
    {
    }

    // The files of a plan are about to be read. The first ones have their numbers.
    void begin(const StConfigPlan& stPlan, std::vector<std::string> lstFile, const std::string& strCommonFile);

    void parse(const std::string& strFile, EnConfigSource enSource, std::shared_ptr<CXmlParser>& pParser) override;

    // The number of a file in the places, and all of them.
    std::uint32_t                   numberOf(const std::string& strFile);
    const std::vector<std::string>& files() const { return m_lstFile; }

private:
    struct StKept
    {
        std::string                    strFile;
        std::shared_ptr<CPlacedParser> pParser;
    };

    // A parser with nothing in it that is wanted: one that is kept too long, or a new one.
    std::shared_ptr<CPlacedParser> freeParser();

    CReadRecorder&                  m_oRecorder;
    EnOrigin                        m_enOrigin; // of files that no plan names
    DocumentSink                    m_fnParsed; // may be empty
    std::map<std::string, EnOrigin> m_mapOrigin;
    std::vector<std::string>        m_lstFile;
    std::string                     m_strCommonFile;
    std::list<StKept>               m_lstKept; // the one used last is the last one
};
} // namespace catalog

#endif

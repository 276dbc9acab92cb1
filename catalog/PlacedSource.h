// CPlacedSource: hands the readers documents whose places are known, and tells the
// recorder of each. They come from where the load has its own (reader/LoadDocuments.h):
// kept, and parsed ahead for types that are announced. One thread.
#ifndef OPERATIONXML_CATALOG_PLACEDSOURCE_H
#define OPERATIONXML_CATALOG_PLACEDSOURCE_H

#include "catalog/CatalogMaker.h"
#include "catalog/ReadRecorder.h"
#include "reader/ConfigPlan.h"
#include "reader/LoadDocuments.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace catalog
{
// Parsers that know the places, as all documents of catalogs are parsed.
extern const StParserKind PLACED_PARSERS;

class CPlacedSource final : public CDocumentSource
{
public:
    CPlacedSource(CReadRecorder& oRecorder, EnOrigin enOrigin, DocumentSink fnParsed = {});

    // These types are read from now on, in this order.
    void expect(const std::vector<StLoadType>& lstType);

    // The files of a plan are about to be read. The first ones have their numbers.
    void begin(const StConfigPlan& stPlan, std::vector<std::string> lstFile);

    // What was read is not wanted again, save by types that are announced; its readers
    // are gone. Until then as many documents are kept as there is room for.
    void end() noexcept { m_pDocuments->endType(); }

    void parse(const std::string& strFile, EnConfigSource enSource, std::shared_ptr<CXmlParser>& pParser) override;

    // The number of a file in the places, and all of them.
    std::uint32_t                   numberOf(const std::string& strFile);
    const std::vector<std::string>& files() const { return m_lstFile; }

private:
    CReadRecorder&                  m_oRecorder;
    EnOrigin                        m_enOrigin; // of files that no plan names
    DocumentSink                    m_fnParsed; // may be empty
    std::unique_ptr<CLoadDocuments> m_pDocuments;
    std::map<std::string, EnOrigin> m_mapOrigin;
    std::vector<std::string>        m_lstFile;
};
} // namespace catalog

#endif

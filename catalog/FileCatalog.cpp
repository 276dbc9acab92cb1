// See FileCatalog.h.
#include "catalog/FileCatalog.h"

#include "catalog/PlacedSource.h"
#include "catalog/SectionMaker.h"
#include "records/ResultCodes.h"

#include <cstdint>
#include <memory>

namespace catalog
{
namespace
{
// As the section chain reads them, which is the library's own: until one fails.
std::uint32_t readSections(CXmlParser& oParser, StAsnDevTypeVerXMLInfo& stInfo, CReadRecorder& oRecorder)
{
    const ReadObserver::CScope oScope(oRecorder);
    std::uint32_t              ulResult = DC_RESULT_OK;
    std::size_t                nRow     = 0;
    forEachSection(
        [&](const auto& stSection)
        {
            auto& lstRecord = listOf(stInfo, stSection.pList);
            oRecorder.sectionRead(nRow++, &lstRecord);
            if (ulResult == DC_RESULT_OK)
                ulResult = stSection.read(&oParser, lstRecord);
        });
    return ulResult;
}
} // namespace

StTypeCatalog makeFileCatalog(const std::string& strFile)
try
{
    StTypeCatalog stCatalog;
    CReadRecorder oRecorder;
    CPlacedSource oSource(oRecorder, EnOrigin::OwnFile);
    oSource.begin({}, {}, "");
    std::shared_ptr<CXmlParser> pParser;
    {
        const ReadObserver::CScope oScope(oRecorder);
        oSource.parse(strFile, EnConfigSource::OwnFile, pParser);
    }
    stCatalog.lstFile           = oSource.files();
    stCatalog.stOrigin.strFile  = strFile;
    stCatalog.stOrigin.enSource = EnConfigSource::OwnFile;
    if (pParser == nullptr || pParser->getDocument() == nullptr)
    {
        stCatalog.ulResult = DC_RESULT_XML_ERROR;
        if (pParser != nullptr)
            stCatalog.stOrigin.stProblem = pParser->problem();
        return stCatalog;
    }
    StAsnDevTypeVerXMLInfo stInfo;
    stCatalog.ulResult = readSections(*pParser, stInfo, oRecorder);
    if (stCatalog.ulResult == DC_RESULT_OK)
        stCatalog.lstConfiguration.push_back({{}, makeSections(oRecorder, stInfo, {})});
    return stCatalog;
}
catch (...)
{
    StTypeCatalog stFailed;
    stFailed.ulResult = DC_RESULT_XML_ERROR;
    return stFailed;
}
} // namespace catalog

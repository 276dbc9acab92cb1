// See FileCatalog.h.
#include "catalog/FileCatalog.h"

#include "catalog/PlacedSource.h"
#include "catalog/SectionMaker.h"
#include "records/ResultCodes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace catalog
{
namespace
{
using Rows = std::array<bool, SECTION_COUNT>;

// As the section chain reads them, which is the library's own: until one fails. Only
// these rows of the table of sections.
std::uint32_t readSections(CXmlParser& oParser, const Rows& arRow, StAsnDevTypeVerXMLInfo& stInfo,
                           CReadRecorder& oRecorder)
{
    const ReadObserver::CScope oScope(oRecorder);
    std::uint32_t              ulResult = DC_RESULT_OK;
    std::size_t                nRow     = 0;
    forEachSection(
        [&](const auto& stSection)
        {
            auto& lstRecord = listOf(stInfo, stSection.pList);
            oRecorder.sectionRead(nRow, &lstRecord);
            if (ulResult == DC_RESULT_OK && arRow.at(nRow))
                ulResult = stSection.read(&oParser, lstRecord);
            ++nRow;
        });
    return ulResult;
}

void addConfiguration(CXmlParser& oParser, const Rows& arRow, CReadRecorder& oRecorder, StTypeCatalog& stCatalog)
{
    StAsnDevTypeVerXMLInfo stInfo;
    stCatalog.ulResult = readSections(oParser, arRow, stInfo, oRecorder);
    if (stCatalog.ulResult == DC_RESULT_OK)
        stCatalog.lstConfiguration.push_back({{}, makeSections(oRecorder, stInfo, {})});
}

// As it stands in the file; nothing for what an entity brought.
std::string_view textOf(const CPlacedParser& oParser, const xercesc::DOMElement& oElement)
{
    const StElementPlace& stPlace = oParser.places().element(oElement);
    if (!stPlace.bWritten)
        return {};
    return std::string_view(oParser.places().text()->bytes())
        .substr(stPlace.stWhole.nBegin, stPlace.stWhole.nEnd - stPlace.stWhole.nBegin);
}

bool isWrittenAlike(const CPlacedParser& oOld, const CPlacedParser& oNew, const char16_t* pszElement)
{
    const ElementList& lstOld = oOld.elements(pszElement);
    const ElementList& lstNew = oNew.elements(pszElement);
    return std::equal(lstOld.begin(), lstOld.end(), lstNew.begin(), lstNew.end(),
                      [&](const xercesc::DOMElement* pOld, const xercesc::DOMElement* pNew)
                      {
                          const std::string_view strOld = textOf(oOld, *pOld);
                          return !strOld.empty() && strOld == textOf(oNew, *pNew);
                      });
}

// With a document type, the same text may mean something else.
Rows differingRows(CPlacedParser& oOld, CPlacedParser& oNew)
{
    const bool  bTyped = oOld.getDocument()->getDoctype() != nullptr || oNew.getDocument()->getDoctype() != nullptr;
    Rows        arRow  = {};
    std::size_t nRow   = 0;
    forEachSection([&](const auto& stSection)
                   { arRow.at(nRow++) = bTyped || !isWrittenAlike(oOld, oNew, stSection.pszElement); });
    return arRow;
}
} // namespace

StTypeCatalog makeFileCatalog(const std::string& strFile)
try
{
    StTypeCatalog stCatalog;
    CReadRecorder oRecorder;
    CPlacedSource oSource(oRecorder, EnOrigin::OwnFile);
    oSource.begin({}, {});
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
    Rows arAll = {};
    arAll.fill(true);
    addConfiguration(*pParser, arAll, oRecorder, stCatalog);
    return stCatalog;
}
catch (...)
{
    StTypeCatalog stFailed;
    stFailed.ulResult = DC_RESULT_XML_ERROR;
    return stFailed;
}

struct CFilePairReader::StSide
{
    CReadRecorder                  oRecorder;
    std::unique_ptr<CPlacedParser> pParser = CPlacedParser::create();

    // Whether there is a document.
    bool parse(const std::string& strFile)
    {
        if (pParser == nullptr)
            return false;
        pParser->parsePlaced(strFile);
        oRecorder.clear();
        oRecorder.documentBegun(*pParser, 0, EnOrigin::OwnFile);
        return pParser->getDocument() != nullptr;
    }
};

CFilePairReader::CFilePairReader() : m_pOld(std::make_unique<StSide>()), m_pNew(std::make_unique<StSide>())
{
}

CFilePairReader::~CFilePairReader() = default;

bool CFilePairReader::make(const std::string& strOld, const std::string& strNew, StTypeCatalog& stOld,
                           StTypeCatalog& stNew)
try
{
    if (!m_pOld->parse(strOld) || !m_pNew->parse(strNew))
        return false;
    const Rows arRow = differingRows(*m_pOld->pParser, *m_pNew->pParser);
    addConfiguration(*m_pOld->pParser, arRow, m_pOld->oRecorder, stOld);
    addConfiguration(*m_pNew->pParser, arRow, m_pNew->oRecorder, stNew);
    stOld.lstFile = {strOld};
    stNew.lstFile = {strNew};
    return stOld.ulResult == DC_RESULT_OK && stNew.ulResult == DC_RESULT_OK;
}
catch (...)
{
    return false;
}
} // namespace catalog

// See FileCatalog.h.
#include "catalog/FileCatalog.h"

#include "catalog/PlacedSource.h"
#include "catalog/SectionMaker.h"
#include "reader/LoadDocuments.h"
#include "reader/LoadThreads.h"
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

class CFilePairReader::CImpl
{
public:
    void expect(const std::vector<StFilePair>& lstPair)
    {
        std::vector<StLoadType> lstRead;
        lstRead.reserve(lstPair.size());
        for (const StFilePair& stPair : lstPair)
            lstRead.push_back({stPair.strOld + '\n' + stPair.strNew, false, false, {stPair.strOld, stPair.strNew}});
        m_pDocuments = std::make_unique<CLoadDocuments>(lstRead, loadThreads::count(), PLACED_PARSERS);
    }

    bool make(const std::string& strOld, const std::string& strNew, StTypeCatalog& stOld, StTypeCatalog& stNew)
    {
        const std::shared_ptr<CXmlParser> pOld = parse(strOld);
        const std::shared_ptr<CXmlParser> pNew = parse(strNew);
        if (pOld == nullptr || pOld->getDocument() == nullptr || pNew == nullptr || pNew->getDocument() == nullptr)
            return false;
        auto&      oOld  = static_cast<CPlacedParser&>(*pOld);
        auto&      oNew  = static_cast<CPlacedParser&>(*pNew);
        const Rows arRow = differingRows(oOld, oNew);
        read(oOld, strOld, arRow, stOld);
        read(oNew, strNew, arRow, stNew);
        return stOld.ulResult == DC_RESULT_OK && stNew.ulResult == DC_RESULT_OK;
    }

    void endPair() noexcept { m_pDocuments->endType(); }

private:
    std::shared_ptr<CXmlParser> parse(const std::string& strFile)
    {
        std::shared_ptr<CXmlParser> pParser;
        m_pDocuments->hand(strFile, EnConfigSource::OwnFile, pParser);
        return pParser;
    }

    void read(CPlacedParser& oParser, const std::string& strFile, const Rows& arRow, StTypeCatalog& stCatalog)
    {
        m_oRecorder.clear();
        m_oRecorder.documentBegun(oParser, 0, EnOrigin::OwnFile);
        addConfiguration(oParser, arRow, m_oRecorder, stCatalog);
        stCatalog.lstFile = {strFile};
    }

    CReadRecorder                   m_oRecorder;
    std::unique_ptr<CLoadDocuments> m_pDocuments =
        std::make_unique<CLoadDocuments>(std::vector<StLoadType>(), 1, PLACED_PARSERS);
};

CFilePairReader::CFilePairReader() : m_pImpl(std::make_unique<CImpl>())
{
}

CFilePairReader::~CFilePairReader() = default;

void CFilePairReader::expect(const std::vector<StFilePair>& lstPair)
try
{
    m_pImpl->expect(lstPair);
}
catch (...) // all is read the same, on one thread
{
}

bool CFilePairReader::make(const std::string& strOld, const std::string& strNew, StTypeCatalog& stOld,
                           StTypeCatalog& stNew)
try
{
    const bool bIsMade = m_pImpl->make(strOld, strNew, stOld, stNew);
    m_pImpl->endPair();
    return bIsMade;
}
catch (...)
{
    return false;
}
} // namespace catalog

// See PlacedSource.h.
#include "catalog/PlacedSource.h"

#include "catalog/PlacedParser.h"
#include "reader/LoadThreads.h"

#include <algorithm>
#include <utility>

namespace catalog
{
namespace
{
EnOrigin originOf(EnConfigSource enSource)
{
    switch (enSource)
    {
    case EnConfigSource::None:
    case EnConfigSource::OwnFile:
        return EnOrigin::OwnFile;
    case EnConfigSource::CommonFile:
        return EnOrigin::CommonFile;
    case EnConfigSource::TelnetTwin:
        return EnOrigin::TelnetTwin;
    case EnConfigSource::Capacity:
    case EnConfigSource::CapacityDocument:
        return EnOrigin::CapacityDocument;
    case EnConfigSource::CheckFile:
        return EnOrigin::TelnetCheckFile;
    case EnConfigSource::FixedCheckFile:
        return EnOrigin::FixedCheckFile;
    }
    return EnOrigin::OwnFile;
}

// Documents follow one another by the thousand, and their memory serves the next one.
// Rules on documents look for texts that stand where none should; blanks are none.
std::shared_ptr<CXmlParser> makeParser()
{
    std::shared_ptr<CPlacedParser> pParser = CPlacedParser::create();
    if (pParser != nullptr)
    {
        pParser->leaveOutBlanks();
        pParser->keepBlocks();
    }
    return pParser;
}

void parseUntold(CXmlParser& oParser, const std::string& strFile)
{
    static_cast<CPlacedParser&>(oParser).parsePlacedUntold(strFile);
}
} // namespace

const StParserKind PLACED_PARSERS = {makeParser, parseUntold};

CPlacedSource::CPlacedSource(CReadRecorder& oRecorder, EnOrigin enOrigin, DocumentSink fnParsed)
    : m_oRecorder(oRecorder), m_enOrigin(enOrigin), m_fnParsed(std::move(fnParsed)),
      m_pDocuments(std::make_unique<CLoadDocuments>(std::vector<StLoadType>(), 1, PLACED_PARSERS))
{
}

void CPlacedSource::expect(const std::vector<StLoadType>& lstType)
{
    m_pDocuments = std::make_unique<CLoadDocuments>(lstType, loadThreads::count(), PLACED_PARSERS);
}

void CPlacedSource::begin(const StConfigPlan& stPlan, std::vector<std::string> lstFile)
{
    m_lstFile = std::move(lstFile);
    m_mapOrigin.clear();
    for (const StPlannedFile* pFile : {&stPlan.stConfig, &stPlan.stCheck, &stPlan.stFixedCheck})
        m_mapOrigin.emplace(pFile->strFile, originOf(pFile->enSource));
    for (const StVersionPlan& stVersion : stPlan.lstVersion)
        m_mapOrigin.emplace(stVersion.stFile.strFile, originOf(stVersion.stFile.enSource));
}

void CPlacedSource::parse(const std::string& strFile, EnConfigSource enSource, std::shared_ptr<CXmlParser>& pParser)
{
    const bool bIsNew = m_pDocuments->hand(strFile, enSource, pParser);
    if (pParser == nullptr)
        return;
    auto&          oPlaced  = static_cast<CPlacedParser&>(*pParser); // no others come from there
    const auto     itOrigin = m_mapOrigin.find(strFile);
    const EnOrigin enOrigin = itOrigin == m_mapOrigin.end() ? m_enOrigin : itOrigin->second;
    if (bIsNew && m_fnParsed)
        m_fnParsed(strFile, enOrigin, oPlaced);
    m_oRecorder.documentBegun(oPlaced, numberOf(strFile), enOrigin);
}

std::uint32_t CPlacedSource::numberOf(const std::string& strFile)
{
    const auto itFile = std::find(m_lstFile.begin(), m_lstFile.end(), strFile);
    const auto nFile  = static_cast<std::uint32_t>(itFile - m_lstFile.begin());
    if (itFile == m_lstFile.end())
        m_lstFile.push_back(strFile);
    return nFile;
}
} // namespace catalog

// See PlacedSource.h.
#include "catalog/PlacedSource.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace catalog
{
namespace
{
constexpr std::size_t KEPT = 4; // besides the common file: all files of a type without capacity

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

// Rules on documents look for texts that stand where none should; blanks are none.
std::shared_ptr<CPlacedParser> newParser()
{
    std::shared_ptr<CPlacedParser> pParser = CPlacedParser::create();
    if (pParser != nullptr)
        pParser->leaveOutBlanks();
    return pParser;
}
} // namespace

void CPlacedSource::begin(const StConfigPlan& stPlan, std::vector<std::string> lstFile,
                          const std::string& strCommonFile)
{
    m_lstFile       = std::move(lstFile);
    m_strCommonFile = strCommonFile;
    m_mapOrigin.clear();
    for (const StPlannedFile* pFile : {&stPlan.stConfig, &stPlan.stCheck, &stPlan.stFixedCheck})
        m_mapOrigin.emplace(pFile->strFile, originOf(pFile->enSource));
    for (const StVersionPlan& stVersion : stPlan.lstVersion)
        m_mapOrigin.emplace(stVersion.stFile.strFile, originOf(stVersion.stFile.enSource));
}

void CPlacedSource::parse(const std::string& strFile, EnConfigSource /*enSource*/, std::shared_ptr<CXmlParser>& pParser)
{
    const auto     itOrigin = m_mapOrigin.find(strFile);
    const EnOrigin enOrigin = itOrigin == m_mapOrigin.end() ? m_enOrigin : itOrigin->second;
    auto           itKept   = std::find_if(m_lstKept.begin(), m_lstKept.end(),
                                           [&](const StKept& stKept) { return stKept.strFile == strFile; });
    if (itKept == m_lstKept.end())
    {
        std::shared_ptr<CPlacedParser> pPlaced = freeParser();
        pParser                                = pPlaced;
        if (pPlaced == nullptr)
            return;
        pPlaced->parsePlaced(strFile);
        if (m_fnParsed)
            m_fnParsed(strFile, enOrigin, *pPlaced);
        m_lstKept.push_back({strFile, std::move(pPlaced)});
        itKept = std::prev(m_lstKept.end());
    }
    else
        m_lstKept.splice(m_lstKept.end(), m_lstKept, itKept);
    pParser = itKept->pParser;
    m_oRecorder.documentBegun(*itKept->pParser, numberOf(strFile), enOrigin);
}

std::shared_ptr<CPlacedParser> CPlacedSource::freeParser()
{
    if (m_lstKept.size() <= KEPT)
        return newParser();
    auto itOldest = m_lstKept.begin();
    if (itOldest->strFile == m_strCommonFile)
        ++itOldest;
    std::shared_ptr<CPlacedParser> pParser = std::move(itOldest->pParser);
    m_lstKept.erase(itOldest);
    if (pParser.use_count() > 1) // a reader has it still
        pParser = newParser();
    return pParser;
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

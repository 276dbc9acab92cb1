// See PlacedParser.h. The scanner knows the byte at which a start tag has ended; the
// tag begins at the last "<" before it, which no attribute value can hold. Elements
// are numbered as they open.
#include "catalog/PlacedParser.h"

#include "common/FileBytes.h"
#include "common/XmlText.h"

#include <xercesc/framework/XMLElementDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/TransService.hpp>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <new>
#include <utility>

using namespace xercesc;

namespace catalog
{
namespace
{
constexpr bool isBlank(char cByte)
{
    return cByte == ' ' || cByte == '\t' || cByte == '\r' || cByte == '\n';
}

// The first byte from a place on that is such a one, or the end of the text.
template <typename Is>
std::size_t findByte(std::string_view strText, std::size_t nFrom, const Is& fnIs)
{
    while (nFrom < strText.size() && !fnIs(strText[nFrom]))
        ++nFrom;
    return nFrom;
}

// Where the name of the encoding stands in the declaration of a text.
StRange declaredEncoding(std::string_view strText)
{
    if (strText.substr(0, 5) != "<?xml")
        return {};
    const std::size_t nEnd  = strText.find("?>");
    const std::size_t nName = strText.substr(0, nEnd).find("encoding");
    const std::size_t nOpen = nName == std::string_view::npos ? nName : strText.find_first_of("\"'", nName);
    if (nOpen == std::string_view::npos || nEnd == std::string_view::npos || nOpen > nEnd)
        return {};
    return {nOpen + 1, strText.find(strText[nOpen], nOpen + 1)};
}

std::string lowerCase(std::string_view strText)
{
    std::string strLower(strText);
    std::transform(strLower.begin(), strLower.end(), strLower.begin(),
                   [](unsigned char cChar) { return static_cast<char>(std::tolower(cChar)); });
    return strLower;
}

// The bytes of a text as the parser holds them, or nothing when they do not fit the
// encoding. In blocks, as the parser does it: what TranscodeFromStr takes of a longer
// text the transcoder of ICU notes behind the end of its memory.
std::u16string wideText(const std::string& strBytes, const char* pszEncoding)
{
    constexpr std::size_t                BLOCK = 2048;
    XMLTransService::Codes               enCode{};
    const std::unique_ptr<XMLTranscoder> pTranscoder(
        XMLPlatformUtils::fgTransService->makeNewTranscoderFor(pszEncoding, enCode, BLOCK));
    std::u16string strWide;
    XMLCh          arWide[BLOCK];
    unsigned char  arSize[BLOCK]; // bytes of each character; asked for, and not used
    for (std::size_t nAt = 0; pTranscoder != nullptr && nAt < strBytes.size();)
    {
        XMLSize_t       nEaten = 0;
        const auto*     pBytes = reinterpret_cast<const XMLByte*>(strBytes.data()) + nAt;
        const XMLSize_t nWide =
            pTranscoder->transcodeFrom(pBytes, strBytes.size() - nAt, arWide, BLOCK, nEaten, arSize);
        if (nEaten == 0)
            return {};
        strWide.append(arWide, nWide);
        nAt += nEaten;
    }
    return strWide;
}

// The same as UTF-8.
std::string decoded(const std::string& strBytes, const char* pszEncoding)
{
    try
    {
        const std::u16string strWide = wideText(strBytes, pszEncoding);
        const TranscodeToStr oUtf8(strWide.c_str(), strWide.size(), "UTF-8");
        const std::string    strUtf8(reinterpret_cast<const char*>(oUtf8.str()), oUtf8.length());
        return strUtf8.compare(0, 3, "\xEF\xBB\xBF") == 0 ? strUtf8.substr(3) : strUtf8;
    }
    catch (const OutOfMemoryException&)
    {
        throw std::bad_alloc();
    }
    catch (const XMLException&)
    {
        return {};
    }
}
} // namespace

const StElementPlace& CDocumentPlaces::element(const DOMElement& oElement) const
{
    static const StElementPlace s_stUnknown;
    const auto                  itNumber = m_mapNumber.find(&oElement);
    return itNumber == m_mapNumber.end() ? s_stUnknown : m_lstElement[itNumber->second];
}

StRange CDocumentPlaces::name(const StElementPlace& stElement) const
{
    const std::string_view strText = std::string_view(m_pText->bytes()).substr(0, stElement.stTag.nEnd);
    const std::size_t      nBegin  = stElement.stTag.nBegin + 1;
    return {nBegin,
            findByte(strText, nBegin, [](char cByte) { return isBlank(cByte) || cByte == '/' || cByte == '>'; })};
}

StSpot CDocumentPlaces::nameSpot(const DOMElement& oElement) const
{
    const StElementPlace& stElement = element(oElement);
    return stElement.stTag.nEnd == 0 ? StSpot{} : spot(name(stElement));
}

void CDocumentPlaces::attributes(const StElementPlace& stElement, std::vector<StAttributePlace>& lstAttribute) const
{
    lstAttribute.clear();
    if (!stElement.bWritten)
        return;
    const std::string_view strText = std::string_view(m_pText->bytes()).substr(0, stElement.stTag.nEnd);
    std::size_t            nAt     = name(stElement).nEnd;
    for (;;)
    {
        const std::size_t nName = findByte(strText, nAt, [](char cByte) { return !isBlank(cByte); });
        const std::size_t nNameEnd =
            findByte(strText, nName, [](char cByte) { return cByte == '=' || isBlank(cByte); });
        const std::size_t nOpen = findByte(strText, nNameEnd, [](char cByte) { return cByte == '"' || cByte == '\''; });
        const std::size_t nClose = nOpen == strText.size() ? nOpen : strText.find(strText[nOpen], nOpen + 1);
        if (nClose >= strText.size())
            return;
        lstAttribute.push_back({strText.substr(nName, nNameEnd - nName), {nName, nNameEnd}, {nOpen + 1, nClose}});
        nAt = nClose + 1;
    }
}

// That of the name, or one without a name.
StAttributePlace CDocumentPlaces::attribute(const DOMElement& oElement, std::string_view strName) const
{
    const StElementPlace&         stElement = element(oElement);
    std::vector<StAttributePlace> lstAttribute;
    attributes(stElement, lstAttribute);
    for (const StAttributePlace& stAttribute : lstAttribute)
    {
        if (stAttribute.strName == strName)
            return stAttribute;
    }
    return {};
}

StSpot CDocumentPlaces::valueSpot(const DOMElement& oElement, std::string_view strName) const
{
    const StAttributePlace stAttribute = attribute(oElement, strName);
    return stAttribute.strName.empty() ? nameSpot(oElement) : spot(stAttribute.stValue);
}

StSpot CDocumentPlaces::attributeSpot(const DOMElement& oElement, std::string_view strName) const
{
    const StAttributePlace stAttribute = attribute(oElement, strName);
    return stAttribute.strName.empty() ? nameSpot(oElement) : spot(stAttribute.stName);
}

std::unique_ptr<CPlacedParser> CPlacedParser::create()
{
    if (CXmlParser::create() == nullptr) // also starts Xerces
        return nullptr;
    return std::unique_ptr<CPlacedParser>(new CPlacedParser());
}

CPlacedParser::CPlacedParser()
{
    setCalculateSrcOfs(true);
}

void CPlacedParser::parsePlaced(const std::string& strPath)
{
    parsePlacedUntold(strPath);
    tellReadListener(problem());
}

void CPlacedParser::parsePlacedUntold(const std::string& strPath)
{
    try
    {
        return readPlaced(strPath);
    }
    catch (const std::bad_alloc&)
    {
        releaseDocument();
        noteMemoryRanOut();
    }
    m_pPlaces = std::make_unique<CDocumentPlaces>(strPath, std::make_shared<CSourceText>(""));
    nameProblem(strPath);
}

void CPlacedParser::readPlaced(const std::string& strPath)
{
    m_lstOpen.clear();
    m_lstPending.clear();
    m_pPlaces.reset(); // nothing is noted before the text is known
    std::string strBytes;
    if (!readFileBytes(strPath, strBytes).empty())
    {
        parseUntold(strPath); // says why
        m_pPlaces = std::make_unique<CDocumentPlaces>(strPath, std::make_shared<CSourceText>(""));
        return;
    }
    if (strBytes.compare(0, 3, "\xEF\xBB\xBF") == 0)
        strBytes.erase(0, 3);
    const StRange     stEncoding = declaredEncoding(strBytes);
    const std::string strEncoding =
        lowerCase(std::string_view(strBytes).substr(stEncoding.nBegin, stEncoding.nEnd - stEncoding.nBegin));
    const bool bWide = strBytes.size() > 1 &&
                       (strBytes[0] == '\0' || strBytes[1] == '\0' || strBytes[0] == '\xFE' || strBytes[0] == '\xFF');
    if (!bWide && (strEncoding.empty() || strEncoding == "utf-8" || strEncoding == "us-ascii"))
    {
        m_pPlaces = std::make_unique<CDocumentPlaces>(strPath, std::make_shared<CSourceText>(std::move(strBytes)));
        parseText(m_pPlaces->text()->bytes());
        return indexElements();
    }
    // Whether the file can be read is decided as the server does; then it is read
    // once more as UTF-8, so that places count characters.
    parseUntold(strPath);
    const std::string strUtf8 = problem().isSet() ? "" : decoded(strBytes, bWide ? "UTF-16" : strEncoding.c_str());
    m_pPlaces =
        std::make_unique<CDocumentPlaces>(strPath, std::make_shared<CSourceText>(strUtf8.empty() ? strBytes : strUtf8));
    if (strUtf8.empty())
        return;
    std::string   strRenamed = strUtf8;
    const StRange stName     = declaredEncoding(strUtf8);
    if (stName.nEnd > stName.nBegin) // blanks keep every place where it is
        strRenamed.replace(stName.nBegin, stName.nEnd - stName.nBegin + 1,
                           std::string("UTF-8") + strUtf8[stName.nEnd] +
                               std::string(stName.nEnd - stName.nBegin - 5, ' '));
    parseText(strRenamed);
    indexElements();
}

bool CPlacedParser::isInEntity() const
{
    return const_cast<CPlacedParser*>(this)->getScanner()->getReaderMgr()->getReaderDepth() > 1;
}

// Looked for back to the last start tag at most, many bytes at once.
StRange CPlacedParser::tagBefore(std::size_t nEnd) const
{
    const std::string_view             strText    = std::string_view(m_pPlaces->m_pText->bytes()).substr(0, nEnd);
    const std::vector<StElementPlace>& lstElement = m_pPlaces->m_lstElement;
    const std::size_t nFrom  = lstElement.empty() ? 0 : std::min(lstElement.back().stTag.nEnd, strText.size());
    const void*       pBegin = memrchr(strText.data() + nFrom, '<', strText.size() - nFrom);
    return {pBegin == nullptr ? 0 : static_cast<std::size_t>(static_cast<const char*>(pBegin) - strText.data()), nEnd};
}

void CPlacedParser::startElement(const XMLElementDecl& oDecl, unsigned int nUri, const XMLCh* pszPrefix,
                                 const RefVectorOf<XMLAttr>& lstAttr, XMLSize_t nAttrs, bool bIsEmpty, bool bIsRoot)
{
    if (m_pPlaces == nullptr)
        return CXmlParser::startElement(oDecl, nUri, pszPrefix, lstAttr, nAttrs, bIsEmpty, bIsRoot);
    StElementPlace stPlace;
    stPlace.bWritten = !isInEntity();
    if (stPlace.bWritten)
        stPlace.stTag = tagBefore(static_cast<std::size_t>(getScanner()->getSrcOffset()));
    else if (!m_lstOpen.empty())
        stPlace.stTag = m_pPlaces->m_lstElement[m_lstOpen.back()].stTag;
    stPlace.stWhole = stPlace.stTag;
    for (const std::size_t nComment : m_lstPending)
        m_pPlaces->m_lstComment[nComment].nElement = m_pPlaces->m_lstElement.size();
    m_lstPending.clear();
    m_lstOpen.push_back(m_pPlaces->m_lstElement.size());
    m_pPlaces->m_lstElement.push_back(stPlace);
    CXmlParser::startElement(oDecl, nUri, pszPrefix, lstAttr, nAttrs, bIsEmpty, bIsRoot);
}

void CPlacedParser::endElement(const XMLElementDecl& oDecl, unsigned int nUri, bool bIsRoot, const XMLCh* pszPrefix)
{
    if (m_pPlaces == nullptr)
        return CXmlParser::endElement(oDecl, nUri, bIsRoot, pszPrefix);
    StElementPlace& stPlace = m_pPlaces->m_lstElement[m_lstOpen.back()];
    stPlace.pElement        = static_cast<const DOMElement*>(fCurrentParent);
    if (stPlace.bWritten)
        stPlace.stWhole.nEnd = static_cast<std::size_t>(getScanner()->getSrcOffset());
    stPlace.nEnd = m_pPlaces->m_lstElement.size();
    m_lstOpen.pop_back();
    m_lstPending.clear(); // a comment at the end of an element stands before none
    CXmlParser::endElement(oDecl, nUri, bIsRoot, pszPrefix);
}

void CPlacedParser::docComment(const XMLCh* pszText)
{
    if (m_pPlaces != nullptr && !isInEntity())
    {
        m_lstPending.push_back(m_pPlaces->m_lstComment.size());
        m_pPlaces->m_lstComment.push_back(
            {toLocal(pszText), tagBefore(static_cast<std::size_t>(getScanner()->getSrcOffset())), NO_ELEMENT});
    }
    CXmlParser::docComment(pszText);
}

void CPlacedParser::indexElements()
{
    nameProblem(m_pPlaces->file());
    std::vector<StElementPlace>& lstElement = m_pPlaces->m_lstElement;
    if (problem().isSet()) // they have gone
    {
        for (StElementPlace& stElement : lstElement)
            stElement.pElement = nullptr;
        return;
    }
    m_pPlaces->m_mapNumber.reserve(lstElement.size());
    for (std::size_t nElement = 0; nElement < lstElement.size(); ++nElement)
        m_pPlaces->m_mapNumber.emplace(lstElement[nElement].pElement, nElement);
}
} // namespace catalog

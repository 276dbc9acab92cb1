// See ReadRecorder.h.
#include "catalog/ReadRecorder.h"

#include "catalog/EntryMaker.h"
#include "common/RecordRead.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

using namespace xercesc;

namespace catalog
{
namespace
{
constexpr const char16_t* TASK_TYPE = u"TaskType";

// To clear a map goes through all of it: that of a huge file is not kept.
constexpr std::size_t MOST_BUCKETS = 65536;

StPlace place(const StSpot& stSpot, std::uint32_t ulFile)
{
    return {ulFile, stSpot.ulLine, stSpot.ulColumn, stSpot.ulLength};
}

const char* reason(EnFate enFate)
{
    switch (enFate)
    {
    case EnFate::Kept:
        return "";
    case EnFate::NotIntegrated:
        return "\"integated\" says that the device does not have it";
    case EnFate::HiddenInClient:
        return "\"GUI\" hides it from the client";
    case EnFate::NoProgramFile:
        return "this server does not back up the program file";
    case EnFate::NoServiceUpgrade:
        return "this server is not set up for in-service upgrades";
    case EnFate::UnknownTaskType:
        return "no task type has this id";
    case EnFate::UpgradeLacksStep:
    case EnFate::LookupFailed:
        return "what stands below it could not be read";
    }
    return "";
}

bool isLower(char cChar)
{
    return cChar >= 'a' && cChar <= 'z';
}

char lower(char cChar)
{
    return cChar >= 'A' && cChar <= 'Z' ? static_cast<char>(cChar - 'A' + 'a') : cChar;
}

// Whether an attribute has the name of a field, case aside.
bool isNamed(std::u16string_view strAttribute, std::string_view strName)
{
    return strAttribute.size() == strName.size() &&
           std::equal(strName.begin(), strName.end(), strAttribute.begin(),
                      [](char cName, char16_t cAttribute)
                      { return cAttribute < 128 && lower(cName) == lower(static_cast<char>(cAttribute)); });
}

bool isSame(std::u16string_view strRead, std::string_view strWritten)
{
    return strRead.size() == strWritten.size() && std::equal(strRead.begin(), strRead.end(), strWritten.begin());
}
} // namespace

// The last attribute of the field's name counts, as it does for its reader.
StPlace CReadRecorder::fieldPlace(const StSeen& stSeen, std::string_view strField) const
{
    std::string_view strName = strField; // without the prefix of its type
    strName.remove_prefix(
        static_cast<std::size_t>(std::find_if_not(strName.begin(), strName.end(), isLower) - strName.begin()));
    if (strField == "strResourceClass")
        strName = "filename";
    const StSeenAttribute* const pFirst = m_lstAttribute.data() + stSeen.nAttribute;
    const StSeenAttribute* const pEnd   = pFirst + stSeen.nAttributes;
    for (std::size_t nAt = stSeen.nAttributes; nAt-- != 0;)
    {
        const StSeenAttribute& stAttribute = pFirst[nAt];
        if (isNamed(stAttribute.strName, strName))
            return stAttribute.stPlace;
        // Telnet check files have a word of their own, which decides where it stands.
        if (strField == "bSelected" && stAttribute.strName == u"checked" && stAttribute.stPlace.ulLine != 0)
            return stAttribute.stPlace;
    }
    if (strField.substr(0, 2) != "en")
        return {};
    // The kind of a patch or task is the one word that stands there.
    const auto fnIsWord = [](const StSeenAttribute& stAttribute) { return stAttribute.enReadAs == EnReadAs::Word; };
    return std::count_if(pFirst, pEnd, fnIsWord) == 1 ? std::find_if(pFirst, pEnd, fnIsWord)->stPlace : StPlace{};
}

void CReadRecorder::clear()
{
    m_mapDocument.clear();
    m_lstSeen.clear();
    m_lstAttribute.clear();
    if (m_mapNumber.bucket_count() > MOST_BUCKETS)
        m_mapNumber = {};
    m_mapNumber.clear();
    m_mapLost.clear();
    m_nOpen = 0;
    m_lstCapacity.clear();
    m_stTaskType = {};
}

void CReadRecorder::documentBegun(CPlacedParser& oParser, std::uint32_t ulFile, EnOrigin enOrigin)
{
    endModules();
    m_nRow       = NO_ROW;
    m_stTaskType = {};
    if (enOrigin == EnOrigin::Module)
        m_pModule = &m_mapModule[ulFile];
    if (const DOMDocument* pDocument = oParser.getDocument())
        m_mapDocument[pDocument] = {&oParser.places(), ulFile, enOrigin};
}

void CReadRecorder::endModules()
{
    StModuleHead* pModule = std::exchange(m_pModule, nullptr);
    if (pModule == nullptr)
        return;
    // By list now, and the lists of a finished module lie elsewhere.
    for (auto itLost = m_mapLost.begin(); itLost != m_mapLost.end();)
    {
        std::vector<StLost>& lstLost = itLost->second;
        const bool           bTop    = !lstLost.empty() && lstLost.front().nList == StLost::IN_SECTION;
        if (bTop)
            std::move(lstLost.begin(), lstLost.end(), std::back_inserter(pModule->lstLost));
        itLost = bTop ? m_mapLost.erase(itLost) : std::next(itLost);
    }
}

const StModuleHead& CReadRecorder::module(std::uint32_t ulFile) const
{
    static const StModuleHead s_stNone;
    if (m_pModules != nullptr)
        return m_pModules->module(ulFile);
    const auto itModule = m_mapModule.find(ulFile);
    return itModule == m_mapModule.end() ? s_stNone : itModule->second;
}

const StSeen* CReadRecorder::find(const void* pRecord) const
{
    const auto itNumber = m_mapNumber.find(pRecord);
    return itNumber == m_mapNumber.end() ? nullptr : &m_lstSeen[itNumber->second];
}

const std::vector<StLost>& CReadRecorder::lost(const void* pParent) const
{
    static const std::vector<StLost> s_lstNone;
    const auto                       itLost = m_mapLost.find(pParent);
    return itLost == m_mapLost.end() ? s_lstNone : itLost->second;
}

const CReadRecorder::StDocument& CReadRecorder::documentOf(const DOMElement& oElement) const
{
    static const CDocumentPlaces s_oNoPlaces("", std::make_shared<CSourceText>(""));
    static const StDocument      s_stUnknown = {&s_oNoPlaces, 0, EnOrigin::OwnFile};
    const auto                   itDocument  = m_mapDocument.find(oElement.getOwnerDocument());
    return itDocument == m_mapDocument.end() ? s_stUnknown : itDocument->second;
}

void CReadRecorder::attributeRead(const StAttributeRead& stRead)
{
    if (m_nOpen != 0)
    {
        StOpen&                   stOpen  = m_lstOpen[m_nOpen - 1];
        const std::u16string_view strName = stRead.pszName;
        if (stRead.pAttr != nullptr && stOpen.strId.empty() && (strName == u"id" || strName == u"name"))
            stOpen.strId = valueOf(*stRead.pAttr);
        stOpen.lstRead.push_back({strName, stRead.enReadAs, placeOf(stOpen, stRead, strName)});
        return;
    }
    // What is read of no record: the task type that checks belong to, the name of a module.
    const StDocument& stDocument = documentOf(stRead.oElement);
    const StPlace     stPlace    = place(
               stRead.pAttr == nullptr ? StSpot{} : stDocument.pPlaces->valueSpot(stRead.oElement, toLocal(stRead.pszName)),
        stDocument.ulFile);
    if (stRead.enReadAs == EnReadAs::Word)
        m_stTaskType = {TASK_TYPE, EnReadAs::Word, stPlace};
    else if (m_pModule != nullptr && m_nRow == NO_ROW && stRead.pAttr != nullptr)
    {
        m_pModule->strName = toLocal(stRead.pAttr->getValue());
        m_pModule->stName  = stPlace;
    }
}

// The place of something in the start tag. Nearly every tag stands in one line, of as many
// bytes as characters.
StPlace CReadRecorder::placeIn(const StOpen& stOpen, const StRange& stRange)
{
    const StSpot& stTag = stOpen.stTagSpot;
    if (stTag.ulLength != stOpen.stTag.nEnd - stOpen.stTag.nBegin)
        return place(stOpen.pDocument->pPlaces->spot(stRange), stOpen.pDocument->ulFile);
    return {stOpen.pDocument->ulFile, stTag.ulLine,
            stTag.ulColumn + static_cast<std::uint32_t>(stRange.nBegin - stOpen.stTag.nBegin),
            static_cast<std::uint32_t>(stRange.nEnd - stRange.nBegin)};
}

StPlace CReadRecorder::placeOf(const StOpen& stOpen, const StAttributeRead& stRead, std::u16string_view strName)
{
    if (stRead.pAttr == nullptr)
        return {};
    const CDocumentPlaces& oPlaces = *stOpen.pDocument->pPlaces;
    if (&stRead.oElement != stOpen.pElement)
        return place(oPlaces.valueSpot(stRead.oElement, toLocal(stRead.pszName)), stOpen.pDocument->ulFile);
    for (const StAttributePlace& stWritten : stOpen.lstWritten)
    {
        if (isSame(strName, stWritten.strName))
            return placeIn(stOpen, stWritten.stValue);
    }
    return stOpen.stSeen.stPlace; // brought by an entity or a declaration
}

void CReadRecorder::recordBegun(const DOMElement& oElement, const void* pRecord, const void* pList)
{
    if (!m_mapLost.empty())
        m_mapLost.erase(pRecord); // of what the address stood for before
    if (m_nOpen == m_lstOpen.size())
        m_lstOpen.emplace_back();
    StOpen&       stOpen  = m_lstOpen[m_nOpen];
    const StOpen* pAround = m_nOpen++ == 0 ? nullptr : &stOpen - 1;
    // Records of one document nest: only the outermost is asked for it.
    stOpen.pDocument = pAround == nullptr ? &documentOf(oElement) : pAround->pDocument;
    stOpen.pRecord   = pRecord;
    stOpen.pElement  = &oElement;
    stOpen.strId     = {};
    stOpen.lstRead.clear();
    const CDocumentPlaces& oPlaces = *stOpen.pDocument->pPlaces;
    const StElementPlace&  stPlace = oPlaces.element(oElement);
    stOpen.stTag                   = stPlace.stTag;
    stOpen.stTagSpot               = stPlace.stTag.nEnd == 0 ? StSpot{} : oPlaces.spot(stPlace.stTag);
    oPlaces.attributes(stPlace, stOpen.lstWritten);
    stOpen.stSeen = {stOpen.stTagSpot.ulLine == 0 ? place({}, stOpen.pDocument->ulFile)
                                                  : placeIn(stOpen, oPlaces.name(stPlace)),
                     stOpen.pDocument->enOrigin, pAround == nullptr ? nullptr : pAround->pRecord, pList};
}

void CReadRecorder::lose(const StSeen& stSeen, StEntry stEntry)
{
    stEntry.stPlace  = stSeen.stPlace;
    stEntry.enOrigin = stSeen.enOrigin;
    if (stSeen.enOrigin == EnOrigin::Module)
        stEntry.strModule = module(stSeen.stPlace.ulFile).strName;
    if (stSeen.pParent == nullptr)
        m_mapLost[stSeen.pList].push_back({StLost::IN_SECTION, m_nRow, std::move(stEntry)});
    else
        m_mapLost[stSeen.pParent].push_back({listOffset(stSeen.pParent, stSeen.pList), m_nRow, std::move(stEntry)});
}

void CReadRecorder::recordEnded(const DOMElement& /*oElement*/, const void* pRecord, EnFate enFate)
{
    StOpen& stOpen = m_lstOpen[--m_nOpen];
    if (enFate != EnFate::Kept)
    {
        StEntry stEntry;
        stEntry.strId     = toLocal(stOpen.strId.data(), stOpen.strId.size());
        stEntry.enFate    = EnEntryFate::Dropped;
        stEntry.strReason = reason(enFate);
        return lose(stOpen.stSeen, std::move(stEntry));
    }
    if (stOpen.stSeen.pParent == nullptr && m_stTaskType.stPlace.ulLine != 0)
        stOpen.lstRead.push_back(m_stTaskType);
    keep(pRecord, stOpen.stSeen, stOpen.lstRead.data(), stOpen.lstRead.size());
    if (m_pModule != nullptr && m_nRow == NO_ROW) // before the sections: a device type
        m_pModule->lstSupported.push_back(
            {toLocal(stOpen.strId.data(), stOpen.strId.size()), fieldPlace(m_lstSeen.back(), "strName")});
}

void CReadRecorder::keep(const void* pRecord, StSeen stSeen, const StSeenAttribute* pAttribute, std::size_t nAttributes)
{
    stSeen.nAttribute  = m_lstAttribute.size();
    stSeen.nAttributes = nAttributes;
    m_lstAttribute.insert(m_lstAttribute.end(), pAttribute, pAttribute + nAttributes);
    m_mapNumber.insert_or_assign(pRecord, m_lstSeen.size());
    m_lstSeen.push_back(stSeen);
}

void CReadRecorder::sectionRead(std::size_t nRow, const void* pList)
{
    m_nRow       = nRow;
    m_stTaskType = {};
    m_mapLost.erase(pList); // of a configuration that was there before
}

void CReadRecorder::capacityRead(const XercesDOMParser& oDOMParser, const DOMElement* pEntry,
                                 const std::list<StAsnOperation>& lstCapacity)
{
    const ElementList  lstEntry = documentElements(oDOMParser, u"upgradecapacity");
    StCapacityDocument stCapacity;
    for (const DOMElement* pElement : lstEntry)
    {
        const StDocument& stDocument = documentOf(*pElement);
        stCapacity.ulFile            = stDocument.ulFile;
        StCapacityEntry& stEntry     = stCapacity.lstEntry.emplace_back();
        stEntry.strSysOid            = toLocal(pElement->getAttribute(u"sysoid"));
        stEntry.stPlace              = place(stDocument.pPlaces->valueSpot(*pElement, "sysoid"), stDocument.ulFile);
        stEntry.bIsRead              = pElement == pEntry;
        if (!stEntry.bIsRead)
            continue;
        for (const StAsnOperation& stOperation : lstCapacity)
            fillEntry(*this, stOperation, stEntry.lstOperation.emplace_back());
    }
    const bool bKnown =
        std::any_of(m_lstCapacity.begin(), m_lstCapacity.end(),
                    [&](const StCapacityDocument& stKnown) { return stKnown.ulFile == stCapacity.ulFile; });
    if (!bKnown && !lstEntry.empty())
        m_lstCapacity.push_back(std::move(stCapacity));
}

void CReadRecorder::recordCopied(const void* pFrom, const void* pTo)
{
    const StSeen* pSeen = m_pModules == nullptr ? nullptr : m_pModules->find(pFrom);
    if (pSeen == nullptr)
        return;
    keep(pTo, *pSeen, m_pModules->m_lstAttribute.data() + pSeen->nAttribute, pSeen->nAttributes);
    m_mapLost.erase(pTo);
    const std::vector<StLost>& lstLost = m_pModules->lost(pFrom);
    if (!lstLost.empty())
        m_mapLost[pTo] = lstLost;
}

void CReadRecorder::recordPruned(const void* pRecord, const std::string& strId, const void* pCapacity)
{
    const StSeen* pSeen   = find(pRecord);
    const StSeen* pDenial = find(pCapacity);
    if (pSeen == nullptr || pDenial == nullptr)
        return;
    StEntry stEntry;
    stEntry.strId     = strId;
    stEntry.enFate    = EnEntryFate::Pruned;
    stEntry.stBecause = pDenial->stPlace;
    lose(*pSeen, std::move(stEntry));
}
} // namespace catalog

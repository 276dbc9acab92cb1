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

StPlace StSeen::fieldPlace(std::string_view strField) const
{
    std::string_view strName = strField; // without the prefix of its type
    strName.remove_prefix(
        static_cast<std::size_t>(std::find_if_not(strName.begin(), strName.end(), isLower) - strName.begin()));
    if (strField == "strResourceClass")
        strName = "filename";
    StPlace     stFound;
    StPlace     stWord;
    std::size_t nWords = 0;
    bool        bNamed = false;
    for (const StSeenAttribute& stAttribute : lstAttribute)
    {
        // Telnet check files have a word of their own, which decides where it stands.
        const bool bChecked = strField == "bSelected" && stAttribute.strName == u"checked";
        if (isNamed(stAttribute.strName, strName) || (bChecked && stAttribute.stPlace.ulLine != 0))
        {
            stFound = stAttribute.stPlace;
            bNamed  = true;
        }
        if (stAttribute.enReadAs == EnReadAs::Word)
        {
            stWord = stAttribute.stPlace;
            ++nWords;
        }
    }
    // The kind of a patch or task is the one word that stands there.
    return !bNamed && nWords == 1 && strField.substr(0, 2) == "en" ? stWord : stFound;
}

void CReadRecorder::clear()
{
    m_mapDocument.clear();
    m_mapSeen.clear();
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
    const auto itSeen = m_mapSeen.find(pRecord);
    return itSeen == m_mapSeen.end() ? nullptr : &itSeen->second;
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
    const std::u16string_view strName = stRead.pszName;
    if (m_nOpen != 0)
    {
        StOpen& stOpen = m_lstOpen[m_nOpen - 1];
        stOpen.lstRead.push_back({&stRead.oElement, strName, stRead.enReadAs, stRead.pAttr != nullptr});
        if (stRead.pAttr != nullptr && stOpen.strId.empty() && (strName == u"id" || strName == u"name"))
            stOpen.strId = toLocal(stRead.pAttr->getValue());
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

void CReadRecorder::recordBegun(const DOMElement& oElement, const void* pRecord, const void* pList)
{
    if (!m_mapLost.empty())
        m_mapLost.erase(pRecord); // of what the address stood for before
    // Records of one document nest: only the outermost is asked for it.
    const StDocument* pDocument = m_nOpen == 0 ? &documentOf(oElement) : m_lstOpen[m_nOpen - 1].pDocument;
    if (m_nOpen == m_lstOpen.size())
        m_lstOpen.emplace_back();
    StOpen& stOpen   = m_lstOpen[m_nOpen++];
    stOpen.pRecord   = pRecord;
    stOpen.pList     = pList;
    stOpen.pDocument = pDocument;
    stOpen.strId.clear();
    stOpen.lstRead.clear();
}

StSeen CReadRecorder::seen(const DOMElement& oElement, const StOpen& stOpen) const
{
    const StDocument& stDocument = *stOpen.pDocument;
    StSeen            stSeen;
    stSeen.stPlace  = place(stDocument.pPlaces->nameSpot(oElement), stDocument.ulFile);
    stSeen.enOrigin = stDocument.enOrigin;
    stSeen.strId    = stOpen.strId;
    stSeen.pParent  = m_nOpen == 0 ? nullptr : m_lstOpen[m_nOpen - 1].pRecord;
    stSeen.pList    = stOpen.pList;
    stSeen.lstAttribute.reserve(stOpen.lstRead.size() + 1);
    const std::vector<StAttributePlace> lstWritten =
        stDocument.pPlaces->attributes(stDocument.pPlaces->element(oElement));
    for (const StRead& stRead : stOpen.lstRead)
    {
        StSeenAttribute& stAttribute = stSeen.lstAttribute.emplace_back();
        stAttribute.strName          = stRead.strName;
        stAttribute.enReadAs         = stRead.enReadAs;
        if (!stRead.bIsThere)
            continue;
        const auto itWritten =
            std::find_if(lstWritten.begin(), lstWritten.end(),
                         [&](const StAttributePlace& stWritten) { return isSame(stRead.strName, stWritten.strName); });
        if (stRead.pElement != &oElement)
            stAttribute.stPlace = place(stDocument.pPlaces->valueSpot(*stRead.pElement, toLocal(stRead.strName.data())),
                                        stDocument.ulFile);
        else if (itWritten != lstWritten.end())
            stAttribute.stPlace = place(stDocument.pPlaces->spot(itWritten->stValue), stDocument.ulFile);
        else
            stAttribute.stPlace = stSeen.stPlace; // brought by an entity or a declaration
    }
    if (stSeen.pParent == nullptr && m_stTaskType.stPlace.ulLine != 0)
        stSeen.lstAttribute.push_back(m_stTaskType);
    return stSeen;
}

void CReadRecorder::lose(const StSeen& stSeen, StEntry stEntry)
{
    stEntry.strId    = stSeen.strId;
    stEntry.stPlace  = stSeen.stPlace;
    stEntry.enOrigin = stSeen.enOrigin;
    if (stSeen.enOrigin == EnOrigin::Module)
        stEntry.strModule = module(stSeen.stPlace.ulFile).strName;
    if (stSeen.pParent == nullptr)
        m_mapLost[stSeen.pList].push_back({StLost::IN_SECTION, m_nRow, std::move(stEntry)});
    else
        m_mapLost[stSeen.pParent].push_back({listOffset(stSeen.pParent, stSeen.pList), m_nRow, std::move(stEntry)});
}

void CReadRecorder::recordEnded(const DOMElement& oElement, const void* pRecord, EnFate enFate)
{
    const StOpen& stOpen = m_lstOpen[--m_nOpen];
    StSeen        stSeen = seen(oElement, stOpen);
    if (enFate != EnFate::Kept)
    {
        StEntry stEntry;
        stEntry.enFate    = EnEntryFate::Dropped;
        stEntry.strReason = reason(enFate);
        return lose(stSeen, std::move(stEntry));
    }
    if (m_pModule != nullptr && m_nRow == NO_ROW) // before the sections: a device type
        m_pModule->lstSupported.push_back({stSeen.strId, stSeen.fieldPlace("strName")});
    m_mapSeen[pRecord] = std::move(stSeen);
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
            stEntry.lstOperation.push_back(makeEntry(*this, stOperation));
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
    m_mapSeen[pTo] = *pSeen;
    m_mapLost.erase(pTo);
    const std::vector<StLost>& lstLost = m_pModules->lost(pFrom);
    if (!lstLost.empty())
        m_mapLost[pTo] = lstLost;
}

void CReadRecorder::recordPruned(const void* pRecord, const void* pCapacity)
{
    const StSeen* pSeen   = find(pRecord);
    const StSeen* pDenial = find(pCapacity);
    if (pSeen == nullptr || pDenial == nullptr)
        return;
    StEntry stEntry;
    stEntry.enFate    = EnEntryFate::Pruned;
    stEntry.stBecause = pDenial->stPlace;
    lose(*pSeen, std::move(stEntry));
}
} // namespace catalog

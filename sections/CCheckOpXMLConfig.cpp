// Check operations: the section of a server configuration file, the telnet check
// file, the fixed check file.
#include "sections/CCheckOpXMLConfig.h"

#include "records/Vocabulary.h"
#include "sections/ItemRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CCheckOpXMLConfig";

constexpr StSection CHECK_SECTION = {
    {DC_SOURCE, "setCheckOpConfiguration", __LINE__},
    u"CheckOperations",
    "pDOMParser is null.",
    "oAsnCheckOperationLst is null.",
    "XercesDOMParser::getDocument failed.",
};

// Both check files begin with the device type.
constexpr StSection TELNET_FILE = {
    {DC_SOURCE, "setCheckOpConfigurationTelnet", __LINE__},
    u"DeviceType",
    "pDOMParser is null.",
    "oAsnCheckOperationLst is null.",
    "XercesDOMParser::getDocument failed.",
};
constexpr StSection FIXED_FILE = {
    {DC_SOURCE, "setFixedCheckOpConfiguration", __LINE__},
    u"DeviceType",
    "pDOMParser is null.",
    "oAsnCheckOperationLst is null.",
    "XercesDOMParser::getDocument failed.",
};

// The items call themselves for their sub items.
EnFate fillItem(const CAttributes& oItem, StAsnCheckType& stItem);
EnFate fillTelnetItem(const CAttributes& oItem, StAsnCheckType& stItem);
EnFate fillFixedItem(const CAttributes& oItem, StAsnCheckType& stItem);

constexpr StRecordReader<StAsnCheckType> ITEMS = {
    {{DC_SOURCE, "fillCheckType", __LINE__}, "pOperElm is null.", " pParaLst is null.", " pParaLst is null."},
    u"Parameter",
    fillItem,
};
constexpr StRecordReader<StAsnCheckType> TELNET_ITEMS = {
    {{DC_SOURCE, "fillCheckTypeTelnet", __LINE__},
     "pElmCheckType is null.",
     "pCheckItemLst is null.",
     "pParaLst is null."},
    u"Parameter",
    fillTelnetItem,
};
constexpr StRecordReader<StAsnCheckType> FIXED_ITEMS = {
    {{DC_SOURCE, "fillFixedCheckItem", __LINE__},
     "pElmCheckOperation is null.",
     "pCheckItemLst is null.",
     "pParaLst is null."},
    u"Parameter",
    fillFixedItem,
};

// An item that says nothing about it is integrated. The spelling is the attribute's.
constexpr StWord<bool> INTEGRATED_WORDS[] = {{"", true}, {"1", true}, {"0", false}}; // any other word is no, too
constexpr StWord<bool> FLAG_WORDS[]       = {{Vocabulary::TRUE_LOWER, true}, {Vocabulary::FALSE_LOWER, false}};

// The check types of a telnet check file, in the order in which they run.
constexpr const char16_t* TELNET_CHECK_TYPES[] = {u"PreCheck", u"PostCheck"};

std::uint32_t readItems(const StRecordReader<StAsnCheckType>& stItems, const DOMElement* pElement,
                        const char16_t* pszName, std::list<StAsnCheckType>* pLstOut)
{
    const CElements oItems(pElement, pszName);
    std::uint32_t   ulResult = DC_RESULT_OK;
    if (!canRead(stItems, pElement, oItems, pLstOut, ulResult))
        return ulResult;
    std::uint32_t ulIndex = 0; // an item that is left out takes its position all the same
    for (const DOMElement& oItem : oItems)
    {
        readRecord(oItem, *pLstOut,
                   [&](const CAttributes& oAttributes, StAsnCheckType& stItem)
                   {
                       stItem.ulIndex = ulIndex;
                       return stItems.pfnFill(oAttributes, stItem);
                   });
        ++ulIndex;
    }
    return DC_RESULT_OK;
}

void readItemAttributes(const CAttributes& oItem, StAsnCheckType& stItem)
{
    stItem.strId           = attrText(oItem, u"id");
    stItem.strDescription  = attrText(oItem, u"description");
    stItem.strCmdKey       = attrText(oItem, u"cmdKey");
    stItem.strSubItemFrom  = attrText(oItem, u"subItemFrom");
    stItem.bSelected       = attrFlag(oItem, u"selected");
    stItem.bIsCompare      = attrFlag(oItem, u"isCompare");
    stItem.nCompareType    = static_cast<std::int32_t>(attrNumber(oItem, u"compareType"));
    stItem.strCompareParam = attrText(oItem, u"compareParam");
}

bool isIntegrated(const CAttributes& oItem)
{
    return attrWord(oItem, u"integated", INTEGRATED_WORDS, false);
}

EnFate fillItem(const CAttributes& oItem, StAsnCheckType& stItem)
{
    readItemAttributes(oItem, stItem);
    readItems(ITEMS, oItem.element(), u"SubItem", &stItem.lstSubItem);
    return isIntegrated(oItem) ? EnFate::Kept : EnFate::NotIntegrated;
}

EnFate fillTelnetItem(const CAttributes& oItem, StAsnCheckType& stItem)
{
    readItemAttributes(oItem, stItem);
    // "checked" is these files' own word for "selected", and the last one to decide.
    stItem.bSelected = attrWord(oItem, u"checked", FLAG_WORDS, stItem.bSelected);
    readItems(TELNET_ITEMS, oItem.element(), u"SubItem", &stItem.lstSubItem);
    if (!isIntegrated(oItem))
        return EnFate::NotIntegrated;
    return attrWord(oItem, u"GUI", FLAG_WORDS, true) ? EnFate::Kept : EnFate::HiddenInClient;
}

EnFate fillFixedItem(const CAttributes& oItem, StAsnCheckType& stItem)
{
    stItem.strId          = attrText(oItem, u"id");
    stItem.strDescription = attrText(oItem, u"description");
    stItem.bSelected      = attrFlag(oItem, u"selected");
    return EnFate::Kept;
}

void readOperationAttributes(const CAttributes& oOperation, StAsnCheckOperationDef& stOperation)
{
    stOperation.enOperationLevel = readLevel(oOperation);
    stOperation.bIsCancelable    = attrFlag(oOperation, u"isCancelable");
}

EnFate fillOperation(const CAttributes& oOperation, StAsnCheckOperationDef& stOperation)
{
    stOperation.strId = attrText(oOperation, u"id");
    readOperationAttributes(oOperation, stOperation);
    readItems(ITEMS, oOperation.element(), u"Parameter", &stOperation.lstCheckType);
    return EnFate::Kept;
}

constexpr StRecordReader<StAsnCheckOperationDef> OPERATIONS = {
    {{DC_SOURCE, "fillCheckOperInfo", __LINE__},
     "pOperElm is null.",
     "oAsnCheckOperationLst is null.",
     "pParaLst is null."},
    u"Operation",
    fillOperation,
};

constexpr StReader FIXED_OPERATIONS = {
    {DC_SOURCE, "fillFixedCheckType", __LINE__},
    "pElmCheckType is null.",
    "oAsnCheckOperationLst is null.",
    "pParaLst is null.",
};

// The device type that both files name is for whoever reads them: it is read and
// compared with nothing, since the caller has chosen the file by it.
void passOverName(const DOMElement& oDeviceType)
{
    attrText(CAttributes(oDeviceType), u"name");
}

// The number of a task type of a check file. An unknown id gives -1 and keeps its
// checks, as an operation of a server configuration file has them.
std::int32_t readTaskType(const DOMElement& oTaskType)
{
    const StTaskTypeWord* pWord = attrRow(CAttributes(oTaskType), u"id", TASK_TYPE_WORDS);
    return pWord == nullptr ? -1 : pWord->enTaskType;
}

void readTelnetTaskType(const DOMElement& oTaskType, std::list<StAsnCheckOperationDef>& lstOut)
{
    const std::int32_t nTaskType = readTaskType(oTaskType);
    for (const char16_t* pszCheckType : TELNET_CHECK_TYPES)
    {
        const auto fnFill = [&](const CAttributes& oCheckType, StAsnCheckOperationDef& stOperation)
        {
            stOperation.strId     = toLocal(pszCheckType);
            stOperation.nTaskType = nTaskType;
            readOperationAttributes(oCheckType, stOperation);
            readItems(TELNET_ITEMS, oCheckType.element(), u"Parameter", &stOperation.lstCheckType);
            return EnFate::Kept;
        };
        for (const DOMElement& oCheckType : CElements(&oTaskType, pszCheckType))
            readRecord(oCheckType, lstOut, fnFill);
    }
}

std::uint32_t readFixedOperations(const DOMElement* pTaskType, std::int32_t nTaskType,
                                  std::list<StAsnCheckOperationDef>* pLstOut)
{
    return readRecords(FIXED_OPERATIONS, pTaskType, CElements(pTaskType, u"Operation"), pLstOut,
                       [nTaskType](const CAttributes& oOperation, StAsnCheckOperationDef& stOperation)
                       {
                           stOperation.strId     = attrText(oOperation, u"id");
                           stOperation.nTaskType = nTaskType;
                           readOperationAttributes(oOperation, stOperation);
                           readItems(FIXED_ITEMS, oOperation.element(), u"Parameter", &stOperation.lstCheckType);
                           return EnFate::Kept;
                       });
}
} // namespace

std::uint32_t CCheckOpXMLConfig::setCheckOpConfiguration(XercesDOMParser*                   pDOMParser,
                                                         std::list<StAsnCheckOperationDef>* pLstOut)
{
    return readSections(CHECK_SECTION, OPERATIONS, pDOMParser, pLstOut);
}

std::uint32_t CCheckOpXMLConfig::setCheckOpConfigurationTelnet(XercesDOMParser*                   pDOMParser,
                                                               std::list<StAsnCheckOperationDef>* pLstOut,
                                                               EnCheckReportType /*enReportType*/)
{
    return readSections(TELNET_FILE, pDOMParser, pLstOut,
                        [pLstOut](const DOMElement& oDeviceType)
                        {
                            passOverName(oDeviceType);
                            for (const DOMElement& oTaskType : CElements(&oDeviceType, u"TaskType"))
                                readTelnetTaskType(oTaskType, *pLstOut);
                        });
}

std::uint32_t CCheckOpXMLConfig::setFixedCheckOpConfiguration(XercesDOMParser*                   pDOMParser,
                                                              std::list<StAsnCheckOperationDef>* pLstOut)
{
    return readSections(FIXED_FILE, pDOMParser, pLstOut,
                        [pLstOut](const DOMElement& oDeviceType)
                        {
                            passOverName(oDeviceType);
                            for (const DOMElement& oTaskType : CElements(&oDeviceType, u"TaskType"))
                                readFixedOperations(&oTaskType, readTaskType(oTaskType), pLstOut);
                        });
}

std::uint32_t CCheckOpXMLConfig::fillCheckOperInfo(const DOMElement*                  pSection,
                                                   std::list<StAsnCheckOperationDef>* pLstOut)
{
    return guarded(OPERATIONS, [&] { return readRecords(OPERATIONS, pSection, pLstOut); });
}

// The names come by value: callers are built against it.
// NOLINTBEGIN(performance-unnecessary-value-param)
std::uint32_t CCheckOpXMLConfig::fillCheckType(const DOMElement* pElement, std::string strTagName,
                                               std::list<StAsnCheckType>* pLstOut)
{
    return guarded(ITEMS, [&] { return readItems(ITEMS, pElement, fromLocal(strTagName).c_str(), pLstOut); });
}

std::uint32_t CCheckOpXMLConfig::fillCheckTypeTelnet(const DOMElement* pElement, std::string strTagName,
                                                     std::list<StAsnCheckType>* pLstOut)
{
    return guarded(TELNET_ITEMS,
                   [&] { return readItems(TELNET_ITEMS, pElement, fromLocal(strTagName).c_str(), pLstOut); });
}
// NOLINTEND(performance-unnecessary-value-param)

std::uint32_t CCheckOpXMLConfig::fillFixedCheckType(const DOMElement* pTaskType, std::int32_t nTaskType,
                                                    std::list<StAsnCheckOperationDef>* pLstOut)
{
    return guarded(FIXED_OPERATIONS, [&] { return readFixedOperations(pTaskType, nTaskType, pLstOut); });
}

std::uint32_t CCheckOpXMLConfig::fillFixedCheckItem(const DOMElement* pOperation, std::list<StAsnCheckType>* pLstOut)
{
    return guarded(FIXED_ITEMS, [&] { return readItems(FIXED_ITEMS, pOperation, u"Parameter", pLstOut); });
}

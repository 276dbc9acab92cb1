// Check operations: the section of a server configuration file, the telnet check
// file, the fixed check file.
#include "sections/CCheckOpXMLConfig.h"

#include "records/Vocabulary.h"
#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

#include <string>

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CCheckOpXMLConfig";

constexpr StSection CHECK_SECTION = {
    u"CheckOperations",
    "pDOMParser is null.",
    "oAsnCheckOperationLst is null.",
    "XercesDOMParser::getDocument failed.",
};

// Both check files begin with the device type, which is not compared with anything:
// the caller has chosen the file by it.
constexpr StSection CHECK_FILE = {
    u"DeviceType",
    "pDOMParser is null.",
    "oAsnCheckOperationLst is null.",
    "XercesDOMParser::getDocument failed.",
};

// The check types of a telnet check file, in the order in which they run.
constexpr const char16_t* TELNET_CHECK_TYPES[] = {u"PreCheck", u"PostCheck"};

void readOperation(const CAttributes& oOperation, StAsnCheckOperationDef& stOperation)
{
    stOperation.enOperationLevel = readLevel(oOperation);
    stOperation.bIsCancelable    = attrFlag(oOperation, u"isCancelable");
}

void readItem(const CAttributes& oItem, StAsnCheckType& stItem)
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

// An item that says nothing about it is integrated. The spelling is the attribute's.
bool isIntegrated(const CAttributes& oItem)
{
    const std::string strIntegrated = attrText(oItem, u"integated");
    return strIntegrated.empty() || strIntegrated == "1";
}

// The number of a task type of a check file. An unknown id gives -1 and keeps its
// checks, as an operation of a server configuration file has them.
std::int32_t readTaskType(const DOMElement& oTaskType)
{
    return getTaskTypeByName(attrText(oTaskType, u"id"));
}
} // namespace

std::uint32_t CCheckOpXMLConfig::setCheckOpConfiguration(XercesDOMParser*                   pDOMParser,
                                                         std::list<StAsnCheckOperationDef>* pLstOut)
{
    return readSections(DC_HERE, CHECK_SECTION, pDOMParser, pLstOut,
                        [&](const DOMElement& oSection) { fillCheckOperInfo(&oSection, pLstOut); });
}

std::uint32_t CCheckOpXMLConfig::fillCheckOperInfo(const DOMElement*                  pSection,
                                                   std::list<StAsnCheckOperationDef>* pLstOut)
{
    if (pSection == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pOperElm is null.");
    if (pLstOut == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "oAsnCheckOperationLst is null.");
    return readRecords(DC_HERE, CElements(pSection, u"Operation"), "pParaLst is null.", pLstOut,
                       [this](const CAttributes& oOperation, StAsnCheckOperationDef& stOperation)
                       {
                           stOperation.strId = attrText(oOperation, u"id");
                           readOperation(oOperation, stOperation);
                           fillCheckType(oOperation.element(), u"Parameter", &stOperation.lstCheckType);
                       });
}

std::uint32_t CCheckOpXMLConfig::fillCheckType(const DOMElement* pElement, const char16_t* pszTagName,
                                               std::list<StAsnCheckType>* pLstOut)
{
    if (pElement == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pOperElm is null.");
    std::uint32_t ulIndex = 0; // an item that is left out takes its position all the same
    return readRecords(DC_HERE, CElements(pElement, pszTagName), " pParaLst is null.", pLstOut,
                       [&](const CAttributes& oItem, StAsnCheckType& stItem)
                       {
                           readItem(oItem, stItem);
                           stItem.ulIndex = ulIndex++;
                           fillCheckType(oItem.element(), u"SubItem", &stItem.lstSubItem);
                           return isIntegrated(oItem);
                       });
}

std::uint32_t CCheckOpXMLConfig::setCheckOpConfigurationTelnet(XercesDOMParser*                   pDOMParser,
                                                               std::list<StAsnCheckOperationDef>* pLstOut,
                                                               EnCheckReportType /*enReportType*/)
{
    const auto fnReadCheck = [&](const DOMElement& oTaskType, const char16_t* pszCheckType)
    {
        for (const DOMElement& oCheckType : CElements(&oTaskType, pszCheckType))
        {
            StAsnCheckOperationDef& stOperation = pLstOut->emplace_back();
            stOperation.strId                   = toLocal(pszCheckType);
            stOperation.nTaskType               = readTaskType(oTaskType);
            readOperation(CAttributes(oCheckType), stOperation);
            fillCheckTypeTelnet(&oCheckType, u"Parameter", &stOperation.lstCheckType);
        }
    };
    return readSections(DC_HERE, CHECK_FILE, pDOMParser, pLstOut,
                        [&](const DOMElement& oDeviceType)
                        {
                            for (const DOMElement& oTaskType : CElements(&oDeviceType, u"TaskType"))
                            {
                                for (const char16_t* pszCheckType : TELNET_CHECK_TYPES)
                                    fnReadCheck(oTaskType, pszCheckType);
                            }
                        });
}

std::uint32_t CCheckOpXMLConfig::fillCheckTypeTelnet(const DOMElement* pElmCheckType, const char16_t* pszTagName,
                                                     std::list<StAsnCheckType>* pCheckItemLst)
{
    if (pElmCheckType == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pElmCheckType is null.");
    if (pCheckItemLst == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pCheckItemLst is null.");
    std::uint32_t ulIndex = 0;
    return readRecords(DC_HERE, CElements(pElmCheckType, pszTagName), "pParaLst is null.", pCheckItemLst,
                       [&](const CAttributes& oItem, StAsnCheckType& stItem)
                       {
                           readItem(oItem, stItem);
                           stItem.ulIndex = ulIndex++;
                           // "checked" is these files' own word for "selected", and the last one to decide.
                           const std::string strChecked = attrText(oItem, u"checked");
                           if (strChecked == Vocabulary::TRUE_LOWER || strChecked == Vocabulary::FALSE_LOWER)
                               stItem.bSelected = strChecked == Vocabulary::TRUE_LOWER;
                           fillCheckTypeTelnet(oItem.element(), u"SubItem", &stItem.lstSubItem);
                           return isIntegrated(oItem) && attrText(oItem, u"GUI") != Vocabulary::FALSE_LOWER;
                       });
}

std::uint32_t CCheckOpXMLConfig::setFixedCheckOpConfiguration(XercesDOMParser*                   pDOMParser,
                                                              std::list<StAsnCheckOperationDef>* pLstOut)
{
    return readSections(DC_HERE, CHECK_FILE, pDOMParser, pLstOut,
                        [&](const DOMElement& oDeviceType)
                        {
                            for (const DOMElement& oTaskType : CElements(&oDeviceType, u"TaskType"))
                                fillFixedCheckType(&oTaskType, readTaskType(oTaskType), pLstOut);
                        });
}

std::uint32_t CCheckOpXMLConfig::fillFixedCheckType(const DOMElement* pElmCheckType, std::int32_t nTaskType,
                                                    std::list<StAsnCheckOperationDef>* pLstOut)
{
    if (pElmCheckType == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pElmCheckType is null.");
    if (pLstOut == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "oAsnCheckOperationLst is null.");
    return readRecords(DC_HERE, CElements(pElmCheckType, u"Operation"), "pParaLst is null.", pLstOut,
                       [&](const CAttributes& oOperation, StAsnCheckOperationDef& stOperation)
                       {
                           stOperation.strId     = attrText(oOperation, u"id");
                           stOperation.nTaskType = nTaskType;
                           readOperation(oOperation, stOperation);
                           fillFixedCheckItem(oOperation.element(), &stOperation.lstCheckType);
                       });
}

std::uint32_t CCheckOpXMLConfig::fillFixedCheckItem(const DOMElement*          pElmCheckOperation,
                                                    std::list<StAsnCheckType>* pCheckItemLst)
{
    if (pElmCheckOperation == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pElmCheckOperation is null.");
    if (pCheckItemLst == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "pCheckItemLst is null.");
    std::uint32_t ulIndex = 0;
    return readRecords(DC_HERE, CElements(pElmCheckOperation, u"Parameter"), "pParaLst is null.", pCheckItemLst,
                       [&](const CAttributes& oItem, StAsnCheckType& stItem)
                       {
                           stItem.strId          = attrText(oItem, u"id");
                           stItem.strDescription = attrText(oItem, u"description");
                           stItem.bSelected      = attrFlag(oItem, u"selected");
                           stItem.ulIndex        = ulIndex++;
                       });
}

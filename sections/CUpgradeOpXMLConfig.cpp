// Upgrade operations: four levels, each read with its own few attributes.
#include "sections/CUpgradeOpXMLConfig.h"

#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

#include <algorithm>

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CUpgradeOpXMLConfig";

constexpr StSection UPGRADE_SECTION = {
    u"UpgradeOperation",
    "pDOMParser is null.",
    "DOMElement::getElementsByTagName failed :", // a missing list is told like a missing element
    "XercesDOMParser::getDocument failed :",
};
} // namespace

std::uint32_t CUpgradeOpXMLConfig::setUpgradeOperXMLConfig(XercesDOMParser*                     pDOMParser,
                                                           std::list<StAsnUpgradeOperationDef>* pLstOut)
{
    return readSections(DC_HERE, UPGRADE_SECTION, pDOMParser, pLstOut,
                        [&](const DOMElement& oSection) { fillUpgradeOperInfo(&oSection, pLstOut); });
}

std::uint32_t CUpgradeOpXMLConfig::fillUpgradeOperInfo(const DOMElement*                    pSection,
                                                       std::list<StAsnUpgradeOperationDef>* pLstOut)
{
    return readRecords(DC_HERE, CElements(pSection, u"Operation"), "DOMElement::getElementsByTagName failed :", pLstOut,
                       [this](const CAttributes& oOperation, StAsnUpgradeOperationDef& stOperation)
                       {
                           stOperation.strId            = attrText(oOperation, u"id");
                           stOperation.enOperationLevel = readLevel(oOperation);
                           // An upgrade that lacks a step must not be offered: it is dropped as a whole.
                           return fillSubOperType(oOperation.element(), u"SubOperation", stOperation.lstSubOperation) ==
                                  DC_RESULT_OK;
                       });
}

std::uint32_t CUpgradeOpXMLConfig::fillSubOperType(const DOMElement* pOperation, const char16_t* pszTagName,
                                                   std::list<StAsnUpgradeSubOperationDef>& lstOut)
{
    std::uint32_t       ulBelow = DC_RESULT_OK;
    const std::uint32_t ulHere  = readRecords(
         DC_HERE, CElements(pOperation, pszTagName), "DOMElement::getElementsByTagName failed :", &lstOut,
         [&](const CAttributes& oSubOperation, StAsnUpgradeSubOperationDef& stSubOperation)
         {
            stSubOperation.strId            = attrText(oSubOperation, u"id");
            stSubOperation.enOperationLevel = readLevel(oSubOperation); // "operDescription" is in no record
            ulBelow =
                std::max(ulBelow, fillSubParaType(oSubOperation.element(), u"Parameter", stSubOperation.lstParameter));
        });
    return std::max(ulHere, ulBelow);
}

std::uint32_t CUpgradeOpXMLConfig::fillSubParaType(const DOMElement* pSubOperation, const char16_t* pszTagName,
                                                   std::list<StAsnOperParamDef>& lstOut)
{
    std::uint32_t       ulBelow = DC_RESULT_OK;
    const std::uint32_t ulHere =
        readRecords(DC_HERE, CElements(pSubOperation, pszTagName), "DOMElement::getElementsByTagName failed :", &lstOut,
                    [&](const CAttributes& oParameter, StAsnOperParamDef& stParam)
                    {
                        stParam.bIsRequired = attrFlag(oParameter, u"isRequired");
                        stParam.strId       = attrText(oParameter, u"id"); // these have no "value" and no "selected"
                        ulBelow = std::max(ulBelow, fillOperOptionInfo(oParameter.element(), stParam.lstOption));
                    });
    return std::max(ulHere, ulBelow);
}

std::uint32_t CUpgradeOpXMLConfig::fillOperOptionInfo(const DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut)
{
    return readRecords(DC_HERE, optionElements(pParameter), "DOMElement::getElementsByTagName failed :", &lstOut,
                       readOption);
}

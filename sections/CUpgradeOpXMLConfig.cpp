// Upgrade operations: four levels, each read with its own few attributes.
#include "sections/CUpgradeOpXMLConfig.h"

#include "sections/ItemRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CUpgradeOpXMLConfig";

constexpr StSection UPGRADE_SECTION = {
    {DC_SOURCE, "setUpgradeOperXMLConfig", __LINE__}, u"UpgradeOperation", "pDOMParser is null.",
    "DOMElement::getElementsByTagName failed :", // a missing list is told like a missing element
    "XercesDOMParser::getDocument failed :",
};

constexpr StOptionReader OPTIONS = {
    lookupReader({DC_SOURCE, "fillOperOptionInfo", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    false,
    nullptr,
    EnFate::LookupFailed,
};
constexpr StParameterReader PARAMETERS = {
    lookupReader({DC_SOURCE, "fillSubParaType", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    false,
    false,
    OPTIONS,
};

EnFate fillSubOperation(const CAttributes& oSubOperation, StAsnUpgradeSubOperationDef& stSubOperation)
{
    stSubOperation.strId            = attrText(oSubOperation, u"id");
    stSubOperation.enOperationLevel = readLevel(oSubOperation);
    attrText(oSubOperation, u"operDescription"); // read, and in no record
    const std::uint32_t ulResult = readParameters(PARAMETERS, oSubOperation.element(), stSubOperation.lstParameter);
    return ulResult == DC_RESULT_OK ? EnFate::Kept : EnFate::LookupFailed;
}

constexpr StRecordReader<StAsnUpgradeSubOperationDef> SUB_OPERATIONS = {
    lookupReader({DC_SOURCE, "fillSubOperType", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    u"SubOperation",
    fillSubOperation,
};

EnFate fillOperation(const CAttributes& oOperation, StAsnUpgradeOperationDef& stOperation)
{
    stOperation.strId            = attrText(oOperation, u"id");
    stOperation.enOperationLevel = readLevel(oOperation);
    const std::uint32_t ulResult = readRecords(SUB_OPERATIONS, oOperation.element(), &stOperation.lstSubOperation);
    return ulResult == DC_RESULT_OK ? EnFate::Kept : EnFate::UpgradeLacksStep;
}

constexpr StRecordReader<StAsnUpgradeOperationDef> OPERATIONS = {
    lookupReader({DC_SOURCE, "fillUpgradeOperInfo", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    u"Operation",
    fillOperation,
};
} // namespace

std::uint32_t CUpgradeOpXMLConfig::setUpgradeOperXMLConfig(XercesDOMParser*                     pDOMParser,
                                                           std::list<StAsnUpgradeOperationDef>* pLstOut)
{
    return readSections(UPGRADE_SECTION, OPERATIONS, pDOMParser, pLstOut);
}

std::uint32_t CUpgradeOpXMLConfig::fillUpgradeOperInfo(const DOMElement*                    pSection,
                                                       std::list<StAsnUpgradeOperationDef>* pLstOut)
{
    return guarded(OPERATIONS, [&] { return readRecords(OPERATIONS, pSection, pLstOut); });
}

// The names come by value: callers are built against it.
// NOLINTBEGIN(performance-unnecessary-value-param)
std::uint32_t CUpgradeOpXMLConfig::fillSubOperType(const DOMElement* pOperation, std::string strTagName,
                                                   std::list<StAsnUpgradeSubOperationDef>& lstOut)
{
    return guarded(SUB_OPERATIONS,
                   [&]
                   {
                       const std::u16string strName = fromLocal(strTagName);
                       return readRecords(SUB_OPERATIONS, pOperation, CElements(pOperation, strName.c_str()), &lstOut,
                                          fillSubOperation);
                   });
}

std::uint32_t CUpgradeOpXMLConfig::fillSubParaType(const DOMElement* pSubOperation, std::string strTagName,
                                                   std::list<StAsnOperParamDef>& lstOut)
{
    return guarded(PARAMETERS,
                   [&] { return readParameters(PARAMETERS, pSubOperation, lstOut, fromLocal(strTagName).c_str()); });
}
// NOLINTEND(performance-unnecessary-value-param)

std::uint32_t CUpgradeOpXMLConfig::fillOperOptionInfo(const DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut)
{
    return guarded(OPTIONS, [&] { return readOptions(OPTIONS, pParameter, lstOut); });
}

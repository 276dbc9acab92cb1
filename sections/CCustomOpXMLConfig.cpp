// Custom operations, each with the resource file of its own.
#include "sections/CCustomOpXMLConfig.h"

#include "sections/ItemRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CCustomOpXMLConfig";

constexpr StSection CUSTOM_SECTION = {
    {DC_SOURCE, "setCustomOperXMLConfig", __LINE__}, u"CustomOperations", "pDOMParser is NULL.", nullptr,
    "XercesDOMParser::getDocument failed :",
};

constexpr StReader RESOURCES =
    lookupReader({DC_SOURCE, "fillResourceClass", __LINE__}, "DOMElement::getElementsByTagName failed :");

std::uint32_t readResourceClass(const DOMElement* pOperation, std::string& strFileName)
{
    const CElements oResources(pOperation, u"ResouceClass");
    std::uint32_t   ulResult = DC_RESULT_OK;
    if (!canRead(RESOURCES, pOperation, oResources, &strFileName, ulResult))
        return ulResult;
    for (const DOMElement& oResource : oResources)
        strFileName = attrText(CAttributes(oResource), u"filename"); // the last one wins, even without a name
    return DC_RESULT_OK;
}

EnFate fillOperation(const CAttributes& oOperation, StAsnCustomOperationDef& stOperation)
{
    stOperation.strId            = attrText(oOperation, u"id");
    stOperation.strShortcutKey   = attrText(oOperation, u"shortcutkey");
    stOperation.enOperationLevel = readLevel(oOperation);
    stOperation.enAvailableIn =
        attrWord(oOperation, u"AvailableIn", AVAILABILITY_WORDS, DCAsn1ClientToServer::PopupMenu);
    readResourceClass(oOperation.element(), stOperation.strResourceClass);
    return EnFate::Kept;
}

constexpr StRecordReader<StAsnCustomOperationDef> OPERATIONS = {
    lookupReader({DC_SOURCE, "fillCustomOper", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    u"Operation",
    fillOperation,
};
} // namespace

std::uint32_t CCustomOpXMLConfig::setCustomOperXMLConfig(XercesDOMParser*                    pDOMParser,
                                                         std::list<StAsnCustomOperationDef>* pLstOut)
{
    return readSections(CUSTOM_SECTION, pDOMParser, pLstOut,
                        [pLstOut](const DOMElement& oSection)
                        {
                            if (pLstOut == nullptr) // said for every section, and no failure of the call
                                logFail(CUSTOM_SECTION.stWhere, DC_RESULT_INVALID_PARA,
                                        "pAsnCustomOperationList is NULL.");
                            else
                                readRecords(OPERATIONS, &oSection, pLstOut);
                        });
}

std::uint32_t CCustomOpXMLConfig::fillCustomOper(const DOMElement*                   pSection,
                                                 std::list<StAsnCustomOperationDef>* pLstOut)
{
    return guarded(OPERATIONS, [&] { return readRecords(OPERATIONS, pSection, pLstOut); });
}

std::uint32_t CCustomOpXMLConfig::fillResourceClass(const DOMElement* pOperation, std::string& strFileName)
{
    return guarded(RESOURCES, [&] { return readResourceClass(pOperation, strFileName); });
}

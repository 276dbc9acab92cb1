// Custom operations, each with the resource file of its own.
#include "sections/CCustomOpXMLConfig.h"

#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CCustomOpXMLConfig";

constexpr StSection CUSTOM_SECTION = {
    u"CustomOperations",
    "pDOMParser is NULL.",
    nullptr,
    "XercesDOMParser::getDocument failed :",
};
} // namespace

std::uint32_t CCustomOpXMLConfig::setCustomOperXMLConfig(XercesDOMParser*                    pDOMParser,
                                                         std::list<StAsnCustomOperationDef>* pLstOut)
{
    const LocationInfo stWhere = DC_HERE;
    return readSections(stWhere, CUSTOM_SECTION, pDOMParser, pLstOut,
                        [&](const DOMElement& oSection)
                        {
                            if (pLstOut == nullptr) // said for every section, and no failure of the call
                                logFail(stWhere, DC_RESULT_INVALID_PARA, "pAsnCustomOperationList is NULL.");
                            else
                                fillCustomOper(&oSection, pLstOut);
                        });
}

std::uint32_t CCustomOpXMLConfig::fillCustomOper(const DOMElement*                   pSection,
                                                 std::list<StAsnCustomOperationDef>* pLstOut)
{
    return readRecords(DC_HERE, CElements(pSection, u"Operation"), "DOMElement::getElementsByTagName failed :", pLstOut,
                       [this](const CAttributes& oOperation, StAsnCustomOperationDef& stOperation)
                       {
                           stOperation.strId            = attrText(oOperation, u"id");
                           stOperation.strShortcutKey   = attrText(oOperation, u"shortcutkey");
                           stOperation.enOperationLevel = readLevel(oOperation);
                           stOperation.enAvailableIn    = wordValue(attrText(oOperation, u"AvailableIn"),
                                                                    AVAILABILITY_WORDS, DCAsn1ClientToServer::PopupMenu);
                           fillResourceClass(oOperation.element(), stOperation.strResourceClass);
                       });
}

std::uint32_t CCustomOpXMLConfig::fillResourceClass(const DOMElement* pOperation, std::string& strFileName)
{
    const CElements oResources(pOperation, u"ResouceClass");
    if (oResources.isMissing())
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed :");
    for (const DOMElement& oResource : oResources)
        strFileName = attrText(oResource, u"filename"); // the last one wins, even without a name
    return DC_RESULT_OK;
}

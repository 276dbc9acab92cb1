// Popup menu of the isolation view.
#include "sections/CIsolationViewPopupMenuConfig.h"

#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CIsolationViewPopupMenuConfig";

// The element is shared with the device view.
constexpr StSection ISOLATION_MENU = {u"DeviceViewPopupMenu", "pDOMParser is null.", nullptr,
                                      "XercesDOMParser::getDocument failed."};
} // namespace

std::uint32_t CIsolationViewPopupMenuConfig::setIsolationViewPopupMenuConfig(XercesDOMParser*           pDOMParser,
                                                                             std::list<StAsnMenuOpDef>* pLstOut)
{
    return readSections(DC_HERE, ISOLATION_MENU, pDOMParser, pLstOut,
                        [&](const DOMElement& oMenu) { fillIsolationViewPopUpMenu(&oMenu, pLstOut); });
}

std::uint32_t CIsolationViewPopupMenuConfig::fillIsolationViewPopUpMenu(const DOMElement*          pMenu,
                                                                        std::list<StAsnMenuOpDef>* pLstOut)
{
    if (pMenu == nullptr || pLstOut == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR,
                       "DOMElement::getElementsByTagName failed or pAsnIsolationViewMenuDefList is NULL.");
    return readRecords(DC_HERE, CElements(pMenu, u"Item"), "DOMElement::getElementsByTagName failed.", pLstOut,
                       [](const CAttributes& oItem, StAsnMenuOpDef& stEntry)
                       { readReference(oItem, ISOLATION_TYPE_REF_WORDS, stEntry); });
}

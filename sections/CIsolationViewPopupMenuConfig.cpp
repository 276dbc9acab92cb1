// Popup menu of the isolation view.
#include "sections/CIsolationViewPopupMenuConfig.h"

#include "sections/ItemRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CIsolationViewPopupMenuConfig";

constexpr StSection ISOLATION_MENU = {
    {DC_SOURCE, "setIsolationViewPopupMenuConfig", __LINE__},
    u"DeviceViewPopupMenu", // shared with the device view
    "pDOMParser is null.",
    nullptr,
    "XercesDOMParser::getDocument failed.",
};

EnFate fillItem(const CAttributes& oItem, StAsnMenuOpDef& stEntry)
{
    readReference(oItem, ISOLATION_TYPE_REF_WORDS, stEntry);
    return EnFate::Kept;
}

constexpr StRecordReader<StAsnMenuOpDef> ITEMS = {
    {{DC_SOURCE, "fillIsolationViewPopUpMenu", __LINE__},
     "DOMElement::getElementsByTagName failed or pAsnIsolationViewMenuDefList is NULL.",
     "DOMElement::getElementsByTagName failed or pAsnIsolationViewMenuDefList is NULL.",
     "DOMElement::getElementsByTagName failed."},
    u"Item",
    fillItem,
};
} // namespace

std::uint32_t CIsolationViewPopupMenuConfig::setIsolationViewPopupMenuConfig(XercesDOMParser*           pDOMParser,
                                                                             std::list<StAsnMenuOpDef>* pLstOut)
{
    return readSections(ISOLATION_MENU, ITEMS, pDOMParser, pLstOut);
}

std::uint32_t CIsolationViewPopupMenuConfig::fillIsolationViewPopUpMenu(const DOMElement*          pMenu,
                                                                        std::list<StAsnMenuOpDef>* pLstOut)
{
    return guarded(ITEMS, [&] { return readRecords(ITEMS, pMenu, pLstOut); });
}

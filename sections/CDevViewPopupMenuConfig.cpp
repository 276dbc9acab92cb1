// Popup menu and tabs of the device view, and the in-service upgrade filter that
// decides on one entry.
#include "sections/CDevViewPopupMenuConfig.h"

#include "platform/Settings.h"
#include "records/ServerNames.h"
#include "sections/ItemRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CDevViewPopupMenuConfig";

constexpr StSection POPUP_MENU = {
    {DC_SOURCE, "setDevViewPopupMenuConfig", __LINE__},
    u"DeviceViewPopupMenu",
    nullptr,
    nullptr,
    "XercesDOMParser::getDocument failed :",
};
constexpr StSection TAB = {
    {DC_SOURCE, "setDevViewTabConfig", __LINE__}, u"DeviceViewTab", nullptr, nullptr,
    "XercesDOMParser::getDocument failed :",
};

constexpr LocationInfo FILTER = {DC_SOURCE, "JudgeFilterOndixISSUCapability", __LINE__};

bool isLeftOut(const StAsnMenuOpDef& stEntry)
{
    if (stEntry.strId != "GetWeakBd")
        return false;
    std::string strMode = "0"; // what an absent setting leaves
    CDCSettingInfoTab::Instance()->getValueByParam(ServerNames::ISSU_MODE, strMode);
    const bool bOffered = strMode == "1" || strMode == "2";
    if (strMode == "0")
        logInfo(FILTER, "User does not care ISSU mode."); // not the text of the other operations' filter
    else if (!bOffered)
        logInfo(FILTER, "ISSU mode value illigle.");
    return !bOffered;
}

EnFate fillItem(const CAttributes& oItem, StAsnMenuOpDef& stEntry)
{
    const EnFate enFate = fillReference(oItem, stEntry);
    if (stEntry.enType == DCAsn1ClientToServer::OtherOperation && isLeftOut(stEntry))
        return EnFate::NoServiceUpgrade;
    return enFate;
}

constexpr StRecordReader<StAsnMenuOpDef> ITEMS = {
    {{DC_SOURCE, "fillDevViewPopUpMenu", __LINE__},
     "DOMElement::getElementsByTagName failed or pAsnDevViewMenuDefList is NULL:",
     "DOMElement::getElementsByTagName failed or pAsnDevViewMenuDefList is NULL:",
     "DOMElement::getElementsByTagName failed."},
    u"Item",
    fillItem,
};
} // namespace

std::uint32_t CDevViewPopupMenuConfig::setDevViewPopupMenuConfig(XercesDOMParser*           pDOMParser,
                                                                 std::list<StAsnMenuOpDef>* pLstOut)
{
    return readSections(POPUP_MENU, ITEMS, pDOMParser, pLstOut);
}

std::uint32_t CDevViewPopupMenuConfig::setDevViewTabConfig(XercesDOMParser*           pDOMParser,
                                                           std::list<StAsnMenuOpDef>* pLstOut)
{
    return readSections(TAB, ITEMS, pDOMParser, pLstOut);
}

std::uint32_t CDevViewPopupMenuConfig::fillDevViewPopUpMenu(const DOMElement* pMenu, std::list<StAsnMenuOpDef>* pLstOut)
{
    return guarded(ITEMS, [&] { return readRecords(ITEMS, pMenu, pLstOut); });
}

bool CDevViewPopupMenuConfig::JudgeFilterOndixISSUCapability(const StAsnMenuOpDef& stEntry)
try
{
    return isLeftOut(stEntry);
}
catch (...)
{
    logThrown(FILTER, DC_RESULT_XML_ERROR);
    return true; // as with a setting that is not there
}

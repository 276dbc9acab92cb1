// Popup menu and tabs of the device view, and the in-service upgrade filter that
// decides on one entry.
#include "sections/CDevViewPopupMenuConfig.h"

#include "platform/Settings.h"
#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CDevViewPopupMenuConfig";

constexpr StSection POPUP_MENU = {u"DeviceViewPopupMenu", nullptr, nullptr, "XercesDOMParser::getDocument failed :"};
constexpr StSection TAB        = {u"DeviceViewTab", nullptr, nullptr, "XercesDOMParser::getDocument failed :"};
} // namespace

std::uint32_t CDevViewPopupMenuConfig::setDevViewPopupMenuConfig(XercesDOMParser*           pDOMParser,
                                                                 std::list<StAsnMenuOpDef>* pLstOut)
{
    return readSections(DC_HERE, POPUP_MENU, pDOMParser, pLstOut,
                        [&](const DOMElement& oMenu) { fillDevViewPopUpMenu(&oMenu, pLstOut); });
}

std::uint32_t CDevViewPopupMenuConfig::setDevViewTabConfig(XercesDOMParser*           pDOMParser,
                                                           std::list<StAsnMenuOpDef>* pLstOut)
{
    return readSections(DC_HERE, TAB, pDOMParser, pLstOut,
                        [&](const DOMElement& oTab) { fillDevViewPopUpMenu(&oTab, pLstOut); });
}

std::uint32_t CDevViewPopupMenuConfig::fillDevViewPopUpMenu(const DOMElement* pMenu, std::list<StAsnMenuOpDef>* pLstOut)
{
    if (pMenu == nullptr || pLstOut == nullptr)
        return logFail(DC_HERE, DC_RESULT_XML_ERROR,
                       "DOMElement::getElementsByTagName failed or pAsnDevViewMenuDefList is NULL:");
    return readRecords(DC_HERE, CElements(pMenu, u"Item"), "DOMElement::getElementsByTagName failed.", pLstOut,
                       [](const CAttributes& oItem, StAsnMenuOpDef& stEntry)
                       {
                           readReference(oItem, stEntry);
                           return stEntry.enType != DCAsn1ClientToServer::OtherOperation ||
                                  !JudgeFilterOndixISSUCapability(stEntry);
                       });
}

bool CDevViewPopupMenuConfig::JudgeFilterOndixISSUCapability(const StAsnMenuOpDef& stEntry)
{
    if (stEntry.strId != "GetWeakBd")
        return false;
    std::string strMode = "0"; // what an absent setting leaves
    CDCSettingInfoTab::Instance()->getValueByParam("WDM_SUPPORT_ISSU_UPGRADE", strMode);
    const bool bOffered = strMode == "1" || strMode == "2";
    if (strMode == "0")
        logInfo(DC_HERE, "User does not care ISSU mode."); // not the text of the other operations' filter
    else if (!bOffered)
        logInfo(DC_HERE, "ISSU mode value illigle.");
    return !bOffered;
}

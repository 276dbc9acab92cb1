// Other operations, and the in-service upgrade filter that only logs.
#include "sections/COtherOpXMLConfig.h"

#include "platform/Settings.h"
#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "COtherOpXMLConfig";

constexpr StSection OTHER_SECTION = {
    u"OtherOperation", // each one is an entry: there is no section around them
    "Invalid para. NULL pointer.pDOMParser",
    "Invalid para. NULL pointer. pAsnOtherOperationLst",
    "XercesDOMParser::getDocument failed :",
    DC_RESULT_INVALID_PARA,
};
} // namespace

std::uint32_t COtherOpXMLConfig::setOtherOperXMLConfig(XercesDOMParser*                   pDOMParser,
                                                       std::list<StAsnOtherOperationDef>* pLstOut)
{
    return readSections(DC_HERE, OTHER_SECTION, pDOMParser, pLstOut,
                        [&](const DOMElement& oEntry)
                        {
                            StAsnOtherOperationDef stEntry;
                            readCapability(CAttributes(oEntry), stEntry);
                            // Asked for its log lines alone: the entry is stored whatever the answer.
                            JudgeFilterOndixISSUCapability(stEntry.strId);
                            fillOperParaInfo(&oEntry, stEntry.lstParam);
                            pLstOut->push_back(std::move(stEntry));
                        });
}

bool COtherOpXMLConfig::JudgeFilterOndixISSUCapability(const std::string& strId)
{
    if (strId != "GetWeakBd")
        return false;
    logInfo(DC_HERE, "ISSU item is configed.");
    std::string strMode = "0";
    CDCSettingInfoTab::Instance()->getValueByParam("WDM_SUPPORT_ISSU_UPGRADE", strMode);
    if (strMode == "1" || strMode == "2")
        return false;
    if (strMode == "0")
        logInfo(DC_HERE, "User does not enable ISSU item.");
    else
        logInfo(DC_HERE, "ISSU mode value illigle.");
    return true;
}

std::uint32_t COtherOpXMLConfig::fillOperParaInfo(const DOMElement* pEntry, std::list<StAsnOperParamDef>& lstOut)
{
    return readRecords(DC_HERE, CElements(pEntry, u"Parameter"), "DOMElement::getElementsByTagName failed :", &lstOut,
                       [this](const CAttributes& oParameter, StAsnOperParamDef& stParam)
                       {
                           stParam.bIsRequired = attrFlag(oParameter, u"isRequired");
                           stParam.strId       = attrText(oParameter, u"id");
                           stParam.strValue    = attrText(oParameter, u"value");
                           fillOperOptionInfo(oParameter.element(), stParam.lstOption);
                       });
}

std::uint32_t COtherOpXMLConfig::fillOperOptionInfo(const DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut)
{
    return readRecords(DC_HERE, optionElements(pParameter), "DOMElement::getElementsByTagName failed :", &lstOut,
                       readOption);
}

// Other operations, and the in-service upgrade filter that only logs.
#include "sections/COtherOpXMLConfig.h"

#include "platform/Settings.h"
#include "records/ServerNames.h"
#include "sections/ItemRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "COtherOpXMLConfig";

constexpr StSection OTHER_SECTION = {
    {DC_SOURCE, "setOtherOperXMLConfig", __LINE__},
    u"OtherOperation", // each one is an entry: there is no section around them
    "Invalid para. NULL pointer.pDOMParser",
    "Invalid para. NULL pointer. pAsnOtherOperationLst",
    "XercesDOMParser::getDocument failed :",
    DC_RESULT_INVALID_PARA,
};

constexpr StOptionReader OPTIONS = {
    lookupReader({DC_SOURCE, "fillOperOptionInfo", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    false,
};
constexpr StParameterReader PARAMETERS = {
    lookupReader({DC_SOURCE, "fillOperParaInfo", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    true,
    false,
    OPTIONS,
};

constexpr LocationInfo FILTER = {DC_SOURCE, "JudgeFilterOndixISSUCapability", __LINE__};

bool isFilteredOut(const std::string& strId)
{
    if (strId != "GetWeakBd")
        return false;
    logInfo(FILTER, "ISSU item is configed.");
    std::string strMode = "0";
    CDCSettingInfoTab::Instance()->getValueByParam(ServerNames::ISSU_MODE, strMode);
    if (strMode == "1" || strMode == "2")
        return false;
    if (strMode == "0")
        logInfo(FILTER, "User does not enable ISSU item.");
    else
        logInfo(FILTER, "ISSU mode value illigle.");
    return true;
}
} // namespace

std::uint32_t COtherOpXMLConfig::setOtherOperXMLConfig(XercesDOMParser*                   pDOMParser,
                                                       std::list<StAsnOtherOperationDef>* pLstOut)
{
    const auto fnFill = [this](const CAttributes& oEntry, StAsnOtherOperationDef& stEntry)
    {
        const EnFate enFate = fillCapability(oEntry, stEntry);
        isFilteredOut(stEntry.strId); // for its log lines alone: the entry is stored whatever the answer
        fillOperParaInfo(oEntry.element(), stEntry.lstParam);
        return enFate;
    };
    return readSections(OTHER_SECTION, pDOMParser, pLstOut,
                        [&](const DOMElement& oEntry) { readRecord(oEntry, *pLstOut, fnFill); });
}

bool COtherOpXMLConfig::JudgeFilterOndixISSUCapability(const std::string& strId)
try
{
    return isFilteredOut(strId);
}
catch (...)
{
    logThrown(FILTER, DC_RESULT_XML_ERROR);
    return true; // as with a setting that is not there
}

std::uint32_t COtherOpXMLConfig::fillOperParaInfo(const DOMElement* pEntry, std::list<StAsnOperParamDef>& lstOut)
{
    return readParameters(PARAMETERS, pEntry, lstOut);
}

std::uint32_t COtherOpXMLConfig::fillOperOptionInfo(const DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut)
{
    return readOptions(OPTIONS, pParameter, lstOut);
}

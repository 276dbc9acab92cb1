// The three operation sections differ in a row of a table, not in a copy.
#include "sections/CDevOpXMLConfig.h"

#include "common/LogLine.h"
#include "common/XmlRead.h"
#include "platform/Settings.h"
#include "records/WordTables.h"

#include <utility>

using namespace xercesc;

// What tells the sections apart: element name, texts, and whether they can be cancelled.
struct StOperSection
{
    const char16_t* pszElement;
    const char* pszNoParser;
    const char* pszNoInput;
    const char* pszNoElements;
    bool bReadsCancelable;
    std::uint32_t (CDevOpXMLConfig::*pfnFill)(const DOMElement*,
                                              std::list<StAsnOperation>*);    // logs under its own name
};

namespace
{
constexpr const char* DC_SOURCE = "CDevOpXMLConfig";

constexpr StOperSection DEVICE_SECTION = {
    u"DeviceOperation",
    "DOMElement::setDevOperXMLConfig(): pDOMParser pointer is NULL: ",
    "DOMElement::getElementsByTagName failed or pAsnDevOperationLst is NULL:",
    "DOMElement::getElementsByTagName failed",
    true,
    &CDevOpXMLConfig::fillDevOperInfo,
};
constexpr StOperSection TASK_SECTION = {
    u"TaskOperation",
    "CDevOpXMLConfig::setTaskOperationXMLConfig() pDOMParser is NULL :",
    "DOMElement::getElementsByTagName failed or pAsnTaskOperationLst is NULL:",
    "DOMElement::getElementsByTagName failed.",
    true,
    &CDevOpXMLConfig::fillTaskOperInfo,
};
constexpr StOperSection PATCH_SECTION = {
    u"PatchOperation",
    "CDevOpXMLConfig::setPatchOperXMLConfig() pDOMParser is NULL :",
    "DOMElement::getElementsByTagName failed or pAsnPatchOperationLst is NULL :",
    "DOMElement::getElementsByTagName failed.",
    false,    // never reads "isCancelable"
    &CDevOpXMLConfig::fillPatchOperInfo,
};

// The options of the program file are offered only where the server backs it up.
bool isProgramFile(const StAsnOptionInfo& stOption)
{
    return stOption.strId == "PROGFILE" && stOption.ulValue == 15;
}
}    // namespace

std::uint32_t CDevOpXMLConfig::setDevOperXMLConfig(XercesDOMParser* pDOMParser, std::list<StAsnOperation>* pLstOut)
{
    return setOperations(DC_HERE, DEVICE_SECTION, pDOMParser, pLstOut);
}

std::uint32_t CDevOpXMLConfig::setTaskOperationXMLConfig(XercesDOMParser* pDOMParser,
                                                         std::list<StAsnOperation>* pLstOut)
{
    return setOperations(DC_HERE, TASK_SECTION, pDOMParser, pLstOut);
}

std::uint32_t CDevOpXMLConfig::setPatchOperXMLConfig(XercesDOMParser* pDOMParser, std::list<StAsnOperation>* pLstOut)
{
    return setOperations(DC_HERE, PATCH_SECTION, pDOMParser, pLstOut);
}

std::uint32_t CDevOpXMLConfig::setOperations(const LocationInfo& stWhere, const StOperSection& stSection,
                                             XercesDOMParser* pDOMParser, std::list<StAsnOperation>* pLstOut)
{
    const _TraceFunction oTrace(stWhere);
    if (pDOMParser == nullptr)
        return logFail(stWhere, DC_RESULT_XML_ERROR, stSection.pszNoParser);
    if (documentOf(pDOMParser) == nullptr)
        return logFail(stWhere, DC_RESULT_XML_ERROR, "XercesDOMParser::getDocument failed :");
    for (const DOMElement* pSection : documentElements(*pDOMParser, stSection.pszElement))
        (this->*stSection.pfnFill)(pSection, pLstOut);
    return DC_RESULT_OK;
}

std::uint32_t CDevOpXMLConfig::fillDevOperInfo(const DOMElement* pSection, std::list<StAsnOperation>* pLstOut)
{
    return fillOperations(DC_HERE, DEVICE_SECTION, pSection, pLstOut);
}

std::uint32_t CDevOpXMLConfig::fillTaskOperInfo(const DOMElement* pSection, std::list<StAsnOperation>* pLstOut)
{
    return fillOperations(DC_HERE, TASK_SECTION, pSection, pLstOut);
}

std::uint32_t CDevOpXMLConfig::fillPatchOperInfo(const DOMElement* pSection, std::list<StAsnOperation>* pLstOut)
{
    return fillOperations(DC_HERE, PATCH_SECTION, pSection, pLstOut);
}

std::uint32_t CDevOpXMLConfig::fillOperations(const LocationInfo& stWhere, const StOperSection& stSection,
                                              const DOMElement* pSection, std::list<StAsnOperation>* pLstOut)
{
    if (pSection == nullptr || pLstOut == nullptr)
        return logFail(stWhere, DC_RESULT_XML_ERROR, stSection.pszNoInput);
    const CElements oOperations(pSection, u"Operation");
    if (oOperations.isMissing())
        return logFail(stWhere, DC_RESULT_XML_ERROR, stSection.pszNoElements);
    for (const DOMElement& oOperation : oOperations)
    {
        StAsnOperation& stOper = pLstOut->emplace_back();
        stOper.strId = attrText(oOperation, u"id");
        stOper.enOperationLevel = wordValue(attrText(oOperation, u"operationLevel"), OPERATION_LEVEL_WORDS,
                                            DCAsn1ClientToServer::DeviceLevel);
        if (stSection.bReadsCancelable)
            stOper.bIsCancelable = attrFlag(oOperation, u"isCancelable");
        fillOperParaInfo(&oOperation, stOper.lstParam);    // a bad parameter never stops its siblings
    }
    return DC_RESULT_OK;
}

std::uint32_t CDevOpXMLConfig::fillOperParaInfo(const DOMElement* pOperation, std::list<StAsnOperParamDef>& lstOut)
{
    const CElements oParameters(pOperation, u"Parameter");
    if (oParameters.isMissing())
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed :");
    for (const DOMElement& oParameter : oParameters)
    {
        StAsnOperParamDef& stParam = lstOut.emplace_back();
        stParam.bIsRequired = attrFlag(oParameter, u"isRequired");
        stParam.strId = attrText(oParameter, u"id");
        stParam.strValue = attrText(oParameter, u"value");
        stParam.strSelected = attrText(oParameter, u"selected");
        fillOperOptionInfo(&oParameter, stParam.lstOption);    // a bad option never stops its siblings
    }
    return DC_RESULT_OK;
}

std::uint32_t CDevOpXMLConfig::fillOperOptionInfo(const DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut)
{
    const CElements oOptions = optionElements(pParameter);
    if (oOptions.isMissing())
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed :");
    for (const DOMElement& oOption : oOptions)
    {
        StAsnOptionInfo stOption;
        stOption.strId = attrText(oOption, u"id");
        stOption.ulValue = attrNumber(oOption, u"value");
        stOption.strTarget = attrText(oOption, u"target");
        if (!isProgramFile(stOption) || isBackupProgramEnable())
            lstOut.push_back(std::move(stOption));
    }
    return DC_RESULT_OK;
}

bool CDevOpXMLConfig::isBackupProgramEnable()
{
    std::string strValue;
    const std::uint32_t ulResult = CSysCommonFunc::readResourceFile("BACKUP_PROGRAM_SUPPORT", strValue);
    if (ulResult != DC_RESULT_OK)
    {
        logFail(DC_HERE, ulResult, "CSysCommonFunc::readResourceFile failed for BACKUP_PROGRAM_SUPPORT.");
        return false;
    }
    return toNumber(strValue) == 1;
}

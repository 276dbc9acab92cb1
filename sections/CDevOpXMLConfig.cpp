// The three operation sections differ in a row of a table, not in a copy.
#include "sections/CDevOpXMLConfig.h"

#include "platform/Settings.h"
#include "sections/CTaskXMLConfig.h"
#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

using namespace xercesc;

// What tells the sections apart: element name, texts, and whether they can be cancelled.
struct StOperSection
{
    const char16_t* pszElement;
    const char*     pszNoParser;
    const char*     pszNoInput;
    const char*     pszNoElements;
    bool            bReadsCancelable;
    std::uint32_t (CDevOpXMLConfig::*pfnFill)(const DOMElement*,
                                              std::list<StAsnOperation>*); // logs under its own name
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
    false, // never reads "isCancelable"
    &CDevOpXMLConfig::fillPatchOperInfo,
};

// The steps and features of a task type without parameters. Lookups below an
// element fail for all names or for none, and the caller has made one.
void fillTaskConfigBlock(const DOMElement& oTaskType, StAsnTaskConfigOperation& stBlock)
{
    CTaskXMLConfig  oTaskConfig;
    const CElements oOperations(&oTaskType, u"Operation");
    for (const DOMElement& oOperation : oOperations)
        oTaskConfig.fillTaskOperInfo(&oOperation, stBlock.lstTaskOperationDef);
    if (oOperations.isEmpty())
        oTaskConfig.fillTaskOperInfo(&oTaskType, stBlock.lstTaskOperationDef);
    for (const DOMElement& oFeatures : CElements(&oTaskType, u"TaskFeatureConfiguration"))
        oTaskConfig.fillTaskFeatureConfigInfo(&oFeatures, stBlock.lstOtherOperationDef);
}

// The options of the program file are offered only where the server backs it up.
bool isProgramFile(const StAsnOptionInfo& stOption)
{
    return stOption.strId == "PROGFILE" && stOption.ulValue == 15;
}
} // namespace

std::uint32_t CDevOpXMLConfig::setDevOperXMLConfig(XercesDOMParser* pDOMParser, std::list<StAsnOperation>* pLstOut)
{
    return setOperations(DC_HERE, DEVICE_SECTION, pDOMParser, pLstOut);
}

std::uint32_t CDevOpXMLConfig::setTaskOperationXMLConfig(XercesDOMParser*           pDOMParser,
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
    const StSection stEntry = {stSection.pszElement, stSection.pszNoParser, nullptr,
                               "XercesDOMParser::getDocument failed :"};
    return readSections(stWhere, stEntry, pDOMParser, pLstOut,
                        [&](const DOMElement& oSection) { (this->*stSection.pfnFill)(&oSection, pLstOut); });
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
    return readRecords(stWhere, CElements(pSection, u"Operation"), stSection.pszNoElements, pLstOut,
                       [&](const CAttributes& oOperation, StAsnOperation& stOper)
                       {
                           stOper.strId            = attrText(oOperation, u"id");
                           stOper.enOperationLevel = readLevel(oOperation);
                           if (stSection.bReadsCancelable)
                               stOper.bIsCancelable = attrFlag(oOperation, u"isCancelable");
                           fillOperParaInfo(oOperation.element(),
                                            stOper.lstParam); // a bad parameter never stops its siblings
                       });
}

std::uint32_t CDevOpXMLConfig::fillOperParaInfo(const DOMElement* pOperation, std::list<StAsnOperParamDef>& lstOut)
{
    return readRecords(DC_HERE, CElements(pOperation, u"Parameter"),
                       "DOMElement::getElementsByTagName failed :", &lstOut,
                       [this](const CAttributes& oParameter, StAsnOperParamDef& stParam)
                       {
                           stParam.bIsRequired = attrFlag(oParameter, u"isRequired");
                           stParam.strId       = attrText(oParameter, u"id");
                           stParam.strValue    = attrText(oParameter, u"value");
                           stParam.strSelected = attrText(oParameter, u"selected");
                           fillOperOptionInfo(oParameter.element(), stParam.lstOption); // nor does a bad option
                       });
}

std::uint32_t CDevOpXMLConfig::fillOperOptionInfo(const DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut)
{
    return readRecords(DC_HERE, optionElements(pParameter), "DOMElement::getElementsByTagName failed :", &lstOut,
                       [](const CAttributes& oOption, StAsnOptionInfo& stOption)
                       {
                           readOption(oOption, stOption);
                           stOption.strTarget = attrText(oOption, u"target");
                           return !isProgramFile(stOption) || isBackupProgramEnable();
                       });
}

std::uint32_t CDevOpXMLConfig::fillTaskConfigInfoOperation(const DOMElement*                    pTaskType,
                                                           std::list<StAsnTaskConfigOperation>& lstOut)
{
    const CElements oParameters(pTaskType, u"Parameter");
    if (oParameters.isMissing())
        return logFail(DC_HERE, DC_RESULT_XML_ERROR, "DOMElement::getElementsByTagName failed :");
    if (oParameters.isEmpty())
    {
        fillTaskConfigBlock(*pTaskType, lstOut.emplace_back());
        return DC_RESULT_OK;
    }
    for (const DOMElement& oParameter : oParameters)
    {
        StAsnTaskConfigOperation& stParam = lstOut.emplace_back();
        stParam.bIsRequired               = attrFlag(oParameter, u"isRequired");
        stParam.strId                     = attrText(oParameter, u"id");
        stParam.strValue                  = attrText(oParameter, u"value");
        fillOperOptionInfo(&oParameter, stParam.lstOption);
        // No features here: a task type with parameters carries no feature list.
        CTaskXMLConfig().fillTaskOperInfo(&oParameter, stParam.lstTaskOperationDef);
    }
    return DC_RESULT_OK;
}

bool CDevOpXMLConfig::isBackupProgramEnable()
{
    std::string         strValue;
    const std::uint32_t ulResult = CSysCommonFunc::readResourceFile("BACKUP_PROGRAM_SUPPORT", strValue);
    if (ulResult != DC_RESULT_OK)
    {
        logFail(DC_HERE, ulResult, "CSysCommonFunc::readResourceFile failed for BACKUP_PROGRAM_SUPPORT.");
        return false;
    }
    return toNumber(strValue) == 1;
}

// The three operation sections differ in a row of a table, not in a copy.
#include "sections/CDevOpXMLConfig.h"

#include "platform/Settings.h"
#include "records/ServerNames.h"
#include "sections/ItemRead.h"
#include "sections/TaskRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CDevOpXMLConfig";

constexpr LocationInfo PROGRAM_FILE = {DC_SOURCE, "isBackupProgramEnable", __LINE__};

bool isProgramFileBackedUp()
{
    std::string         strValue;
    const std::uint32_t ulResult = CSysCommonFunc::readResourceFile(ServerNames::BACKUP_PROGRAM_SUPPORT, strValue);
    if (ulResult != DC_RESULT_OK)
    {
        logFail(PROGRAM_FILE, ulResult, "CSysCommonFunc::readResourceFile failed for BACKUP_PROGRAM_SUPPORT.");
        return false;
    }
    return toNumber(strValue) == 1;
}

// The options of the program file are offered only where the server backs it up.
EnFate judgeOption(const StAsnOptionInfo& stOption)
{
    const bool bProgramFile = stOption.strId == "PROGFILE" && stOption.ulValue == 15;
    return bProgramFile && !isProgramFileBackedUp() ? EnFate::NoProgramFile : EnFate::Kept;
}

constexpr StOptionReader OPTIONS = {
    lookupReader({DC_SOURCE, "fillOperOptionInfo", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    true,
    judgeOption,
};
constexpr StParameterReader PARAMETERS = {
    lookupReader({DC_SOURCE, "fillOperParaInfo", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    true,
    true,
    OPTIONS,
};
constexpr StParameterReader TASK_PARAMETERS = {
    lookupReader({DC_SOURCE, "fillTaskConfigInfoOperation", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    true,
    false,
    OPTIONS,
};

EnFate fillPatchOperation(const CAttributes& oOperation, StAsnOperation& stOper)
{
    stOper.strId            = attrText(oOperation, u"id");
    stOper.enOperationLevel = readLevel(oOperation);
    readParameters(PARAMETERS, oOperation.element(), stOper.lstParam); // a bad parameter stops nothing
    return EnFate::Kept;
}

// Those of the other two sections can be cancelled.
EnFate fillOperation(const CAttributes& oOperation, StAsnOperation& stOper)
{
    stOper.bIsCancelable = attrFlag(oOperation, u"isCancelable");
    return fillPatchOperation(oOperation, stOper);
}

constexpr StSection DEVICE_SECTION = {
    {DC_SOURCE, "setDevOperXMLConfig", __LINE__},
    u"DeviceOperation",
    "DOMElement::setDevOperXMLConfig(): pDOMParser pointer is NULL: ",
    nullptr,
    "XercesDOMParser::getDocument failed :",
};
constexpr StRecordReader<StAsnOperation> DEVICE_OPERATIONS = {
    {{DC_SOURCE, "fillDevOperInfo", __LINE__},
     "DOMElement::getElementsByTagName failed or pAsnDevOperationLst is NULL:",
     "DOMElement::getElementsByTagName failed or pAsnDevOperationLst is NULL:",
     "DOMElement::getElementsByTagName failed"},
    u"Operation",
    fillOperation,
};

constexpr StSection TASK_SECTION = {
    {DC_SOURCE, "setTaskOperationXMLConfig", __LINE__},
    u"TaskOperation",
    "CDevOpXMLConfig::setTaskOperationXMLConfig() pDOMParser is NULL :",
    nullptr,
    "XercesDOMParser::getDocument failed :",
};
constexpr StRecordReader<StAsnOperation> TASK_OPERATIONS = {
    {{DC_SOURCE, "fillTaskOperInfo", __LINE__},
     "DOMElement::getElementsByTagName failed or pAsnTaskOperationLst is NULL:",
     "DOMElement::getElementsByTagName failed or pAsnTaskOperationLst is NULL:",
     "DOMElement::getElementsByTagName failed."},
    u"Operation",
    fillOperation,
};

constexpr StSection PATCH_SECTION = {
    {DC_SOURCE, "setPatchOperXMLConfig", __LINE__},
    u"PatchOperation",
    "CDevOpXMLConfig::setPatchOperXMLConfig() pDOMParser is NULL :",
    nullptr,
    "XercesDOMParser::getDocument failed :",
};
constexpr StRecordReader<StAsnOperation> PATCH_OPERATIONS = {
    {{DC_SOURCE, "fillPatchOperInfo", __LINE__},
     "DOMElement::getElementsByTagName failed or pAsnPatchOperationLst is NULL :",
     "DOMElement::getElementsByTagName failed or pAsnPatchOperationLst is NULL :",
     "DOMElement::getElementsByTagName failed."},
    u"Operation",
    fillPatchOperation,
};

// One parameter of a task type. No features here: a task type with parameters
// carries no feature list.
EnFate fillTaskParameter(const CAttributes& oParameter, StAsnTaskConfigOperation& stParam)
{
    const EnFate enFate = readParameter(TASK_PARAMETERS, oParameter, stParam);
    readTaskSteps(oParameter.element(), stParam.lstTaskOperationDef);
    return enFate;
}

// The steps and features of a task type without parameters.
EnFate fillTaskBlock(const CAttributes& oTaskType, StAsnTaskConfigOperation& stBlock)
{
    const CElements oOperations(oTaskType.element(), u"Operation");
    for (const DOMElement& oOperation : oOperations)
        readTaskSteps(&oOperation, stBlock.lstTaskOperationDef);
    if (oOperations.isEmpty())
        readTaskSteps(oTaskType.element(), stBlock.lstTaskOperationDef);
    for (const DOMElement& oFeatures : CElements(oTaskType.element(), u"TaskFeatureConfiguration"))
        readTaskFeatures(&oFeatures, stBlock.lstOtherOperationDef);
    return EnFate::Kept;
}
} // namespace

std::uint32_t readTaskContent(const DOMElement* pTaskType, std::list<StAsnTaskConfigOperation>& lstOut)
{
    const CElements oParameters(pTaskType, u"Parameter");
    if (!oParameters.isMissing() && oParameters.isEmpty())
    {
        readRecord(*pTaskType, lstOut, fillTaskBlock);
        return DC_RESULT_OK;
    }
    return readRecords(TASK_PARAMETERS, pTaskType, oParameters, &lstOut, fillTaskParameter);
}

std::uint32_t CDevOpXMLConfig::setDevOperXMLConfig(XercesDOMParser* pDOMParser, std::list<StAsnOperation>* pLstOut)
{
    return readSections(DEVICE_SECTION, DEVICE_OPERATIONS, pDOMParser, pLstOut);
}

std::uint32_t CDevOpXMLConfig::setTaskOperationXMLConfig(XercesDOMParser*           pDOMParser,
                                                         std::list<StAsnOperation>* pLstOut)
{
    return readSections(TASK_SECTION, TASK_OPERATIONS, pDOMParser, pLstOut);
}

std::uint32_t CDevOpXMLConfig::setPatchOperXMLConfig(XercesDOMParser* pDOMParser, std::list<StAsnOperation>* pLstOut)
{
    return readSections(PATCH_SECTION, PATCH_OPERATIONS, pDOMParser, pLstOut);
}

std::uint32_t CDevOpXMLConfig::fillDevOperInfo(const DOMElement* pSection, std::list<StAsnOperation>* pLstOut)
{
    return guarded(DEVICE_OPERATIONS, [&] { return readRecords(DEVICE_OPERATIONS, pSection, pLstOut); });
}

std::uint32_t CDevOpXMLConfig::fillTaskOperInfo(const DOMElement* pSection, std::list<StAsnOperation>* pLstOut)
{
    return guarded(TASK_OPERATIONS, [&] { return readRecords(TASK_OPERATIONS, pSection, pLstOut); });
}

std::uint32_t CDevOpXMLConfig::fillPatchOperInfo(const DOMElement* pSection, std::list<StAsnOperation>* pLstOut)
{
    return guarded(PATCH_OPERATIONS, [&] { return readRecords(PATCH_OPERATIONS, pSection, pLstOut); });
}

std::uint32_t CDevOpXMLConfig::fillOperParaInfo(const DOMElement* pOperation, std::list<StAsnOperParamDef>& lstOut)
{
    return guarded(PARAMETERS, [&] { return readParameters(PARAMETERS, pOperation, lstOut); });
}

std::uint32_t CDevOpXMLConfig::fillOperOptionInfo(const DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut)
{
    return guarded(OPTIONS, [&] { return readOptions(OPTIONS, pParameter, lstOut); });
}

std::uint32_t CDevOpXMLConfig::fillTaskConfigInfoOperation(const DOMElement*                    pTaskType,
                                                           std::list<StAsnTaskConfigOperation>& lstOut)
{
    return guarded(TASK_PARAMETERS, [&] { return readTaskContent(pTaskType, lstOut); });
}

bool CDevOpXMLConfig::isBackupProgramEnable()
try
{
    return isProgramFileBackedUp();
}
catch (...)
{
    logThrown(PROGRAM_FILE, DC_RESULT_XML_ERROR);
    return false;
}

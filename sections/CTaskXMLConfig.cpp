// Task types of the task configuration, their steps and features.
#include "sections/CTaskXMLConfig.h"

#include "sections/ItemRead.h"
#include "sections/TaskRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CTaskXMLConfig";

// A missing list is told like a missing element.
constexpr StSection TASK_TYPES = {
    {DC_SOURCE, "setTaskConfiguration", __LINE__}, u"TaskType", nullptr, "DOMElement::getElementsByTagName failed :",
    "XercesDOMParser::getDocument failed :",
};

EnFate fillTaskType(const CAttributes& oTaskType, StAsnTaskConfigInfoOperation& stTask)
{
    const StTaskTypeWord* pWord = attrRow(oTaskType, u"id", TASK_TYPE_WORDS);
    if (pWord == nullptr)
        return EnFate::UnknownTaskType;
    stTask.enTaskType     = pWord->enConfigType;
    stTask.strGUITemplete = attrText(oTaskType, u"GUITemplete");
    readTaskContent(oTaskType.element(), stTask.lstTaskConfigOperation);
    return EnFate::Kept;
}

EnFate fillStep(const CAttributes& oStep, StAsnTaskOperationDef& stStep)
{
    stStep.strDependsOn       = attrText(oStep, u"dependsOn");
    stStep.strOperDescription = attrText(oStep, u"operDescription");
    stStep.strIsSelect        = attrText(oStep, u"isSelect"); // texts for the client to read
    stStep.strIsPauseBeforeOP = attrText(oStep, u"isPauseBeforeOP");
    return fillReference(oStep, stStep);
}

constexpr StRecordReader<StAsnTaskOperationDef> STEPS = {
    lookupReader({DC_SOURCE, "fillTaskOperInfo", __LINE__}, "DOMElement::getElementsByTagName failed :"),
    u"TaskConfigOper",
    fillStep,
};
constexpr StRecordReader<StAsnOtherOperationDef> FEATURES = {
    lookupReader({DC_SOURCE, "fillTaskFeatureConfigInfo", __LINE__}, "DOMElement::getElementsByTagName failed:"),
    u"Configuration",
    fillCapability,
};
} // namespace

std::uint32_t readTaskSteps(const DOMElement* pElement, std::list<StAsnTaskOperationDef>& lstOut)
{
    return readRecords(STEPS, pElement, &lstOut);
}

std::uint32_t readTaskFeatures(const DOMElement* pElement, std::list<StAsnOtherOperationDef>& lstOut)
{
    return readRecords(FEATURES, pElement, &lstOut);
}

std::uint32_t CTaskXMLConfig::setTaskConfiguration(XercesDOMParser*                         pDOMParser,
                                                   std::list<StAsnTaskConfigInfoOperation>* pLstOut)
{
    return readSections(TASK_TYPES, pDOMParser, pLstOut,
                        [pLstOut](const DOMElement& oTaskType) { readRecord(oTaskType, *pLstOut, fillTaskType); });
}

std::uint32_t CTaskXMLConfig::fillTaskOperInfo(const DOMElement* pElement, std::list<StAsnTaskOperationDef>& lstOut)
{
    return guarded(STEPS, [&] { return readTaskSteps(pElement, lstOut); });
}

std::uint32_t CTaskXMLConfig::fillTaskFeatureConfigInfo(const DOMElement*                  pElement,
                                                        std::list<StAsnOtherOperationDef>& lstOut)
{
    return guarded(FEATURES, [&] { return readTaskFeatures(pElement, lstOut); });
}

// Task types of the task configuration, their steps and features.
#include "sections/CTaskXMLConfig.h"

#include "sections/CDevOpXMLConfig.h"
#include "sections/ItemRead.h"
#include "sections/SectionRead.h"

using namespace xercesc;

namespace
{
constexpr const char* DC_SOURCE = "CTaskXMLConfig";

// A missing list is told like a missing element.
constexpr StSection TASK_TYPE_SECTION = {
    u"TaskType", nullptr, "DOMElement::getElementsByTagName failed :", "XercesDOMParser::getDocument failed :"};
} // namespace

std::uint32_t CTaskXMLConfig::setTaskConfiguration(XercesDOMParser*                         pDOMParser,
                                                   std::list<StAsnTaskConfigInfoOperation>* pLstOut)
{
    return readSections(DC_HERE, TASK_TYPE_SECTION, pDOMParser, pLstOut,
                        [&](const DOMElement& oTaskType)
                        {
                            const StTaskTypeWord* pWord = findTaskType(attrText(oTaskType, u"id"));
                            if (pWord == nullptr)
                                return; // an unset type would read as a software upgrade
                            StAsnTaskConfigInfoOperation stTask;
                            stTask.enTaskType     = pWord->enConfigType;
                            stTask.strGUITemplete = attrText(oTaskType, u"GUITemplete");
                            CDevOpXMLConfig().fillTaskConfigInfoOperation(&oTaskType, stTask.lstTaskConfigOperation);
                            pLstOut->push_back(std::move(stTask));
                        });
}

std::uint32_t CTaskXMLConfig::fillTaskOperInfo(const DOMElement* pElement, std::list<StAsnTaskOperationDef>& lstOut)
{
    return readRecords(DC_HERE, CElements(pElement, u"TaskConfigOper"),
                       "DOMElement::getElementsByTagName failed :", &lstOut,
                       [](const CAttributes& oStep, StAsnTaskOperationDef& stStep)
                       {
                           readReference(oStep, stStep);
                           stStep.strDependsOn       = attrText(oStep, u"dependsOn");
                           stStep.strOperDescription = attrText(oStep, u"operDescription");
                           stStep.strIsSelect        = attrText(oStep, u"isSelect"); // texts for the client to read
                           stStep.strIsPauseBeforeOP = attrText(oStep, u"isPauseBeforeOP");
                       });
}

std::uint32_t CTaskXMLConfig::fillTaskFeatureConfigInfo(const DOMElement*                  pElement,
                                                        std::list<StAsnOtherOperationDef>& lstOut)
{
    return readRecords(DC_HERE, CElements(pElement, u"Configuration"),
                       "DOMElement::getElementsByTagName failed:", &lstOut, readCapability);
}

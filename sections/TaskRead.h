// The insides of the public operations by which the device and the task parser
// call each other: what stands below a task type. Each is defined beside its
// operation and logs under its name. Called by those two parsers. Stateless.
#ifndef OPERATIONXML_SECTIONS_TASKREAD_H
#define OPERATIONXML_SECTIONS_TASKREAD_H

#include "records/TaskRecords.h"

#include <xercesc/dom/DOM.hpp>

#include <cstdint>
#include <list>

// CDevOpXMLConfig::fillTaskConfigInfoOperation
std::uint32_t readTaskContent(const xercesc::DOMElement* pTaskType, std::list<StAsnTaskConfigOperation>& lstOut);

// CTaskXMLConfig::fillTaskOperInfo and fillTaskFeatureConfigInfo
std::uint32_t readTaskSteps(const xercesc::DOMElement* pElement, std::list<StAsnTaskOperationDef>& lstOut);
std::uint32_t readTaskFeatures(const xercesc::DOMElement* pElement, std::list<StAsnOtherOperationDef>& lstOut);

#endif

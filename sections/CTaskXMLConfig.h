// CTaskXMLConfig: reads the "TaskType" elements of a configuration file, what the
// client's task wizard offers for each kind of software task, into
// StAsnTaskConfigInfoOperation records. What stands below a task type is read by
// CDevOpXMLConfig::fillTaskConfigInfoOperation, which comes back here for steps
// and features.
// Stateless; safe on any thread that owns the parser handed in. Appends to the
// caller's lists in document order. Failures are logged, DC_RESULT_XML_ERROR.
// Called by the section chain (reader/SectionTable.h), and by the device parser (TaskRead.h).
#ifndef OPERATIONXML_SECTIONS_CTASKXMLCONFIG_H
#define OPERATIONXML_SECTIONS_CTASKXMLCONFIG_H

#include "platform/Export.h"
#include "records/TaskRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

class OPERATIONXML_API CTaskXMLConfig
{
public:
    // Reads every task type of the document; one whose id the task configuration
    // does not know is left out. A null parser counts as no document.
    std::uint32_t setTaskConfiguration(xercesc::XercesDOMParser*                pDOMParser,
                                       std::list<StAsnTaskConfigInfoOperation>* pLstOut);

    // Read the "TaskConfigOper" elements (steps) and the "Configuration" elements
    // (features) below an element.
    std::uint32_t fillTaskOperInfo(const xercesc::DOMElement* pElement, std::list<StAsnTaskOperationDef>& lstOut);
    std::uint32_t fillTaskFeatureConfigInfo(const xercesc::DOMElement*         pElement,
                                            std::list<StAsnOtherOperationDef>& lstOut);
};

#endif

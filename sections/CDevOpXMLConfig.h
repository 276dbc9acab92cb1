// CDevOpXMLConfig: reads the "DeviceOperation", "TaskOperation" and
// "PatchOperation" sections of a server configuration file into StAsnOperation
// records, and the content of a "TaskType" into StAsnTaskConfigOperation records.
// Stateless; safe on any thread that owns the parser handed in. Appends to the
// caller's lists in document order and never removes what is already there.
// Every failure answers DC_RESULT_XML_ERROR and is logged once, where it arises.
// Called by the section chain (reader/), and by whoever reads a document himself.
#ifndef OPERATIONXML_SECTIONS_CDEVOPXMLCONFIG_H
#define OPERATIONXML_SECTIONS_CDEVOPXMLCONFIG_H

#include "platform/Export.h"
#include "records/OperationRecords.h"
#include "records/TaskRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstdint>
#include <list>

class OPERATIONXML_API CDevOpXMLConfig
{
public:
    // Read every section of the name in the parser's document. 0 also when there
    // is none; DC_RESULT_XML_ERROR for a null parser or no document.
    std::uint32_t setDevOperXMLConfig(xercesc::XercesDOMParser* pDOMParser, std::list<StAsnOperation>* pLstOut);
    std::uint32_t setTaskOperationXMLConfig(xercesc::XercesDOMParser* pDOMParser, std::list<StAsnOperation>* pLstOut);
    std::uint32_t setPatchOperXMLConfig(xercesc::XercesDOMParser* pDOMParser, std::list<StAsnOperation>* pLstOut);

    // Read the operations of one section element. No operation is rejected or merged.
    std::uint32_t fillDevOperInfo(const xercesc::DOMElement* pSection, std::list<StAsnOperation>* pLstOut);
    std::uint32_t fillTaskOperInfo(const xercesc::DOMElement* pSection, std::list<StAsnOperation>* pLstOut);
    std::uint32_t fillPatchOperInfo(const xercesc::DOMElement* pSection, std::list<StAsnOperation>* pLstOut);

    // Reads the parameters of one operation, each with its options.
    std::uint32_t fillOperParaInfo(const xercesc::DOMElement* pOperation, std::list<StAsnOperParamDef>& lstOut);

    // Reads the options of one parameter; those spelled "option" only when it has
    // no "Option". The program-file option is kept while isBackupProgramEnable().
    std::uint32_t fillOperOptionInfo(const xercesc::DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut);

    // Reads what stands below one "TaskType": a record for each "Parameter", or,
    // when it has none, one record with its steps and features. "selected" is in
    // neither.
    std::uint32_t fillTaskConfigInfoOperation(const xercesc::DOMElement*           pTaskType,
                                              std::list<StAsnTaskConfigOperation>& lstOut);

    // Whether the server's resource "BACKUP_PROGRAM_SUPPORT" is 1. Asked afresh
    // each time; a resource that cannot be read is logged and answers false.
    static bool isBackupProgramEnable();
};

#endif

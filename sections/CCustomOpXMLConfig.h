// CCustomOpXMLConfig: reads the "CustomOperations" sections of a server
// configuration file into StAsnCustomOperationDef records.
// Stateless; safe on any thread that owns the parser handed in. Appends to the
// caller's list in document order and never removes what is already there.
// Called by the section chain (reader/SectionTable.h), in its order.
#ifndef OPERATIONXML_SECTIONS_CCUSTOMOPXMLCONFIG_H
#define OPERATIONXML_SECTIONS_CCUSTOMOPXMLCONFIG_H

#include "platform/Export.h"
#include "records/OperationRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

class OPERATIONXML_API CCustomOpXMLConfig
{
public:
    // Reads every section. DC_RESULT_XML_ERROR for a null parser or no document;
    // a null list is logged once for each section and still answers 0.
    std::uint32_t setCustomOperXMLConfig(xercesc::XercesDOMParser*           pDOMParser,
                                         std::list<StAsnCustomOperationDef>* pLstOut);

    // Reads the operations of one section; records with equal ids are all kept.
    std::uint32_t fillCustomOper(const xercesc::DOMElement* pSection, std::list<StAsnCustomOperationDef>* pLstOut);

    // Sets strFileName from the last "ResouceClass" (spelled so) of an operation;
    // left as it came when there is none.
    std::uint32_t fillResourceClass(const xercesc::DOMElement* pOperation, std::string& strFileName);
};

#endif

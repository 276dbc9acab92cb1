// CUpgradeOpXMLConfig: reads the "UpgradeOperation" sections of a server
// configuration file or module file into StAsnUpgradeOperationDef records.
// Stateless; safe on any thread that owns the parser handed in. Appends to the
// caller's lists in document order and never removes what is already there.
// Every failure answers DC_RESULT_XML_ERROR and is logged once, where it arises.
// Called by the section chain (reader/SectionTable.h), in its order.
#ifndef OPERATIONXML_SECTIONS_CUPGRADEOPXMLCONFIG_H
#define OPERATIONXML_SECTIONS_CUPGRADEOPXMLCONFIG_H

#include "platform/Export.h"
#include "records/UpgradeRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstdint>
#include <list>
#include <string>

class OPERATIONXML_API CUpgradeOpXMLConfig
{
public:
    // Reads every section; 0 also when there is none.
    std::uint32_t setUpgradeOperXMLConfig(xercesc::XercesDOMParser*            pDOMParser,
                                          std::list<StAsnUpgradeOperationDef>* pLstOut);

    // Reads the operations of one section. One whose content cannot be looked up
    // is dropped, and its siblings are read all the same.
    std::uint32_t fillUpgradeOperInfo(const xercesc::DOMElement*           pSection,
                                      std::list<StAsnUpgradeOperationDef>* pLstOut);

    // Read the sub-operations of one operation, the parameters of one
    // sub-operation, and the options of one parameter. An element whose content
    // cannot be looked up is dropped and fails the read of its siblings, so that in
    // the end the whole operation is dropped.
    std::uint32_t fillSubOperType(const xercesc::DOMElement* pOperation, std::string strTagName,
                                  std::list<StAsnUpgradeSubOperationDef>& lstOut);
    std::uint32_t fillSubParaType(const xercesc::DOMElement* pSubOperation, std::string strTagName,
                                  std::list<StAsnOperParamDef>& lstOut);
    std::uint32_t fillOperOptionInfo(const xercesc::DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut);
};

#endif

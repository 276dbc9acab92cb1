// CCheckOpXMLConfig: reads check operations into StAsnCheckOperationDef records,
// from one of three sources: the "CheckOperations" sections of a server
// configuration file, a telnet check file, or a fixed check file.
// Stateless; safe on any thread that owns the parser handed in. Appends to the
// caller's lists in document order and never removes what is already there.
// Every failure answers DC_RESULT_XML_ERROR and is logged once, where it arises.
// Called by the section chain (reader/SectionTable.h), and for check files by the
// device-type reader.
#ifndef OPERATIONXML_SECTIONS_CCHECKOPXMLCONFIG_H
#define OPERATIONXML_SECTIONS_CCHECKOPXMLCONFIG_H

#include "platform/Export.h"
#include "records/CheckRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstdint>
#include <list>
#include <string>

enum EnCheckReportType : std::int32_t; // platform/DeviceAdapter.h

class OPERATIONXML_API CCheckOpXMLConfig
{
public:
    // Reads every "CheckOperations" section. The records carry no task type (-1).
    std::uint32_t setCheckOpConfiguration(xercesc::XercesDOMParser*          pDOMParser,
                                          std::list<StAsnCheckOperationDef>* pLstOut);

    // Reads a telnet check file: one record for each "PreCheck" and "PostCheck" of
    // each task type, named after the element. The report type says how the
    // results come back from a device; nothing in the records depends on it.
    std::uint32_t setCheckOpConfigurationTelnet(xercesc::XercesDOMParser*          pDOMParser,
                                                std::list<StAsnCheckOperationDef>* pLstOut,
                                                EnCheckReportType                  enReportType);

    // Reads a fixed check file: one record for each "Operation" of each task type.
    std::uint32_t setFixedCheckOpConfiguration(xercesc::XercesDOMParser*          pDOMParser,
                                               std::list<StAsnCheckOperationDef>* pLstOut);

    // Reads the operations of one "CheckOperations" section.
    std::uint32_t fillCheckOperInfo(const xercesc::DOMElement* pSection, std::list<StAsnCheckOperationDef>* pLstOut);

    // Reads the elements of the name below pElement as check items, each with its
    // "SubItem" elements. Lookups take any depth: a sub item nested two levels
    // down stands under its parent and again under its grandparent.
    std::uint32_t fillCheckType(const xercesc::DOMElement* pElement, std::string strTagName,
                                std::list<StAsnCheckType>* pLstOut);

    // The same for the items of a telnet check file, which know "checked" and "GUI" as well.
    std::uint32_t fillCheckTypeTelnet(const xercesc::DOMElement* pElement, std::string strTagName,
                                      std::list<StAsnCheckType>* pLstOut);

    // Read the operations of one "TaskType" of a fixed check file, and the items of one of them.
    std::uint32_t fillFixedCheckType(const xercesc::DOMElement* pTaskType, std::int32_t nTaskType,
                                     std::list<StAsnCheckOperationDef>* pLstOut);
    std::uint32_t fillFixedCheckItem(const xercesc::DOMElement* pOperation, std::list<StAsnCheckType>* pLstOut);
};

#endif

// CDevTypeXMLConfig: reads module files, although it bears the name of a device
// type: the two sections that no device-type file has, which module the file belongs
// to ("DeviceType") and which device types it supports.
// Called by CModuleXMLResReader. Stateless; works on the caller's parser and lists: calls may run at once, each
// with its own. Failures are logged and answer DC_RESULT_XML_ERROR.
#ifndef OPERATIONXML_READER_CDEVTYPEXMLCONFIG_H
#define OPERATIONXML_READER_CDEVTYPEXMLCONFIG_H

#include "platform/Export.h"
#include "records/ModuleRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

#include <cstdint>
#include <list>
#include <string>

class OPERATIONXML_API CDevTypeXMLConfig
{
public:
    // The "name" of the document's first "DeviceType" element; a document without
    // one belongs to no module and fails.
    std::uint32_t setModuleXMLConfig(xercesc::XercesDOMParser* pDOMParser, std::string& strName);

    // Appends the supported device types of every "support" element.
    std::uint32_t setDevTypeXMLConfig(xercesc::XercesDOMParser* pDOMParser, StAsnModuleInfoVerXMLInfo& stModule);

    // Appends the "name" of each "dev" element below one "support" element.
    std::uint32_t fillDevTypeInfo(const xercesc::DOMElement* pSupport, std::list<std::string>* pLstOut);
};

#endif

// COtherOpXMLConfig: reads the "OtherOperation" entries of a server configuration
// file, named capabilities that a device type has or has not, into
// StAsnOtherOperationDef records.
// Stateless; safe on any thread that owns the parser handed in. Appends to the
// caller's list in document order and never removes what is already there.
// Called by the section chain (reader/SectionTable.h), in its order.
#ifndef OPERATIONXML_SECTIONS_COTHEROPXMLCONFIG_H
#define OPERATIONXML_SECTIONS_COTHEROPXMLCONFIG_H

#include "platform/Export.h"
#include "records/OperationRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

class OPERATIONXML_API COtherOpXMLConfig
{
public:
    // Reads every entry; entries with equal ids are all kept. DC_RESULT_INVALID_PARA
    // for a null argument, DC_RESULT_XML_ERROR for no document.
    std::uint32_t setOtherOperXMLConfig(xercesc::XercesDOMParser*          pDOMParser,
                                        std::list<StAsnOtherOperationDef>* pLstOut);

    // Whether the entry of this id would be left out under the server's in-service
    // upgrade setting. Only its log lines have an effect: every entry is stored.
    static bool JudgeFilterOndixISSUCapability(const std::string& strId);

private:
    // This section's parameters have no "selected", and their options no "target"
    // and no rule for the program file.
    std::uint32_t fillOperParaInfo(const xercesc::DOMElement* pEntry, std::list<StAsnOperParamDef>& lstOut);
    std::uint32_t fillOperOptionInfo(const xercesc::DOMElement* pParameter, std::list<StAsnOptionInfo>& lstOut);
};

#endif

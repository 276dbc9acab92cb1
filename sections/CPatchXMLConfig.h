// CPatchXMLConfig: reads the "PatchStateConfiguration" sections, which operations
// the client offers in each state of a hot or cold patch, into StAsnPatchDef records.
// Stateless; safe on any thread that owns the parser handed in. Appends to the
// caller's lists in document order and never removes what is already there.
// Every failure is logged once, where it arises.
// Called by the section chain (reader/SectionTable.h), in its order.
#ifndef OPERATIONXML_SECTIONS_CPATCHXMLCONFIG_H
#define OPERATIONXML_SECTIONS_CPATCHXMLCONFIG_H

#include "platform/Export.h"
#include "records/PatchRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

class OPERATIONXML_API CPatchXMLConfig
{
public:
    // Reads every section. DC_RESULT_XML_ERROR for a null argument or no document.
    // The spelling is the operation's name.
    std::uint32_t setPatchStateConfiguraion(xercesc::XercesDOMParser* pDOMParser, std::list<StAsnPatchDef>* pLstOut);

    // Read one level each: the patches of a section, the states of a patch, the
    // items of a state. DC_RESULT_XML_ERROR for a null argument; a failed lookup
    // of states or items answers 0. What fails below an element stops nothing.
    std::uint32_t fillPatchType(const xercesc::DOMElement* pSection, std::list<StAsnPatchDef>* pLstOut);
    std::uint32_t fillPatchState(const xercesc::DOMElement* pPatch, std::list<StAsnPatchStateDef>* pLstOut);
    std::uint32_t fillPatchItem(const xercesc::DOMElement* pState, std::list<StAsnPatchItem>* pLstOut);
};

#endif

// CPatchViewPopupMenuConfig: reads the "PatchViewPopupMenu" sections, the menu of
// the patch view for each patch type, into StAsnPatchTypeMenuDef records.
// Stateless; safe on any thread that owns the parser handed in. Appends to the
// caller's lists in document order and never removes what is already there.
// Every failure is logged once, where it arises.
// Called by the section chain (reader/SectionTable.h), in its order.
#ifndef OPERATIONXML_SECTIONS_CPATCHVIEWPOPUPMENUCONFIG_H
#define OPERATIONXML_SECTIONS_CPATCHVIEWPOPUPMENUCONFIG_H

#include "platform/Export.h"
#include "records/PatchRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

class OPERATIONXML_API CPatchViewPopupMenuConfig
{
public:
    // Reads every section. DC_RESULT_XML_ERROR for a null argument or no document.
    std::uint32_t setPatchViewPopupMenuConfig(xercesc::XercesDOMParser*         pDOMParser,
                                              std::list<StAsnPatchTypeMenuDef>* pLstOut);

    // Read the patches of one section, and the items of one patch.
    // DC_RESULT_XML_ERROR for a null argument; a failed lookup of items answers 0.
    std::uint32_t fillPatchTypeInfo(const xercesc::DOMElement* pSection, std::list<StAsnPatchTypeMenuDef>* pLstOut);
    std::uint32_t fillMenuOperLst(const xercesc::DOMElement* pPatch, std::list<StAsnMenuOpDef>* pLstOut);
};

#endif

// CIsolationViewPopupMenuConfig: reads the popup menu of the isolation view into
// StAsnMenuOpDef records. It stands in the same "DeviceViewPopupMenu" element as
// the device view's, on purpose: one element configures both views.
// Stateless; safe on any thread that owns the parser handed in. Appends to the
// caller's list in document order. Failures are logged, DC_RESULT_XML_ERROR.
// Called by the section chain (reader/SectionTable.h), in its order.
#ifndef OPERATIONXML_SECTIONS_CISOLATIONVIEWPOPUPMENUCONFIG_H
#define OPERATIONXML_SECTIONS_CISOLATIONVIEWPOPUPMENUCONFIG_H

#include "platform/Export.h"
#include "records/MenuRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

class OPERATIONXML_API CIsolationViewPopupMenuConfig
{
public:
    // Reads every "DeviceViewPopupMenu" element of the document.
    std::uint32_t setIsolationViewPopupMenuConfig(xercesc::XercesDOMParser*  pDOMParser,
                                                  std::list<StAsnMenuOpDef>* pLstOut);

    // Reads the "Item" elements of one menu with the isolation view's own three
    // kinds; items of any other kind are kept as unknown.
    std::uint32_t fillIsolationViewPopUpMenu(const xercesc::DOMElement* pMenu, std::list<StAsnMenuOpDef>* pLstOut);
};

#endif

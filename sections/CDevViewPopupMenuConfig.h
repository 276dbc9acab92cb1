// CDevViewPopupMenuConfig: reads the popup menu and the tabs of the device view,
// "DeviceViewPopupMenu" and "DeviceViewTab", into StAsnMenuOpDef records.
// Stateless; safe on any thread that owns the parser handed in. Appends to the
// caller's list in document order and never removes what is already there.
// Every failure answers DC_RESULT_XML_ERROR and is logged once, where it arises.
// Called by the section chain (reader/SectionTable.h), in its order.
#ifndef OPERATIONXML_SECTIONS_CDEVVIEWPOPUPMENUCONFIG_H
#define OPERATIONXML_SECTIONS_CDEVVIEWPOPUPMENUCONFIG_H

#include "platform/Export.h"
#include "records/MenuRecords.h"

#include <xercesc/parsers/XercesDOMParser.hpp>

class OPERATIONXML_API CDevViewPopupMenuConfig
{
public:
    // Read every element of the section; a null parser counts as no document.
    std::uint32_t setDevViewPopupMenuConfig(xercesc::XercesDOMParser* pDOMParser, std::list<StAsnMenuOpDef>* pLstOut);
    std::uint32_t setDevViewTabConfig(xercesc::XercesDOMParser* pDOMParser, std::list<StAsnMenuOpDef>* pLstOut);

    // Reads the "Item" elements of one menu or tab list. An item of unknown type is
    // kept; the weak-board query goes by JudgeFilterOndixISSUCapability.
    std::uint32_t fillDevViewPopUpMenu(const xercesc::DOMElement* pMenu, std::list<StAsnMenuOpDef>* pLstOut);

    // Whether an "OtherOperation" entry must be left out: the weak-board query is
    // offered only while the server is set up for in-service upgrade. Asks the
    // setting afresh each time.
    static bool JudgeFilterOndixISSUCapability(const StAsnMenuOpDef& stEntry);
};

#endif

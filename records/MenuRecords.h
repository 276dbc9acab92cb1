// Menu entries: references from a client view to an operation.
#ifndef OPERATIONXML_RECORDS_MENURECORDS_H
#define OPERATIONXML_RECORDS_MENURECORDS_H

#include "platform/Export.h"
#include "records/Enumerations.h"

#include <list>
#include <string>

// One entry of a popup menu or tab: which kind of operation, and which one.
struct StAsnMenuOpDef
{
    AsnEnum<DCAsn1ClientToServer::AsnTypeRefEnum> enType; // "type" of an "Item"
    std::string                                   strId;  // "id"
};
OPERATIONXML_API bool operator==(const StAsnMenuOpDef& stLeft, const StAsnMenuOpDef& stRight);

#endif

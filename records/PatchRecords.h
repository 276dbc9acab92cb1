// Patch states with the operations offered in each, and the patch view's menu.
#ifndef OPERATIONXML_RECORDS_PATCHRECORDS_H
#define OPERATIONXML_RECORDS_PATCHRECORDS_H

#include "platform/Export.h"
#include "records/Enumerations.h"
#include "records/MenuRecords.h"

#include <list>
#include <string>

// One operation offered in a patch state.
struct StAsnPatchItem
{
    std::string                                   strId;  // "id" of an "Item"
    AsnEnum<DCAsn1ClientToServer::AsnTypeRefEnum> enType; // "type"
};
OPERATIONXML_API bool operator==(const StAsnPatchItem& stLeft, const StAsnPatchItem& stRight);

// One patch state.
struct StAsnPatchStateDef
{
    std::string               strName;      // "name" of a "State"
    std::list<StAsnPatchItem> lstPatchItem; // its "Item" elements
};
OPERATIONXML_API bool operator==(const StAsnPatchStateDef& stLeft, const StAsnPatchStateDef& stRight);

// The states of one patch type.
struct StAsnPatchDef
{
    AsnEnum<DCAsn1ClientToServer::AsnPatchTypeEnum> enPatchType;   // "type" of a "Patch", else HotPatch
    std::list<StAsnPatchStateDef>                   lstPatchState; // its "State" elements
};
OPERATIONXML_API bool operator==(const StAsnPatchDef& stLeft, const StAsnPatchDef& stRight);

// The patch view's menu for one patch type.
struct StAsnPatchTypeMenuDef
{
    AsnEnum<DCAsn1ClientToServer::AsnPatchTypeEnum> enPatchType; // "type" of a "Patch", else HotPatch
    std::list<StAsnMenuOpDef>                       lstMenuOp;   // its "Item" elements
};
OPERATIONXML_API bool operator==(const StAsnPatchTypeMenuDef& stLeft, const StAsnPatchTypeMenuDef& stRight);

#endif

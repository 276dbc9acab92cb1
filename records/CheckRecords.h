// Check operations and their tree of check items.
#ifndef OPERATIONXML_RECORDS_CHECKRECORDS_H
#define OPERATIONXML_RECORDS_CHECKRECORDS_H

#include "platform/Export.h"
#include "records/Enumerations.h"

#include <cstdint>
#include <list>
#include <string>

// One check item. Equality compares all fields but strExtInfo.
struct StAsnCheckType
{
    std::string               strId;              // "id"
    std::string               strDescription;     // "description"
    std::string               strCmdKey;          // "cmdKey"
    std::string               strSubItemFrom;     // "subItemFrom"
    std::int32_t              nCompareType = 0;   // "compareType"
    std::string               strCompareParam;    // "compareParam"
    bool                      bSelected  = false; // "selected"
    bool                      bIsCompare = false; // "isCompare"
    std::uint32_t             ulIndex    = 0;     // position among the elements walked, dropped ones counted
    std::list<StAsnCheckType> lstSubItem;         // "SubItem" elements
    std::string               strExtInfo;         // set by no section; outside equality, copied with the record
};
OPERATIONXML_API bool operator==(const StAsnCheckType& stLeft, const StAsnCheckType& stRight);

// One check operation. Equality compares the first four fields.
struct StAsnCheckOperationDef
{
    std::string                                          strId;            // "id"
    AsnEnum<DCAsn1ClientToServer::AsnOperationLevelEnum> enOperationLevel; // "operationLevel", else DeviceLevel
    std::int32_t                                         nTaskType = -1;   // task type of a check file; -1 without one
    std::list<StAsnCheckType>                            lstCheckType;     // check items
    bool                                                 bIsCancelable = false; // "isCancelable"; outside equality
};
OPERATIONXML_API bool operator==(const StAsnCheckOperationDef& stLeft, const StAsnCheckOperationDef& stRight);

#endif

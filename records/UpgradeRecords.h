// Upgrade operations: named steps of an upgrade with their sub-operations.
#ifndef OPERATIONXML_RECORDS_UPGRADERECORDS_H
#define OPERATIONXML_RECORDS_UPGRADERECORDS_H

#include "platform/Export.h"
#include "records/Enumerations.h"
#include "records/OperationRecords.h"

#include <list>
#include <string>

// One sub-operation of an upgrade operation.
struct StAsnUpgradeSubOperationDef
{
    std::string                                          strId;            // "id" of a "SubOperation"
    AsnEnum<DCAsn1ClientToServer::AsnOperationLevelEnum> enOperationLevel; // "operationLevel", else DeviceLevel
    std::list<StAsnOperParamDef>                         lstParameter;     // "Parameter" elements
};
OPERATIONXML_API bool operator==(const StAsnUpgradeSubOperationDef& stLeft, const StAsnUpgradeSubOperationDef& stRight);

// One upgrade operation.
struct StAsnUpgradeOperationDef
{
    std::string                                          strId;            // "id" of an "Operation"
    AsnEnum<DCAsn1ClientToServer::AsnOperationLevelEnum> enOperationLevel; // "operationLevel", else DeviceLevel
    std::list<StAsnUpgradeSubOperationDef>               lstSubOperation;  // "SubOperation" elements
};
OPERATIONXML_API bool operator==(const StAsnUpgradeOperationDef& stLeft, const StAsnUpgradeOperationDef& stRight);

#endif

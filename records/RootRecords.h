// The root of the records: the whole configuration of one device type, shared
// by every version whose files say the same.
// A root lives on the heap and has one owner: the reader until it hands the
// root over, then the configuration database.
#ifndef OPERATIONXML_RECORDS_ROOTRECORDS_H
#define OPERATIONXML_RECORDS_ROOTRECORDS_H

#include "platform/Export.h"
#include "records/CheckRecords.h"
#include "records/MenuRecords.h"
#include "records/OperationRecords.h"
#include "records/PatchRecords.h"
#include "records/TaskRecords.h"
#include "records/UpgradeRecords.h"

#include <cstdint>
#include <list>
#include <string>

struct StAsnDCErrorCodeInfo
{
    std::uint32_t ulErrorCode = 0;
    std::string   strErrorInfo;
};
OPERATIONXML_API bool operator==(const StAsnDCErrorCodeInfo& stLeft, const StAsnDCErrorCodeInfo& stRight);

// The operation lists, in the order in which they are read.
struct StAsnOperationConfig
{
    std::list<StAsnOperation>           lstDevOperation;     // "DeviceOperation"
    std::list<StAsnOperation>           lstTaskOperation;    // "TaskOperation"
    std::list<StAsnOperation>           lstPatchOperation;   // "PatchOperation"
    std::list<StAsnPatchDef>            lstPatchDef;         // "PatchStateConfiguration"
    std::list<StAsnCheckOperationDef>   lstCheckOperation;   // "CheckOperations", or a check file
    std::list<StAsnCustomOperationDef>  lstCustomOperation;  // "CustomOperations"
    std::list<StAsnOtherOperationDef>   lstOtherOperation;   // "OtherOperation"
    std::list<StAsnUpgradeOperationDef> lstUpgradeOperation; // "UpgradeOperation"
};
OPERATIONXML_API bool operator==(const StAsnOperationConfig& stLeft, const StAsnOperationConfig& stRight);

// The menus of the client's views.
struct StAsnViewConfig
{
    std::list<StAsnMenuOpDef>        lstDevViewPopupMenu;       // "DeviceViewPopupMenu"
    std::list<StAsnPatchTypeMenuDef> lstPatchTypeMenu;          // "PatchViewPopupMenu"
    std::list<StAsnMenuOpDef>        lstDevViewTab;             // "DeviceViewTab"
    std::list<StAsnMenuOpDef>        lstIsolationViewPopupMenu; // "DeviceViewPopupMenu" again, on purpose
};
OPERATIONXML_API bool operator==(const StAsnViewConfig& stLeft, const StAsnViewConfig& stRight);

struct StAsnDevTypeVerXMLInfo
{
    std::string                             strDevType;
    std::string                             strDevTypeVer;
    std::list<StAsnDevVersion>              lstDevVersion; // the versions that share this configuration
    StAsnOperationConfig                    stOperationConfig;
    StAsnViewConfig                         stViewConfig;
    StAsnDCErrorCodeInfo                    stDCErrorCodeInfo;
    std::list<StAsnTaskConfigInfoOperation> lstTaskConfigInfoOperation; // "TaskType"
};

// Compares the content alone (operations, views, error code, task
// configuration), never type or versions: that is how versions with one
// configuration come to share one record.
OPERATIONXML_API bool operator==(const StAsnDevTypeVerXMLInfo& stLeft, const StAsnDevTypeVerXMLInfo& stRight);

#endif

// Task configuration: what the task wizard of the client offers for each kind
// of software task.
#ifndef OPERATIONXML_RECORDS_TASKRECORDS_H
#define OPERATIONXML_RECORDS_TASKRECORDS_H

#include "platform/Export.h"
#include "records/Enumerations.h"
#include "records/OperationRecords.h"

#include <list>
#include <string>

// One step of a task. Equality compares the kind and the first three texts.
struct StAsnTaskOperationDef
{
    AsnEnum<DCAsn1ClientToServer::AsnTypeRefEnum> enType;             // "type" of a "TaskConfigOper"
    std::string                                   strId;              // "id"
    std::string                                   strDependsOn;       // "dependsOn"
    std::string                                   strOperDescription; // "operDescription"
    std::string                                   strIsSelect;        // "isSelect", the text; outside equality
    std::string                                   strIsPauseBeforeOP; // "isPauseBeforeOP", the text; outside equality
};
OPERATIONXML_API bool operator==(const StAsnTaskOperationDef& stLeft, const StAsnTaskOperationDef& stRight);

// One parameter of a task type, or its only block of steps and features when
// the task type has no parameters. Equality leaves strSelected out.
struct StAsnTaskConfigOperation
{
    std::string                       strId;                // "id" of a "Parameter"
    std::string                       strValue;             // "value"
    bool                              bIsRequired = false;  // "isRequired"
    std::string                       strSelected;          // outside equality
    std::list<StAsnOptionInfo>        lstOption;            // "Option" (or "option") elements
    std::list<StAsnTaskOperationDef>  lstTaskOperationDef;  // task steps
    std::list<StAsnOtherOperationDef> lstOtherOperationDef; // task features
};
OPERATIONXML_API bool operator==(const StAsnTaskConfigOperation& stLeft, const StAsnTaskConfigOperation& stRight);

// The configuration of one task type.
struct StAsnTaskConfigInfoOperation
{
    AsnEnum<DCAsn1ClientToServer::AsnTaskTypeEnum> enTaskType;             // "id" of a "TaskType"
    std::string                                    strGUITemplete;         // "GUITemplete"
    std::list<StAsnTaskConfigOperation>            lstTaskConfigOperation; // its parameters, or one block
};
OPERATIONXML_API bool operator==(const StAsnTaskConfigInfoOperation& stLeft,
                                 const StAsnTaskConfigInfoOperation& stRight);

#endif

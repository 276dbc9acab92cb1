// The records that several sections share: versions, operations, parameters,
// options, and the custom and other operations built on them.
// Plain values: copyable, default-constructible, fields in comparison order
// (every operator== is defined in RecordEquality.cpp). Lists keep document order.
#ifndef OPERATIONXML_RECORDS_OPERATIONRECORDS_H
#define OPERATIONXML_RECORDS_OPERATIONRECORDS_H

#include "platform/Export.h"
#include "records/Enumerations.h"

#include <cstdint>
#include <list>
#include <string>

// The software and patch version under which a configuration is found.
struct StAsnDevVersion
{
    std::string strSoftVersion;
    std::string strPatchVersion; // may be empty
};
OPERATIONXML_API bool operator==(const StAsnDevVersion& stLeft, const StAsnDevVersion& stRight);

// A device type by name and version text.
struct StAsnDevTypeInfo
{
    std::string strDevType;
    std::string strDevTypeVer;
};
OPERATIONXML_API bool operator==(const StAsnDevTypeInfo& stLeft, const StAsnDevTypeInfo& stRight);

// One option of a parameter.
struct StAsnOptionInfo
{
    std::string   strId;       // "id"
    std::uint32_t ulValue = 0; // "value"
    std::string   strTarget;   // "target"
};
OPERATIONXML_API bool operator==(const StAsnOptionInfo& stLeft, const StAsnOptionInfo& stRight);

// One parameter of an operation. Equality leaves strSelected out.
struct StAsnOperParamDef
{
    std::string                strId;               // "id"
    std::string                strValue;            // "value"
    bool                       bIsRequired = false; // "isRequired"
    std::string                strSelected;         // "selected", kept as text; outside equality
    std::list<StAsnOptionInfo> lstOption;           // "Option" (or "option") elements
};
OPERATIONXML_API bool operator==(const StAsnOperParamDef& stLeft, const StAsnOperParamDef& stRight);

// One operation of a device, task or patch section, and one operation of a
// capacity entry. Equality compares the first four fields.
struct StAsnOperation
{
    std::string strId;                                                     // "id"
    bool        bIsCancelable = false;                                     // "isCancelable"; false for patch operations
    AsnEnum<DCAsn1ClientToServer::AsnOperationLevelEnum> enOperationLevel; // "operationLevel", else DeviceLevel
    std::list<StAsnOperParamDef>                         lstParam;         // "Parameter" elements
    bool bExtFlag     = false; // set by no section; outside equality, copied with the record
    bool bIsSupported = false; // "isSupported" of a capacity entry, nowhere else; outside equality
};
OPERATIONXML_API bool operator==(const StAsnOperation& stLeft, const StAsnOperation& stRight);

// One custom operation: offered by the client through a resource file of its own.
struct StAsnCustomOperationDef
{
    std::string                                               strId;            // "id"
    std::string                                               strResourceClass; // "filename" of the last "ResouceClass"
    std::string                                               strShortcutKey;   // "shortcutkey"
    AsnEnum<DCAsn1ClientToServer::AsnOperationLevelEnum>      enOperationLevel; // "operationLevel", else DeviceLevel
    AsnEnum<DCAsn1ClientToServer::AsnCustomOpAvailabiltyEnum> enAvailableIn;    // "AvailableIn", else PopupMenu
};
OPERATIONXML_API bool operator==(const StAsnCustomOperationDef& stLeft, const StAsnCustomOperationDef& stRight);

// One other operation (a named capability), or one task feature.
struct StAsnOtherOperationDef
{
    std::string                  strId;                // "id"
    bool                         bIsSupported = false; // "isSupported"
    std::list<StAsnOperParamDef> lstParam;             // "Parameter" elements; empty for a task feature
};
OPERATIONXML_API bool operator==(const StAsnOtherOperationDef& stLeft, const StAsnOtherOperationDef& stRight);

#endif

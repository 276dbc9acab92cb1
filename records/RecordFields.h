// The fields of every record, each described once: name, kind and member, in the
// order of the record's table. Whoever walks records stands on it: the tool's JSON,
// and whatever else shows, searches or compares them. Equality does not: it leaves
// fields out on purpose.
// Constants and templates only. A new member is one more line here; without it the
// tests do not compile.
#ifndef OPERATIONXML_RECORDS_RECORDFIELDS_H
#define OPERATIONXML_RECORDS_RECORDFIELDS_H

#include "records/ModuleRecords.h"
#include "records/WordTables.h"

#include <cstdint>
#include <string_view>
#include <tuple>

// The kinds of fields.
struct StText
{
};
struct StNumber
{
};
struct StFlag
{
};
struct StRecord // one record by value
{
};
struct StList // a list of records
{
};
template <const auto&... arWords> // an enumeration, with the tables that hold its words
struct StWordOf
{
};
template <DCAsn1ClientToServer::AsnTaskTypeEnum StTaskTypeWord::*pColumn> // a task type, by one of its two numbers
struct StTaskType
{
};

// The word of a number, empty when the tables have none.
template <const auto&... arWords>
std::string_view wordText(StWordOf<arWords...> /*stKind*/, std::int32_t nNumber)
{
    std::string_view strText;
    const auto       fnSearch = [&](const auto& arTable)
    {
        for (const auto& stWord : arTable)
        {
            if (strText.empty() && stWord.value == nNumber)
                strText = stWord.strWord;
        }
    };
    (fnSearch(arWords), ...);
    return strText;
}
template <DCAsn1ClientToServer::AsnTaskTypeEnum StTaskTypeWord::*pColumn>
std::string_view wordText(StTaskType<pColumn> /*stKind*/, std::int32_t nNumber)
{
    for (const StTaskTypeWord& stWord : TASK_TYPE_WORDS)
    {
        if (stWord.*pColumn == nNumber)
            return stWord.strWord;
    }
    return {};
}

using StLevelWord     = StWordOf<OPERATION_LEVEL_WORDS>;
using StPatchTypeWord = StWordOf<PATCH_TYPE_WORDS>;
using StTypeRefWord   = StWordOf<TYPE_REF_WORDS, ISOLATION_TYPE_REF_WORDS>; // a menu item does not know its view

template <typename Record, typename Value, typename Kind>
struct StField
{
    const char* pszName;
    Value Record::*pMember;
    Kind           stKind;
};

// The fields of a record, and its name: fieldsOf(static_cast<StAsnOperation*>(nullptr)).
#define OPERATIONXML_RECORD(Record, ...)                                                                               \
    constexpr auto fieldsOf(const Record* /*pRecord*/)                                                                 \
    {                                                                                                                  \
        using Fields = Record;                                                                                         \
        return std::tuple{__VA_ARGS__};                                                                                \
    }                                                                                                                  \
    constexpr const char* nameOf(const Record* /*pRecord*/)                                                            \
    {                                                                                                                  \
        return #Record;                                                                                                \
    }
#define OPERATIONXML_FIELD(Name, Kind)                                                                                 \
    StField<Fields, decltype(Fields::Name), Kind>                                                                      \
    {                                                                                                                  \
#Name, &Fields::Name,                                                                                          \
        {                                                                                                              \
        }                                                                                                              \
    }

// clang-format off
OPERATIONXML_RECORD(StAsnDevVersion,
    OPERATIONXML_FIELD(strSoftVersion, StText),
    OPERATIONXML_FIELD(strPatchVersion, StText))

OPERATIONXML_RECORD(StAsnDevTypeInfo,
    OPERATIONXML_FIELD(strDevType, StText),
    OPERATIONXML_FIELD(strDevTypeVer, StText))

OPERATIONXML_RECORD(StAsnOptionInfo,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(ulValue, StNumber),
    OPERATIONXML_FIELD(strTarget, StText))

OPERATIONXML_RECORD(StAsnOperParamDef,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(strValue, StText),
    OPERATIONXML_FIELD(bIsRequired, StFlag),
    OPERATIONXML_FIELD(strSelected, StText),
    OPERATIONXML_FIELD(lstOption, StList))

OPERATIONXML_RECORD(StAsnOperation,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(bIsCancelable, StFlag),
    OPERATIONXML_FIELD(enOperationLevel, StLevelWord),
    OPERATIONXML_FIELD(lstParam, StList),
    OPERATIONXML_FIELD(bExtFlag, StFlag),
    OPERATIONXML_FIELD(bIsSupported, StFlag))

OPERATIONXML_RECORD(StAsnCustomOperationDef,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(strResourceClass, StText),
    OPERATIONXML_FIELD(strShortcutKey, StText),
    OPERATIONXML_FIELD(enOperationLevel, StLevelWord),
    OPERATIONXML_FIELD(enAvailableIn, StWordOf<AVAILABILITY_WORDS>))

OPERATIONXML_RECORD(StAsnOtherOperationDef,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(bIsSupported, StFlag),
    OPERATIONXML_FIELD(lstParam, StList))

OPERATIONXML_RECORD(StAsnCheckType,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(strDescription, StText),
    OPERATIONXML_FIELD(strCmdKey, StText),
    OPERATIONXML_FIELD(strSubItemFrom, StText),
    OPERATIONXML_FIELD(nCompareType, StNumber),
    OPERATIONXML_FIELD(strCompareParam, StText),
    OPERATIONXML_FIELD(bSelected, StFlag),
    OPERATIONXML_FIELD(bIsCompare, StFlag),
    OPERATIONXML_FIELD(ulIndex, StNumber),
    OPERATIONXML_FIELD(lstSubItem, StList),
    OPERATIONXML_FIELD(strExtInfo, StText))

OPERATIONXML_RECORD(StAsnCheckOperationDef,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(enOperationLevel, StLevelWord),
    OPERATIONXML_FIELD(nTaskType, StTaskType<&StTaskTypeWord::enTaskType>),
    OPERATIONXML_FIELD(lstCheckType, StList),
    OPERATIONXML_FIELD(bIsCancelable, StFlag))

OPERATIONXML_RECORD(StAsnMenuOpDef,
    OPERATIONXML_FIELD(enType, StTypeRefWord),
    OPERATIONXML_FIELD(strId, StText))

OPERATIONXML_RECORD(StAsnPatchItem,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(enType, StTypeRefWord))

OPERATIONXML_RECORD(StAsnPatchStateDef,
    OPERATIONXML_FIELD(strName, StText),
    OPERATIONXML_FIELD(lstPatchItem, StList))

OPERATIONXML_RECORD(StAsnPatchDef,
    OPERATIONXML_FIELD(enPatchType, StPatchTypeWord),
    OPERATIONXML_FIELD(lstPatchState, StList))

OPERATIONXML_RECORD(StAsnPatchTypeMenuDef,
    OPERATIONXML_FIELD(enPatchType, StPatchTypeWord),
    OPERATIONXML_FIELD(lstMenuOp, StList))

OPERATIONXML_RECORD(StAsnTaskOperationDef,
    OPERATIONXML_FIELD(enType, StTypeRefWord),
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(strDependsOn, StText),
    OPERATIONXML_FIELD(strOperDescription, StText),
    OPERATIONXML_FIELD(strIsSelect, StText),
    OPERATIONXML_FIELD(strIsPauseBeforeOP, StText))

OPERATIONXML_RECORD(StAsnTaskConfigOperation,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(strValue, StText),
    OPERATIONXML_FIELD(bIsRequired, StFlag),
    OPERATIONXML_FIELD(strSelected, StText),
    OPERATIONXML_FIELD(lstOption, StList),
    OPERATIONXML_FIELD(lstTaskOperationDef, StList),
    OPERATIONXML_FIELD(lstOtherOperationDef, StList))

OPERATIONXML_RECORD(StAsnTaskConfigInfoOperation,
    OPERATIONXML_FIELD(enTaskType, StTaskType<&StTaskTypeWord::enConfigType>),
    OPERATIONXML_FIELD(strGUITemplete, StText),
    OPERATIONXML_FIELD(lstTaskConfigOperation, StList))

OPERATIONXML_RECORD(StAsnUpgradeSubOperationDef,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(enOperationLevel, StLevelWord),
    OPERATIONXML_FIELD(lstParameter, StList))

OPERATIONXML_RECORD(StAsnUpgradeOperationDef,
    OPERATIONXML_FIELD(strId, StText),
    OPERATIONXML_FIELD(enOperationLevel, StLevelWord),
    OPERATIONXML_FIELD(lstSubOperation, StList))

OPERATIONXML_RECORD(StAsnDCErrorCodeInfo,
    OPERATIONXML_FIELD(ulErrorCode, StNumber),
    OPERATIONXML_FIELD(strErrorInfo, StText))

OPERATIONXML_RECORD(StAsnOperationConfig,
    OPERATIONXML_FIELD(lstDevOperation, StList),
    OPERATIONXML_FIELD(lstTaskOperation, StList),
    OPERATIONXML_FIELD(lstPatchOperation, StList),
    OPERATIONXML_FIELD(lstPatchDef, StList),
    OPERATIONXML_FIELD(lstCheckOperation, StList),
    OPERATIONXML_FIELD(lstCustomOperation, StList),
    OPERATIONXML_FIELD(lstOtherOperation, StList),
    OPERATIONXML_FIELD(lstUpgradeOperation, StList))

OPERATIONXML_RECORD(StAsnViewConfig,
    OPERATIONXML_FIELD(lstDevViewPopupMenu, StList),
    OPERATIONXML_FIELD(lstPatchTypeMenu, StList),
    OPERATIONXML_FIELD(lstDevViewTab, StList),
    OPERATIONXML_FIELD(lstIsolationViewPopupMenu, StList))

OPERATIONXML_RECORD(StAsnDevTypeVerXMLInfo,
    OPERATIONXML_FIELD(strDevType, StText),
    OPERATIONXML_FIELD(strDevTypeVer, StText),
    OPERATIONXML_FIELD(lstDevVersion, StList),
    OPERATIONXML_FIELD(stOperationConfig, StRecord),
    OPERATIONXML_FIELD(stViewConfig, StRecord),
    OPERATIONXML_FIELD(stDCErrorCodeInfo, StRecord),
    OPERATIONXML_FIELD(lstTaskConfigInfoOperation, StList))
// clang-format on
// Both macros stay defined: records that live elsewhere are described by them as well.

// Calls fnVisit(name, kind, value) for every field of a record in order; the value
// may be written to when the record may.
template <typename Record, typename Visit>
void visitFields(Record& stRecord, Visit&& fnVisit)
{
    std::apply([&](const auto&... stField)
               { (fnVisit(stField.pszName, stField.stKind, stRecord.*stField.pMember), ...); },
               fieldsOf(static_cast<const Record*>(nullptr)));
}

#endif

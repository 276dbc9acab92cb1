// A record as one line of text: every field in declared order between "|", flags
// and kinds as numbers, lists in brackets. Lets a table row state whole records.
#ifndef OPERATIONXML_TESTS_SECTIONS_RECORDTEXT_H
#define OPERATIONXML_TESTS_SECTIONS_RECORDTEXT_H

#include "TestSupport.h"
#include "records/RootRecords.h"

#include <fmt/format.h>

#include <functional>

using Lines = std::vector<std::string>;

struct CRecordText
{
    template <typename Record>
    static Lines lines(const std::list<Record>& lstRecord)
    {
        Lines lstLine;
        for (const Record& stRecord : lstRecord)
            lstLine.push_back(of(stRecord));
        return lstLine;
    }

private:
    template <typename... Fields>
    static std::string joined(const Fields&... fields)
    {
        return fmt::format("{}", fmt::join(Lines{of(fields)...}, "|"));
    }
    template <typename Record>
    static std::string of(const std::list<Record>& lstRecord)
    {
        return fmt::format("[{}]", fmt::join(lines(lstRecord), ", "));
    }
    template <typename Enum>
    static std::string of(const AsnEnum<Enum>& enValue)
    {
        return std::to_string(enValue.number());
    }
    static std::string of(const std::string& strText) { return strText; }
    static std::string of(std::uint32_t ulNumber) { return std::to_string(ulNumber); }
    static std::string of(std::int32_t nNumber) { return std::to_string(nNumber); }
    static std::string of(bool bFlag) { return bFlag ? "1" : "0"; }

    // One record a line.
    // clang-format off
    static std::string of(const StAsnOptionInfo& st) { return joined(st.strId, st.ulValue, st.strTarget); }
    static std::string of(const StAsnOperParamDef& st) { return joined(st.strId, st.strValue, st.bIsRequired, st.strSelected, st.lstOption); }
    static std::string of(const StAsnOperation& st) { return joined(st.strId, st.bIsCancelable, st.enOperationLevel, st.lstParam, st.bExtFlag, st.bIsSupported); }
    static std::string of(const StAsnCheckType& st) { return joined(st.strId, st.strDescription, st.strCmdKey, st.strSubItemFrom, st.nCompareType, st.strCompareParam, st.bSelected, st.bIsCompare, st.ulIndex, st.lstSubItem, st.strExtInfo); }
    static std::string of(const StAsnCheckOperationDef& st) { return joined(st.strId, st.enOperationLevel, st.nTaskType, st.lstCheckType, st.bIsCancelable); }
    static std::string of(const StAsnCustomOperationDef& st) { return joined(st.strId, st.strResourceClass, st.strShortcutKey, st.enOperationLevel, st.enAvailableIn); }
    static std::string of(const StAsnOtherOperationDef& st) { return joined(st.strId, st.bIsSupported, st.lstParam); }
    static std::string of(const StAsnUpgradeSubOperationDef& st) { return joined(st.strId, st.enOperationLevel, st.lstParameter); }
    static std::string of(const StAsnUpgradeOperationDef& st) { return joined(st.strId, st.enOperationLevel, st.lstSubOperation); }
    static std::string of(const StAsnMenuOpDef& st) { return joined(st.enType, st.strId); }
    static std::string of(const StAsnPatchItem& st) { return joined(st.strId, st.enType); }
    static std::string of(const StAsnPatchStateDef& st) { return joined(st.strName, st.lstPatchItem); }
    static std::string of(const StAsnPatchDef& st) { return joined(st.enPatchType, st.lstPatchState); }
    static std::string of(const StAsnPatchTypeMenuDef& st) { return joined(st.enPatchType, st.lstMenuOp); }
    static std::string of(const StAsnTaskOperationDef& st) { return joined(st.enType, st.strId, st.strDependsOn, st.strOperDescription, st.strIsSelect, st.strIsPauseBeforeOP); }
    static std::string of(const StAsnTaskConfigOperation& st) { return joined(st.strId, st.strValue, st.bIsRequired, st.strSelected, st.lstOption, st.lstTaskOperationDef, st.lstOtherOperationDef); }
    static std::string of(const StAsnTaskConfigInfoOperation& st) { return joined(st.enTaskType, st.strGUITemplete, st.lstTaskConfigOperation); }
    // clang-format on
};

// A section entry as a table names it: reads the document, answers the records.
using SectionReader = std::function<Lines(xercesc::XercesDOMParser*)>;

template <typename Parser, typename Record>
SectionReader section(std::uint32_t (Parser::*pfnSet)(xercesc::XercesDOMParser*, std::list<Record>*))
{
    return [pfnSet](xercesc::XercesDOMParser* pDOMParser)
    {
        std::list<Record> lstRecord;
        EXPECT_EQ(0u, (Parser().*pfnSet)(pDOMParser, &lstRecord));
        return CRecordText::lines(lstRecord);
    };
}

#endif

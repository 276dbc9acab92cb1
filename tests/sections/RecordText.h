// A record as one line of text: every field in declared order between "|", flags
// and kinds as numbers, lists in brackets. Lets a table row state whole records.
#ifndef OPERATIONXML_TESTS_SECTIONS_RECORDTEXT_H
#define OPERATIONXML_TESTS_SECTIONS_RECORDTEXT_H

#include "TestSupport.h"
#include "records/RootRecords.h"

#include <fmt/format.h>

#include <functional>

struct CRecordText
{
    using Text = std::string;

    // The records of a list, ", " between them.
    template <typename Record>
    static Text list(const std::list<Record>& lstRecord)
    {
        std::vector<Text> lstText;
        for (const Record& r : lstRecord)
            lstText.push_back(of(r));
        return fmt::format("{}", fmt::join(lstText, ", "));
    }

private:
    template <typename... Fields>
    static Text joined(const Fields&... fields)
    {
        return fmt::format("{}", fmt::join(std::vector<Text>{of(fields)...}, "|"));
    }
    template <typename Record>
    static Text of(const std::list<Record>& lstRecord)
    {
        return "[" + list(lstRecord) + "]";
    }
    template <typename Enum>
    static Text of(const AsnEnum<Enum>& enValue)
    {
        return std::to_string(enValue.number());
    }
    static Text of(const Text& strText) { return strText; }
    static Text of(std::uint32_t ulNumber) { return std::to_string(ulNumber); }
    static Text of(std::int32_t nNumber) { return std::to_string(nNumber); }
    static Text of(bool bFlag) { return bFlag ? "1" : "0"; }

    // The five fields that two records share.
    template <typename Param>
    static Text param(const Param& r)
    {
        return joined(r.strId, r.strValue, r.bIsRequired, r.strSelected, r.lstOption);
    }
    static Text of(const StAsnOptionInfo& r) { return joined(r.strId, r.ulValue, r.strTarget); }
    static Text of(const StAsnOperParamDef& r) { return param(r); }
    static Text of(const StAsnOperation& r)
    {
        return joined(r.strId, r.bIsCancelable, r.enOperationLevel, r.lstParam, r.bExtFlag, r.bIsSupported);
    }
    static Text of(const StAsnCheckType& r)
    {
        return joined(r.strId, r.strDescription, r.strCmdKey, r.strSubItemFrom, r.nCompareType, r.strCompareParam,
                      r.bSelected, r.bIsCompare, r.ulIndex, r.lstSubItem, r.strExtInfo);
    }
    static Text of(const StAsnCheckOperationDef& r)
    {
        return joined(r.strId, r.enOperationLevel, r.nTaskType, r.lstCheckType, r.bIsCancelable);
    }
    static Text of(const StAsnCustomOperationDef& r)
    {
        return joined(r.strId, r.strResourceClass, r.strShortcutKey, r.enOperationLevel, r.enAvailableIn);
    }
    static Text of(const StAsnOtherOperationDef& r) { return joined(r.strId, r.bIsSupported, r.lstParam); }
    static Text of(const StAsnUpgradeSubOperationDef& r) { return joined(r.strId, r.enOperationLevel, r.lstParameter); }
    static Text of(const StAsnUpgradeOperationDef& r) { return joined(r.strId, r.enOperationLevel, r.lstSubOperation); }
    static Text of(const StAsnMenuOpDef& r) { return joined(r.enType, r.strId); }
    static Text of(const StAsnPatchItem& r) { return joined(r.strId, r.enType); }
    static Text of(const StAsnPatchStateDef& r) { return joined(r.strName, r.lstPatchItem); }
    static Text of(const StAsnPatchDef& r) { return joined(r.enPatchType, r.lstPatchState); }
    static Text of(const StAsnPatchTypeMenuDef& r) { return joined(r.enPatchType, r.lstMenuOp); }
    static Text of(const StAsnTaskOperationDef& r)
    {
        return joined(r.enType, r.strId, r.strDependsOn, r.strOperDescription, r.strIsSelect, r.strIsPauseBeforeOP);
    }
    static Text of(const StAsnTaskConfigOperation& r)
    {
        return param(r) + "|" + joined(r.lstTaskOperationDef, r.lstOtherOperationDef);
    }
    static Text of(const StAsnTaskConfigInfoOperation& r)
    {
        return joined(r.enTaskType, r.strGUITemplete, r.lstTaskConfigOperation);
    }
};

// A section as a table names it: reads a snippet, answers the records. They come
// after what stands in the list already, which stays as it is.
using SectionReader = std::function<std::string(const std::string& strXml)>;

template <typename Parser, typename Record>
SectionReader section(std::uint32_t (Parser::*pfnSet)(xercesc::XercesDOMParser*, std::list<Record>*))
{
    return [pfnSet](const std::string& strXml)
    {
        CParsedXml        oXml(strXml);
        std::list<Record> lstRecord(1);
        const std::string strBefore = CRecordText::list(lstRecord);
        EXPECT_EQ(0u, (Parser().*pfnSet)(oXml.parser(), &lstRecord));
        std::list<Record> lstAppended;
        lstAppended.splice(lstAppended.begin(), lstRecord, std::next(lstRecord.begin()), lstRecord.end());
        EXPECT_EQ(strBefore, CRecordText::list(lstRecord));
        return CRecordText::list(lstAppended);
    };
}

#endif

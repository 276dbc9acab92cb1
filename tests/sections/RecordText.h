// A record as one line of text: every field in the order of its description between
// "|", flags and kinds as numbers, lists in brackets. Lets a table row state whole
// records.
#ifndef OPERATIONXML_TESTS_SECTIONS_RECORDTEXT_H
#define OPERATIONXML_TESTS_SECTIONS_RECORDTEXT_H

#include "TestSupport.h"
#include "records/RecordFields.h"

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
        for (const Record& stRecord : lstRecord)
            lstText.push_back(of(stRecord));
        return fmt::format("{}", fmt::join(lstText, ", "));
    }

private:
    template <typename Record>
    static Text of(const Record& stRecord)
    {
        std::vector<Text> lstField;
        visitFields(stRecord, [&](const char*, auto /*stKind*/, const auto& field) { lstField.push_back(of(field)); });
        return fmt::format("{}", fmt::join(lstField, "|"));
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

// Entries of finished records: what a record says comes from the record itself, so
// that the catalog cannot differ from the store, and where it says so from what was
// recorded of its address. Templates over the described fields; used by the catalog.
#ifndef OPERATIONXML_CATALOG_ENTRYMAKER_H
#define OPERATIONXML_CATALOG_ENTRYMAKER_H

#include "catalog/Catalog.h"
#include "catalog/ReadRecorder.h"
#include "records/RecordFields.h"

#include <cstddef>
#include <list>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace catalog
{
// Where a list stands in its record.
inline std::ptrdiff_t listOffset(const void* pRecord, const void* pList)
{
    return static_cast<const char*>(pList) - static_cast<const char*>(pRecord);
}

// Puts an entry that was lost from a list where it stood in its file.
void insertLost(std::vector<StEntry>& lstEntry, std::size_t nFirst, StEntry stLost);

// How a field reads to people.
template <typename Kind, typename Value>
void takeText(Kind stKind, const Value& value, std::string& strText)
{
    if constexpr (std::is_same_v<Kind, StText>)
        strText = value;
    else if constexpr (std::is_same_v<Kind, StNumber>)
        strText = std::to_string(value);
    else if constexpr (std::is_same_v<Kind, StFlag>)
        strText = value ? '1' : '0';
    else if constexpr (std::is_integral_v<Value>)
        strText = wordText(stKind, value);
    else
        strText = wordText(stKind, value.number());
}

template <typename Kind>
constexpr EnFieldKind fieldKind(Kind /*stKind*/)
{
    if constexpr (std::is_same_v<Kind, StText>)
        return EnFieldKind::Text;
    else if constexpr (std::is_same_v<Kind, StNumber>)
        return EnFieldKind::Number;
    else if constexpr (std::is_same_v<Kind, StFlag>)
        return EnFieldKind::Flag;
    else
        return EnFieldKind::Word;
}

// Fills a fresh entry where it stays: entries are large.
template <typename Record>
void fillEntry(const CReadRecorder& oRecorder, const Record& stRecord, StEntry& stEntry);

// The entries of a list and, among them, those that were lost from it.
template <typename Record>
void addEntries(const CReadRecorder& oRecorder, const std::list<Record>& lstRecord, const std::vector<StLost>& lstLost,
                std::ptrdiff_t nList, std::vector<StEntry>& lstEntry)
{
    const std::size_t nFirst = lstEntry.size();
    lstEntry.reserve(nFirst + lstRecord.size());
    for (const Record& stRecord : lstRecord)
        fillEntry(oRecorder, stRecord, lstEntry.emplace_back());
    for (const StLost& stLost : lstLost)
    {
        if (stLost.nList != nList)
            continue;
        StEntry stEntry   = stLost.stEntry;
        stEntry.pszRecord = nameOf(static_cast<const Record*>(nullptr));
        insertLost(lstEntry, nFirst, std::move(stEntry));
    }
}

// What tells a record from its siblings.
std::string identity(const StEntry& stEntry);

template <typename Record>
void fillEntry(const CReadRecorder& oRecorder, const Record& stRecord, StEntry& stEntry)
{
    static const StSeen s_stUnknown;
    const StSeen*       pFound = oRecorder.find(&stRecord);
    const StSeen&       stSeen = pFound == nullptr ? s_stUnknown : *pFound;
    stEntry.pszRecord          = nameOf(&stRecord);
    stEntry.stPlace            = stSeen.stPlace;
    stEntry.enOrigin           = stSeen.enOrigin;
    if (stSeen.enOrigin == EnOrigin::Module)
        stEntry.strModule = oRecorder.module(stSeen.stPlace.ulFile).strName;
    stEntry.lstField.reserve(std::tuple_size_v<decltype(fieldsOf(&stRecord))>);
    visitFields(stRecord,
                [&](const char* pszName, auto stKind, const auto& value)
                {
                    if constexpr (std::is_same_v<decltype(stKind), StList>)
                        addEntries(oRecorder, value, oRecorder.lost(&stRecord), listOffset(&stRecord, &value),
                                   stEntry.lstChild);
                    else
                    {
                        StField& stField = stEntry.lstField.emplace_back();
                        stField.pszName  = pszName;
                        stField.enKind   = fieldKind(stKind);
                        stField.stPlace  = oRecorder.fieldPlace(stSeen, pszName);
                        takeText(stKind, value, stField.strValue);
                    }
                });
    stEntry.strId = identity(stEntry);
}
} // namespace catalog

#endif

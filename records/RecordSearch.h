// The small search of the queries. The name says which match wins.
#ifndef OPERATIONXML_RECORDS_RECORDSEARCH_H
#define OPERATIONXML_RECORDS_RECORDSEARCH_H

#include <algorithm>
#include <list>
#include <string_view>

// The first record with this strId, or null.
template <typename Record>
const Record* findFirst(const std::list<Record>& lstRecord, std::string_view strId)
{
    const auto itFound = std::find_if(lstRecord.begin(), lstRecord.end(),
                                      [strId](const Record& stRecord) { return stRecord.strId == strId; });
    return itFound == lstRecord.end() ? nullptr : &*itFound;
}

#endif

// Where a query looks: the record of a device type, of a device or of two ids, and
// why there is none. For the explanations of opxml query. A record is the store's:
// it stays valid until its type is read again.
#ifndef OPERATIONXML_TOOLS_OPXML_QUERY_QUERYPLACE_H
#define OPERATIONXML_TOOLS_OPXML_QUERY_QUERYPLACE_H

#include "records/RootRecords.h"
#include "tools/opxml/query/QueryReasons.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>
#include <list>
#include <string>
#include <vector>

struct StPlace
{
    const StAsnDevTypeVerXMLInfo* pInfo = nullptr; // the one that answers
    std::string                   strName;         // for people; empty when no type was found
    StQueryReason                 stReason;        // without a record
};

StPlace findPlace(const std::string& strDevType, const std::string& strDevTypeVer);
StPlace findTypePlace(std::uint32_t ulTypeID, std::uint32_t ulVersionID);

// Queries that start from a device differ in how its telnet variant is chosen.
enum class EnTelnetRule
{
    Never,
    ByName,   // version and type name differ
    ByDevice, // bTelnetToDev
};
StPlace findDevicePlace(std::uint32_t ulDeviceID, EnTelnetRule enRule);

// "there are: A, B".
std::string offerText(const std::vector<std::string>& lstName);

// "no WHAT "ID" in WHERE", with the nearest ids and all of them.
StQueryReason noneOfThem(const std::string& strWhat, const std::string& strId, const std::string& strWhere,
                         const std::vector<std::string>& lstId);

// Adds the ids of a list in its order, each once.
template <typename Record>
void addIds(std::vector<std::string>& lstId, const std::list<Record>& lstRecord)
{
    for (const Record& stRecord : lstRecord)
    {
        if (std::find(lstId.begin(), lstId.end(), stRecord.strId) == lstId.end())
            lstId.push_back(stRecord.strId);
    }
}

template <typename Record>
std::vector<std::string> idsOf(const std::list<Record>& lstRecord)
{
    std::vector<std::string> lstId;
    addIds(lstId, lstRecord);
    return lstId;
}

#endif

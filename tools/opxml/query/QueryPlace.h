// Where a query looks: the configuration of a device type, of a device or of two ids,
// and why there is none. For the reasons of opxml query.
#ifndef OPERATIONXML_TOOLS_OPXML_QUERY_QUERYPLACE_H
#define OPERATIONXML_TOOLS_OPXML_QUERY_QUERYPLACE_H

#include "tools/opxml/explain/Obstacles.h"
#include "tools/opxml/query/QueryReasons.h"

#include <cstdint>
#include <string>
#include <vector>

struct StPlace
{
    StLookedInto  stLookedInto; // the first configuration; no key when no type was found
    StQueryReason stReason;     // why there is no configuration

    bool isThere() const { return stReason.strWhy.empty(); }
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

// What is in the way of it there.
StQueryReason whyAbsent(const StPlace& stPlace, const StWanted& stWanted);

#endif

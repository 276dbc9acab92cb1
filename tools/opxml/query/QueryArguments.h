// The arguments of a query: what kinds there are, and how a word of the command
// line or a value of a JSON array becomes one. Plain values; no shared state.
#ifndef OPERATIONXML_TOOLS_OPXML_QUERY_QUERYARGUMENTS_H
#define OPERATIONXML_TOOLS_OPXML_QUERY_QUERYARGUMENTS_H

#include "records/Enumerations.h"

#include <cstdint>
#include <string>
#include <vector>

enum class EnQueryArgument
{
    Text,
    Flag,     // 0 or 1, false or true
    Id,       // 32 bits
    LongId,   // 64 bits
    Value,    // 32 bits, with or without a sign: option values are read as unsigned, queries hand them over signed
    TaskType, // a number, or a name of the configuration files
};

struct StQueryParameter
{
    const char*     pszName;
    EnQueryArgument enKind;
};

struct StQueryArgument
{
    std::string   strText;         // as it came
    bool          bIsText  = true; // false: a value of JSON that is no string
    std::uint64_t ulNumber = 0;    // of every kind but Text, once converted

    std::int32_t  asInt() const { return static_cast<std::int32_t>(static_cast<std::uint32_t>(ulNumber)); }
    std::uint32_t asId() const { return static_cast<std::uint32_t>(ulNumber); }
    bool          asFlag() const { return ulNumber != 0; }

    DCAsn1ClientToServer::AsnTaskTypeEnum asTaskType() const
    {
        return static_cast<DCAsn1ClientToServer::AsnTaskTypeEnum>(asInt());
    }
};
using QueryArguments = std::vector<StQueryArgument>;

// For lists and scripts: "text", "number", ...
const char* kindName(EnQueryArgument enKind);

// Reads the number of an argument. Empty, or what is wrong with it.
std::string convertArgument(const StQueryParameter& stParameter, StQueryArgument& stArgument);

#endif

// The rows of a root's inventory as they stand, for opxml lint, which says what is
// wrong with them, and the environment names that are asked for. The services answer
// from StInventory, which keeps no rows.
#ifndef OPERATIONXML_STANDALONE_INVENTORYROWS_H
#define OPERATIONXML_STANDALONE_INVENTORYROWS_H

#include "platform/Export.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace standalone
{
// By column; numbers as decimal texts, NULL is left out.
using InventoryRow = std::map<std::string, std::string>;

struct StInventoryRows
{
    std::string                                      strFile; // server.db or server.sql
    std::map<std::string, std::vector<std::string>>  mapColumn;
    std::map<std::string, std::vector<InventoryRow>> mapTable;
};

// Reads the inventory once more, within the limits that hold for opening it. An
// inventory that cannot be read has an error text and no rows.
OPERATIONXML_PLATFORM_API StInventoryRows readInventoryRows(const std::string& strFolder, std::string& strError);

// An environment value that holds without a row.
struct StEnvironmentDefault
{
    std::string_view strName;
    const char*      pszValue;
};

// All names that are asked for.
OPERATIONXML_PLATFORM_API std::vector<StEnvironmentDefault> environmentDefaults();
} // namespace standalone

#endif

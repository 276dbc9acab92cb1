// Reads the inventory of a server root, whichever of the two files it has.
// Called by openServerRoot on one thread. Throws CInventoryError, its text
// naming the file and, where one failed, the statement or the table and column.
#ifndef OPERATIONXML_STANDALONE_INVENTORYREADER_H
#define OPERATIONXML_STANDALONE_INVENTORYREADER_H

#include "standalone/Inventory.h"
#include "standalone/InventoryTables.h"

#include <functional>
#include <string>

namespace standalone
{
StInventory readInventory(const std::string& strFolder);

// Takes the rows of one table, from the first to the last.
using TableReader = std::function<void(CInventoryRow& oRow, const StInventoryTable& stTable)>;

// The same, table by table; answers the path of the file.
std::string readInventoryTables(const std::string& strFolder, const TableReader& fnTable);
} // namespace standalone

#endif

// The tables of an inventory: their columns as schema.sql has them, and where
// each row goes in StInventory. Called by the inventory reader and, for the
// names, by the script. Throws CInventoryError on a value that does not fit.
#ifndef OPERATIONXML_STANDALONE_INVENTORYTABLES_H
#define OPERATIONXML_STANDALONE_INVENTORYTABLES_H

#include "standalone/Inventory.h"
#include "standalone/InventoryRow.h"

#include <vector>

namespace standalone
{
struct StInventoryTable
{
    const char*              pszName;
    std::vector<const char*> lstColumn; // in the order in which pfnAdd takes them
    const char*              pszOrder;  // the column that orders the rows
    void (*pfnAdd)(CInventoryRow& oRow, StInventory& stInventory);
};

const std::vector<StInventoryTable>& inventoryTables();

bool isInventoryTable(const char* pszName);
} // namespace standalone

#endif

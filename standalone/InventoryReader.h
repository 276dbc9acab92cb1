// Reads the inventory of a server root, whichever of the two files it has.
// Called by openServerRoot on one thread. Throws CInventoryError, its text
// naming the file and, where one failed, the statement or the table and column.
#ifndef OPERATIONXML_STANDALONE_INVENTORYREADER_H
#define OPERATIONXML_STANDALONE_INVENTORYREADER_H

#include "standalone/Inventory.h"

#include <string>

namespace standalone
{
StInventory readInventory(const std::string& strFolder);
} // namespace standalone

#endif

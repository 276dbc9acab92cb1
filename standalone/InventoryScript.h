// Runs a server.sql: the tables are created in memory, then the file's
// statements fill them. Called when a root is opened, on one thread. The script
// can neither reach outside the database nor run for long.
#ifndef OPERATIONXML_STANDALONE_INVENTORYSCRIPT_H
#define OPERATIONXML_STANDALONE_INVENTORYSCRIPT_H

#include "standalone/Sqlite.h"

#include <string>

namespace standalone
{
// The database that the script makes. Throws CInventoryError, its text naming
// file and line, quoting the line or the statement.
CSqlite runInventoryScript(const std::string& strPath, const std::string& strText);
} // namespace standalone

#endif

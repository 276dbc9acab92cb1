// See InventoryReader.h. Rows are read with plain SELECTs of plain tables, so
// that a server.db made by somebody else runs nothing here.
#include "standalone/InventoryReader.h"

#include "standalone/InventoryScript.h"
#include "standalone/InventoryTables.h"
#include "standalone/Sqlite.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <sys/stat.h>
#include <system_error>

namespace standalone
{
namespace
{
constexpr std::size_t DATABASE_MEGABYTES = 256;
constexpr std::size_t SCRIPT_MEGABYTES   = 64;

// More than any inventory of a size can hold, and little enough for memory.
constexpr std::size_t BASE_ROWS     = 100'000;
constexpr std::size_t BYTES_PER_ROW = 8;
constexpr std::size_t BASE_TEXT     = 16u << 20;
constexpr std::size_t TEXT_PER_BYTE = 4;

// A link to nowhere counts as standing there: it is a mistake to be told.
bool standsThere(const std::string& strPath)
{
    struct ::stat stStatus = {};
    return ::lstat(strPath.c_str(), &stStatus) == 0;
}

// Of a regular file: a pipe or device in its place is refused without waiting for it.
std::size_t fileSize(const std::string& strPath, std::size_t nLimitMegabytes)
{
    struct ::stat stStatus = {};
    if (::stat(strPath.c_str(), &stStatus) != 0)
        throw CInventoryError("cannot be read: " + std::generic_category().message(errno));
    if (!S_ISREG(stStatus.st_mode))
        throw CInventoryError("not a file");
    if (static_cast<std::size_t>(stStatus.st_size) > nLimitMegabytes << 20)
        throw CInventoryError("larger than " + std::to_string(nLimitMegabytes) + " MB");
    return static_cast<std::size_t>(stStatus.st_size);
}

// What is written behind it meanwhile is not read.
std::string readScript(const std::string& strPath)
{
    std::string   strText(fileSize(strPath, SCRIPT_MEGABYTES), '\0');
    std::ifstream oFile(strPath, std::ios::binary);
    if (!oFile.is_open())
        throw CInventoryError("cannot be read: " + std::generic_category().message(errno));
    if (!oFile.read(strText.data(), static_cast<std::streamsize>(strText.size())))
        throw CInventoryError("cannot be read whole");
    return strText;
}

void bindText(sqlite3_stmt* pStatement, const char* pszText)
{
    sqlite3_bind_text(pStatement, 1, pszText, -1, SQLITE_STATIC);
}

// Tables only: a view, a virtual table or a generated column would run
// expressions of the file.
void checkTable(CSqlite& oDb, const StInventoryTable& stTable)
{
    const StatementPtr oTable =
        oDb.prepare("SELECT 1 FROM sqlite_master WHERE type='table' AND rootpage>0 AND name=?1 COLLATE NOCASE");
    bindText(oTable.get(), stTable.pszName);
    if (!oDb.step(oTable.get()))
        throw CInventoryError(std::string("table ") + stTable.pszName + " is missing");

    const StatementPtr       oColumns = oDb.prepare("SELECT lower(name) FROM pragma_table_info(?1)");
    std::vector<std::string> lstFound;
    bindText(oColumns.get(), stTable.pszName);
    while (oDb.step(oColumns.get()))
        lstFound.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(oColumns.get(), 0)));
    for (const char* pszColumn : stTable.lstColumn)
        if (std::find(lstFound.begin(), lstFound.end(), pszColumn) == lstFound.end())
            throw CInventoryError(std::string("table ") + stTable.pszName + ": column " + pszColumn + " is missing");
}

std::string selectOf(const StInventoryTable& stTable)
{
    std::string strSql = "SELECT ";
    for (const char* pszColumn : stTable.lstColumn)
        strSql.append(pszColumn == stTable.lstColumn.front() ? "\"" : ", \"").append(pszColumn).append("\"");
    return strSql.append(" FROM main.").append(stTable.pszName).append(" ORDER BY ").append(stTable.pszOrder);
}

void readTables(CSqlite& oDb, std::size_t nSize, const TableReader& fnTable)
{
    StRowBudget stBudget{BASE_ROWS + nSize / BYTES_PER_ROW, BASE_TEXT + TEXT_PER_BYTE * nSize};
    oDb.startClock(nSize);
    for (const StInventoryTable& stTable : inventoryTables())
    {
        const StatementPtr oRows = oDb.prepare(selectOf(stTable).c_str());
        CInventoryRow      oRow(oDb, oRows.get(), stTable.pszName, stBudget);
        fnTable(oRow, stTable);
    }
}

void readDatabase(const std::string& strPath, const TableReader& fnTable)
{
    const std::size_t nSize = fileSize(strPath, DATABASE_MEGABYTES);
    const CHeapLimit  oLimit(nSize);
    CSqlite           oDb = CSqlite::openFile(strPath);
    oDb.startClock(nSize);
    oDb.execute("BEGIN"); // one state of the file for all tables
    for (const StInventoryTable& stTable : inventoryTables())
        checkTable(oDb, stTable);
    readTables(oDb, nSize, fnTable);
}

// The messages of what is below name no file.
template <typename Read>
void namingFile(const std::string& strPath, Read fnRead)
{
    try
    {
        fnRead();
    }
    catch (const CInventoryError& oProblem)
    {
        throw CInventoryError(strPath + ": " + oProblem.what());
    }
}

std::string rootOf(std::string strFolder)
{
    while (!strFolder.empty() && strFolder.back() == '/')
        strFolder.pop_back();
    return strFolder;
}
} // namespace

StInventory readInventory(const std::string& strFolder)
{
    StInventory stInventory;
    stInventory.strRoot = rootOf(strFolder);
    readInventoryTables(strFolder,
                        [&stInventory](CInventoryRow& oRow, const StInventoryTable& stTable)
                        {
                            while (oRow.next())
                                stTable.pfnAdd(oRow, stInventory);
                        });
    stInventory.buildIndexes();
    return stInventory;
}

std::string readInventoryTables(const std::string& strFolder, const TableReader& fnTable)
{
    std::string strDatabase = rootOf(strFolder) + "/server.db";
    std::string strScript   = rootOf(strFolder) + "/server.sql";
    if (standsThere(strDatabase))
    {
        namingFile(strDatabase, [&] { readDatabase(strDatabase, fnTable); });
        return strDatabase;
    }
    if (!standsThere(strScript))
        throw CInventoryError(strFolder + ": no inventory: neither server.db nor server.sql is there");
    std::string strText;
    namingFile(strScript, [&] { strText = readScript(strScript); });
    const CHeapLimit oLimit(strText.size());
    CSqlite          oDb = runInventoryScript(strScript, strText);
    namingFile(strScript, [&] { readTables(oDb, strText.size(), fnTable); });
    return strScript;
}
} // namespace standalone

// CInventoryRow: the rows of one table, value by value from left to right, each
// checked: SQLite would turn texts into numbers and cut large ones silently.
// Called by the inventory reader on one thread. A value that does not fit throws
// CInventoryError, its text naming table, column and row.
#ifndef OPERATIONXML_STANDALONE_INVENTORYROW_H
#define OPERATIONXML_STANDALONE_INVENTORYROW_H

#include "standalone/Sqlite.h"

#include <cstdint>
#include <limits>
#include <string>

namespace standalone
{
// What the rows of an inventory may still take: a damaged database can lead
// through the same page again and again, a script can multiply its rows.
struct StRowBudget
{
    std::size_t nRows;
    std::size_t nTextBytes;
};

class CInventoryRow
{
public:
    CInventoryRow(CSqlite& oDb, sqlite3_stmt* pStatement, const char* pszTable, StRowBudget& stBudget);

    // Goes to the next row; false at the end.
    bool next();

    // Each takes the next column.
    std::string  text();
    std::int64_t number(std::int64_t nLeast, std::int64_t nMost);
    bool         isNull();  // takes it only when it is NULL
    std::string  anyText(); // of a number its digits

    bool flag() { return number(0, 1) != 0; }

    template <typename Number>
    Number number()
    {
        return static_cast<Number>(number(std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max()));
    }

    // A key that may stand once only; bInserted comes from the container.
    void requireNew(bool bInserted, int nKeyColumn = 0) const;

private:
    [[noreturn]] void fail(const std::string& strProblem) const;
    [[noreturn]] void fail(int nColumn, const std::string& strProblem) const;
    void              requireType(int nType, const char* pszWanted) const;

    CSqlite&      m_oDb;
    sqlite3_stmt* m_pStatement; // the caller's
    const char*   m_pszTable;
    StRowBudget&  m_stBudget;
    std::size_t   m_nRow    = 0;
    int           m_nColumn = 0;
};
} // namespace standalone

#endif

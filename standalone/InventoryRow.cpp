// See InventoryRow.h.
#include "standalone/InventoryRow.h"

#include "standalone/Utf8.h"

#include <string_view>

namespace standalone
{
namespace
{
const char* typeName(int nType)
{
    switch (nType)
    {
    case SQLITE_INTEGER:
        return "a number";
    case SQLITE_FLOAT:
        return "a number with a fraction";
    case SQLITE_TEXT:
        return "text";
    case SQLITE_BLOB:
        return "a blob";
    default:
        return "NULL";
    }
}
} // namespace

CInventoryRow::CInventoryRow(CSqlite& oDb, sqlite3_stmt* pStatement, const char* pszTable, StRowBudget& stBudget)
    : m_oDb(oDb), m_pStatement(pStatement), m_pszTable(pszTable), m_stBudget(stBudget)
{
}

bool CInventoryRow::next()
{
    if (!m_oDb.step(m_pStatement))
        return false;
    ++m_nRow;
    m_nColumn = 0;
    if (m_stBudget.nRows-- == 0)
    {
        m_stBudget.nRows = 0;
        fail("too many rows for an inventory of this size");
    }
    return true;
}

std::string CInventoryRow::text()
{
    requireType(SQLITE_TEXT, "text");
    const auto* pszText = reinterpret_cast<const char*>(sqlite3_column_text(m_pStatement, m_nColumn));
    if (pszText == nullptr)
        fail(m_nColumn, "out of memory");
    const std::string_view strText(pszText, static_cast<std::size_t>(sqlite3_column_bytes(m_pStatement, m_nColumn)));
    if (strText.find('\0') != std::string_view::npos)
        fail(m_nColumn, "holds a NUL byte");
    if (findInvalidUtf8(strText) != std::string_view::npos)
        fail(m_nColumn, "holds text that is not UTF-8");
    if (strText.size() > m_stBudget.nTextBytes)
        fail("too much text for an inventory of this size");
    m_stBudget.nTextBytes -= strText.size();
    ++m_nColumn;
    return std::string(strText);
}

std::int64_t CInventoryRow::number(std::int64_t nLeast, std::int64_t nMost)
{
    requireType(SQLITE_INTEGER, "a number");
    const std::int64_t nValue = sqlite3_column_int64(m_pStatement, m_nColumn);
    if (nValue < nLeast || nValue > nMost)
        fail(m_nColumn, "holds " + std::to_string(nValue) + ", allowed is " + std::to_string(nLeast) + " to " +
                            std::to_string(nMost));
    ++m_nColumn;
    return nValue;
}

bool CInventoryRow::isNull()
{
    const bool bIsNull = sqlite3_column_type(m_pStatement, m_nColumn) == SQLITE_NULL;
    m_nColumn += bIsNull ? 1 : 0;
    return bIsNull;
}

std::string CInventoryRow::anyText()
{
    if (sqlite3_column_type(m_pStatement, m_nColumn) != SQLITE_INTEGER)
        return text();
    return std::to_string(number<std::int64_t>());
}

void CInventoryRow::requireNew(bool bInserted, int nKeyColumn) const
{
    if (!bInserted)
        fail(nKeyColumn, "holds a key that an earlier row has as well");
}

void CInventoryRow::requireType(int nType, const char* pszWanted) const
{
    const int nFound = sqlite3_column_type(m_pStatement, m_nColumn);
    if (nFound != nType)
        fail(m_nColumn, std::string("holds ") + typeName(nFound) + ", needed is " + pszWanted);
}

void CInventoryRow::fail(const std::string& strProblem) const
{
    throw CInventoryError(std::string("table ") + m_pszTable + ", row " + std::to_string(m_nRow) + ": " + strProblem);
}

void CInventoryRow::fail(int nColumn, const std::string& strProblem) const
{
    throw CInventoryError(std::string("table ") + m_pszTable + ", column " +
                          sqlite3_column_name(m_pStatement, nColumn) + ", row " + std::to_string(m_nRow) + ": " +
                          strProblem);
}
} // namespace standalone

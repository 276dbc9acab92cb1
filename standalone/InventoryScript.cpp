// See InventoryScript.h.
#include "standalone/InventoryScript.h"

#include "standalone/InventoryTables.h"
#include "standalone/Utf8.h"

#include "Schema.h"

#include <algorithm>
#include <string_view>

namespace standalone
{
namespace
{
constexpr std::size_t QUOTE_SHOWN = 80;

constexpr std::string_view ALLOWED_FUNCTIONS[] = {
    "abs",   "char", "coalesce", "count",     "format", "glob", "group_concat", "hex",    "ifnull",  "iif",
    "instr", "like", "lower",    "ltrim",     "max",    "min",  "nullif",       "printf", "replace", "round",
    "rtrim", "sum",  "substr",   "substring", "total",  "trim", "unicode",      "upper",
};

bool isAllowedFunction(const char* pszName)
{
    return std::find(std::begin(ALLOWED_FUNCTIONS), std::end(ALLOWED_FUNCTIONS), std::string_view(pszName)) !=
           std::end(ALLOWED_FUNCTIONS);
}

// Rows of the inventory's tables may be written and read; everything else that
// SQL can do (attach, pragma, create, other functions) is refused.
int authorize(void* /*pNothing*/, int nAction, const char* pszFirst, const char* pszSecond, const char* /*pszDb*/,
              const char* /*pszTrigger*/) noexcept
{
    switch (nAction)
    {
    case SQLITE_SELECT:
    case SQLITE_RECURSIVE:
    case SQLITE_TRANSACTION:
    case SQLITE_SAVEPOINT:
        return SQLITE_OK;
    case SQLITE_INSERT:
    case SQLITE_UPDATE:
    case SQLITE_DELETE:
        return isInventoryTable(pszFirst) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_READ: // without a column only the rows are counted, perhaps of the statement's own WITH
        return *pszSecond == '\0' || isInventoryTable(pszFirst) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_FUNCTION:
        return isAllowedFunction(pszSecond) ? SQLITE_OK : SQLITE_DENY;
    default:
        return SQLITE_DENY;
    }
}

std::string placeOf(const std::string& strPath, std::string_view strText, std::size_t nAt)
{
    const auto nLine = 1 + std::count(strText.begin(), strText.begin() + static_cast<std::ptrdiff_t>(nAt), '\n');
    return strPath + ", line " + std::to_string(nLine) + ": ";
}

void checkBytes(const std::string& strPath, std::string_view strText)
{
    if (const std::size_t nAt = strText.find('\0'); nAt != std::string_view::npos)
        throw CInventoryError(placeOf(strPath, strText, nAt) + "a NUL byte, which no SQL text holds");
    if (const std::size_t nAt = findInvalidUtf8(strText); nAt != std::string_view::npos)
        throw CInventoryError(placeOf(strPath, strText, nAt) + "not UTF-8");
}

// Behind what says nothing to SQLite: the start of the next statement.
std::size_t behindBlanks(std::string_view strSql, std::size_t nAt)
{
    constexpr std::string_view BYTE_ORDER_MARK = "\xEF\xBB\xBF";
    while ((nAt = strSql.find_first_not_of(" \t\n\v\f\r;", nAt)) < strSql.size())
    {
        if (strSql.compare(nAt, 2, "--") == 0)
            nAt = strSql.find('\n', nAt);
        else if (strSql.compare(nAt, 2, "/*") == 0)
            nAt = std::min(strSql.find("*/", nAt + 2), strSql.size() - 2) + 2;
        else if (strSql.compare(nAt, BYTE_ORDER_MARK.size(), BYTE_ORDER_MARK) == 0)
            nAt += BYTE_ORDER_MARK.size();
        else
            return nAt;
    }
    return strSql.size();
}

void countRow(void* pRows, int /*nAction*/, const char* /*pszDb*/, const char* /*pszTable*/,
              sqlite3_int64 /*nRowId*/) noexcept
{
    ++*static_cast<std::size_t*>(pRows);
}

struct StRunning
{
    const char* pszStart = nullptr; // of the statement
    const char* pszRest  = nullptr; // where SQLite has stopped reading
    std::size_t nRows    = 0;       // that it has changed
};

// The place as far as SQLite knows it: a line within the statement when it could
// not be compiled, a row of it when it was running.
std::string describe(const std::string& strPath, std::string_view strText, const StRunning& stRunning, int nOffset,
                     const char* pszProblem)
{
    std::size_t nAt   = static_cast<std::size_t>(stRunning.pszStart - strText.data());
    std::size_t nFrom = nAt;
    std::size_t nTo =
        stRunning.pszRest == nullptr ? strText.size() : static_cast<std::size_t>(stRunning.pszRest - strText.data());
    if (nOffset >= 0)
    {
        nAt += static_cast<std::size_t>(nOffset);
        nFrom = std::max(nFrom, strText.rfind('\n', nAt) + 1); // 0 in the first line
        nTo   = std::min(strText.find('\n', nAt), strText.size());
    }
    std::string strPlace = placeOf(strPath, strText, nAt);
    if (stRunning.nRows > 0)
        strPlace += "row " + std::to_string(stRunning.nRows + 1) + ": ";
    return strPlace + pszProblem + ": " + abbreviate(strText.substr(nFrom, nTo - nFrom), QUOTE_SHOWN);
}

void runStatements(CSqlite& oDb, std::string_view strText, StRunning& stRunning)
{
    sqlite3_update_hook(oDb.handle(), &countRow, &stRunning.nRows);
    for (std::size_t nAt = behindBlanks(strText, 0); nAt < strText.size();)
    {
        stRunning = {strText.data() + nAt, nullptr, 0};
        oDb.checkClock(); // many short statements count as well
        const StatementPtr oStatement = oDb.prepare(stRunning.pszStart, &stRunning.pszRest);
        while (oStatement != nullptr && oDb.step(oStatement.get()))
            continue; // nobody looks at the rows
        nAt = behindBlanks(strText, static_cast<std::size_t>(stRunning.pszRest - strText.data()));
    }
}
} // namespace

CSqlite runInventoryScript(const std::string& strPath, const std::string& strText)
{
    checkBytes(strPath, strText);
    CSqlite oDb = CSqlite::openMemory(strText.size());
    oDb.execute(SCHEMA_SQL);
    sqlite3_set_authorizer(oDb.handle(), &authorize, nullptr);
    oDb.startClock(strText.size());
    StRunning stRunning;
    try
    {
        runStatements(oDb, strText, stRunning);
    }
    catch (const CInventoryError& oProblem)
    {
        throw CInventoryError(
            describe(strPath, strText, stRunning, sqlite3_error_offset(oDb.handle()), oProblem.what()));
    }
    sqlite3_update_hook(oDb.handle(), nullptr, nullptr);
    sqlite3_set_authorizer(oDb.handle(), nullptr, nullptr);
    return oDb;
}
} // namespace standalone

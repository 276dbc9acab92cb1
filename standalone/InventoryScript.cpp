// See InventoryScript.h.
#include "standalone/InventoryScript.h"

#include "standalone/InventoryTables.h"
#include "standalone/SqlText.h"
#include "standalone/TextFile.h"
#include "standalone/Utf8.h"

#include "Schema.h"

#include <algorithm>
#include <string_view>

namespace standalone
{
namespace
{
// SQLite expands selects within selects, and every "*", while it compiles, where
// nothing can stop it: a few hundred bytes can grow without end. So statements
// that select are kept small; those that only insert values may be long.
constexpr std::size_t SELECT_LENGTH        = 1024;
constexpr std::size_t NESTED_SELECT_LENGTH = 512;
constexpr unsigned    NESTED_SELECTS       = 3;

bool isTooComplex(const StSqlStatement& stStatement)
{
    const std::size_t nLength = stStatement.nEnd - stStatement.nStart;
    const bool        bNested = stStatement.bWith || stStatement.nSelects > 1;
    if (bNested && (stStatement.nSelects > NESTED_SELECTS || nLength > NESTED_SELECT_LENGTH))
        return true;
    return stStatement.nSelects > 0 && nLength > SELECT_LENGTH;
}

constexpr std::size_t STATEMENT_SHOWN = 80;

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

void runStatement(CSqlite& oDb, std::string_view strText, const StSqlStatement& stStatement)
{
    oDb.checkClock(); // many short statements count as well
    if (isTooComplex(stStatement))
        throw CInventoryError("selects too much in one statement");
    const StatementPtr oStatement =
        oDb.prepare(strText.substr(stStatement.nStart, stStatement.nEnd - stStatement.nStart));
    if (oStatement == nullptr)
        return; // a lonely ";"
    while (oDb.step(oStatement.get()))
        continue; // nobody looks at the rows
}
} // namespace

CSqlite runInventoryScript(const std::string& strPath, std::size_t& nSize)
{
    const std::string strText = readTextFile(strPath);
    checkBytes(strPath, strText);
    CSqlite oDb = CSqlite::openMemory(strText.size());
    oDb.execute(SCHEMA_SQL);
    sqlite3_set_authorizer(oDb.handle(), &authorize, nullptr);
    oDb.startClock(strText.size());
    for (StSqlStatement stStatement = nextStatement(strText, 0); stStatement.nStart < stStatement.nEnd;
         stStatement                = nextStatement(strText, stStatement.nEnd))
    {
        try
        {
            runStatement(oDb, strText, stStatement);
        }
        catch (const CInventoryError& oProblem)
        {
            const auto nLength = stStatement.nEnd - stStatement.nStart;
            throw CInventoryError(
                placeOf(strPath, strText, stStatement.nStart) + oProblem.what() + ": " +
                abbreviate(std::string_view(strText).substr(stStatement.nStart, nLength), STATEMENT_SHOWN));
        }
    }
    sqlite3_set_authorizer(oDb.handle(), nullptr, nullptr);
    nSize = strText.size();
    return oDb;
}
} // namespace standalone

// See Sqlite.h.
#include "standalone/Sqlite.h"

#include "standalone/Utf8.h"

#include <array>
#include <fstream>
#include <string_view>
#include <sys/stat.h>
#include <time.h>

namespace standalone
{
namespace
{
constexpr int LOCK_WAIT_MS    = 1000;
constexpr int STEPS_PER_CHECK = 100;

constexpr std::size_t MESSAGE_SHOWN = 200;

// Room for any inventory, and more for a large one.
constexpr std::chrono::milliseconds BASE_TIME{1000};
constexpr std::size_t               BYTES_PER_MILLISECOND = 1024;
constexpr std::size_t               BASE_MEMORY           = 160u << 20;
constexpr std::size_t               MEMORY_PER_BYTE       = 8;
constexpr std::size_t               BASE_PAGES            = (32u << 20) / 4096;
constexpr std::size_t               BYTES_PER_PAGE        = 2048;

struct StLimit
{
    int nWhat;
    int nValue;
};
// No single step of SQLite can be stopped, and some grow with the square of a
// text's length, so texts are short; a statement can be long, because one may
// insert a whole table.
constexpr StLimit LIMITS[] = {
    {SQLITE_LIMIT_LENGTH, 16 << 10},        {SQLITE_LIMIT_SQL_LENGTH, 4 << 20}, {SQLITE_LIMIT_ATTACHED, 0},
    {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 64}, {SQLITE_LIMIT_EXPR_DEPTH, 200},     {SQLITE_LIMIT_COLUMN, 200},
    {SQLITE_LIMIT_TRIGGER_DEPTH, 1},        {SQLITE_LIMIT_WORKER_THREADS, 0},   {SQLITE_LIMIT_COMPOUND_SELECT, 50},
};

std::string fileUri(const std::string& strPath, bool bImmutable)
{
    constexpr std::string_view HEX_DIGITS = "0123456789ABCDEF";
    std::string                strUri     = "file:";
    for (const char chByte : strPath)
    {
        if (chByte != '%' && chByte != '?' && chByte != '#')
        {
            strUri += chByte;
            continue;
        }
        const auto chValue = static_cast<unsigned char>(chByte);
        strUri.append({'%', HEX_DIGITS[chValue >> 4u], HEX_DIGITS[chValue & 0xFu]});
    }
    return bImmutable ? strUri + "?immutable=1" : strUri;
}

// Whether the file's header asks its readers for a write-ahead log; what it asks
// of writers, one byte before, may differ.
bool usesWriteAheadLog(const std::string& strPath)
{
    std::array<char, 20> aHeader = {};
    std::ifstream        oFile(strPath, std::ios::binary);
    return oFile.read(aHeader.data(), aHeader.size()) && aHeader[19] == 2;
}

// Processor time that this thread has used.
std::chrono::nanoseconds workDone()
{
    struct ::timespec stTime = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &stTime);
    return std::chrono::seconds(stTime.tv_sec) + std::chrono::nanoseconds(stTime.tv_nsec);
}

bool isFilled(const std::string& strPath)
{
    struct ::stat stStatus = {};
    return ::stat(strPath.c_str(), &stStatus) == 0 && stStatus.st_size > 0;
}
} // namespace

CHeapLimit::CHeapLimit(std::size_t nInventorySize)
    : m_nSoft(sqlite3_soft_heap_limit64(-1)), m_nHard(sqlite3_hard_heap_limit64(-1))
{
    const auto nLimit =
        sqlite3_memory_used() + static_cast<sqlite3_int64>(BASE_MEMORY + MEMORY_PER_BYTE * nInventorySize);
    if (m_nHard == 0 || nLimit < m_nHard)
        sqlite3_hard_heap_limit64(nLimit); // and the soft one with it
}

CHeapLimit::~CHeapLimit()
{
    sqlite3_hard_heap_limit64(m_nHard);
    sqlite3_soft_heap_limit64(m_nSoft);
}

CSqlite::CSqlite(const std::string& strName, int nFlags)
{
    sqlite3*  pDb = nullptr;
    const int nResult =
        sqlite3_open_v2(strName.c_str(), &pDb, nFlags | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX, nullptr);
    m_pDb.reset(pDb); // to be closed even when opening failed
    if (nResult != SQLITE_OK)
        throw CInventoryError(pDb == nullptr ? sqlite3_errstr(nResult) : problem());
    for (const StLimit& stLimit : LIMITS)
        sqlite3_limit(pDb, stLimit.nWhat, stLimit.nValue);
    sqlite3_db_config(pDb, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(pDb, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(pDb, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0, nullptr);
    sqlite3_busy_timeout(pDb, LOCK_WAIT_MS);
    execute("PRAGMA temp_store=MEMORY"); // sorting must not write files
}

CSqlite CSqlite::openFile(const std::string& strPath)
{
    // Reading through a write-ahead log would create files beside the database.
    // Without pending writes the file alone is complete, so none is needed.
    const bool bWriteAhead = usesWriteAheadLog(strPath);
    if (bWriteAhead && isFilled(strPath + "-wal"))
        throw CInventoryError("in use by another program: " + strPath + "-wal holds changes not yet written back");
    return CSqlite(fileUri(strPath, bWriteAhead), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
}

CSqlite CSqlite::openMemory(std::size_t nInventorySize)
{
    CSqlite           oDb(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MEMORY);
    const std::size_t nPages = BASE_PAGES + nInventorySize / BYTES_PER_PAGE;
    oDb.execute(("PRAGMA page_size=4096; PRAGMA max_page_count=" + std::to_string(nPages)).c_str());
    return oDb;
}

void CSqlite::startClock(std::size_t nInventorySize)
{
    m_pClock->oEnd    = workDone() + BASE_TIME + std::chrono::milliseconds(nInventorySize / BYTES_PER_MILLISECOND);
    m_pClock->bBroken = false;
    sqlite3_progress_handler(m_pDb.get(), STEPS_PER_CHECK, &CSqlite::onProgress, m_pClock.get());
}

int CSqlite::onProgress(void* pClock) noexcept
{
    StClock& stClock = *static_cast<StClock*>(pClock);
    stClock.bBroken  = workDone() > stClock.oEnd;
    return stClock.bBroken ? 1 : 0;
}

void CSqlite::checkClock()
{
    if (onProgress(m_pClock.get()) != 0)
        throw CInventoryError(problem());
}

StatementPtr CSqlite::prepare(const char* pszSql, const char** ppszRest)
{
    sqlite3_stmt* pStatement = nullptr;
    const int     nResult    = sqlite3_prepare_v2(m_pDb.get(), pszSql, -1, &pStatement, ppszRest);
    StatementPtr  oStatement(pStatement);
    if (nResult != SQLITE_OK)
        throw CInventoryError(problem());
    return oStatement;
}

bool CSqlite::step(sqlite3_stmt* pStatement)
{
    switch (sqlite3_step(pStatement))
    {
    case SQLITE_ROW:
        return true;
    case SQLITE_DONE:
        return false;
    default:
        throw CInventoryError(problem());
    }
}

void CSqlite::execute(const char* pszSql)
{
    if (sqlite3_exec(m_pDb.get(), pszSql, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw CInventoryError(problem());
}

std::string CSqlite::problem() const
{
    if (m_pClock->bBroken)
        return "takes too long";
    switch (sqlite3_errcode(m_pDb.get()))
    {
    case SQLITE_AUTH:
        return "not allowed in an inventory";
    case SQLITE_NOMEM:
        return "takes too much memory";
    case SQLITE_FULL:
        return "too much data for an inventory of this size";
    default:
        return abbreviate(sqlite3_errmsg(m_pDb.get()), MESSAGE_SHOWN); // it may quote the file at length
    }
}
} // namespace standalone

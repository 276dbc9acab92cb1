// SQLite with owners: the two ways an inventory is opened, statements, and the
// limits that keep a hostile one short in time and memory. Called by the
// inventory reader on one thread; a failure throws CInventoryError, which
// openServerRoot turns into its message.
#ifndef OPERATIONXML_STANDALONE_SQLITE_H
#define OPERATIONXML_STANDALONE_SQLITE_H

#include <sqlite3.h>

#include <chrono>
#include <memory>
#include <stdexcept>
#include <string>

namespace standalone
{
class CInventoryError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

struct StFinalizeStatement
{
    void operator()(sqlite3_stmt* pStatement) const { sqlite3_finalize(pStatement); }
};
using StatementPtr = std::unique_ptr<sqlite3_stmt, StFinalizeStatement>;

// What SQLite may take for an inventory of so many bytes, for a scope. It counts
// for the whole process, compiling a statement included; limits that were set
// before hold as well and are there again afterwards.
class CHeapLimit
{
public:
    explicit CHeapLimit(std::size_t nInventorySize);
    ~CHeapLimit();
    CHeapLimit(const CHeapLimit&)            = delete;
    CHeapLimit& operator=(const CHeapLimit&) = delete;

private:
    sqlite3_int64 m_nSoft; // before
    sqlite3_int64 m_nHard;
};

class CSqlite
{
public:
    // Opens a database file for reading; nothing is written beside it either.
    static CSqlite openFile(const std::string& strPath);

    // An empty database in memory, sized for an inventory of so many bytes.
    static CSqlite openMemory(std::size_t nInventorySize);

    // From now on a statement fails that takes more processor time than an
    // inventory of so many bytes can need. Compiling a statement is not covered,
    // so ask between statements.
    void startClock(std::size_t nInventorySize);
    void checkClock();

    // The first statement of a text; null when there is none.
    StatementPtr prepare(const char* pszSql, const char** ppszRest = nullptr);

    // Steps to the next row; false at the end.
    bool step(sqlite3_stmt* pStatement);

    // Runs any number of statements of our own.
    void execute(const char* pszSql);

    // Why the last call failed, in words.
    std::string problem() const;

    sqlite3* handle() { return m_pDb.get(); }

private:
    struct StClose
    {
        void operator()(sqlite3* pDb) const { sqlite3_close_v2(pDb); }
    };
    // Stays where it is: SQLite holds its address.
    struct StClock
    {
        std::chrono::nanoseconds oEnd{0};
        bool                     bBroken = false;
    };

    CSqlite(const std::string& strName, int nFlags);
    static int onProgress(void* pClock) noexcept;

    std::unique_ptr<StClock>          m_pClock = std::make_unique<StClock>(); // outlives m_pDb
    std::unique_ptr<sqlite3, StClose> m_pDb;
};
} // namespace standalone

#endif

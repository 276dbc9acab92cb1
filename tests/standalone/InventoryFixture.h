// What the inventory tests share: a server.db made from SQL, and the message of
// opening a root.
#ifndef OPERATIONXML_TESTS_STANDALONE_INVENTORYFIXTURE_H
#define OPERATIONXML_TESTS_STANDALONE_INVENTORYFIXTURE_H

#include "TestSupport.h"

#include "standalone/ServerRoot.h"

#include <sqlite3.h>

#include <fstream>
#include <memory>
#include <sstream>
#include <string>

using DatabasePtr = std::unique_ptr<sqlite3, decltype(&sqlite3_close_v2)>;

// Opens or makes a database and runs SQL on it, without waiting for the disk.
inline DatabasePtr runOnDatabase(const std::string& strPath, const std::string& strSql)
{
    sqlite3*    pDb     = nullptr;
    const int   nResult = sqlite3_open(strPath.c_str(), &pDb);
    DatabasePtr oDb(pDb, &sqlite3_close_v2);
    EXPECT_EQ(SQLITE_OK, nResult) << strPath;
    EXPECT_EQ(SQLITE_OK, sqlite3_exec(pDb, ("PRAGMA synchronous=OFF;" + strSql).c_str(), nullptr, nullptr, nullptr))
        << sqlite3_errmsg(pDb);
    return oDb;
}

// Puts a server.db with the documented tables into the root, then runs SQL on it.
inline DatabasePtr makeDatabase(const CTempServerRoot& oRoot, const std::string& strSql)
{
    std::ostringstream oSchema;
    oSchema << std::ifstream(OPERATIONXML_SOURCE_DIR "/standalone/schema.sql").rdbuf();
    return runOnDatabase(oRoot.path() + "/server.db", oSchema.str() + strSql);
}

// "" when the root opens, otherwise the message with the root's path cut off.
inline std::string openProblem(const CTempServerRoot& oRoot)
{
    std::string strError;
    if (standalone::openServerRoot(oRoot.path(), strError))
        return strError;
    EXPECT_EQ(0u, strError.find(oRoot.path())) << strError;
    return strError.substr(std::min(oRoot.path().size(), strError.size()));
}

#endif

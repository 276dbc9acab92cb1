// A server.db that is not an inventory, or not readable now, is refused with one
// message; reading one leaves nothing beside it.
#include "InventoryFixture.h"

#include "platform/Settings.h"

#include <sys/stat.h>

namespace
{
TEST(DatabaseFile, NamesTableAndColumn)
{
    // clang-format off
    const std::pair<const char*, const char*> CASES[] = {
        // run after the tables are made; the message
        {"CREATE TABLE note(x); ALTER TABLE device ADD COLUMN note TEXT;", ""},
        {"DROP TABLE capacity;", "/server.db: table capacity is missing"},
        {"ALTER TABLE device DROP COLUMN ip_address;", "/server.db: table device: column ip_address is missing"},
        {"DROP TABLE setting; CREATE VIEW setting AS SELECT 'a' AS name, 'b' AS value;", "/server.db: table setting is missing"},
        {"DROP TABLE setting; CREATE TABLE setting(name TEXT, value TEXT AS (name || 'x'));", "/server.db: table setting: column value is missing"},
        {"DROP TABLE setting; CREATE TABLE setting(name, value); INSERT INTO setting VALUES('a', 5);", "/server.db: table setting, column value, row 1: holds a number, needed is text"},
        {"DROP TABLE config_item; CREATE TABLE config_item(section, key, value);"
         "INSERT INTO config_item VALUES('DC', 'X', 1.5);",
         "/server.db: table config_item, column value, row 1: holds a number with a fraction, needed is a number"},
        {"DROP TABLE resource; CREATE TABLE resource(key, value); INSERT INTO resource(key) VALUES('a');", "/server.db: table resource, column value, row 1: holds NULL, needed is text"},
        {"INSERT INTO setting VALUES('a', CAST(x'C0AF' AS TEXT));", "/server.db: table setting, column value, row 1: holds text that is not UTF-8"},
        {"DROP TABLE setting; CREATE TABLE setting(name, value);"
         "INSERT INTO setting VALUES('a', '1'), ('b', '2'), ('a', '3');",
         "/server.db: table setting, column name, row 2: holds a key that an earlier row has as well"},
        {"PRAGMA writable_schema=1;"
         "UPDATE sqlite_master SET name=CAST(x'610AE9' AS TEXT), sql='CREATE' WHERE name='device';",
         "/server.db: malformed database schema (a ?) - incomplete input"},
    };
    // clang-format on
    for (const auto& [pszSql, pszProblem] : CASES)
    {
        SCOPED_TRACE(pszSql);
        CTempServerRoot oRoot;
        makeDatabase(oRoot, pszSql);
        EXPECT_EQ(pszProblem, openProblem(oRoot));
    }
}

TEST(DatabaseFile, CutAnywhereIsRefused)
{
    CTempServerRoot oRoot;
    makeDatabase(oRoot, "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n LIMIT 500)"
                        "INSERT INTO setting SELECT i, i FROM n;");
    const std::string strPath = oRoot.path() + "/server.db";
    EXPECT_EQ("", openProblem(oRoot));
    for (auto nSize = std::filesystem::file_size(strPath); nSize > 1021;)
    {
        nSize -= 1021;
        std::filesystem::resize_file(strPath, nSize);
        EXPECT_NE("", openProblem(oRoot));
    }
    std::filesystem::resize_file(strPath, 0);
    EXPECT_EQ("/server.db: table device_type is missing", openProblem(oRoot));
    oRoot.write("server.db", std::string(5000, 'x'));
    EXPECT_EQ("/server.db: file is not a database", openProblem(oRoot));
}

TEST(InventoryFile, OtherThingsInItsPlaceAreRefusedWithoutWaiting)
{
    for (const std::string strName : {"/server.db", "/server.sql"})
    {
        CTempServerRoot   oRoot;
        const std::string strPath = oRoot.path() + strName;
        ASSERT_EQ(0, ::mkfifo(strPath.c_str(), 0600));
        EXPECT_EQ(strName + ": not a file", openProblem(oRoot));
        std::filesystem::remove(strPath);
        std::filesystem::create_directory(strPath);
        EXPECT_EQ(strName + ": not a file", openProblem(oRoot));
        std::filesystem::remove(strPath);
        std::filesystem::create_symlink("nowhere", strPath);
        EXPECT_EQ(strName + ": cannot be read: No such file or directory", openProblem(oRoot));
    }
}

TEST(DatabaseFile, WinsOverTheScriptAndStaysAlone)
{
    CTempServerRoot oRoot;
    oRoot.write("server.sql", "INSERT INTO setting VALUES('from','script');");
    makeDatabase(oRoot, "PRAGMA journal_mode=WAL; INSERT INTO setting VALUES('from','database');");
    EXPECT_EQ("", openProblem(oRoot));
    std::string strFrom;
    EXPECT_EQ(0u, CDCSettingInfoTab::Instance()->getValueByParam("from", strFrom));
    EXPECT_EQ("database", strFrom);
    std::vector<std::string> lstName;
    for (const auto& oEntry : std::filesystem::directory_iterator(oRoot.path()))
        lstName.push_back(oEntry.path().filename());
    EXPECT_THAT(lstName, testing::UnorderedElementsAre("server.db", "server.sql"));
}

TEST(DatabaseFile, InUseIsSaid)
{
    CTempServerRoot oRoot;
    auto            oDb = makeDatabase(oRoot, "BEGIN EXCLUSIVE;");
    EXPECT_EQ("/server.db: database is locked", openProblem(oRoot));
    oDb.reset(); // the lock ends
    EXPECT_EQ("", openProblem(oRoot));
    oDb = runOnDatabase(oRoot.path() + "/server.db", "PRAGMA journal_mode=WAL; DELETE FROM setting;"
                                                     "INSERT INTO setting VALUES('a','b');");
    EXPECT_THAT(openProblem(oRoot), testing::HasSubstr("server.db-wal holds changes not yet written back"));
}
} // namespace

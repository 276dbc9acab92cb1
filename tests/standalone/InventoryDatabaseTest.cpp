// A server.db that is not an inventory, or not readable now, is refused with one
// message; reading one leaves nothing beside it.
#include "InventoryFixture.h"

#include "platform/Settings.h"

namespace
{
struct StDatabaseCase
{
    const char* pszName;
    const char* pszSql; // run after the tables are made
    const char* pszProblem;
};

class DatabaseTest : public testing::TestWithParam<StDatabaseCase>
{
};

TEST_P(DatabaseTest, NamesTableAndColumn)
{
    CTempServerRoot oRoot;
    makeDatabase(oRoot, GetParam().pszSql);
    EXPECT_EQ(GetParam().pszProblem, openProblem(oRoot));
}

INSTANTIATE_TEST_SUITE_P(Schema, DatabaseTest,
                         testing::ValuesIn(std::vector<StDatabaseCase>{
                             {"AsDocumented", "", ""},
                             {"MoreThanNeeded", "CREATE TABLE note(x); ALTER TABLE device ADD COLUMN note TEXT;", ""},
                             {"TableMissing", "DROP TABLE capacity;", "/server.db: table capacity is missing"},
                             {"ColumnMissing", "ALTER TABLE device DROP COLUMN ip_address;",
                              "/server.db: table device: column ip_address is missing"},
                             {"View", "DROP TABLE setting; CREATE VIEW setting AS SELECT 'a' AS name, 'b' AS value;",
                              "/server.db: table setting is missing"},
                             {"Computed",
                              "DROP TABLE setting; CREATE TABLE setting(name TEXT, value TEXT AS (name || 'x'));",
                              "/server.db: table setting: column value is missing"},
                         }),
                         rowName<StDatabaseCase>);

INSTANTIATE_TEST_SUITE_P(
    Value, DatabaseTest,
    testing::ValuesIn(std::vector<StDatabaseCase>{
        {"NumberForText", "DROP TABLE setting; CREATE TABLE setting(name, value); INSERT INTO setting VALUES('a', 5);",
         "/server.db: table setting, column value, row 1: holds a number, needed is text"},
        {"TextForNumber",
         "DROP TABLE config_item; CREATE TABLE config_item(section, key, value);"
         "INSERT INTO config_item VALUES('DC', 'X', '1');",
         "/server.db: table config_item, column value, row 1: holds text, needed is a number"},
        {"Fraction",
         "DROP TABLE config_item; CREATE TABLE config_item(section, key, value);"
         "INSERT INTO config_item VALUES('DC', 'X', 1.5);",
         "/server.db: table config_item, column value, row 1: holds a number with a fraction, "
         "needed is a number"},
        {"Null", "DROP TABLE resource; CREATE TABLE resource(key, value); INSERT INTO resource(key) VALUES('a');",
         "/server.db: table resource, column value, row 1: holds NULL, needed is text"},
        {"Blob", "DROP TABLE resource; CREATE TABLE resource(key, value); INSERT INTO resource VALUES('a', x'00');",
         "/server.db: table resource, column value, row 1: holds a blob, needed is text"},
        {"NotUtf8", "INSERT INTO setting VALUES('a', CAST(x'C0AF' AS TEXT));",
         "/server.db: table setting, column value, row 1: holds text that is not UTF-8"},
        {"KeyTwice",
         "DROP TABLE setting; CREATE TABLE setting(name, value);"
         "INSERT INTO setting VALUES('a', '1'), ('b', '2'), ('a', '3');",
         "/server.db: table setting, column name, row 2: holds a key that an earlier row has as well"},
        {"DeviceTwice",
         "DROP TABLE device; CREATE TABLE device(device_id, name, type_id, version_id, ip_address,"
         "soft_version, patch_version, login_state, connect_state, telnet_capability);"
         "INSERT INTO device VALUES(7,'',1,1,'','','',0,0,''), (7,'',1,1,'','','',0,0,'');",
         "/server.db: table device, column device_id, row 2: holds a key that an earlier row has as well"},
    }),
    rowName<StDatabaseCase>);

TEST(DatabaseFile, BrokenNamesAreQuotedReadably)
{
    CTempServerRoot oRoot;
    makeDatabase(oRoot, "PRAGMA writable_schema=1;"
                        "UPDATE sqlite_master SET name=CAST(x'610AE9' AS TEXT), sql='CREATE' WHERE name='device';");
    EXPECT_EQ("/server.db: malformed database schema (a ?) - incomplete input", openProblem(oRoot));
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
        SCOPED_TRACE(nSize);
        std::filesystem::resize_file(strPath, nSize);
        EXPECT_NE("", openProblem(oRoot));
    }
    std::filesystem::resize_file(strPath, 0);
    EXPECT_EQ("/server.db: table device_type is missing", openProblem(oRoot));
}

TEST(DatabaseFile, OtherThingsInItsPlaceAreRefused)
{
    CTempServerRoot   oRoot;
    const std::string strPath = oRoot.path() + "/server.db";
    oRoot.write("server.sql", "");
    oRoot.write("server.db", std::string(5000, 'x'));
    EXPECT_EQ("/server.db: file is not a database", openProblem(oRoot));
    std::filesystem::remove(strPath);
    std::filesystem::create_directory(strPath);
    EXPECT_EQ("/server.db: not a file", openProblem(oRoot));
    std::filesystem::remove(strPath);
    std::filesystem::create_symlink("nowhere", strPath);
    EXPECT_EQ("/server.db: cannot be read: No such file or directory", openProblem(oRoot));
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

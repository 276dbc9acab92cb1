// A server.sql that is wrong or hostile is refused with one message; nothing it
// says reaches outside the inventory.
#include "InventoryFixture.h"

#include <fmt/format.h>

using namespace std::string_literals;
using testing::HasSubstr;
using testing::StartsWith;

namespace
{
const std::string COUNT_UP = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n) ";

// Further rows of one statement.
std::string rows(int nRows)
{
    std::string strOut;
    for (int nRow = 1; nRow <= nRows; ++nRow)
        strOut += ",\n(" + std::to_string(nRow) + ",'X','V1','','')";
    return strOut;
}

// The message of opening a root with this script.
std::string problemOf(const std::string& strSql)
{
    CTempServerRoot oRoot;
    oRoot.write("server.sql", strSql);
    return openProblem(oRoot);
}

TEST(ScriptFile, OpensOrSaysWhatIsWrong)
{
    // clang-format off
    const std::pair<std::string, std::string> CASES[] = {
        // the script; how the message goes on
        {"", ""}, {"-- a\n/* b; */ ;;", ""}, {"\xEF\xBB\xBFINSERT INTO setting VALUES('a','b');", ""},
        {"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n LIMIT 5000) INSERT INTO device_type(position, name, version) SELECT i, 'T' || i, 'V1' FROM n;", ""},
        {"INSERT INTO version_in_service VALUES(0,'X','V1','','')" + rows(100'000), ""},
        // Statements.
        {"-- types\n\nINSERT INTO\n  device_typ VALUES(1,\t'x');", ", line 3: no such table: device_typ: INSERT INTO device_typ VALUES(1, 'x');"},
        {"INSERT INTO setting VALUES('a;''b', ';'); /* ; */\n-- ; \n[x;y]", ", line 3: near \"[x;y]\": syntax error: [x;y]"},
        {"INSERT INTO nobody VALUES('" + std::string(500, 'x') + "');", ", line 1: no such table: nobody: INSERT INTO nobody VALUES('" + std::string(53, 'x') + "..."},
        {"INSERT INTO setting VALUES('a','b", ", line 1: unrecognized token"},
        // The line, or else the row, of the mistake.
        {"\nINSERT INTO setting VALUES\n('a', 'b'),\n('c', d),\n('e', 'f');", ", line 4: no such column: d: ('c', d),"},
        {"INSERT INTO version_in_service VALUES(0,'X','V1','','')" + rows(56) + ",\n(7,'Y','V1','','')",
         ", line 1: row 58: UNIQUE constraint failed: version_in_service.position: INSERT INTO version"},
        {"DELETE FROM setting WHERE 1 SELECT 2;\n", ", line 1: near \"SELECT\": syntax error: DELETE FROM"},
        {";;/**/; nonsense -- ;\n;\nSELECT 1;", ", line 1: near \"nonsense\": syntax error: nonsense -- ;"},
        {"INSERT INTO setting VALUES('a','b');\nINSERT INTO setting VALUES('a','c');", ", line 2: UNIQUE constraint failed: setting.name"},
        {"INSERT INTO device_class(type_id,domain) VALUES(1,'x');", ", line 1: cannot store TEXT value"},
        // Bytes.
        {"INSERT INTO setting\nVALUES('a','\0b');"s, ", line 2: a NUL byte"},
        {"\n\nINSERT INTO setting VALUES('a','\xE9');", ", line 3: not UTF-8"},
        {"INSERT INTO setting VALUES('a',char(0));", ": table setting, column value, row 1: holds a NUL byte"},
        // Ranges.
        {"INSERT INTO device_type(position,name,version,type_id) VALUES(1,'a','b',4294967296);", ": table device_type, column type_id, row 1: holds 4294967296, allowed is 0 to 4294967295"},
        {"INSERT INTO device_type(position,name,version,config_file_type) VALUES(1,'a','b',2147483648);", ": table device_type, column config_file_type, row 1: holds 2147483648"},
        {"INSERT INTO device_class(type_id,domain) VALUES(1,6);", ": table device_class, column domain"},
        {"INSERT INTO device_class(type_id,domain,is_snmp) VALUES(1,1,2);", ": table device_class, column is_snmp"},
        {"INSERT INTO device_class(type_id,domain,compatible_type_id) VALUES(1,1,65536);", ": table device_class, column compatible_type_id, row 1: holds 65536, allowed is 0 to 65535"},
        // What would reach outside the inventory.
        {"ATTACH 'x.db' AS x;", ", line 1: not allowed in an inventory: ATTACH 'x.db' AS x;"},
        {"PRAGMA writable_schema=1;", ", line 1: not allowed"},
        {"SELECT load_extension('x.so');", ", line 1: not authorized to use function: load_extension"},
        {"CREATE TRIGGER x AFTER INSERT ON setting BEGIN DELETE FROM device; END;", ", line 1: not allowed"},
        {"SELECT sql FROM sqlite_master;", ", line 1: not allowed"},
        // Too much for a fixed limit.
        {"INSERT INTO setting VALUES('a','" + std::string(20000, 'x') + "');", ", line 1: string or blob too big"},
        {"SELECT " + std::string(300, '~') + "1;", ", line 1: "},
    };
    // clang-format on
    for (const auto& [strSql, strProblem] : CASES)
    {
        SCOPED_TRACE(strSql.substr(0, 100));
        const std::string strExpected = strProblem.empty() ? "" : "/server.sql" + strProblem;
        EXPECT_EQ(strExpected,
                  problemOf(strSql).substr(0, strExpected.empty() ? std::string::npos : strExpected.size()));
    }
}

// Which limit a bomb meets first depends on the machine; all say "too".
TEST(ScriptFile, BombsAreRefusedBeforeTheyGrow)
{
    std::string strDoubled = "WITH t0 AS (SELECT 1)"; // grows while it is compiled
    for (int nTable = 1; nTable < 30; ++nTable)
        strDoubled += fmt::format(", t{} AS (SELECT 1 FROM t{}, t{})", nTable, nTable - 1, nTable - 1);
    EXPECT_THAT(problemOf(strDoubled + "SELECT 1 FROM t29;"), StartsWith("/server.sql, line 1: takes too much memory"));
    for (const char* pszSql :
         {"SELECT count(*) FROM n;", "INSERT INTO setting SELECT i, i FROM n;",
          "SELECT printf('%.*c', 10000, 'x') FROM n ORDER BY 1;",
          "INSERT INTO setting SELECT i, '' FROM n LIMIT 200000;",
          "SELECT replace(printf('%.*c', 9900, 'a'), printf('%.*c', 5000, 'a') || 'b', i) FROM n;"})
    {
        SCOPED_TRACE(pszSql);
        EXPECT_THAT(problemOf(COUNT_UP + pszSql), testing::AllOf(StartsWith("/server.sql"), HasSubstr(" too ")));
    }
}

TEST(ScriptFile, LimitsOfTheProcessAreAsBefore)
{
    sqlite3_hard_heap_limit64(1 << 30);
    sqlite3_soft_heap_limit64(1 << 20);
    EXPECT_EQ("", problemOf(""));
    EXPECT_NE("", problemOf("x"));
    EXPECT_EQ(1 << 20, sqlite3_soft_heap_limit64(0));
    EXPECT_EQ(1 << 30, sqlite3_hard_heap_limit64(0));
}
} // namespace

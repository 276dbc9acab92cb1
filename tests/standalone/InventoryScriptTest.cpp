// A server.sql that is wrong or hostile is refused with one message; nothing it
// says reaches outside the inventory.
#include "InventoryFixture.h"

#include "platform/Settings.h"

using namespace std::string_literals;
using testing::StartsWith;

namespace
{
struct StScriptCase
{
    const char* pszName;
    std::string strSql;
    std::string strProblem; // how the message goes on; "" when the script is fine
};

std::string repeated(const std::string& strText, int nTimes, const std::string& strBetween)
{
    std::string strOut = strText;
    while (--nTimes > 0)
        strOut.append(strBetween).append(strText);
    return strOut;
}

const std::string COUNT_UP = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n) ";

// Which limit a bomb meets first depends on the machine; all say "too".
class BombTest : public testing::TestWithParam<StScriptCase>
{
};

TEST_P(BombTest, IsRefusedBeforeItGrows)
{
    CTempServerRoot oRoot;
    oRoot.write("server.sql", GetParam().strSql);
    EXPECT_THAT(openProblem(oRoot),
                testing::AllOf(StartsWith("/server.sql"), testing::HasSubstr(GetParam().strProblem)));
}

class ScriptTest : public testing::TestWithParam<StScriptCase>
{
};

TEST_P(ScriptTest, OpensOrSaysWhatIsWrong)
{
    CTempServerRoot oRoot;
    oRoot.write("server.sql", GetParam().strSql);
    const std::string strProblem = openProblem(oRoot);
    if (GetParam().strProblem.empty())
        EXPECT_EQ("", strProblem);
    else
        EXPECT_THAT(strProblem, StartsWith("/server.sql" + GetParam().strProblem));
}

INSTANTIATE_TEST_SUITE_P(
    Fine, ScriptTest,
    testing::ValuesIn(std::vector<StScriptCase>{
        {"Empty", "", ""},
        {"CommentsOnly", "-- a\n/* b; */ ;;", ""},
        {"ByteOrderMark", "\xEF\xBB\xBFINSERT INTO setting VALUES('a','b');", ""},
        {"Transaction", "BEGIN; INSERT INTO setting VALUES('a','b'); COMMIT", ""},
        {"FromOtherRows", "INSERT INTO config_file SELECT DISTINCT name, 'c/' || name || '.xml' FROM device_type;", ""},
        {"GeneratedRows",
         "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n LIMIT 5000) "
         "INSERT INTO device_type(position, name, version) SELECT i, 'T' || i, 'V1' FROM n;",
         ""},
        {"OneLongStatement",
         "INSERT INTO setting VALUES" +
             []
             {
                 std::string strRows = "('k0','v')";
                 for (int nRow = 1; nRow < 5000; ++nRow)
                     strRows += ",('k" + std::to_string(nRow) + "','v')";
                 return strRows;
             }(),
         ""},
    }),
    rowName<StScriptCase>);

INSTANTIATE_TEST_SUITE_P(Statement, ScriptTest,
                         testing::ValuesIn(std::vector<StScriptCase>{
                             {"UnknownTable", "-- types\n\nINSERT INTO\n  device_typ VALUES(1,\t'x');",
                              ", line 3: no such table: device_typ: INSERT INTO device_typ VALUES(1, 'x');"},
                             {"SemicolonsInTexts", "INSERT INTO setting VALUES('a;''b', ';'); /* ; */\n-- ; \n[x;y]",
                              ", line 3: near \"[x;y]\": syntax error: [x;y]"},
                             {"Abbreviated", "INSERT INTO nobody VALUES('" + std::string(500, 'x') + "');",
                              ", line 1: no such table: nobody: INSERT INTO nobody VALUES('" + std::string(53, 'x') +
                                  "..."},
                             {"OpenQuote", "INSERT INTO setting VALUES('a','b", ", line 1: unrecognized token"},
                             {"CutShort", "INSERT INTO setting VALUES('a',", ", line 1: incomplete input"},
                             {"Twice", "INSERT INTO setting VALUES('a','b');\nINSERT INTO setting VALUES('a','c');",
                              ", line 2: UNIQUE constraint failed: setting.name"},
                             {"TextForNumber", "INSERT INTO device_class(type_id,domain) VALUES(1,'x');",
                              ", line 1: cannot store TEXT value"},
                         }),
                         rowName<StScriptCase>);

INSTANTIATE_TEST_SUITE_P(Bytes, ScriptTest,
                         testing::ValuesIn(std::vector<StScriptCase>{
                             {"Nul", "INSERT INTO setting\nVALUES('a','\0b');"s, ", line 2: a NUL byte"},
                             {"Latin1", "\n\nINSERT INTO setting VALUES('a','\xE9');", ", line 3: not UTF-8"},
                             {"NulMade", "INSERT INTO setting VALUES('a',char(0));",
                              ": table setting, column value, row 1: holds a NUL byte"},
                         }),
                         rowName<StScriptCase>);

INSTANTIATE_TEST_SUITE_P(
    Range, ScriptTest,
    testing::ValuesIn(std::vector<StScriptCase>{
        {"BigId", "INSERT INTO device_type(position,name,version,type_id) VALUES(1,'a','b',4294967296);",
         ": table device_type, column type_id, row 1: holds 4294967296, allowed is 0 to 4294967295"},
        {"BigSigned", "INSERT INTO device_type(position,name,version,config_file_type) VALUES(1,'a','b',2147483648);",
         ": table device_type, column config_file_type, row 1: holds 2147483648"},
        {"Domain", "INSERT INTO device_class(type_id,domain) VALUES(1,6);", ": table device_class, column domain"},
        {"Flag", "INSERT INTO device_class(type_id,domain,is_snmp) VALUES(1,1,2);",
         ": table device_class, column is_snmp, row 1: holds 2, allowed is 0 to 1"},
        {"Compatible", "INSERT INTO device_class(type_id,domain,compatible_type_id) VALUES(1,1,65536);",
         ": table device_class, column compatible_type_id, row 1: holds 65536, allowed is 0 to 65535"},
        {"ReportType", "INSERT INTO check_file VALUES('A','a.xml',3);", ": table check_file, column report_type"},
    }),
    rowName<StScriptCase>);

INSTANTIATE_TEST_SUITE_P(
    Outside, ScriptTest,
    testing::ValuesIn(std::vector<StScriptCase>{
        {"Attach", "ATTACH 'x.db' AS x;", ", line 1: not allowed in an inventory: ATTACH 'x.db' AS x;"},
        {"Detach", "DETACH main;", ", line 1: not allowed"},
        {"Pragma", "PRAGMA writable_schema=1;", ", line 1: not allowed"},
        {"VacuumInto", "VACUUM INTO 'x.db';", ", line 1: not allowed"},
        {"LoadExtension", "SELECT load_extension('x.so');", ", line 1: not authorized to use function: load_extension"},
        {"WriteFile", "SELECT writefile('x','y');", ", line 1: no such function: writefile"},
        {"CreateTable", "CREATE TABLE x(y);", ", line 1: not allowed"},
        {"CreateTemp", "CREATE TEMP TABLE x(y);", ", line 1: not allowed"},
        {"CreateVirtual", "CREATE VIRTUAL TABLE x USING fts5(y);", ", line 1: not allowed"},
        {"CreateTrigger", "CREATE TRIGGER x AFTER INSERT ON setting BEGIN DELETE FROM device; END;",
         ", line 1: not allowed"},
        {"DropTable", "DROP TABLE device;", ", line 1: not allowed"},
        {"Schema", "SELECT sql FROM sqlite_master;", ", line 1: not allowed"},
    }),
    rowName<StScriptCase>);

INSTANTIATE_TEST_SUITE_P(
    Script, BombTest,
    testing::ValuesIn(std::vector<StScriptCase>{
        {"EndlessRows", COUNT_UP + "SELECT count(*) FROM n;", " too "},
        {"EndlessInsert", COUNT_UP + "INSERT INTO setting SELECT i, i FROM n;", " too "},
        {"EndlessSort", COUNT_UP + "SELECT printf('%.*c', 10000, 'x') FROM n ORDER BY 1;", " too "},
        {"SlowSteps",
         COUNT_UP + "SELECT replace(printf('%.*c', 9900, 'a'), printf('%.*c', 5000, 'a') || 'b', i) "
                    "FROM n;",
         " too "},
        {"NestedWith", "WITH a AS (SELECT 1), b AS (SELECT 1 FROM a, a), c AS (SELECT 1 FROM b, b) SELECT 1 FROM c, c;",
         ", line 1: selects too much in one statement"},
        {"HiddenByMark", "SELECT (\xEF\xBB\xBFSELECT (SELECT(\xEF\xBB\xBFselect 1)));",
         ", line 1: selects too much in one statement"},
        {"WideSelect", "SELECT " + repeated("*", 1000, ",") + " FROM setting;", ", line 1: selects too much"},
        {"LongText", "INSERT INTO setting VALUES('a','" + std::string(20000, 'x') + "');",
         ", line 1: string or blob too big"},
        {"DeepExpression", "SELECT " + std::string(300, '~') + "1;", ", line 1: "},
        {"MultipliedRows",
         "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n LIMIT 200000) "
         "INSERT INTO setting SELECT i, '' FROM n;",
         " too "},
    }),
    rowName<StScriptCase>);

TEST(ScriptFile, PipeAndFolderAreRefusedWithoutWaiting)
{
    CTempServerRoot   oRoot;
    const std::string strPath = oRoot.path() + "/server.sql";
    ASSERT_EQ(0, ::mkfifo(strPath.c_str(), 0600));
    EXPECT_EQ("/server.sql: not a file", openProblem(oRoot));
    std::filesystem::remove(strPath);
    std::filesystem::create_directory(strPath);
    EXPECT_EQ("/server.sql: not a file", openProblem(oRoot));
}
} // namespace

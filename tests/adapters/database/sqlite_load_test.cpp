/// Lists that take what a file of SQLite holds.
#include "database_fixture.h"
#include "sqlite_file.h"

namespace lumtex::testing {
namespace {

const std::string memory = ":memory:";

class SqliteLoad : public DatabaseFixture {};

TEST_F(SqliteLoad, TakesColumnsAndRecordsOfAFile) {
    SqliteFile file;
    file.run("create table places (city text, people integer, area real, note);"
             "insert into places values ('Oslo', 709037, 454.12, null), ('Zürich', 421878, 87.9, x'0aff'),"
             "('a,b', 1, 2, 'lost'), ('\"quoted\"', -1, 0.1, 'Ω')");
    EXPECT_EQ(load(file.path, "select * from places"),
              "city|people|area|note\n"
              "Oslo|709037|454.12|\n"
              "Zürich|421878|87.9|\\x0aff\n"
              "a|b|1|2\n"
              "\"quoted\"|-1|0.1|Ω");
    EXPECT_EQ(reports(), "");
}

TEST_F(SqliteLoad, WithoutRecordsLeavesTheListAlone) {
    load(memory, "select 1 as a");
    list.setRecordset(database::openRecordset(memory, "select 2 as b where 0"));
    EXPECT_EQ(content(), "a\n1");
    EXPECT_EQ(reports(), "");
}

TEST_F(SqliteLoad, Takes300Fields) {
    std::string sql = "select 0 as f0";
    std::string header = "f0";
    std::string row = "0";
    for (int i = 1; i < 300; ++i) {
        sql += ", " + std::to_string(i) + " as f" + std::to_string(i);
        header += "|f" + std::to_string(i);
        row += "|" + std::to_string(i);
    }
    EXPECT_EQ(load(memory, sql), header + "\n" + row);
}

TEST_F(SqliteLoad, ThatFailsInTheMiddleKeepsTheRowsSoFar) {
    const std::string halting =
        "case when x = 4 then abs(-9223372036854775807 - 1) else x end as n, 'row' as t";
    EXPECT_EQ(load(memory, numbersTo(9, halting)), "n|t\n1|row\n2|row\n3|row");
    ASSERT_EQ(reportCount(), 2U) << "one for each way through the records";
    EXPECT_NE(reports().find("integer overflow"), std::string::npos);
    EXPECT_EQ(lastReport(), "-2147467259 Recordset");
    list.RowsAdd(Long{-1}, u",", u"still,usable");
    EXPECT_EQ(list.ItemText(4, 2), u"usable");
}

TEST_F(SqliteLoad, LetsOthersWriteWhileTheListKeepsTheObject) {
    SqliteFile file;
    file.run("create table t (a); insert into t values (1)");
    list.setRecordset(database::openRecordset(file.path, "select a from t"));
    EXPECT_NO_THROW(file.run("drop table t"));
    EXPECT_EQ(content(), "a\n1");
}

TEST_F(SqliteLoad, TakesAMillionRecords) {
    constexpr Long many = 1'000'000;
    const ObjectRef recordset = database::openRecordset(memory, numbersTo(many, "x, 'name ' || x as name"));
    list.setRecordset(recordset);
    ASSERT_EQ(list.RowsCount(), many);
    EXPECT_EQ(recordset->get(u"RecordCount").toLong(), many);
    for (const Long row : {1, 2, 499'999, many}) {
        EXPECT_EQ(list.ItemText(row, 1), Variant(row).toText());
        EXPECT_EQ(list.ItemText(row, 2), u"name " + Variant(row).toText());
    }
    EXPECT_EQ(list.NewIndex(), many - 1);
    EXPECT_EQ(reports(), "");
}

} // namespace
} // namespace lumtex::testing

/// The members of a recordset over a database, on SQLite.
#include "database_fixture.h"
#include "sqlite_file.h"
#include "variant_printing.h"

namespace lumtex::testing {
namespace {

const std::string memory = ":memory:";

class DatabaseRecordset : public ::testing::Test {
  protected:
    static ObjectRef open(const std::string& sql) { return database::openRecordset(memory, sql); }
};

TEST_F(DatabaseRecordset, BeginsAtItsFirstRecordAndEndsBehindItsLast) {
    const ObjectRef recordset = open("select 1 as a, 'x' as b union all select 2, 'y'");
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{2}));
    EXPECT_EQ(recordset->get(u"fields").toObject()->get(u"Count"), Variant(Long{2}));
    EXPECT_EQ(fieldOf(recordset, 0, u"Name"), Variant(u"a"));
    EXPECT_EQ(fieldOf(recordset, 1, u"Name"), Variant(u"b"));
    EXPECT_EQ(fieldOf(recordset, 0), Variant(Long{1}));
    EXPECT_EQ(recordset->get(u"EOF"), Variant(false));
    recordset->call(u"MoveNext");
    EXPECT_EQ(fieldOf(recordset, 1, u"Value"), Variant(u"y"));
    recordset->call(u"MoveNext");
    EXPECT_EQ(recordset->get(u"EOF"), Variant(true));
    recordset->call(u"MoveFirst");
    EXPECT_EQ(recordset->get(u"EOF"), Variant(false));
    EXPECT_EQ(fieldOf(recordset, 1), Variant(u"x"));
}

TEST_F(DatabaseRecordset, WithoutRecordsIsAtItsEnd) {
    const ObjectRef recordset = open("select 1 as a where 0");
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{0}));
    EXPECT_EQ(recordset->get(u"EOF"), Variant(true));
    EXPECT_EQ(failureOf([&] { fieldOf(recordset, 0); }), "3021: There is no current record");
}

TEST_F(DatabaseRecordset, RefusesToGoPastItsEnd) {
    const ObjectRef recordset = open("select 1");
    recordset->call(u"MoveNext");
    EXPECT_EQ(failureOf([&] { recordset->call(u"MoveNext"); }), "3021: There is no current record");
    EXPECT_EQ(failureOf([&] { fieldOf(recordset, 0); }), "3021: There is no current record");
    EXPECT_EQ(recordset->get(u"EOF"), Variant(true));
}

TEST_F(DatabaseRecordset, KnowsItsMembersInAnyCaseAndNoOthers) {
    const ObjectRef recordset = open("select 1");
    EXPECT_EQ(recordset->get(u"recordcount"), Variant(Long{1}));
    EXPECT_EQ(recordset->get(u"eof"), Variant(false));
    recordset->call(u"MOVEFIRST");
    const ObjectRef fields = recordset->get(u"Fields").toObject();
    Variant one = Long{0};
    const ObjectRef field = fields->get({}, {&one, 1}).toObject();
    const auto unknown = std::to_string(numberOf(ErrorNumber::objectDoesNotSupportMember));
    for (const ObjectRef& object : {recordset, fields, field}) {
        EXPECT_EQ(failureOf([&] { object->get(u"MovePrevious"); }).substr(0, 3), unknown);
        EXPECT_EQ(failureOf([&] { object->call(u"MovePrevious"); }).substr(0, 3), unknown);
        EXPECT_EQ(failureOf([&] { object->put(u"EOF", true); }).substr(0, 3), unknown);
    }
    const auto tooMany = std::to_string(numberOf(ErrorNumber::wrongNumberOfArguments));
    EXPECT_EQ(failureOf([&] { recordset->get(u"EOF", {&one, 1}); }).substr(0, 3), tooMany);
    EXPECT_EQ(failureOf([&] { recordset->call(u"MoveNext", {&one, 1}); }).substr(0, 3), tooMany);
    EXPECT_EQ(failureOf([&] { fields->get(u""); }).substr(0, 3), tooMany);
}

TEST_F(DatabaseRecordset, HasNoFieldsOutsideItsColumns) {
    const ObjectRef recordset = open("select 1, 2");
    for (const Long index : {-1, 2, 99})
        EXPECT_EQ(failureOf([&] { fieldOf(recordset, index); }), "3265: There is no field of this number");
    String text = u"kept";
    auto& records = dynamic_cast<RecordSource&>(*recordset);
    EXPECT_EQ(failureOf([&] { records.appendField(2, text); }), "3265: There is no field of this number");
    EXPECT_EQ(text, u"kept");
}

TEST_F(DatabaseRecordset, OutlivesItsCallersReference) {
    ObjectRef recordset = open("select 7 as a");
    Variant one = Long{0};
    const ObjectRef field = recordset->get(u"fields").toObject()->get({}, {&one, 1}).toObject();
    recordset.reset();
    EXPECT_EQ(field->get(u""), Variant(Long{7}));
}

struct ValueCase {
    std::string expression;
    Variant value;
    std::string text;
};

TEST_F(DatabaseRecordset, GivesEachStorageClassItsKindOfValue) {
    const std::vector<ValueCase> cases = {
        {"null", Null{}, ""},
        {"7", Long{7}, "7"},
        {"-2147483648", Long{-2147483647 - 1}, "-2147483648"},
        {"2147483648", u"2147483648", "2147483648"},
        {"9007199254740993", u"9007199254740993", "9007199254740993"},
        {"0.1 + 0.2", 0.1 + 0.2, "0.3"},
        {"2.0", 2.0, "2"},
        {"1e300", 1e300, "1E+300"},
        {"9e999", u"Inf", "Inf"},
        {"'text'", u"text", "text"},
        {"''", u"", ""},
        {"'it''s, \"x\"'", u"it's, \"x\"", "it's, \"x\""},
        {"'Ωß\U0001F600'", u"Ωß\U0001F600", "Ωß\U0001F600"},
        {"'a' || char(0) || 'b'", String(u"a\0b", 3), std::string("a\0b", 3)},
        {"cast(x'61ff62' as text)", u"a\uFFFDb", "a\uFFFDb"},
        {"x'00ff10'", u"\\x00ff10", "\\x00ff10"},
        {"x''", u"\\x", "\\x"},
        {"date('2026-11-21')", u"2026-11-21", "2026-11-21"},
    };
    for (const ValueCase& each : cases) {
        const ObjectRef recordset = open("select " + each.expression);
        EXPECT_EQ(fieldOf(recordset, 0), each.value) << each.expression;
        String text = u"|";
        dynamic_cast<RecordSource&>(*recordset).appendField(0, text);
        EXPECT_EQ(toUtf8(text), "|" + each.text) << each.expression;
    }
}

TEST_F(DatabaseRecordset, LooksAtEachValueWhateverItsColumnIsDeclaredAs) {
    SqliteFile file;
    file.run("create table t (n integer); insert into t values (1), ('text'), (2.5), (null)");
    const ObjectRef recordset = database::openRecordset(file.path, "select n from t order by rowid");
    const std::vector<Variant> expected = {Long{1}, u"text", 2.5, Null{}};
    for (const Variant& value : expected) {
        EXPECT_EQ(fieldOf(recordset, 0), value);
        recordset->call(u"MoveNext");
    }
}

TEST_F(DatabaseRecordset, CountsWhateverYieldsRecords) {
    const std::vector<std::pair<std::string, Long>> cases = {
        {"select 1 union all select 2", 2},
        {"select 1;", 1},
        {" select 1 ; ; -- done", 1},
        {"select 1 -- a comment", 1},
        {"select 1 /* one that does not end", 1},
        {"values (1), (2), (3)", 3},
        {"select 1 as a, 2 as a", 1},
        {"pragma table_info(sqlite_schema)", 5},
        {numbersTo(1000, "x"), 1000},
        {"select 1 limit 0", 0},
    };
    for (const auto& [sql, count] : cases) {
        const ObjectRef recordset = open(sql);
        EXPECT_EQ(recordset->get(u"RecordCount"), Variant(count)) << sql;
        Long walked = 0;
        for (; !recordset->get(u"EOF").toBoolean(); ++walked)
            recordset->call(u"MoveNext");
        EXPECT_EQ(walked, count) << sql;
        EXPECT_EQ(recordset->get(u"RecordCount"), Variant(count)) << sql;
    }
}

TEST_F(DatabaseRecordset, CountsBetweenTwoRecordsToo) {
    const ObjectRef recordset = open(numbersTo(5, "x"));
    recordset->call(u"MoveFirst");
    recordset->call(u"MoveNext");
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{5}));
    EXPECT_EQ(fieldOf(recordset, 0), Variant(Long{2}));
}

TEST_F(DatabaseRecordset, IsRefusedWithTheDatabasesOwnWords) {
    const ScratchFolder folder;
    folder.write("plain.txt", "This is no database, however long the text of it may be made to look. ......");
    const std::string plain = (folder.path / "plain.txt").string();
    const auto refusal = [](const std::string& database, const std::string& sql) {
        return failureOf([&] { database::openRecordset(database, sql); });
    };
    EXPECT_EQ(refusal((folder.path / "none").string(), "select 1"),
              databaseSays + "unable to open database file");
    EXPECT_FALSE(std::filesystem::exists(folder.path / "none")) << "reading makes no file";
    EXPECT_EQ(refusal(folder.path.string(), "select * from t").find(databaseSays), 0U) << "a folder";
    EXPECT_EQ(refusal(plain, "select * from t"), databaseSays + "file is not a database");
    EXPECT_EQ(refusal(memory, "selec 1"), databaseSays + "near \"selec\": syntax error");
    EXPECT_EQ(refusal(memory, "select * from t"), databaseSays + "no such table: t");
    EXPECT_EQ(refusal(memory, ""), databaseSays + "There is no statement");
    EXPECT_EQ(refusal(memory, " -- nothing\n"), databaseSays + "There is no statement");
    EXPECT_EQ(refusal(memory, "select 1; select 2"), databaseSays + "There is more than one statement");
    EXPECT_EQ(refusal(memory, "begin"), databaseSays + "The statement yields no records");
}

TEST_F(DatabaseRecordset, NeverWrites) {
    SqliteFile file;
    file.run("create table t (a); insert into t values (1)");
    const ObjectRef recordset = database::openRecordset(file.path, "insert into t values (2) returning a");
    EXPECT_EQ(failureOf([&] { recordset->call(u"MoveFirst"); }),
              databaseSays + "attempt to write a readonly database");
    EXPECT_EQ(recordset->get(u"EOF"), Variant(true));
    EXPECT_EQ(database::openRecordset(file.path, "select * from t")->get(u"RecordCount"), Variant(Long{1}));
}

TEST_F(DatabaseRecordset, CountsAndReadsTheSameDataWhateverOthersWrite) {
    SqliteFile file;
    file.run("pragma journal_mode = wal; create table t (a); insert into t values (1), (2)");
    const ObjectRef recordset = database::openRecordset(file.path, "select a from t");
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{2}));
    file.run("insert into t values (3)");
    Long walked = 0;
    for (recordset->call(u"MoveFirst"); !recordset->get(u"EOF").toBoolean(); ++walked)
        recordset->call(u"MoveNext");
    EXPECT_EQ(walked, 2);
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{2})) << "as counted";
    recordset->call(u"MoveFirst");
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{3}));
}

TEST_F(DatabaseRecordset, LetsOthersWriteOnceItWasRead) {
    SqliteFile file;
    file.run("create table t (a); insert into t values (1)");
    const ObjectRef recordset = database::openRecordset(file.path, "select a from t");
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{1}));
    EXPECT_ANY_THROW(file.run("insert into t values (2)")) << "a snapshot keeps writers out here";
    recordset->call(u"MoveNext");
    EXPECT_TRUE(recordset->get(u"EOF").toBoolean());
    EXPECT_NO_THROW(file.run("insert into t values (2)"));
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{1}));
    EXPECT_NO_THROW(file.run("insert into t values (3)"));
}

TEST_F(DatabaseRecordset, IsAtItsEndOnceAMoveHasFailed) {
    const std::string halting = "case when x = 3 then abs(-9223372036854775807 - 1) else x end";
    const ObjectRef recordset = open(numbersTo(5, halting));
    recordset->call(u"MoveNext");
    EXPECT_EQ(fieldOf(recordset, 0), Variant(Long{2}));
    EXPECT_EQ(failureOf([&] { recordset->call(u"MoveNext"); }), databaseSays + "integer overflow");
    EXPECT_EQ(recordset->get(u"EOF"), Variant(true));
    EXPECT_EQ(failureOf([&] { fieldOf(recordset, 0); }), "3021: There is no current record");
    recordset->call(u"MoveFirst");
    EXPECT_EQ(fieldOf(recordset, 0), Variant(Long{1}));
}

} // namespace
} // namespace lumtex::testing

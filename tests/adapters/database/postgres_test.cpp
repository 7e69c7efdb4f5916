/// Recordsets over PostgreSQL, and lists that take what a server holds.
#include "database_fixture.h"
#include "postgres_server.h"
#include "variant_printing.h"

#include <functional>

namespace lumtex::testing {
namespace {

class Postgres : public DatabaseFixture {
  protected:
    /// One server for all; each test makes tables of its own names.
    static void SetUpTestSuite() { server = std::make_unique<PostgresServer>(); }
    static void TearDownTestSuite() { server.reset(); }

    static ObjectRef open(const std::string& sql) { return database::openRecordset(server->address(), sql); }

    static std::unique_ptr<PostgresServer> server;
};

std::unique_ptr<PostgresServer> Postgres::server;

/// Runs a test's own code at one of the moves.
class Interrupted final : public Object {
  public:
    Interrupted(ObjectRef recordset, Long move, std::function<void()> action)
        : recordset_(std::move(recordset)), move_(move), action_(std::move(action)) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        return recordset_->get(name, arguments);
    }
    void put(StringView name, const Variant& value) override { recordset_->put(name, value); }
    Variant call(StringView name, std::span<Variant> arguments) override {
        if (name == u"MoveNext" && --move_ == 0)
            action_();
        return recordset_->call(name, arguments);
    }

  private:
    ObjectRef recordset_;
    Long move_;
    std::function<void()> action_;
};

/// More than any buffer between server and program holds.
const std::string manyWideRecords =
    "select x, repeat('wide ', 200) as w from generate_series(1, 200000) as x";

struct ValueCase {
    std::string expression;
    Variant value;
    std::string text;
};

TEST_F(Postgres, GivesEachTypeItsKindOfValue) {
    const std::vector<ValueCase> cases = {
        {"null::int4", Null{}, ""},
        {"7::int2", Long{7}, "7"},
        {"(-2147483648)::int4", Long{-2147483647 - 1}, "-2147483648"},
        {"7::int8", Long{7}, "7"},
        {"9007199254740993::int8", u"9007199254740993", "9007199254740993"},
        {"true", true, "True"},
        {"false", false, "False"},
        {"0.1::float8 + 0.2::float8", 0.1 + 0.2, "0.3"},
        {"0.1::float4", 0.1, "0.1"},
        {"'NaN'::float8", u"NaN", "NaN"},
        {"'-Infinity'::float8", u"-Infinity", "-Infinity"},
        {"123456789012345678901234.50::numeric",
         u"123456789012345678901234.50",
         "123456789012345678901234.50"},
        {"'text'::text", u"text", "text"},
        {"''::varchar", u"", ""},
        {"'it''s, \"x\"'::text", u"it's, \"x\"", "it's, \"x\""},
        {"'Ωß\U0001F600'::text", u"Ωß\U0001F600", "Ωß\U0001F600"},
        {"'\\x00ff10'::bytea", u"\\x00ff10", "\\x00ff10"},
        {"date '2026-11-21'", u"2026-11-21", "2026-11-21"},
        {"timestamp '2026-11-21 13:00:00.5'", u"2026-11-21 13:00:00.5", "2026-11-21 13:00:00.5"},
        {"date 'infinity'", u"infinity", "infinity"},
        {"array[1, 2]", u"{1,2}", "{1,2}"},
    };
    for (const ValueCase& each : cases) {
        const ObjectRef recordset = open("select " + each.expression);
        EXPECT_EQ(fieldOf(recordset, 0), each.value) << each.expression;
        String text = u"|";
        dynamic_cast<RecordSource&>(*recordset).appendField(0, text);
        EXPECT_EQ(toUtf8(text), "|" + each.text) << each.expression;
    }
}

TEST_F(Postgres, FillsTheList) {
    server->run("create table places (city text, people int, area numeric(8, 2), big bool, note bytea);"
                "insert into places values ('Oslo', 709037, 454.10, true, null),"
                "('Zürich', 421878, 87.9, false, '\\x0aff'), ('a,b', 1, 2, null, null)");
    EXPECT_EQ(load(server->address(), "select * from places order by people desc"),
              "city|people|area|big|note\n"
              "Oslo|709037|454.10|True|\n"
              "Zürich|421878|87.90|False|\\x0aff\n"
              "a|b|1|2.00|");
    EXPECT_EQ(reports(), "");
}

TEST_F(Postgres, CountsWhateverYieldsRecords) {
    const std::vector<std::pair<std::string, Long>> cases = {
        {"select 1 union all select 2", 2},
        {" select 1 ; -- done", 1},
        {"values (1), (2), (3)", 3},
        {"select 1 as a, 2 as a", 1},
        {"show server_version", 1},
        {"explain select 1", 1},
        {"select 1 where false", 0},
        {"select generate_series(1, 1000)", 1000},
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

TEST_F(Postgres, CannotCountBetweenTwoRecords) {
    const ObjectRef recordset = open("select generate_series(1, 5)");
    recordset->call(u"MoveNext");
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{-1}));
    EXPECT_EQ(fieldOf(recordset, 0), Variant(Long{2}));
    while (!recordset->get(u"EOF").toBoolean())
        recordset->call(u"MoveNext");
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{5}));
}

TEST_F(Postgres, CountsAndReadsTheSameDataWhateverOthersWrite) {
    server->run("create table growing (a int); insert into growing values (1), (2)");
    const ObjectRef recordset = open("select a from growing");
    EXPECT_EQ(recordset->get(u"RecordCount"), Variant(Long{2}));
    server->run("insert into growing values (3)");
    Long walked = 0;
    for (recordset->call(u"MoveFirst"); !recordset->get(u"EOF").toBoolean(); ++walked)
        recordset->call(u"MoveNext");
    EXPECT_EQ(walked, 2);
    EXPECT_NO_THROW(server->run("drop table growing")) << "a recordset that was read holds nothing";
}

TEST_F(Postgres, BeginsAnewInTheMiddleOfManyRecords) {
    const ObjectRef recordset = open(manyWideRecords);
    for (int run = 0; run < 3; ++run) {
        recordset->call(u"MoveFirst");
        recordset->call(u"MoveNext");
        EXPECT_EQ(fieldOf(recordset, 0), Variant(Long{2}));
    }
}

TEST_F(Postgres, IsRefusedWithTheServersOwnWords) {
    const auto refusal = [](const std::string& address, const std::string& sql) {
        return failureOf([&] { database::openRecordset(address, sql); });
    };
    const std::string address = server->address();
    EXPECT_EQ(refusal(address, "selec 1"), databaseSays + "syntax error at or near \"selec\"");
    EXPECT_EQ(refusal(address, "select * from nowhere"),
              databaseSays + "relation \"nowhere\" does not exist");
    EXPECT_EQ(refusal(address, ""), databaseSays + "There is no statement");
    EXPECT_EQ(refusal(address, "begin"), databaseSays + "The statement yields no records");
    EXPECT_EQ(refusal(address, "select 1; select 2"),
              databaseSays + "cannot insert multiple commands into a prepared statement");
    const std::string noServer = refusal("postgresql:///x?host=/nowhere", "select 1");
    EXPECT_EQ(noServer.find(databaseSays), 0U);
    EXPECT_NE(noServer.find("/nowhere"), std::string::npos);
    EXPECT_EQ(refusal("postgresql://[", "select 1").find(databaseSays), 0U);
}

TEST_F(Postgres, NeverWrites) {
    server->run("create table fixed (a int)");
    const ObjectRef recordset = open("insert into fixed values (2) returning a");
    EXPECT_EQ(failureOf([&] { recordset->call(u"MoveFirst"); }),
              databaseSays + "cannot execute INSERT in a read-only transaction");
    EXPECT_EQ(server->run("select count(*) from fixed"), "0");
}

TEST_F(Postgres, ThatFailsInTheMiddleKeepsTheRowsSoFar) {
    EXPECT_EQ(load(server->address(), "select 12 / (4 - x) as n, 'row' as t from generate_series(1, 9) as x"),
              "n|t\n4|row\n6|row\n12|row");
    ASSERT_EQ(reportCount(), 2U) << "one for each way through the records";
    EXPECT_NE(reports().find("division by zero"), std::string::npos);
    list.RowsAdd(Long{-1}, u",", u"still,usable");
    EXPECT_EQ(list.ItemText(4, 2), u"usable");
}

TEST_F(Postgres, ThatLosesItsConnectionKeepsTheRowsSoFar) {
    const ObjectRef recordset = open(manyWideRecords);
    list.setRecordset(std::make_shared<Interrupted>(recordset, 1000, [] {
        server->run("select pg_terminate_backend(pid) from pg_stat_activity "
                    "where application_name = 'lumtex'");
    }));
    ASSERT_GE(list.RowsCount(), 1000);
    ASSERT_LT(list.RowsCount(), 200'000);
    for (const Long row : {Long{1}, Long{1000}, list.RowsCount()}) {
        EXPECT_EQ(list.ItemText(row, 1), Variant(row).toText());
        EXPECT_EQ(list.ItemText(row, 2).size(), 1000U);
    }
    ASSERT_EQ(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "-2147467259 Recordset");
    // A server that is stuck in sending cannot say so any more.
    EXPECT_TRUE(reports().find("server closed the connection unexpectedly") != std::string::npos ||
                reports().find("terminating connection due to administrator command") != std::string::npos)
        << reports();
    EXPECT_TRUE(list.AutoRedraw());
    EXPECT_TRUE(list.AutoCheckScroll());

    EXPECT_EQ(failureOf([&] { recordset->call(u"MoveFirst"); }).find(databaseSays), 0U);
    EXPECT_EQ(recordset->get(u"EOF"), Variant(true));
    EXPECT_EQ(load(server->address(), "select 1 as a"), "a\n1") << "the list takes the next one";
}

TEST_F(Postgres, WhoseServerStopsKeepsTheRowsSoFar) {
    PostgresServer doomed;
    const ObjectRef recordset = database::openRecordset(doomed.address(), manyWideRecords);
    list.setRecordset(std::make_shared<Interrupted>(recordset, 500, [&] { doomed.stop(); }));
    ASSERT_GE(list.RowsCount(), 500);
    ASSERT_LT(list.RowsCount(), 200'000);
    EXPECT_EQ(list.ItemText(list.RowsCount(), 1), Variant(list.RowsCount()).toText());
    EXPECT_EQ(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "-2147467259 Recordset");
    EXPECT_TRUE(list.AutoRedraw());
}

} // namespace
} // namespace lumtex::testing

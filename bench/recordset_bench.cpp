/// Importing the records of a query, beside fetching the same records into plain vectors.
///
/// Both read the same table of the same file, made from one seed. Bytes of the file are in the system's cache
/// after the first turn.
#include "adapters/database/database_recordset.h"
#include "list_on_desktop.h"
#include "platform/record_source.h"
#include "record_file.h"
#include "values/runtime_error.h"

#include <stdexcept>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace {

using namespace lumtex;
using namespace lumtex::bench;

constexpr const char* query = "select * from records";

const RecordFile& fileOf(std::int64_t count) {
    static std::vector<std::pair<std::int64_t, std::unique_ptr<RecordFile>>> files;
    for (const auto& [size, file] : files) {
        if (size == count)
            return *file;
    }
    return *files.emplace_back(count, std::make_unique<RecordFile>(rowsOf(count))).second;
}

/// Hides that the records can be had without a call by name for each value.
class ByNameAlone final : public Object {
  public:
    explicit ByNameAlone(ObjectRef recordset) : recordset_(std::move(recordset)) {}

    Variant get(StringView name, std::span<Variant> arguments) override {
        return recordset_->get(name, arguments);
    }
    void put(StringView name, const Variant& value) override { recordset_->put(name, value); }
    Variant call(StringView name, std::span<Variant> arguments) override {
        return recordset_->call(name, arguments);
    }

  private:
    ObjectRef recordset_;
};

void importInto(benchmark::State& state, bool byName) {
    const std::string& path = fileOf(state.range(0)).path();
    for (auto _ : state) {
        state.PauseTiming();
        auto fixture = std::make_unique<ListOnDesktop>();
        state.ResumeTiming();
        ObjectRef recordset = database::openRecordset(path, query);
        if (byName)
            recordset = std::make_shared<ByNameAlone>(recordset);
        fixture->list.setRecordset(recordset);
        state.PauseTiming();
        if (fixture->list.RowsCount() != state.range(0) || !fixture->desktop.runtime().boxes.empty())
            throw std::runtime_error("the list does not hold what was loaded");
        fixture.reset();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void importRecordset(benchmark::State& state) {
    importInto(state, false);
}

void importRecordsetByName(benchmark::State& state) {
    importInto(state, true);
}

/// The peer: what a program without a list would write.
void fetchIntoVectors(benchmark::State& state) {
    const std::string& path = fileOf(state.range(0)).path();
    for (auto _ : state) {
        std::vector<std::vector<std::string>> table;
        sqlite3* database = nullptr;
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK ||
            sqlite3_prepare_v2(database, query, -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error("the file cannot be read");
        while (sqlite3_step(statement) == SQLITE_ROW) {
            std::vector<std::string>& record = table.emplace_back();
            record.reserve(columns);
            for (int i = 0; i < columns; ++i)
                record.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(statement, i)));
        }
        sqlite3_finalize(statement);
        sqlite3_close(database);
        state.PauseTiming();
        if (static_cast<std::int64_t>(table.size()) != state.range(0))
            throw std::runtime_error("records are missing");
        table = {};
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

/// What of both is the database's own: stepping through the records without a look at them.
void stepThrough(benchmark::State& state) {
    const ObjectRef recordset = database::openRecordset(fileOf(state.range(0)).path(), query);
    auto& records = dynamic_cast<RecordSource&>(*recordset);
    for (auto _ : state) {
        recordset->call(u"MoveFirst");
        while (!records.atEnd())
            records.moveNext();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(importRecordset)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(importRecordsetByName)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(fetchIntoVectors)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(stepThrough)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

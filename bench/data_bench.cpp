/// All operations over rows of other kinds: long texts, few values, sorted columns, ten columns. What takes
/// much longer a cell, or a byte, than the usual rows do shows here.
#include "list_on_desktop.h"
#include "values/text.h"

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>
#include <unistd.h>

namespace {

using namespace lumtex;
using namespace lumtex::bench;

constexpr Long columnOfName = 2;
constexpr Long columnOfAmount = 4;
constexpr Long columnOfDate = 5;

std::vector<String> textsOf(SampleData data, std::int64_t count) {
    std::vector<String> rows;
    for (const std::string& row : sampleRows(static_cast<int>(count), data))
        rows.push_back(fromUtf8(row));
    return rows;
}

/// The rows of a benchmark's arguments, and a list with them.
struct Fixture {
    explicit Fixture(const benchmark::State& state)
        : data(static_cast<SampleData>(state.range(0))), rows(textsOf(data, state.range(1))) {
        renew();
        list().fill(rows);
    }

    ListOnDesktop& list() { return *onDesktop; }
    lmListView& view() { return onDesktop->list; }
    void renew() { onDesktop = std::make_unique<ListOnDesktop>(columnsIn(data)); }
    void say(benchmark::State& state) const {
        std::int64_t units = 0;
        for (const String& row : rows)
            units += static_cast<std::int64_t>(row.size());
        state.SetLabel(nameOf(data));
        state.SetBytesProcessed(state.iterations() * units);
        state.SetItemsProcessed(state.iterations() * state.range(1) * columnsIn(data));
    }

    SampleData data;
    std::vector<String> rows;
    std::unique_ptr<ListOnDesktop> onDesktop;
};

void must(bool asExpected) {
    if (!asExpected)
        throw std::runtime_error("the list does not do what was asked");
}

void load(benchmark::State& state) {
    Fixture fixture(state);
    for (auto _ : state) {
        state.PauseTiming();
        fixture.renew();
        state.ResumeTiming();
        fixture.list().fill(fixture.rows);
    }
    must(fixture.view().RowsCount() == state.range(1));
    fixture.say(state);
}

void readAndWriteCells(benchmark::State& state) {
    Fixture fixture(state);
    for (auto _ : state) {
        for (Long row = 1; row <= state.range(1); ++row) {
            for (Long column = 1; column <= columnsIn(fixture.data); ++column)
                fixture.view().letItemText(row, column, fixture.view().ItemText(row, column));
        }
    }
    fixture.say(state);
}

/// Each turn begins with rows as they came.
void sort(benchmark::State& state, Long column, cSortType type) {
    Fixture fixture(state);
    for (auto _ : state) {
        state.PauseTiming();
        fixture.renew();
        fixture.list().fill(fixture.rows);
        state.ResumeTiming();
        fixture.view().Sort(column, cAscending, type);
    }
    must(fixture.view().RowsCount() == state.range(1));
    fixture.say(state);
}

void find(benchmark::State& state, cFindCompare compare) {
    Fixture fixture(state);
    for (auto _ : state)
        must(!fixture.view().FindItem(u"*Q7*", cFindStart, compare).FindSuccessful);
    fixture.say(state);
}

void insertAndRemoveAtFront(benchmark::State& state) {
    Fixture fixture(state);
    for (auto _ : state) {
        for (int i = 0; i < 1000; ++i)
            fixture.view().RowsAdd(Long{0}, separator, fixture.rows.front());
        for (int i = 0; i < 1000; ++i)
            fixture.view().RowsRemove(1);
    }
    must(fixture.view().RowsCount() == state.range(1));
    fixture.say(state);
}

/// Takes every second row away.
void removeSelected(benchmark::State& state) {
    Fixture fixture(state);
    for (auto _ : state) {
        state.PauseTiming();
        fixture.renew();
        fixture.list().fill(fixture.rows);
        fixture.view().letMultiSelect(true);
        for (Long row = 1; row <= state.range(1); row += 2)
            fixture.view().letRowSelected(row, true);
        state.ResumeTiming();
        fixture.view().RowsSelectedRemove();
    }
    must(fixture.view().RowsCount() == state.range(1) / 2);
    fixture.say(state);
}

void saveAndLoad(benchmark::State& state) {
    Fixture fixture(state);
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("lumtex-data-" + std::to_string(getpid()) + ".dat");
    const String path = fromUtf8(file.string());
    for (auto _ : state) {
        fixture.view().ContentSave(path, false);
        state.PauseTiming();
        fixture.renew();
        state.ResumeTiming();
        fixture.view().ContentInput(path, false);
    }
    must(fixture.view().RowsCount() == state.range(1));
    std::filesystem::remove(file);
    fixture.say(state);
}

/// A hundred pages, each painted.
void scrollByPages(benchmark::State& state) {
    Fixture fixture(state);
    fixture.view().letAutoRedraw(true);
    fixture.view().letAutoCheckScroll(true);
    fixture.view().Redraw();
    for (auto _ : state) {
        for (Long page = 1; page <= 100; ++page)
            fixture.view().letTopIndex(page * 10);
    }
    fixture.say(state);
}

void appendPainted(benchmark::State& state) {
    Fixture fixture(state);
    for (auto _ : state) {
        state.PauseTiming();
        fixture.renew();
        fixture.view().letAutoRedraw(true);
        fixture.view().letAutoCheckScroll(true);
        state.ResumeTiming();
        for (std::size_t i = 0; i < 100; ++i)
            fixture.view().RowsAdd(Long{-1}, separator, fixture.rows[i]);
    }
    fixture.say(state);
}

void overAllData(benchmark::internal::Benchmark* cases) {
    cases->ArgNames({"data", "rows"})->Unit(benchmark::kMillisecond);
    for (const std::int64_t rows : {1'000, 100'000, 1'000'000}) {
        for (int data = 0; data < sampleDataKinds; ++data)
            cases->Args({data, rows});
    }
}

} // namespace

BENCHMARK(load)->Apply(overAllData);
BENCHMARK(readAndWriteCells)->Apply(overAllData);
BENCHMARK_CAPTURE(sort, names, columnOfName, cSortText)->Apply(overAllData);
BENCHMARK_CAPTURE(sort, numbers, columnOfAmount, cSortNumeric)->Apply(overAllData);
BENCHMARK_CAPTURE(sort, dates, columnOfDate, cSortDate)->Apply(overAllData);
BENCHMARK_CAPTURE(find, exactly, cFindBinary)->Apply(overAllData);
BENCHMARK_CAPTURE(find, anyCase, cFindText)->Apply(overAllData);
BENCHMARK(insertAndRemoveAtFront)->Apply(overAllData);
BENCHMARK(removeSelected)->Apply(overAllData);
BENCHMARK(saveAndLoad)->Apply(overAllData);
BENCHMARK(scrollByPages)->Apply(overAllData);
BENCHMARK(appendPainted)->Apply(overAllData);

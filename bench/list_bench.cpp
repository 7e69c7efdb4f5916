/// Loading and painting, each beside the plainest way to do the same work.
///
/// Every peer gets the rows of one seed. Bytes are those that the allocator handed out, its own overhead
/// included.
#include "allocation_counter.h"
#include "list_on_desktop.h"
#include "values/text.h"

#include <array>
#include <memory>
#include <stdexcept>

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace {

using namespace lumtex;
using namespace lumtex::bench;

std::size_t bytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// What a user would write: a vector of rows, each a vector of short strings.
using PlainTable = std::vector<std::vector<std::string>>;

std::vector<std::string> plainRow(const String& row) {
    std::vector<std::string> cells;
    cells.reserve(columns);
    StringView rest = row;
    for (int i = 0; i < columns; ++i) {
        const std::size_t end = rest.find(separator);
        cells.push_back(toUtf8(rest.substr(0, end)));
        rest.remove_prefix(end == StringView::npos ? rest.size() : end + 1);
    }
    return cells;
}

void countCells(benchmark::State& state, std::size_t bytes, std::size_t rows) {
    state.counters["bytes_per_cell"] = static_cast<double>(bytes) / static_cast<double>(rows * columns);
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(rows));
}

void loadList(benchmark::State& state) {
    const auto& rows = rowsOf(state.range(0));
    std::size_t bytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto fixture = std::make_unique<ListOnDesktop>();
        const std::size_t before = bytesInUse();
        state.ResumeTiming();
        fixture->fill(rows);
        state.PauseTiming();
        bytes = bytesInUse() - before;
        if (fixture->list.RowsCount() != static_cast<Long>(rows.size()) ||
            toUtf8(fixture->list.ItemText(static_cast<Long>(rows.size()), 2)) != plainRow(rows.back())[1])
            throw std::runtime_error("the list does not hold what was loaded");
        fixture.reset();
        state.ResumeTiming();
    }
    countCells(state, bytes, rows.size());
}

void loadPlainVectors(benchmark::State& state) {
    const auto& rows = rowsOf(state.range(0));
    std::size_t bytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto table = std::make_unique<PlainTable>();
        const std::size_t before = bytesInUse();
        state.ResumeTiming();
        for (const String& row : rows)
            table->push_back(plainRow(row));
        state.PauseTiming();
        bytes = bytesInUse() - before;
        table.reset();
        state.ResumeTiming();
    }
    countCells(state, bytes, rows.size());
}

void readAndWriteCells(benchmark::State& state) {
    ListOnDesktop fixture;
    const auto& rows = rowsOf(state.range(0));
    fixture.fill(rows);
    const auto count = static_cast<Long>(rows.size());
    for (auto _ : state) {
        for (Long row = 1; row <= count; ++row) {
            for (Long column = 1; column <= columns; ++column)
                fixture.list.letItemText(row, column, fixture.list.ItemText(row, column));
        }
    }
    state.SetItemsProcessed(state.iterations() * count * columns);
}

/// Removes a row near the top; nothing waits for the host. The row comes back at the end, untimed.
void removeNearTheTop(benchmark::State& state) {
    ListOnDesktop fixture;
    fixture.fill(rowsOf(state.range(0)));
    for (auto _ : state) {
        fixture.list.RowsRemove(2);
        state.PauseTiming();
        fixture.list.RowsAdd(Long{-1}, separator, u"x");
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

constexpr int rowsAtATime = 1000;

/// Inserts a thousand rows, one by one, at the place that `place` names in a list of so many; takes them away
/// untimed.
template <class Place>
void insertRows(benchmark::State& state, Place place) {
    ListOnDesktop fixture;
    fixture.fill(rowsOf(state.range(0)));
    for (auto _ : state) {
        for (int i = 0; i < rowsAtATime; ++i)
            fixture.list.RowsAdd(place(fixture.list.RowsCount()), separator, u"x");
        state.PauseTiming();
        for (int i = 0; i < rowsAtATime; ++i)
            fixture.list.RowsRemove(fixture.list.RowsCount());
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * rowsAtATime);
}

/// The same for removals; the rows come back at the end, untimed.
template <class Place>
void removeRows(benchmark::State& state, Place place) {
    ListOnDesktop fixture;
    fixture.fill(rowsOf(state.range(0)));
    for (auto _ : state) {
        for (int i = 0; i < rowsAtATime; ++i)
            fixture.list.RowsRemove(place(fixture.list.RowsCount() - 1) + 1);
        state.PauseTiming();
        for (int i = 0; i < rowsAtATime; ++i)
            fixture.list.RowsAdd(Long{-1}, separator, u"x");
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * rowsAtATime);
}

Long atTheFront(Long /*count*/) {
    return 0;
}
/// All over the list, in no order.
Long anywhere(Long count) {
    static std::uint32_t state = 1;
    state = state * 1664525U + 1013904223U;
    return static_cast<Long>((std::uint64_t{state} * static_cast<std::uint32_t>(count)) >> 32U);
}

/// The peer: plain records of the same size at the front of a vector, inserted and removed again.
void insertIntoPlainVector(benchmark::State& state) {
    using Record = std::array<std::int64_t, sizeof(RowRecord) / sizeof(std::int64_t)>;
    std::vector<Record> records(static_cast<std::size_t>(state.range(0)));
    for (auto _ : state) {
        for (int i = 0; i < rowsAtATime; ++i)
            records.insert(records.begin(), Record{});
        benchmark::ClobberMemory();
        records.resize(records.size() - rowsAtATime);
    }
    state.SetItemsProcessed(state.iterations() * rowsAtATime);
}

/// Something that is asked once for each record whether anybody waits.
class Queue {
  public:
    Queue() = default;
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;
    virtual ~Queue() = default;
    virtual bool isEmpty() const { return true; }
};

/// The peer: records of the same size, moved one by one, with that question after each.
void removeFromPlainVector(benchmark::State& state) {
    using Record = std::array<std::int64_t, sizeof(RowRecord) / sizeof(std::int64_t)>;
    std::vector<Record> records(static_cast<std::size_t>(state.range(0)));
    const auto queue = std::make_unique<Queue>();
    for (auto _ : state) {
        const Queue* asked = queue.get();
        benchmark::DoNotOptimize(asked);
        for (std::size_t i = 2; i < records.size(); ++i) {
            records[i - 1] = records[i];
            if (!asked->isEmpty())
                throw std::runtime_error("nobody waits here");
        }
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void repaintScreen(benchmark::State& state) {
    ListOnDesktop fixture;
    fixture.fill(rowsOf(1000));
    fixture.list.letGridLines(state.range(0) != 0);
    if (state.range(1) != 0)
        fixture.list.letAutoRowColor(true);
    fixture.list.Redraw();
    fixture.list.Redraw();
    const std::int64_t before = allocations();
    std::int64_t paints = 0;
    for (auto _ : state) {
        fixture.list.Redraw();
        ++paints;
    }
    state.counters["allocations_per_paint"] =
        static_cast<double>(allocations() - before) / static_cast<double>(paints);
}

/// The floor: one colour over as many pixels.
void fillScreen(benchmark::State& state) {
    std::vector<std::uint32_t> pixels(std::size_t{1280} * 800);
    std::uint32_t color = 0xFF000000U;
    for (auto _ : state) {
        std::fill(pixels.begin(), pixels.end(), ++color);
        benchmark::DoNotOptimize(pixels.data());
        benchmark::ClobberMemory();
    }
}

} // namespace

BENCHMARK(loadList)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(loadPlainVectors)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(readAndWriteCells)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(removeNearTheTop)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(insertRows, front, atTheFront)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(insertRows, anywhere, anywhere)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(removeRows, front, atTheFront)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(removeRows, anywhere, anywhere)
    ->Arg(100'000)
    ->Arg(1'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(insertIntoPlainVector)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(removeFromPlainVector)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(repaintScreen)
    ->ArgNames({"grid", "fills"})
    ->Args({0, 0})
    ->Args({1, 0})
    ->Args({1, 1})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(fillScreen)->Unit(benchmark::kMicrosecond);

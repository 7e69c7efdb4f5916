/// Loading and painting, each beside the plainest way to do the same work.
///
/// Every peer gets the rows of one seed. Bytes are those that the allocator handed out, its own overhead
/// included.
#include "allocation_counter.h"
#include "model/list_view.h"
#include "platform/headless/desktop.h"
#include "platform/headless/headless_window.h"
#include "platform/text.h"

#include <array>
#include <map>
#include <memory>
#include <random>
#include <stdexcept>

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace {

using namespace lumtex;

constexpr int columns = 5;
constexpr StringView separator = u"|";

/// Rows of a running number, a name of 8 to 20 letters, one of 200 cities, a decimal number and an ISO date.
std::vector<String> makeRows(int count) {
    std::mt19937 random(20261121);
    const auto between = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    const auto word = [&](int length) {
        std::string text;
        for (int i = 0; i < length; ++i)
            text += static_cast<char>('a' + between(0, 25));
        return text;
    };
    const auto twoDigits = [](int value) { return std::to_string(100 + value).substr(1); };
    std::vector<std::string> cities;
    for (int i = 0; i < 200; ++i)
        cities.push_back(word(between(4, 14)));
    std::vector<String> rows;
    for (int i = 1; i <= count; ++i) {
        const std::string amount = std::to_string(between(0, 99999)) + "." + twoDigits(between(0, 99));
        const std::string date = std::to_string(between(1990, 2026)) + "-" + twoDigits(between(1, 12)) + "-" +
                                 twoDigits(between(1, 28));
        rows.push_back(fromUtf8(std::to_string(i) + "|" + word(between(8, 20)) + "|" +
                                cities[static_cast<std::size_t>(between(0, 199))] + "|" + amount + "|" +
                                date));
    }
    return rows;
}

const std::vector<String>& rowsOf(std::int64_t count) {
    static std::map<std::int64_t, std::vector<String>> known;
    auto& rows = known[count];
    if (rows.empty())
        rows = makeRows(static_cast<int>(count));
    return rows;
}

std::size_t bytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

/// A list with five columns, as large as the screen of the painting benchmarks.
struct ListOnDesktop {
    Desktop desktop;
    Host host;
    lmListViewEvents events;
    lmListView list{desktop, host, events};

    ListOnDesktop() {
        list.UserControl_ReadProperties(MemoryPropertyBag());
        list.letAutoRedraw(false);
        list.letAutoCheckScroll(false);
        for (const Single width : {70, 200, 160, 120, 110})
            list.ColumnsAdd(u"Column", nullptr, nullptr, nullptr, cColumnLeft, width * 15);
        list.window().place(0, 0, 1280, 800);
    }
    void fill(const std::vector<String>& rows) {
        for (const String& row : rows)
            list.RowsAdd(Long{-1}, separator, row);
    }
};

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
BENCHMARK(removeFromPlainVector)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(repaintScreen)
    ->ArgNames({"grid", "fills"})
    ->Args({0, 0})
    ->Args({1, 0})
    ->Args({1, 1})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(fillScreen)->Unit(benchmark::kMicrosecond);

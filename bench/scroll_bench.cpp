/// One step through a list by each of the ways to scroll it: what it costs must not hang on the number of
/// rows.
///
/// A step takes the whole way that a user's hand takes: the event from the desktop's queue, the bar, the
/// list's repaint, and all events that come of it. The peer is the repaint alone.
#include "bars/scroll_bar.h"
#include "list_on_desktop.h"
#include "values/color.h"

#include <map>
#include <memory>
#include <stdexcept>

#include <benchmark/benchmark.h>

namespace {

using namespace lumtex;
using namespace lumtex::bench;
using namespace std::chrono_literals;

/// A shown list, scrolled to its middle. Kept, as filling one takes longer than all else.
struct ScrolledList : ListOnDesktop {
    explicit ScrolledList(std::int64_t rows, bool dynamic) {
        list.letRowsDynamic(dynamic);
        fill(rowsOf(rows));
        list.CheckScroll();
        list.Redraw();
    }
    Long middle() const { return list.RowsCount() / 2; }
    /// Where the pointer is on the vertical bar, which lies at the right edge; pixels from the bar's top.
    void pointAtBar(Single lengthwise) { desktop.move(list.window(), 1280 - 10, 1 + lengthwise); }
};

ScrolledList& listOf(const benchmark::State& state) {
    static std::map<std::pair<std::int64_t, bool>, std::unique_ptr<ScrolledList>> known;
    auto& list = known[{state.range(0), state.range(1) != 0}];
    if (!list)
        list = std::make_unique<ScrolledList>(state.range(0), state.range(1) != 0);
    list->list.letTopIndex(list->middle());
    return *list;
}

void expectMoved(const ScrolledList& scrolled) {
    if (scrolled.list.TopIndex() == scrolled.middle())
        throw std::runtime_error("the list has not moved");
}

void repaint(benchmark::State& state) {
    ScrolledList& scrolled = listOf(state);
    for (auto _ : state) {
        scrolled.list.Redraw();
        scrolled.desktop.run();
    }
}

void turnWheel(benchmark::State& state) {
    ScrolledList& scrolled = listOf(state);
    scrolled.desktop.move(scrolled.list.window(), 300, 400);
    scrolled.desktop.wheel(-120);
    expectMoved(scrolled);
    Long turn = 120;
    for (auto _ : state) {
        scrolled.desktop.wheel(turn);
        turn = -turn;
    }
}

/// A click on an arrow: press, release, and the pictures of the button between.
void clickArrow(benchmark::State& state) {
    ScrolledList& scrolled = listOf(state);
    scrolled.pointAtBar(5);
    scrolled.desktop.click();
    expectMoved(scrolled);
    for (auto _ : state)
        scrolled.desktop.click();
}

/// One tick of an arrow that is held.
void holdArrow(benchmark::State& state) {
    ScrolledList& scrolled = listOf(state);
    scrolled.pointAtBar(5);
    scrolled.desktop.press();
    scrolled.desktop.advance(350ms);
    expectMoved(scrolled);
    for (auto _ : state)
        scrolled.desktop.advance(100ms);
    scrolled.desktop.release();
}

/// One move of a drag of the thumb, between 40 and 80 pixels away from the upper button.
void dragThumb(benchmark::State& state) {
    ScrolledList& scrolled = listOf(state);
    scrolled.list.letTopIndex(0);
    constexpr Single grip = 17 + 4; // in the middle of the thumb at its start
    scrolled.pointAtBar(grip);
    scrolled.desktop.press();
    bool far = false;
    const auto move = [&] {
        far = !far;
        scrolled.pointAtBar(grip + (far ? 80 : 40));
    };
    move();
    const Long farRow = scrolled.list.TopIndex();
    move();
    if (scrolled.list.TopIndex() == 0 || scrolled.list.TopIndex() >= farRow)
        throw std::runtime_error("the thumb has not been dragged");
    for (auto _ : state)
        move();
    scrolled.desktop.release();
}

void setTopIndex(benchmark::State& state) {
    ScrolledList& scrolled = listOf(state);
    scrolled.list.letAutoRedraw(true);
    Long step = 100;
    scrolled.list.letTopIndex(scrolled.middle() + step);
    expectMoved(scrolled);
    for (auto _ : state) {
        scrolled.list.letTopIndex(scrolled.middle() + step);
        scrolled.desktop.run();
        step = -step;
    }
    scrolled.list.letAutoRedraw(false);
}

/// Few rows have a height, and a sort took them anywhere.
void selectAfterSort(benchmark::State& state) {
    ListOnDesktop sorted;
    sorted.list.letRowsDynamic(true);
    sorted.list.letMultiSelect(true);
    sorted.fill(rowsOf(state.range(0)));
    sorted.list.Redraw();
    sorted.list.Sort(2, cAscending, cSortText);
    Long row = 0;
    for (auto _ : state)
        sorted.list.letRowSelected(row = row % 1000 + 1, true);
}

void bothKindsOfRows(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgNames({"rows", "dynamic"})->Unit(benchmark::kMicrosecond);
    for (const std::int64_t dynamic : {0, 1}) {
        for (const std::int64_t rows : {1'000, 1'000'000})
            benchmark->Args({rows, dynamic});
    }
}

} // namespace

BENCHMARK(repaint)->Apply(bothKindsOfRows);
BENCHMARK(turnWheel)->Apply(bothKindsOfRows);
BENCHMARK(clickArrow)->Apply(bothKindsOfRows);
BENCHMARK(holdArrow)->Apply(bothKindsOfRows);
BENCHMARK(dragThumb)->Apply(bothKindsOfRows);
BENCHMARK(setTopIndex)->Apply(bothKindsOfRows);
BENCHMARK(selectAfterSort)->ArgName("rows")->Arg(1'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

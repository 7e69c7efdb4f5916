/// Sorting and searching, each beside the plainest way to do the same work on data that lies ready.
#include "model/list_view.h"
#include "worlds/headless/desktop.h"

#include <algorithm>
#include <random>
#include <stdexcept>

#include <benchmark/benchmark.h>

namespace {

using namespace lumtex;

enum Content : std::int64_t { names, numbers, dates };

/// Names of 8 to 20 letters, numbers with two decimals, ISO dates; one seed for every peer.
std::vector<String> makeTexts(Content content, std::int64_t count) {
    std::mt19937 random(20261121);
    const auto below = [&](unsigned limit) { return static_cast<Long>(random() % limit); };
    const auto digits = [](Long value) { return Variant(value).toText(); };
    const auto twoDigits = [&](Long value) { return digits(100 + value).substr(1); };
    std::vector<String> texts;
    for (std::int64_t i = 0; i < count; ++i) {
        String text;
        if (content == names) {
            for (Long length = 8 + below(13); length > 0; --length)
                text += static_cast<char16_t>(u'a' + below(26));
        } else if (content == numbers) {
            text = digits(below(10'000'000)) + u"." + twoDigits(below(100));
        } else {
            text =
                digits(1990 + below(37)) + u"-" + twoDigits(1 + below(12)) + u"-" + twoDigits(1 + below(28));
        }
        texts.push_back(std::move(text));
    }
    return texts;
}

struct ListOnDesktop {
    headless::Desktop desktop;
    Host host;
    lmListViewEvents events;
    lmListView list{desktop, host, events};

    ListOnDesktop(const std::vector<String>& texts, int columns) {
        list.UserControl_ReadProperties(MemoryPropertyBag());
        list.letAutoRedraw(false);
        list.letAutoCheckScroll(false);
        for (int i = 0; i < columns; ++i)
            list.ColumnsAdd(u"Column");
        String row;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            row += texts[i] + u"|";
            if ((i + 1) % static_cast<std::size_t>(columns) == 0) {
                list.RowsAdd(Long{-1}, u"|", row);
                row.clear();
            }
        }
    }
};

void sortList(benchmark::State& state) {
    const auto content = static_cast<Content>(state.range(0));
    const auto texts = makeTexts(content, state.range(1));
    for (auto _ : state) {
        state.PauseTiming();
        auto fixture = std::make_unique<ListOnDesktop>(texts, 1);
        state.ResumeTiming();
        fixture->list.Sort(1, cAscending, static_cast<cSortType>(content));
        state.PauseTiming();
        if (content == names && fixture->list.ItemText(1, 1) != *std::min_element(texts.begin(), texts.end()))
            throw std::runtime_error("the list is not sorted");
        fixture.reset();
        state.ResumeTiming();
    }
}

/// Rows of five cells that lie in memory in another order than in the list, as they do after a first sort.
void sortMovedRows(benchmark::State& state) {
    constexpr int columns = 5;
    const auto content = static_cast<Content>(state.range(0));
    const auto texts = makeTexts(content, state.range(1) * columns);
    const auto type = static_cast<cSortType>(content);
    ListOnDesktop fixture(texts, columns);
    fixture.list.Sort(1, cAscending, type);
    Long column = 2;
    for (auto _ : state) {
        fixture.list.Sort(column, cAscending, type);
        column = column == columns ? 1 : column + 1;
    }
}

/// Keys and row numbers that lie ready; the rows themselves are not moved.
template <class Key>
void sortReadyKeys(benchmark::State& state, std::vector<std::pair<Key, std::uint32_t>> keys) {
    for (auto _ : state) {
        state.PauseTiming();
        auto sorted = keys;
        state.ResumeTiming();
        std::sort(
            sorted.begin(), sorted.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
        benchmark::DoNotOptimize(sorted.data());
    }
}

void peerSort(benchmark::State& state) {
    const auto content = static_cast<Content>(state.range(0));
    const auto texts = makeTexts(content, state.range(1));
    std::uint32_t row = 0;
    if (content == names) {
        std::vector<std::pair<String, std::uint32_t>> keys;
        for (const String& text : texts)
            keys.emplace_back(text, row++);
        sortReadyKeys(state, std::move(keys));
    } else {
        std::vector<std::pair<Double, std::uint32_t>> keys;
        for (const String& text : texts)
            keys.emplace_back(content == numbers ? Variant(text).toDouble() : Variant(text).toDate().days,
                              row++);
        sortReadyKeys(state, std::move(keys));
    }
}

constexpr std::int64_t cells = 5'000'000;

void findNothing(benchmark::State& state) {
    ListOnDesktop fixture(makeTexts(names, cells), 5);
    const String pattern = state.range(0) == 0 ? u"*Q7*" : u"Q7*";
    const auto compare = state.range(1) == 0 ? cFindBinary : cFindText;
    for (auto _ : state) {
        if (fixture.list.FindItem(pattern, cFindStart, compare).FindSuccessful)
            throw std::runtime_error("there is no such text");
    }
    state.SetItemsProcessed(state.iterations() * cells);
}

/// A vector of strings, each asked for the literal.
void peerScan(benchmark::State& state) {
    const auto texts = makeTexts(names, cells);
    for (auto _ : state) {
        const bool found = std::any_of(
            texts.begin(), texts.end(), [](const String& text) { return text.find(u"Q7") != String::npos; });
        if (found)
            throw std::runtime_error("there is no such text");
    }
    state.SetItemsProcessed(state.iterations() * cells);
}

} // namespace

BENCHMARK(sortList)
    ->ArgNames({"type", "rows"})
    ->ArgsProduct({{0, 1, 2}, {100'000, 1'000'000}})
    ->MeasureProcessCPUTime()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(sortMovedRows)
    ->ArgNames({"type", "rows"})
    ->ArgsProduct({{0, 1, 2}, {100'000, 1'000'000}})
    ->MeasureProcessCPUTime()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(peerSort)
    ->ArgNames({"type", "rows"})
    ->ArgsProduct({{0, 1, 2}, {100'000, 1'000'000}})
    ->MeasureProcessCPUTime()
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(findNothing)
    ->ArgNames({"anchored", "text"})
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(peerScan)->Unit(benchmark::kMillisecond);

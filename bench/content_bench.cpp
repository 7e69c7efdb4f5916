/// Saving and loading content files, each beside plainly writing and reading as many bytes.
#include "list_on_desktop.h"
#include "values/text.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

#include <benchmark/benchmark.h>
#include <unistd.h>

namespace {

using namespace lumtex;
using namespace lumtex::bench;

constexpr std::int64_t rows = 1'000'000;

const std::filesystem::path file =
    std::filesystem::temp_directory_path() / ("lumtex-bench-" + std::to_string(getpid()) + ".dat");

String path() {
    return fromUtf8(file.string());
}

ListOnDesktop& filledList() {
    static ListOnDesktop fixture;
    if (fixture.list.RowsCount() == 0)
        fixture.fill(rowsOf(rows));
    return fixture;
}

void countBytes(benchmark::State& state) {
    state.counters["megabytes"] = static_cast<double>(std::filesystem::file_size(file)) / 1e6;
}

void saveList(benchmark::State& state) {
    lmListView& list = filledList().list;
    for (auto _ : state)
        list.ContentSave(path(), state.range(0) != 0);
    countBytes(state);
}

/// In one write, out of one block of memory.
void peerWrite(benchmark::State& state) {
    filledList().list.ContentSave(path(), state.range(0) != 0);
    const std::vector<char> bytes(std::filesystem::file_size(file), 'x');
    for (auto _ : state) {
        std::filesystem::remove(file);
        std::FILE* stream = std::fopen(file.c_str(), "wb");
        const std::size_t written = std::fwrite(bytes.data(), 1, bytes.size(), stream);
        if (std::fclose(stream) != 0 || written != bytes.size())
            throw std::runtime_error("the file cannot be written");
    }
    countBytes(state);
}

void loadList(benchmark::State& state) {
    lmListView& source = filledList().list;
    source.ContentSave(path(), state.range(0) != 0);
    for (auto _ : state) {
        state.PauseTiming();
        auto fixture = std::make_unique<ListOnDesktop>();
        state.ResumeTiming();
        fixture->list.ContentInput(path(), state.range(0) != 0);
        state.PauseTiming();
        if (fixture->list.RowsCount() != rows ||
            fixture->list.ItemText(static_cast<Long>(rows), 5) != source.ItemText(static_cast<Long>(rows), 5))
            throw std::runtime_error("the list does not hold what was saved");
        fixture.reset();
        state.ResumeTiming();
    }
    countBytes(state);
}

/// In one read, into one block of memory that lies ready.
void peerRead(benchmark::State& state) {
    filledList().list.ContentSave(path(), state.range(0) != 0);
    std::vector<char> bytes(std::filesystem::file_size(file));
    for (auto _ : state) {
        std::FILE* stream = std::fopen(file.c_str(), "rb");
        const std::size_t got = std::fread(bytes.data(), 1, bytes.size(), stream);
        if (std::fclose(stream) != 0 || got != bytes.size())
            throw std::runtime_error("the file cannot be read");
        benchmark::DoNotOptimize(bytes.data());
    }
    countBytes(state);
}

} // namespace

BENCHMARK(saveList)->ArgName("properties")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(peerWrite)->ArgName("properties")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(loadList)->ArgName("properties")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(peerRead)->ArgName("properties")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

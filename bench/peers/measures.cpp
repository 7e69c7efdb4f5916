/// Each measure once, on one list; scripts/bench-peers runs the programs in turn, several times.
#include "peer.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>
#include <stdexcept>

#include <malloc.h>
#include <unistd.h>

namespace lumtex::bench {

namespace {

constexpr int pages = 100;
constexpr int pageRows = 39;
constexpr int rowsAtATime = 1000;

std::size_t bytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

double timeOf(const std::function<void()>& work) {
    const auto began = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - began).count();
}

/// A sum over texts that tells their order.
class Sum {
  public:
    void add(std::string_view text) {
        for (const char unit : text)
            add(unit);
        add('|');
    }
    std::uint64_t value() const { return sum_ % 1'000'000'007; }

  private:
    void add(char unit) { sum_ = (sum_ ^ static_cast<unsigned char>(unit)) * 1099511628211U; }

    std::uint64_t sum_ = 14695981039346656037U;
};

class Measures {
  public:
    Measures(const PeerKind& kind, int rows, SampleData data)
        : kind_(kind), table_(rows, data), rows_(rows) {}

    void run() {
        peer_ = kind_.make();
        const std::size_t before = bytesInUse();
        const double loading = timeOf([&] { peer_->load(table_); });
        say("load", loading, sumOfTexts());
        say("bytes a cell", static_cast<double>(bytesInUse() - before) / rows_ / tableColumns, 0);
        search();
        files();
        sort();
        ends();
        scroll();
        // An empty list grows by them, whatever the size of this one.
        if (rows_ == 100'000) {
            peer_ = kind_.make();
            appends();
        }
    }

  private:
    void say(const char* measure, double value, std::uint64_t result) const {
        std::printf("%s\t%d\t%.4g\t%llu\n", measure, rows_, value, static_cast<unsigned long long>(result));
        std::fflush(stdout);
    }

    /// Amounts are left out: some lists keep them as numbers.
    std::uint64_t sumOfTexts() const {
        Sum sum;
        for (int row = 0; row < rows_; row += row < 1000 ? 1 : 997) {
            for (const int column : {numberColumn, nameColumn, cityColumn, dateColumn})
                sum.add(peer_->text(row, column));
        }
        sum.add(std::to_string(peer_->count()));
        return sum.value();
    }

    void search() const {
        const std::string last(table_.cell(rows_ - 1, nameColumn));
        std::optional<int> found = peer_->find(last, false);
        if (!found)
            return;
        int first = 0;
        while (table_.cell(first, nameColumn).find(last) == std::string_view::npos)
            ++first;
        if (*found != first)
            throw std::runtime_error("a text that is there was not found");
        for (const bool anyCase : {false, true}) {
            const double time = timeOf([&] { found = peer_->find("Q7", anyCase); });
            say(anyCase ? "find nothing, any case" : "find nothing", time, found == -1 ? 1 : 0);
        }
    }

    /// Rows lie in memory in another order than the one that is sorted.
    void sort() const {
        struct Step {
            TableColumn column;
            const char* measure;
        };
        static constexpr Step steps[] = {{amountColumn, nullptr},
                                         {nameColumn, "sort names"},
                                         {amountColumn, "sort numbers"},
                                         {dateColumn, "sort dates"}};
        for (const Step& step : steps) {
            bool sorted = false;
            const double time = timeOf([&] { sorted = peer_->sort(step.column); });
            if (sorted && step.measure != nullptr)
                say(step.measure, time, sumOfKeys(step.column));
        }
    }

    /// Of the texts that the rows came with, as lists may show a key in their own form.
    std::uint64_t sumOfKeys(TableColumn column) const {
        Sum sum;
        for (int row = 0; row < rows_; ++row)
            sum.add(table_.cell(std::stoi(peer_->text(row, numberColumn)) - 1, column));
        return sum.value();
    }

    void ends() const {
        const std::string first = peer_->text(0, nameColumn);
        if (!peer_->insertFirst(table_, 0))
            return;
        peer_->removeFirst();
        const double inserting = timeOf([&] {
            for (int i = 0; i < rowsAtATime; ++i)
                peer_->insertFirst(table_, i % rows_);
        });
        Sum sum;
        for (int i = 0; i < rowsAtATime; ++i)
            sum.add(peer_->text(i, nameColumn));
        say("1,000 inserts at the front", inserting, sum.value());
        const double removing = timeOf([&] {
            for (int i = 0; i < rowsAtATime; ++i)
                peer_->removeFirst();
        });
        say("1,000 removals at the front",
            removing,
            peer_->count() == rows_ && peer_->text(0, nameColumn) == first ? 1 : 0);
    }

    void scroll() const {
        if (!peer_->show())
            return;
        peer_->scrollTo(0);
        const int last = std::min(pages, rows_ / pageRows - 2);
        const double time = timeOf([&] {
            for (int page = 1; page <= last; ++page)
                peer_->scrollTo(page * pageRows);
        });
        const bool right = peer_->firstSeen() == last * pageRows && peer_->hasInk();
        say("scroll by a page and repaint", time / last, right ? 1 : 0);
    }

    void appends() const {
        if (!peer_->show())
            return;
        const double time = timeOf([&] {
            for (int row = 0; row < rowsAtATime; ++row)
                peer_->appendPainted(table_, row);
        });
        say("1,000 appends, each painted", time, peer_->count() == rowsAtATime && peer_->hasInk() ? 1 : 0);
    }

    void files() const {
        const std::filesystem::path file =
            std::filesystem::temp_directory_path() / ("lumtex-peer-" + std::to_string(getpid()));
        bool done = false;
        double time = timeOf([&] { done = peer_->save(file.string()); });
        if (done) {
            say("save a file", time, 1);
            const auto other = kind_.make();
            time = timeOf([&] { other->loadSaved(file.string()); });
            say("load a file", time, sameTexts(*other) ? 1 : 0);
        }
        std::filesystem::remove(file);
        // Written by whoever runs the programs, since it takes a while.
        const char* records = std::getenv("LUMTEX_PEER_RECORDS");
        if (records == nullptr)
            return;
        const auto other = kind_.make();
        time = timeOf([&] { done = other->import(records); });
        if (done)
            say("import from SQLite", time, sameTexts(*other) ? 1 : 0);
    }

    bool sameTexts(Peer& other) const {
        if (other.count() != rows_)
            return false;
        for (int row = 0; row < rows_; row += 101) {
            if (other.text(row, nameColumn) != table_.cell(row, nameColumn) ||
                other.text(row, dateColumn) != table_.cell(row, dateColumn))
                return false;
        }
        return true;
    }

    const PeerKind& kind_;
    Table table_;
    int rows_;
    std::unique_ptr<Peer> peer_;
};

} // namespace

int runMeasures(int count, char** arguments, const std::vector<PeerKind>& kinds) {
    if (count == 1) {
        for (const PeerKind& kind : kinds)
            std::printf("%s\t%d\n", kind.name, kind.mostRows);
        return 0;
    }
    try {
        for (const PeerKind& kind : kinds) {
            if (count == 4 && std::strcmp(arguments[1], kind.name) == 0) {
                Measures(kind, std::stoi(arguments[2]), sampleDataNamed(arguments[3])).run();
                return 0;
            }
        }
        throw std::runtime_error("usage: NAME ROWS DATA; without arguments: the names");
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s: %s\n", arguments[0], failure.what());
        return 1;
    }
}

} // namespace lumtex::bench

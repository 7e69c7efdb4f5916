/// Texts are saved from one walk over the rows as far as nobody can tell: the same file, write by write, and
/// the same reports at the same cells as where each record is read by its accessor when its turn comes.
#include "content_fixture.h"
#include "failures/failing_files.h"
#include "persistence/save_records.h"
#include "persistence/save_texts.h"

#include <functional>
#include <random>
#include <utility>

namespace lumtex::testing {
namespace {

struct Named {
    const char* name;
    KeptTexts::Limits limits;
};

constexpr std::size_t anyLength = 1'000'000;

/// From nothing that is kept over columns that end in the middle to whole ones.
const std::vector<Named> ways{
    {"nothing kept", {.memory = 0}},
    {"few rows", {.leastRows = 10'000}},
    {"a block", {.memory = 1'000, .block = 1'000, .meanRecord = anyLength, .leastRows = 1}},
    {"some rows", {.memory = 3'000, .block = 300, .meanRecord = anyLength, .leastRows = 1}},
    {"half of it", {.memory = 100'000, .block = 10'000, .meanRecord = anyLength, .leastRows = 1}},
    {"short records", {.memory = 10'000'000, .block = 50, .meanRecord = 25, .leastRows = 1}},
    {"all", {.memory = 10'000'000, .block = 20'000, .meanRecord = anyLength, .leastRows = 1}},
    {"all, in large blocks",
     {.memory = 10'000'000, .block = 1'000'000, .meanRecord = anyLength, .leastRows = 1}},
};

class SaveRecords : public ContentFixture {
  protected:
    static constexpr Long rows = 60;
    static constexpr Long columns = 4;

    SaveRecords() { list.letAutoRedraw(false); }

    /// The same at each call: mostly short texts, some longer ones, some with units that are no bytes, or not
    /// the same in every code page.
    void fill() {
        std::mt19937 random{20261123};
        const auto below = [&](std::uint32_t limit) { return static_cast<std::uint32_t>(random() % limit); };
        list.RowsClear();
        list.ColumnsClear();
        addColumns({30, 30, 30, 30});
        for (Long row = 1; row <= rows; ++row) {
            list.RowsAdd();
            for (Long column = 1; column <= columns; ++column) {
                String text(below(8) == 0 ? below(longest) : below(40), u'a');
                for (char16_t& unit : text)
                    unit = static_cast<char16_t>(' ' + below(95));
                if (!text.empty() && below(5) == 0)
                    text.back() = below(2) == 0 ? u'ü' : u'\u03A9';
                list.letItemText(row, column, text);
            }
        }
    }
    /// Leaves a row its first cells.
    void shorten(Long row, std::size_t cells) {
        Items& items = inside.rows()[static_cast<std::size_t>(row) - 1].items;
        Items rest = Items::create(cells);
        for (std::size_t i = 0; i < cells; ++i)
            rest.append(items[i].Text(), StyleLease(items[i].styleHandle()));
        items = rest;
    }

    /// Each record by its accessor, when its turn comes.
    void saveByAccessors(Procedure& p, content::ContentWriter& file) {
        WalkCounters& counters = inside.counters();
        const Long rowCount = list.RowsCount();
        const Long columnCount = list.ColumnsCount();
        for (counters.saveColumn = 1; counters.saveColumn <= columnCount; ++counters.saveColumn) {
            for (counters.saveRow = 1; counters.saveRow <= rowCount; ++counters.saveRow) {
                const String text = list.ItemText(counters.saveRow, counters.saveColumn);
                p.step([&] { file.put(static_cast<Long>(text.size())); });
                p.step([&] { file.putText(text); });
            }
        }
    }

    /// The file and the reports, each with the counters that host code sees; `prepare` changes the list
    /// beforehand, and `hostCode` runs in the first report. A null way is that of the accessors. The
    /// `failing`th operation on the file fails, none if that is 0.
    std::string outcome(const Named* way, long failing = 0) {
        fill();
        prepare();
        std::string log;
        bool isFirst = true;
        desktop.runtime().whileBoxIsOpen = [&] {
            const WalkCounters& counters = inside.counters();
            log += "\n" + lastReport() + " " + std::to_string(counters.saveRow) + "," +
                   std::to_string(counters.saveColumn);
            if (std::exchange(isFirst, false))
                hostCode();
        };
        runtime_.failing.operations.arm(failing);
        {
            Procedure p = inside.core().procedure(u"ContentSave");
            content::ContentWriter file(runtime_);
            file.open(path());
            if (way != nullptr)
                saveRecords(inside.core(), p, file, false, way->limits);
            else
                saveByAccessors(p, file);
            p.step([&] { file.close(); });
        }
        failed_ = runtime_.failing.operations.disarm();
        desktop.runtime().whileBoxIsOpen = nullptr;
        reports_ = reportCount();
        desktop.runtime().boxes.clear();
        return folder.contentOf(name) + log + "\nat the end " + std::to_string(inside.counters().saveRow) +
               "," + std::to_string(inside.counters().saveColumn);
    }
    void expectOneOutcome(long failing = 0) {
        const std::string expected = outcome(nullptr, failing);
        for (const Named& way : ways) {
            SCOPED_TRACE(way.name);
            EXPECT_TRUE(outcome(&way, failing) == expected);
        }
    }

    std::uint32_t longest = 14'000; ///< of the texts; then the file is some buffers long
    std::function<void()> prepare = [] {};
    std::function<void()> hostCode = [] {};
    long failed_ = 0;         ///< operations on the file, in the last outcome
    std::size_t reports_ = 0; ///< in the last outcome

  private:
    RuntimeWithFailingFiles runtime_{desktop.runtime()};
};

TEST_F(SaveRecords, WhateverIsKeptTheFileIsTheSame) {
    expectOneOutcome();
    EXPECT_EQ(reports_, 0U);
    EXPECT_GT(folder.contentOf(name).size(), 3U * 65536);
}

TEST_F(SaveRecords, AWalkDownTheFirstColumnKeepsTheOthers) {
    fill();
    Procedure p = inside.core().procedure(u"ContentSave");
    content::ContentWriter file(desktop.runtime());
    file.open(path());
    SaveTexts texts(
        inside.core(), p, file, rows, columns, {.memory = 1'000'000, .block = 1'000'000, .leastRows = 1});
    for (Long row = 1; row <= rows; ++row)
        ASSERT_EQ(texts.write(row, 1), 1);
    EXPECT_GT(texts.write(1, 2), 1);
}

TEST_F(SaveRecords, TheFileFailsAtTheSameStatementAndStaysAtTheSameLength) {
    // The first operation opens the file.
    long operation = 2;
    for (;; ++operation) {
        SCOPED_TRACE(operation);
        expectOneOutcome(operation);
        if (failed_ == 0)
            break;
        EXPECT_GT(reports_, 0U);
    }
    EXPECT_GT(operation, 5);
}

TEST_F(SaveRecords, HostCodeInAReportOfTheFileShowsInTheReportsBehindIt) {
    hostCode = [&] { inside.rows()[0].items = Items(); };
    longest = 28'000;
    // The file is written first from within the first column, and next from within another one.
    for (const long operation : {2, 3}) {
        SCOPED_TRACE(operation);
        expectOneOutcome(operation);
        EXPECT_GT(reports_, 0U);
    }
}

/// What host code does in the report of a missing cell shows in each record that is yet to come.
TEST_F(SaveRecords, HostCodeInTheReportOfAMissingCellIsSeenByTheRecordsBehindIt) {
    struct HostCode {
        const char* name;
        std::function<void()> code;
    };
    const std::vector<HostCode> codes{
        {"nothing", [] {}},
        {"other texts",
         [&] {
             for (Long row = 1; row <= rows; row += 7)
                 for (const Long column : {1, 2, 3, 4})
                     if (static_cast<std::size_t>(column) <=
                         inside.rows()[static_cast<std::size_t>(row) - 1].items.count())
                         list.letItemText(row, column, u"another text");
         }},
        {"a row less", [&] { list.RowsRemove(Long{rows / 2 + 3}); }},
        {"a row in front", [&] { list.RowsAdd(Long{1}, u",", u"new,new,new,new"); }},
        {"no rows", [&] { list.RowsClear(); }},
        {"another column", [&] { addColumns({30}); }},
        {"a save of its own", [&] { list.ContentSave(folder.pathTo("inner")); }},
    };
    longest = 200;
    for (const HostCode& code : codes) {
        hostCode = code.code;
        for (const Long row : {Long{1}, rows / 2, rows}) {
            for (const std::size_t cells : {0, 1, 3}) {
                SCOPED_TRACE(std::string(code.name) + ", row " + std::to_string(row) + " with cells " +
                             std::to_string(cells));
                prepare = [&] { shorten(row, cells); };
                expectOneOutcome();
                EXPECT_GT(reports_, 0U);
            }
        }
    }
}

} // namespace
} // namespace lumtex::testing

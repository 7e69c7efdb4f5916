/// Rows are sorted at once where nothing is to be reported, else step by step. Both, and the sort written
/// down word for word, leave the same order.
#include "guards/error.h"
#include "list_fixture.h"
#include "ordering/quick_sort.h"
#include "ordering/sort_at_once.h"
#include "pairs/plain_quick_sort.h"
#include "sortfind/sort_stepwise.h"
#include "values/fixed_locale.h"

#include <random>
#include <set>

namespace lumtex::testing {

/// Sorts the same rows by the control and by the oracle.
class SortOracle : public ListFixture {
  protected:
    SortOracle() {
        addColumns({100});
        list.letAutoRedraw(false);
        list.letAutoCheckScroll(false);
    }
    ~SortOracle() override { Error().letSilentError(false); }

    unsigned below(unsigned limit) { return static_cast<unsigned>(random()) % limit; }

    /// Keeps the texts as the list's rows; each row can be told apart by its height.
    void fill(const std::vector<String>& texts) {
        list.RowsClear();
        for (const String& text : texts)
            list.RowsAdd(Long{-1}, u"", text);
        for (std::size_t i = 0; i < texts.size(); ++i) {
            inside.rows()[i].Height = static_cast<Single>(i);
            inside.rows()[i].Selected = i % 3 == 0;
        }
        desktop.runtime().boxes.clear();
        events.log.clear();
    }
    std::vector<PlainRow> rowsOfList() {
        std::vector<PlainRow> rows;
        for (const RowRecord& row : inside.rows())
            rows.push_back({row.items[0].Text(), row.Selected, row.Height});
        return rows;
    }
    /// Numbers of all reports, in order.
    std::vector<Long> reports() {
        std::vector<Long> numbers;
        for (const auto& box : desktop.runtime().boxes) {
            const std::string text = toUtf8(box.text);
            numbers.push_back(std::stoi(text.substr(text.find(": ") + 2)));
        }
        return numbers;
    }

    void sortStepwise(cSortType type, cSortMode mode) {
        Procedure p = inside.core().procedure(u"Stepwise");
        SortStepwise rows(list, inside.core().records, p, 1, type, mode);
        ordering::quickSort(rows, 0, list.RowsCount() - 1);
    }

    void expectSameOrder(const std::vector<String>& texts, cSortType type, cSortMode mode, bool silent) {
        fill(texts);
        std::vector<PlainRow> expected = rowsOfList();
        PlainQuickSort oracle(expected, type, mode == cDescending);
        oracle.run(0, static_cast<Long>(expected.size()) - 1);
        sortStepwise(type, mode);
        EXPECT_EQ(rowsOfList(), expected);
        EXPECT_EQ(reports(), oracle.reports);
        fill(texts);
        Error().letSilentError(silent);
        list.Sort(1, mode, type);
        Error().letSilentError(false);
        EXPECT_EQ(rowsOfList(), expected);
        EXPECT_EQ(reports(), silent ? std::vector<Long>{} : oracle.reports);
        EXPECT_EQ(events.log, std::vector<std::string>{"SortDone"});
    }

    void expectSameOrderByTwo(const std::vector<String>& texts, cSortType type) {
        fill(texts);
        for (const cSortMode mode : {cAscending, cDescending}) {
            for (const bool silent : {false, true}) {
                const auto byOne = ordering::orderAtOnce(inside.rows(), 0, type, mode, silent, Hands::one);
                EXPECT_TRUE(byOne == ordering::orderAtOnce(inside.rows(), 0, type, mode, silent, Hands::two));
                EXPECT_TRUE(!silent || byOne->size() == texts.size());
            }
        }
    }

    std::mt19937 random{20261121};
};

using Vocabulary = std::function<String(std::function<unsigned(unsigned)>)>;

struct Kind {
    const char* name;
    cSortType type;
    Vocabulary text;
};

String decimal(unsigned value) {
    return Variant(static_cast<Long>(value)).toText();
}

const Kind kinds[] = {
    {"few letters",
     cSortText,
     [](auto below) {
         String text;
         for (unsigned i = below(4); i > 0; --i)
             text += u"aAbB"[below(4)];
         return text;
     }},
    {"long texts with a common start",
     cSortText,
     [](auto below) { return u"The same start " + decimal(below(50)) + (below(2) != 0 ? u"" : u"x"); }},
    {"zeros and short texts",
     cSortText,
     [](auto below) { return String(below(12), u'\0') + (below(2) != 0 ? u"" : u"a"); }},
    {"letters past 255",
     cSortText,
     [](auto below) {
         String text;
         for (unsigned i = below(8); i > 0; --i)
             text += u"aZ\u00C4\u00E4\u0394\u03B4\u0416\xD83D"[below(8)];
         return text;
     }},
    {"numbers", cSortNumeric, [](auto below) { return decimal(below(300)); }},
    {"fractions and signs",
     cSortNumeric,
     [](auto below) {
         return (below(2) != 0 ? u"-" : u"") + decimal(below(20)) + u"." + decimal(below(100));
     }},
    {"many digits",
     cSortNumeric,
     [](auto below) { return u"0.1234567890123" + decimal(1000 + below(9000)) + decimal(below(100)); }},
    {"ties behind the fifteenth digit",
     cSortNumeric,
     [](auto below) { return u"1.00000000000000" + decimal(below(10)) + (below(2) != 0 ? u"4" : u"6"); }},
    {"too large for a pivot",
     cSortNumeric,
     [](auto below) { return below(4) == 0 ? u"1.7976931348623157E308" : decimal(below(9)); }},
    {"numbers, blanks and words",
     cSortNumeric,
     [](auto below) {
         constexpr const char16_t* others[] = {u"", u"  ", u"x", u"1e999", u"&H1F", u" 7 ", u"1,5", u".5"};
         return below(4) == 0 ? String(others[below(8)]) : decimal(below(40));
     }},
    {"words alone", cSortNumeric, [](auto below) { return String(1, u"xyz"[below(3)]); }},
    {"dates",
     cSortDate,
     [](auto below) {
         return u"20" + decimal(10 + below(20)) + u"-" + decimal(1 + below(12)) + u"-" +
                decimal(1 + below(28)) + (below(3) == 0 ? u" 12:30:0" + decimal(below(10)) : u"");
     }},
    {"dates, days, times, blanks and words",
     cSortDate,
     [](auto below) {
         constexpr const char16_t* others[] = {u"", u"31.2.2020", u"soon", u"12:00", u"-0.25", u"45351.257"};
         return below(3) == 0 ? String(others[below(6)])
                              : decimal(1 + below(28)) + u"." + decimal(1 + below(12)) + u".2024";
     }},
    {"a type that is none", static_cast<cSortType>(7), [](auto below) { return decimal(1 + below(9)); }},
};

TEST_F(SortOracle, RandomListsEndInTheOrderOfThePlainRoutineWithItsReports) {
    const auto draw = [this](unsigned limit) { return below(limit); };
    for (int round = 0; round < 60; ++round) {
        for (const Kind& kind : kinds) {
            // One row at least holds more than blanks, or nothing would be sorted.
            std::vector<String> texts{u"1"};
            for (unsigned i = round == 0 ? 0 : below(below(6) == 0 ? 60 : 12); i > 0; --i)
                texts.push_back(kind.text(draw));
            const bool descending = below(2) != 0;
            const bool silent = below(2) != 0;
            SCOPED_TRACE(std::string(kind.name) + ", round " + std::to_string(round));
            expectSameOrder(texts, kind.type, descending ? cDescending : cAscending, silent);
            if (HasFailure())
                return;
        }
    }
}

const Kind germanKinds[] = {
    {"marks of two kinds",
     cSortNumeric,
     [](auto below) {
         constexpr const char16_t* groups[] = {u"", u"1.", u"-20.", u"1.000."};
         return groups[below(4)] + decimal(100 + below(900)) + (below(2) != 0 ? u"," : u",0") +
                decimal(below(100));
     }},
    {"many digits behind the comma",
     cSortNumeric,
     [](auto below) { return u"0,1234567890123" + decimal(1000 + below(9000)) + decimal(below(100)); }},
    {"days first",
     cSortDate,
     [](auto below) {
         return decimal(1 + below(31)) + u"." + decimal(1 + below(12)) + u"." + decimal(1900 + below(200)) +
                (below(3) == 0 ? u" 23:59:5" + decimal(below(10)) : u"");
     }},
    {"days first, days, times and words",
     cSortDate,
     [](auto below) {
         constexpr const char16_t* others[] = {u"", u"2020-02-31", u"bald", u"12:00", u"-0,25", u"45351,257"};
         return below(3) == 0 ? String(others[below(6)])
                              : decimal(1 + below(28)) + u"/" + decimal(1 + below(12)) + u"/2024";
     }},
};

TEST_F(SortOracle, AnotherLocaleIsFollowedByKeysAndPivots) {
    desktop.runtime().letLocale(germanLocale());
    const auto draw = [this](unsigned limit) { return below(limit); };
    for (int round = 0; round < 60; ++round) {
        for (const Kind& kind : germanKinds) {
            std::vector<String> texts{u"1"};
            for (unsigned i = below(below(6) == 0 ? 60 : 12); i > 0; --i)
                texts.push_back(kind.text(draw));
            const bool silent = below(2) != 0;
            SCOPED_TRACE(std::string(kind.name) + ", round " + std::to_string(round));
            expectSameOrder(texts, kind.type, below(2) != 0 ? cDescending : cAscending, silent);
            if (HasFailure())
                return;
        }
    }
}

TEST_F(SortOracle, LongListsEndInTheOrderOfThePlainRoutine) {
    const auto draw = [this](unsigned limit) { return below(limit); };
    for (const Kind& kind : kinds) {
        std::vector<String> texts{u"1"};
        for (unsigned i = 500 + below(1500); i > 0; --i)
            texts.push_back(kind.text(draw));
        SCOPED_TRACE(kind.name);
        expectSameOrder(texts, kind.type, cAscending, true);
        expectSameOrder(texts, kind.type, cDescending, true);
    }
}

/// Numbers for which each pivot is the largest of its range: dealt out by running the scheme backwards.
std::vector<Long> killerSequence(Long count) {
    std::vector<Long> positions;
    std::vector<Long> values(static_cast<std::size_t>(count));
    for (Long i = 0; i < count; ++i)
        positions.push_back(i);
    for (Long last = count - 1; last >= 0; --last) {
        const auto middle = static_cast<std::size_t>(ordering::middleOf(0, last));
        values[static_cast<std::size_t>(positions[middle])] = last;
        std::swap(positions[middle], positions[static_cast<std::size_t>(last)]);
    }
    return values;
}

struct Shape {
    const char* name;
    std::function<Long(Long, Long)> value; ///< of a 0-based place among so many
};

const Shape shapes[] = {
    {"sorted", [](Long i, Long) { return i; }},
    {"reversed", [](Long i, Long count) { return count - i; }},
    {"equal", [](Long, Long) { return 7; }},
    {"organ pipe", [](Long i, Long count) { return std::min(i, count - i); }},
    {"valley", [](Long i, Long count) { return std::max(i, count - i); }},
    {"killer", [](Long i, Long count) { return killerSequence(count)[static_cast<std::size_t>(i)]; }},
};

TEST_F(SortOracle, ShapesThatSplitBadlyEndInTheOrderOfThePlainRoutine) {
    for (const Shape& shape : shapes) {
        for (const Long count : {1, 2, 3, 4, 5, 6, 500}) {
            std::vector<String> texts;
            for (Long i = 0; i < count; ++i)
                texts.push_back(Variant(1000 + shape.value(i, count)).toText());
            SCOPED_TRACE(std::string(shape.name) + " " + std::to_string(count));
            for (const cSortType type : {cSortText, cSortNumeric}) {
                expectSameOrder(texts, type, cAscending, false);
                expectSameOrder(texts, type, cDescending, false);
            }
        }
    }
}

TEST_F(SortOracle, TwoThreadsFindTheOrderOfOneInListsOfAnyKind) {
    const auto draw = [this](unsigned limit) { return below(limit); };
    for (const Kind& kind : kinds) {
        if (kind.type != cSortText && kind.type != cSortNumeric && kind.type != cSortDate)
            continue;
        // Long enough for ranges that change hands; the kinds alone hold many equal rows, and half the time a
        // running number sets them apart.
        for (const bool apart : {false, true}) {
            std::vector<String> texts{u"1"};
            for (Long i = 0; i < 10'000; ++i)
                texts.push_back(kind.text(draw) + (apart ? decimal(below(100'000)) : String()));
            SCOPED_TRACE(std::string(kind.name) + (apart ? ", apart" : ""));
            expectSameOrderByTwo(texts, kind.type);
        }
    }
}

TEST_F(SortOracle, TwoThreadsFindTheOrderOfOneInShapesThatSplitBadly) {
    constexpr Long count = 12'000;
    for (const Shape& shape : shapes) {
        // Its time grows with the square of its length, and its ranges never change hands.
        if (std::string(shape.name) == "killer")
            continue;
        std::vector<String> texts;
        for (Long i = 0; i < count; ++i)
            texts.push_back(Variant(100'000 + shape.value(i, count)).toText());
        SCOPED_TRACE(shape.name);
        expectSameOrderByTwo(texts, cSortText);
        expectSameOrderByTwo(texts, cSortNumeric);
    }
}

TEST_F(SortOracle, AKillerSequenceDoesNotExhaustTheStack) {
    // Recursion would go as many levels deep as there are rows.
    std::vector<String> texts;
    for (const Long value : killerSequence(20'000))
        texts.push_back(Variant(value).toText());
    fill(texts);
    list.Sort(1, cAscending, cSortNumeric);
    for (Long row = 1; row < 20'000; ++row)
        ASSERT_LE(std::stoi(toUtf8(list.ItemText(row, 1))), std::stoi(toUtf8(list.ItemText(row + 1, 1))));
}

TEST_F(SortOracle, APivotThatIsNoValueOfTheColumnEnds) {
    // In fifteen digits both are 0.123456789012346, which lies above all rows; the scan runs out of them.
    const std::vector<String> texts{u"0.12345678901234567", u"0.12345678901234565"};
    expectSameOrder(texts, cSortNumeric, cAscending, false);
    EXPECT_EQ(reports(), (std::vector<Long>{9, 13}));
    expectSameOrder(texts, cSortNumeric, cAscending, true);
}

TEST_F(SortOracle, RowsThatAHostRemovesOrChangesDuringAReportAreNotTouched) {
    fill({u"3", u"x", u"1", u"y", u"2", u"", u"0"});
    int boxes = 0;
    desktop.runtime().whileBoxIsOpen = [&] {
        if (++boxes % 2 == 0 && list.RowsCount() > 3)
            list.RowsRemove(Long{1});
        else if (boxes < 20)
            list.letItemText(1, 1, u"z");
    };
    list.Sort(1, cAscending, cSortNumeric);
    EXPECT_EQ(events.log, std::vector<std::string>{"SortDone"});
    EXPECT_GT(boxes, 2);
    // What is left are whole rows of before, each once: its height still tells which one it was.
    const std::vector<PlainRow> left = rowsOfList();
    EXPECT_EQ(left.size(), 3U);
    const std::vector<String> before{u"3", u"x", u"1", u"y", u"2", u"", u"0"};
    std::set<Single> seen;
    for (const PlainRow& row : left) {
        EXPECT_TRUE(seen.insert(row.height).second) << row.height;
        EXPECT_TRUE(row.text == u"z" || row.text == before.at(static_cast<std::size_t>(row.height)));
    }
}

TEST_F(SortOracle, ReportsNameTheRoutineOfTheDirection) {
    fill({u"x", u"1"});
    list.Sort(1, cAscending, cSortNumeric);
    EXPECT_EQ(lastReport(), "13 QuickSortAsc");
    list.Sort(1, cDescending, cSortDate);
    EXPECT_EQ(lastReport(), "13 QuickSortDesc");
}

TEST_F(SortOracle, ARowWithoutTheCellIsReportedByTheAccessorAndReadsEmpty) {
    fill({u"b", u"a", u"c"});
    inside.rows()[1].items = Items::create(0);
    list.Sort(1, cAscending);
    EXPECT_GT(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "9 ItemText");
    EXPECT_EQ(inside.rows()[0].Height, 1) << "the empty text comes first";
    Error().letSilentError(true);
    list.Sort(1, cDescending);
    Error().letSilentError(false);
    EXPECT_EQ(inside.rows()[2].Height, 1);
}

TEST(MiddleOf, HalvesRoundToTheEvenPosition) {
    for (Long first = 0; first < 9; ++first) {
        for (Long last = first; last < 12; ++last)
            EXPECT_EQ(ordering::middleOf(first, last),
                      static_cast<Long>(std::nearbyint((first + last) / 2.0)));
    }
    EXPECT_EQ(ordering::middleOf(1, 2), 2);
    EXPECT_EQ(ordering::middleOf(2, 3), 2);
    EXPECT_EQ(ordering::middleOf(2147483640, 2147483646), 2147483643);
}

} // namespace lumtex::testing

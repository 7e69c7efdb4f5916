/// A search matches at once, by a pattern that was read beforehand, else by a call of the module for each
/// cell. Both find the same cells and say the same of faulty patterns.
#include "list_fixture.h"
#include "ordering/like_comp.h"

#include <random>

namespace lumtex::testing {
namespace {

constexpr Long rows = 12;
constexpr Long columns = 3;

class FindingPair : public ListFixture {
  protected:
    FindingPair() {
        addColumns({60, 60, 60});
        list.letAutoRedraw(false);
        list.letAutoCheckScroll(false);
        addRows(rows);
    }

    char16_t pick(StringView units) { return units[random_() % units.size()]; }
    String text() {
        String text;
        for (std::size_t i = random_() % 8; i > 0; --i)
            text += pick(u"aaabBC1!-]\u00E4\u00C4\u0416\u0436");
        return text;
    }
    String pattern() {
        String pattern;
        for (std::size_t i = 1 + random_() % 6; i > 0; --i) {
            if (random_() % 7 == 0)
                pattern += String(u"[") + pick(u"!ab-") + pick(u"-abB") + pick(u"bc-]") + u"]";
            else
                pattern += pick(u"***??#aabB1\u00E4\u0416-!");
        }
        return random_() % 40 == 0 ? pattern + u"[" : pattern;
    }

    /// The cells for which `matches` holds, and how many reports came.
    std::string found(const std::function<bool(Long row, Long column)>& matches) {
        desktop.runtime().boxes.clear();
        std::string cells;
        for (Long row = 1; row <= rows; ++row) {
            for (Long column = 1; column <= columns; ++column) {
                if (matches(row, column))
                    cells += std::to_string(row) + "," + std::to_string(column) + " ";
            }
        }
        return cells + "reports " + std::to_string(reportCount());
    }
    std::string foundAtOnce(StringView pattern, cFindCompare compare) {
        return found([&](Long row, Long column) {
            String inColumns = Variant(column).toText() + u",";
            String inRows = Variant(row).toText() + u",";
            return list.FindItem(pattern, cFindStart, compare, inColumns, inRows).FindSuccessful;
        });
    }
    std::string foundStepwise(StringView pattern, cFindCompare compare) {
        const auto module = compare == cFindBinary ? ordering::LikeCompBinary : ordering::LikeCompText;
        return found([&](Long row, Long column) {
            return module(desktop.runtime(), list.ItemText(row, column), pattern);
        });
    }

  private:
    std::mt19937 random_{20261122};
};

TEST_F(FindingPair, AtOnceAndByTheModuleTheSameCellsAreFound) {
    int hits = 0;
    int faulty = 0;
    for (int round = 0; round < 300; ++round) {
        for (Long row = 1; row <= rows; ++row) {
            for (Long column = 1; column <= columns; ++column)
                list.letItemText(row, column, text());
        }
        const String sought = pattern();
        for (const cFindCompare compare : {cFindBinary, cFindText}) {
            const std::string expected = foundStepwise(sought, compare);
            ASSERT_EQ(foundAtOnce(sought, compare), expected) << toUtf8(sought);
            // Over all cells, rows may be refused whole.
            const FindResults first = list.FindItem(sought, cFindStart, compare);
            const std::string place =
                std::to_string(first.FindRow) + "," + std::to_string(first.FindColumn) + " ";
            if (first.FindSuccessful)
                ASSERT_TRUE(expected.starts_with(place)) << toUtf8(sought) << ": " << place << expected;
            else
                ASSERT_EQ(expected.front(), 'r') << toUtf8(sought) << ": " << expected;
            hits += expected.front() != 'r' ? 1 : 0;
            faulty += expected.ends_with("reports 36") ? 1 : 0;
        }
    }
    EXPECT_GT(hits, 150);
    EXPECT_GT(faulty, 5);
}

} // namespace
} // namespace lumtex::testing

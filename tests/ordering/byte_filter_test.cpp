/// A quick look at a text's bytes refuses only what does not match.
#include "ordering/byte_filter.h"
#include "ordering/like_pattern.h"

#include <random>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using ordering::ByteFilter;
using ordering::LikePattern;

class Draws {
  public:
    std::size_t below(std::size_t limit) { return random_() % limit; }
    String text(StringView units, std::size_t longest) {
        String text;
        for (std::size_t i = below(longest + 1); i > 0; --i)
            text += units[below(units.size())];
        return text;
    }

  private:
    std::mt19937 random_{20261122};
};

TEST(ByteFilter, RefusesNoTextThatMatches) {
    Draws draws;
    int refused = 0;
    int matched = 0;
    for (int round = 0; round < 20000; ++round) {
        const String pattern = u"*" + draws.text(u"aAbKk1?#\u00E4\u00C4\u00B5\u03BC\u0416\u212A", 3) +
                               (round % 8 != 0 ? u"*" : u"");
        // Up to fifteen units stay inside a cell; longer texts, and wide ones, do not.
        const String text = draws.text(round % 3 != 0 ? u"aAbBkK1\u00E4\u00B5" : u"aK1\u0436\u212A", 40);
        const CompactText cell(text);
        for (const auto letters : {LikePattern::byUnit, LikePattern::folded}) {
            const LikePattern like(pattern, letters);
            const bool may = like.filter().mayMatch(cell);
            matched += like.matches(text) ? 1 : 0;
            refused += may ? 0 : 1;
            ASSERT_TRUE(may || !like.matches(text)) << "round " << round;
        }
    }
    EXPECT_GT(matched, 1000);
    EXPECT_GT(refused, 1000);
}

TEST(ByteFilter, AsksForTwoBytesInOneCaseOrBoth) {
    const auto may = [](StringView pattern, LikePattern::Letters letters, StringView text) {
        return LikePattern(pattern, letters).filter().mayMatch(CompactText(text));
    };
    for (const StringView rest : {u"", u" and much that lies outside the cell"}) {
        const auto with = [&](StringView start) { return String(start) + String(rest); };
        EXPECT_FALSE(may(u"*Q7*", LikePattern::byUnit, with(u"q7")));
        EXPECT_FALSE(may(u"*Q7*", LikePattern::folded, with(u"q6")));
        EXPECT_FALSE(may(u"*Q7*", LikePattern::folded, with(u"7q")));
        EXPECT_FALSE(may(u"*Q7*", LikePattern::byUnit, with(u"Q 7")));
        EXPECT_TRUE(may(u"*Q7*", LikePattern::folded, with(u"-q7")));
        EXPECT_TRUE(may(u"*Q?7*", LikePattern::byUnit, with(u"7Q"))) << "the order is left to the pattern";
        EXPECT_FALSE(may(u"*Q*7*", LikePattern::byUnit, with(u"q7")));
        EXPECT_FALSE(may(u"*Q*?*", LikePattern::byUnit, with(u"q7")));
        EXPECT_FALSE(may(u"Q7*", LikePattern::byUnit, with(u"q7")))
            << "what stands at an end is asked for too";
    }
}

TEST(ByteFilter, FindsTwoBytesWhereverTheyStandInATextOfAnyLength) {
    const ByteFilter filter = LikePattern(u"*Q7*", LikePattern::byUnit).filter();
    for (std::size_t size = 2; size <= 70; ++size) {
        for (std::size_t i = 0; i + 1 < size; ++i) {
            String text(size, u'x');
            text[i] = u'Q';
            EXPECT_FALSE(filter.mayMatch(CompactText(text)));
            text[i + 1] = u'7';
            EXPECT_TRUE(filter.mayMatch(CompactText(text))) << size << " letters, at " << i;
        }
    }
}

TEST(ByteFilter, MarksOfSeveralTextsTellOfOneAmongThem) {
    for (const StringView pattern : {u"*Q7*", u"*Q?7*", u"*Q*"}) {
        const ByteFilter filter = LikePattern(pattern, LikePattern::byUnit).filter();
        const CompactText without(u"seven");
        const CompactText with(u"a long text in which Q77 stands somewhere");
        ByteFilter::Marks marks;
        EXPECT_FALSE(marks.any());
        marks |= filter.marksOf(without);
        EXPECT_FALSE(marks.any());
        marks |= filter.marksOf(with);
        marks |= filter.marksOf(without);
        EXPECT_TRUE(marks.any());
    }
}

TEST(ByteFilter, WithoutDemandsLetsAllThrough) {
    EXPECT_TRUE(ByteFilter().mayMatch(CompactText(u"")));
    EXPECT_TRUE(LikePattern(u"*[ab]?#*", LikePattern::byUnit).filter().mayMatch(CompactText(u"")));
}

} // namespace
} // namespace lumtex::testing

/// Short texts a block at a time give what a loop over their units gives.
#include "values/unit_blocks.h"

#include <random>
#include <vector>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class UnitBlocks : public ::testing::Test {
  protected:
    /// Few different units, so that those looked for come more than once and beside near ones.
    String text() {
        String text(random_() % 40, u'\0');
        for (char16_t& unit : text)
            unit = StringView(u"ab|\u007D\u017C\u7C00\u8000\uFFFF")[random_() % 8];
        return text;
    }

  private:
    std::mt19937 random_{20261123};
};

TEST_F(UnitBlocks, FindTheFirstUnit) {
    for (int round = 0; round < 20000; ++round) {
        const String units = text();
        ASSERT_EQ(indexOfUnit(units, u'|'), units.find(u'|')) << "round " << round;
        ASSERT_EQ(indexOfUnit(units, u'\0'), StringView::npos) << "round " << round;
    }
}

TEST_F(UnitBlocks, GatherTheBitsOfAll) {
    for (int round = 0; round < 20000; ++round) {
        const String units = text();
        char16_t expected = 0;
        for (const char16_t unit : units)
            expected = static_cast<char16_t>(expected | unit);
        ASSERT_EQ(bitsOf(units.data(), units.size()), expected) << "round " << round;
    }
}

TEST_F(UnitBlocks, CopyAllAndNothingBehind) {
    for (int round = 0; round < 20000; ++round) {
        const String units = text();
        std::vector<unsigned char> copy(units.size() + 1, 7);
        std::vector<unsigned char> expected;
        for (const char16_t unit : units)
            expected.push_back(static_cast<unsigned char>(unit));
        expected.push_back(7);
        ASSERT_EQ(copyUnits(units.data(), units.size(), copy.data()), bitsOf(units.data(), units.size()));
        ASSERT_EQ(copy, expected) << "round " << round;
    }
}

} // namespace
} // namespace lumtex::testing

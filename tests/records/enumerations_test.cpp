#include "records/enumerations.h"

#include <gtest/gtest.h>

namespace lumtex::testing {

TEST(Enumerations, HaveTheNumbersThatHostsStore) {
    EXPECT_EQ(std::vector<Long>({cXPBlue, cXPSilver, cXPOlive, cCustom}), std::vector<Long>({0, 1, 2, 99}));
    EXPECT_EQ(std::vector<Long>({cXPScrollBlue, cXPScrollSilver, cXPScrollOlive, cScrollCustom}),
              std::vector<Long>({0, 1, 2, 99}));
    EXPECT_EQ(std::vector<Long>({cWheelScroll, cWheelListIndex, cWheelOff}), std::vector<Long>({0, 1, 2}));
    EXPECT_EQ(std::vector<Long>({cDefault, cCheckBoxes}), std::vector<Long>({0, 1}));
    EXPECT_EQ(std::vector<Long>({cColumnLeft, cColumnCenter, cColumnRight}), std::vector<Long>({0, 1, 2}));
    EXPECT_EQ(std::vector<Long>({cItemLeft, cItemCenter, cItemRight}), std::vector<Long>({0, 1, 2}));
    EXPECT_EQ(std::vector<Long>({cTextPosTop, cTextPosCenter, cTextPosBottom}), std::vector<Long>({0, 1, 2}));
    EXPECT_EQ(std::vector<Long>({cAscending, cDescending}), std::vector<Long>({1, 2}));
    EXPECT_EQ(std::vector<Long>({cSortText, cSortNumeric, cSortDate}), std::vector<Long>({0, 1, 2}));
    EXPECT_EQ(std::vector<Long>({cFindStart, cFindContinue}), std::vector<Long>({0, 1}));
    EXPECT_EQ(std::vector<Long>({cFindBinary, cFindText}), std::vector<Long>({0, 1}));
}

} // namespace lumtex::testing

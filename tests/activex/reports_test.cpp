/// A failure of a list that nobody placed is told as any other one is.
#include "component.h"

namespace lumtex::testing {
namespace {

class Reports : public ListFixture {};

TEST_F(Reports, AListWithoutAContainerTellsAFailureByABox) {
    silence(false);
    EXPECT_EQ(get(L"RowSelectedCount"), Variant(Long{0})) << "a list that never had a row has no records";
    const std::vector<String> boxes = std::exchange(watch.boxes, {});
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(boxes[0].starts_with(u"Error no.: 9\r\n")) << toUtf8(boxes[0]);
    EXPECT_NE(boxes[0].find(u"\r\nProject: LumtexListView\r\n"), String::npos) << toUtf8(boxes[0]);
    EXPECT_NE(boxes[0].find(u"/RowSelectedCount\r\n"), String::npos) << toUtf8(boxes[0]);
}

TEST_F(Reports, SilentErrorOfAnyErrorObjectIsTheOnlySwitch) {
    EXPECT_EQ(get(L"RowSelectedCount"), Variant(Long{0}));
    EXPECT_TRUE(watch.boxes.empty());
}

} // namespace
} // namespace lumtex::testing

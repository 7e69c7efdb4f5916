/// A row comes in at the front although there is no memory for room there.
#include "failures/failing_memory.h"
#include "records/row_array.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

TEST(RowsWithoutMemory, ComeInAtTheFrontAllTheSame) {
    constexpr int count = 3000;
    RowArray rows;
    for (int i = 0; i < count; ++i) {
        rows.append();
        rows.back().Height = static_cast<Single>(i);
    }
    rows.append();
    rows.back().Height = count;
    FailingMemory::arm(
        1, FailingMemory::Which::allFromThere, [](const void* /*context*/) { return true; }, nullptr);
    rows.moveLastTo(0);
    EXPECT_GT(FailingMemory::disarm(), 0);
    ASSERT_EQ(rows.size(), std::size_t{count} + 1);
    EXPECT_EQ(rows[0].Height, count);
    for (int i = 0; i < count; ++i)
        ASSERT_EQ(rows[static_cast<std::size_t>(i) + 1].Height, static_cast<Single>(i));
}

} // namespace
} // namespace lumtex::testing

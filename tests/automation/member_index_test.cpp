#include "automation/class_table.h"

#include <set>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using automation::Member;

String inCapitals(StringView name) {
    String capitals(name);
    for (char16_t& unit : capitals)
        if (unit >= u'a' && unit <= u'z')
            unit = static_cast<char16_t>(unit - u'a' + u'A');
    return capitals;
}

TEST(MemberIndex, FindsEachMemberOfEachClassAsAWalkOverTheTableDoes) {
    for (const automation::ClassDescription& description : automation::classTable())
        for (const Member& member : description.members) {
            EXPECT_EQ(description.index.find(member.number), &member);
            EXPECT_EQ(description.index.find(member.name), &member);
            EXPECT_EQ(description.index.find(inCapitals(member.name)), &member);
        }
}

TEST(MemberIndex, KnowsNoOtherNumber) {
    for (const automation::ClassDescription& description : automation::classTable()) {
        std::set<Long> numbers;
        for (const Member& member : description.members)
            numbers.insert(member.number);
        for (Long number = -1000; number <= 3000; ++number)
            EXPECT_EQ(description.index.find(number) != nullptr, numbers.contains(number)) << number;
    }
}

TEST(MemberIndex, KnowsNoOtherName) {
    const automation::MemberIndex& index = automation::listViewClass().index;
    EXPECT_EQ(index.find(u""), nullptr);
    EXPECT_EQ(index.find(u"RowsAd"), nullptr);
    EXPECT_EQ(index.find(u"RowsAdds"), nullptr);
    EXPECT_NE(index.find(u"ItemsCheckedCount"), nullptr);
    // The Kelvin sign is a letter k to the world, and none to names.
    EXPECT_EQ(index.find(u"ItemsChec\u212AedCount"), nullptr);
}

} // namespace
} // namespace lumtex::testing

/// Dates that a reader met before are known by their texts, and never taken for another's.
#include "ordering/number_rows.h"
#include "ordering/sort_keys.h"
#include "values/variant.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using ordering::numberKey;
using ordering::NumberReader;

String digits(Long value) {
    return Variant(value).toText();
}

TEST(NumberReader, GivesEachDateItsOwnKeyHoweverManyItMet) {
    NumberReader reader(cSortDate);
    // All start with the same eight units, and are so many that places for known ones are shared.
    for (const int turn : {1, 2}) {
        for (Long minute = 0; minute < 24 * 60; ++minute) {
            const String text =
                u"2010-1-1 " + digits(minute / 60) + u":" + digits(100 + minute % 60).substr(1);
            ASSERT_EQ(reader.read(CompactText(text)), numberKey(text, cSortDate)) << turn << " " << minute;
        }
    }
}

TEST(NumberReader, KeepsNothingOfWhatIsNoDate) {
    NumberReader reader(cSortDate);
    for (const int turn : {1, 2}) {
        for (const StringView text : {u"", u"soon", u"2020-02-31 or so, as one says"}) {
            const Double key = reader.read(CompactText(text));
            EXPECT_NE(key, key) << turn;
        }
        EXPECT_EQ(reader.read(CompactText(u"0")), 0.0);
        EXPECT_EQ(reader.read(CompactText(u"2020-02-29")), numberKey(u"2020-02-29", cSortDate));
    }
}

} // namespace
} // namespace lumtex::testing

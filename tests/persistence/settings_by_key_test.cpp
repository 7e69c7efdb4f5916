/// Properties of a list by their keys in the bag.
#include "list_fixture.h"
#include "persistence/settings_by_key.h"
#include "platform/property_bag.h"
#include "values/runtime_error.h"
#include "variant_printing.h"

namespace lumtex::testing {
namespace {

class SettingsOfAList : public ListFixture {
  protected:
    SettingsByKey settings{list};
};

TEST_F(SettingsOfAList, AreAssignedAndReadByTheirKeys) {
    settings.let(u"GridLines", true);
    EXPECT_TRUE(list.GridLines());
    list.letRowHeight(300);
    EXPECT_EQ(settings.value(u"RowHeight"), Variant(Single{300}));
}

TEST_F(SettingsOfAList, AreReachedByTheirKeysAlsoWhereTheyAreNoMembers) {
    host.changed.clear();
    settings.let(u"AllowItemMoving", true);
    EXPECT_EQ(settings.value(u"AllowItemMoving"), Variant(true));
    EXPECT_EQ(host.changed, std::vector<String>{u"AllowItemMoving"});
    MemoryPropertyBag bag;
    list.UserControl_WriteProperties(bag);
    EXPECT_EQ(bag.ReadProperty(u"AllowItemMoving", false), Variant(true));
    settings.reset(u"AllowItemMoving");
    EXPECT_EQ(settings.value(u"AllowItemMoving"), Variant(false));
}

TEST_F(SettingsOfAList, AreResetToWhatTheyAreInANewList) {
    list.letScrollButtonJumpLines(9);
    settings.reset(u"ScrollButtonJumpLines");
    EXPECT_EQ(list.ScrollButtonJumpLines(), 1);
}

TEST_F(SettingsOfAList, KeepTheirValueWhereTheNewOneCannotBeConverted) {
    EXPECT_THROW(settings.let(u"GridLines", u"perhaps"), RuntimeError);
    EXPECT_FALSE(list.GridLines());
}

TEST_F(SettingsOfAList, ReadAsEmptyUnderAnyOtherKey) {
    host.changed.clear();
    settings.let(u"RowsCount", Long{7});
    settings.reset(u"RowsCount");
    EXPECT_EQ(settings.value(u"RowsCount"), Variant());
    EXPECT_EQ(host.changed, std::vector<String>());
}

} // namespace
} // namespace lumtex::testing

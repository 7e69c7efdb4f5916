#include "list_fixture.h"

namespace lumtex::testing {

/// The editor is open over the first cell and holds what was typed.
class Editor : public ListFixture {
  protected:
    Editor() {
        addColumns({50});
        addRows(1, u"old");
        inside.editor().letVisible(true);
        inside.editor().setFocus();
        inside.editor().letText(u"new");
    }
};

// Wanted: raised for an unchanged text too.
TEST_F(Editor, EnterStoresTheTextAndTellsTheHostEachTime) {
    desktop.type(u"\r");
    EXPECT_EQ(list.ItemText(1, 1), u"new");
    EXPECT_FALSE(inside.editor().Visible());
    EXPECT_EQ(inside.editor().Text(), u"");
    inside.editor().letVisible(true);
    inside.editor().setFocus();
    inside.editor().letText(u"new");
    desktop.type(u"\r");
    EXPECT_EQ(events.log,
              (std::vector<std::string>{"ItemChanged Row=1 Column=1 NewValue=new",
                                        "ItemChanged Row=1 Column=1 NewValue=new"}));
}

// Wanted: a loss of focus throws the typing away.
TEST_F(Editor, ALossOfFocusThrowsTheTypingAway) {
    list.window().setFocus();
    EXPECT_FALSE(inside.editor().Visible());
    EXPECT_EQ(list.ItemText(1, 1), u"old");
    EXPECT_TRUE(events.log.empty());
}

TEST_F(Editor, StopEditKeepsTheTypedTextInTheBox) {
    list.StopEdit();
    EXPECT_FALSE(inside.editor().Visible());
    EXPECT_FALSE(inside.editor().TabStop());
    EXPECT_EQ(inside.editor().Text(), u"new");
    EXPECT_EQ(list.ItemText(1, 1), u"old");
}

} // namespace lumtex::testing

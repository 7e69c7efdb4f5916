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

/// A desktop that keeps to whom the box tells its keys, to see what is left of one.
class KeyedWorld final : public World {
  public:
    Runtime& runtime() override { return desktop_.runtime(); }
    TipPlatform& tips() override { return desktop_.tips(); }
    std::unique_ptr<Window> createWindow(Window* parent, UserControl& client) override {
        return desktop_.createWindow(parent, client);
    }
    std::unique_ptr<Window> createForm(UserControl& client) override { return desktop_.createForm(client); }
    void showModal(Window& form) override { desktop_.showModal(form); }
    Point screenSize() const override { return desktop_.screenSize(); }
    std::unique_ptr<TextBox> createTextBox(Window& parent, TextBoxClient& client) override {
        told_ = &client;
        return desktop_.createTextBox(parent, client);
    }
    std::unique_ptr<GuideLine> createGuideLine(Window& parent) override {
        return desktop_.createGuideLine(parent);
    }
    std::unique_ptr<Timer> createTimer(std::function<void()> onTimer) override {
        return desktop_.createTimer(std::move(onTimer));
    }
    std::unique_ptr<Surface> createSurface(Long width, Long height) override {
        return desktop_.createSurface(width, height);
    }

    Integer leftOf(Integer key) {
        told_->textBoxKeyPress(key);
        return key;
    }

  private:
    headless::Desktop desktop_{testFonts()};
    TextBoxClient* told_ = nullptr;
};

TEST(EditorKeys, EnterIsSwallowedAndNoOther) {
    KeyedWorld world;
    TestHost host;
    RecordingEvents events;
    lmListView list(world, host, events);
    list.UserControl_InitProperties();
    list.ColumnsAdd(u"");
    list.RowsAdd();
    list.SetEdit(1, 1);
    EXPECT_EQ(world.leftOf(u'a'), u'a');
    EXPECT_EQ(world.leftOf(27), 27);
    EXPECT_EQ(world.leftOf(13), 0);
    EXPECT_EQ(events.log, std::vector<std::string>{"ItemChanged Row=1 Column=1 NewValue="});
}

// Wanted: a loss of focus throws the typing away.
TEST_F(Editor, ALossOfFocusThrowsTheTypingAway) {
    list.window().setFocus();
    EXPECT_FALSE(inside.editor().Visible());
    EXPECT_EQ(list.ItemText(1, 1), u"old");
    EXPECT_TRUE(events.log.empty());
}

TEST_F(Editor, IsAStopOfTheTabulatorWhileItIsOpen) {
    list.StopEdit();
    EXPECT_FALSE(inside.editor().TabStop());
    list.SetEdit(1, 1);
    EXPECT_TRUE(inside.editor().TabStop());
}

TEST_F(Editor, StopEditKeepsTheTypedTextInTheBox) {
    list.StopEdit();
    EXPECT_FALSE(inside.editor().Visible());
    EXPECT_FALSE(inside.editor().TabStop());
    EXPECT_EQ(inside.editor().Text(), u"new");
    EXPECT_EQ(list.ItemText(1, 1), u"old");
}

} // namespace lumtex::testing

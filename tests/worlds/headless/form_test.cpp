#include "desktop_fixture.h"

namespace lumtex::testing {

class Forms : public DesktopFixture {
  protected:
    class Sheet final : public UserControl {
      public:
        std::vector<Integer> keys;
        void UserControl_KeyDown(Integer KeyCode, Integer /*Shift*/) override { keys.push_back(KeyCode); }
    };

    Sheet sheet;
    std::unique_ptr<Window> form = desktop.createForm(sheet);
};

TEST_F(Forms, AreHiddenAtFirstAndLieOnTheScreen) {
    EXPECT_FALSE(form->Visible());
    form->place(100, 200, 30, 40);
    EXPECT_EQ(desktop.onDesktop(*form, 0, 0), (Point{100, 200}));
}

TEST_F(Forms, AModalOneIsShownWithTheFocusUntilTheLoopHasRun) {
    bool ran = false;
    desktop.whileFormIsOpen = [&](Window& window) {
        ran = true;
        EXPECT_EQ(&window, form.get());
        EXPECT_TRUE(window.Visible());
        EXPECT_EQ(desktop.focused(), window.hWnd());
        EXPECT_EQ(desktop.yieldDepth(), 1);
        desktop.postKeyDown(112);
    };
    desktop.showModal(*form);
    EXPECT_TRUE(ran);
    EXPECT_FALSE(form->Visible());
    EXPECT_EQ(sheet.keys, std::vector<Integer>{112});
}

TEST_F(Forms, HostCodeMayTakeItselfBack) {
    int opened = 0;
    desktop.whileFormIsOpen = [&](Window& /*window*/) {
        ++opened;
        desktop.whileFormIsOpen = nullptr;
    };
    desktop.showModal(*form);
    desktop.showModal(*form);
    EXPECT_EQ(opened, 1);
}

TEST_F(Forms, FormsThatOpenFormsEndAtTheBound) {
    int opened = 0;
    desktop.whileFormIsOpen = [&](Window& window) {
        ++opened;
        desktop.showModal(window);
    };
    desktop.showModal(*form);
    EXPECT_EQ(opened, headless::EventLoop::deepest);
    EXPECT_EQ(desktop.yieldDepth(), 0);
}

} // namespace lumtex::testing

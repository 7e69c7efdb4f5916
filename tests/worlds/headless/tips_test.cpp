#include "desktop_fixture.h"

namespace lumtex::testing {

class TipClass : public DesktopFixture {
  protected:
    WindowHandle made() {
        tips.initCommonControls();
        return tips.createWindow(form);
    }
    ToolInfo tool(WindowHandle id, StringView text) const {
        return {.size = HeadlessTips::toolInfoSize,
                .flags = 17,
                .owner = a->window().hWnd(),
                .id = id,
                .text = String(text)};
    }

    HeadlessTips& tips = desktop.tips();
    const TipWindowForm form{
        .extendedStyle = 0, .className = u"tooltips_class32", .style = 1, .owner = a->window().hWnd()};
};

TEST_F(TipClass, IsThereOnceItWasInitialised) {
    EXPECT_EQ(tips.createWindow(form), 0);
    EXPECT_NE(made(), 0);
}

TEST_F(TipClass, IsTheOnlyOne) {
    tips.initCommonControls();
    EXPECT_EQ(tips.createWindow({.extendedStyle = 0, .className = u"button", .style = 1, .owner = 0}), 0);
}

TEST_F(TipClass, RefusesARecordOfAnotherSize) {
    const WindowHandle window = made();
    ToolInfo wrong = tool(1, u"a");
    wrong.size = 44;
    EXPECT_EQ(tips.send(window, ttmAddTool, 0, wrong), 0);
    EXPECT_EQ(tips.send(window, ttmGetToolCount, 0, 0), 0);
}

TEST_F(TipClass, EnumeratesByIndexAndFillsNoMoreThanTheBuffer) {
    const WindowHandle window = made();
    ToolInfo added = tool(7, u"abcdef");
    tips.send(window, ttmAddTool, 0, added);
    ToolInfo read{
        .size = HeadlessTips::toolInfoSize, .flags = 0, .owner = 0, .id = 0, .text = String(3, u'-')};
    EXPECT_EQ(tips.send(window, ttmEnumTools, 0, read), 1);
    EXPECT_EQ(read.id, 7);
    EXPECT_EQ(read.flags, 17);
    EXPECT_EQ(read.owner, a->window().hWnd());
    EXPECT_EQ(read.text, u"abc");
    EXPECT_EQ(tips.send(window, ttmEnumTools, 1, read), 0);
    EXPECT_EQ(tips.send(window, ttmEnumTools, -1, read), 0);
}

TEST_F(TipClass, OneNumberSetsAllThreeTimes) {
    struct Row {
        const char* name;
        Long milliseconds;
        Long reshow;
        Long autoPop;
        Long initial;
    };
    constexpr Row rows[] = {
        {"a second", 1000, 200, 10000, 1000},
        {"below 0 the usual times", -1, 100, 5000, 500},
        {"none", 0, 0, 0, 0},
    };
    const WindowHandle window = made();
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        tips.send(window, ttmSetDelayTime, tipDelayAutomatic, row.milliseconds);
        EXPECT_EQ(tips.send(window, ttmGetDelayTime, tipDelayReshow, 0), row.reshow);
        EXPECT_EQ(tips.send(window, ttmGetDelayTime, tipDelayAutoPop, 0), row.autoPop);
        EXPECT_EQ(tips.send(window, ttmGetDelayTime, tipDelayInitial, 0), row.initial);
    }
}

TEST_F(TipClass, AWindowThatIsGoneAnswersWithZero) {
    const WindowHandle window = made();
    tips.destroyWindow(window);
    ToolInfo added = tool(7, u"a");
    Rect margins{1, 2, 3, 4};
    EXPECT_EQ(tips.send(window, ttmAddTool, 0, added), 0);
    EXPECT_EQ(tips.send(window, ttmGetMaxTipWidth, 0, 0), 0);
    EXPECT_EQ(tips.send(window, ttmGetMargin, 0, margins), 0);
    EXPECT_EQ(margins, (Rect{1, 2, 3, 4}));
    EXPECT_EQ(tips.tipOf(7), std::nullopt);
}

} // namespace lumtex::testing

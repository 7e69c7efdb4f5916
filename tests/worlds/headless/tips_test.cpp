#include "desktop_fixture.h"

namespace lumtex::testing {

class TipWindows : public DesktopFixture {
  protected:
    TipTool tool(WindowHandle id, StringView text) const {
        return {.owner = a->window().hWnd(), .id = id, .text = String(text)};
    }

    worlds::KeptTips& tips = desktop.tips();
    std::unique_ptr<TipWindow> window = tips.createTipWindow(a->window().hWnd());
};

TEST_F(TipWindows, GiveTheirToolsByIndexWithAsMuchTextAsThereIsRoom) {
    window->add(tool(7, u"abcdef"));
    const std::optional<TipTool> read = window->tool(0, 3);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->id, 7);
    EXPECT_EQ(read->owner, a->window().hWnd());
    EXPECT_EQ(read->text, u"abc");
    EXPECT_EQ(window->tool(1, 3), std::nullopt);
    EXPECT_EQ(window->tool(-1, 3), std::nullopt);
}

TEST_F(TipWindows, OneNumberSetsAllThreeTimes) {
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
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        window->setDelay(TipDelay::automatic, row.milliseconds);
        EXPECT_EQ(window->delay(TipDelay::reshow), row.reshow);
        EXPECT_EQ(window->delay(TipDelay::autoPop), row.autoPop);
        EXPECT_EQ(window->delay(TipDelay::initial), row.initial);
        EXPECT_EQ(window->delay(TipDelay::automatic), 0);
    }
}

TEST_F(TipWindows, TakeTheirTipsWithThem) {
    window->add(tool(7, u"a"));
    EXPECT_EQ(tips.tipOf(7), u"a");
    EXPECT_EQ(tips.windows().size(), 1U);
    window.reset();
    EXPECT_EQ(tips.tipOf(7), std::nullopt);
    EXPECT_EQ(tips.windows().size(), 0U);
}

} // namespace lumtex::testing

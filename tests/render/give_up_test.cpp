#include "painted_list.h"

namespace lumtex::testing {

/// A bar's handler begins to wait at a chosen operation, and the pass gives up at the checkpoint that
/// follows.
class GivingUp : public PaintedList {
  protected:
    GivingUp() {
        addColumns({60, 60});
        addRows(3, u"a,b");
        list.letGridLines(true);
    }

    /// Paints, with the flag set at the `count`th operation that starts with `prefix`. The log ends there.
    Lines paintUntil(const std::string& prefix, int count = 1) {
        drawn().before = [this, prefix, count, seen = 0](const std::string& line) mutable {
            if (line.rfind(prefix, 0) == 0 && ++seen == count)
                inside.letScrollPend(true);
        };
        const Lines log = repaint();
        drawn().before = nullptr;
        return log;
    }

    static Lines after(const Lines& log, const std::string& prefix, int count = 1) {
        for (std::size_t i = 0; i < log.size(); ++i) {
            if (log[i].rfind(prefix, 0) == 0 && --count == 0)
                return {log.begin() + static_cast<std::ptrdiff_t>(i) + 1, log.end()};
        }
        return log;
    }

    void expectStuck() {
        EXPECT_TRUE(says(inside.painting(), "held=yes")) << "the flag stays set";
        EXPECT_TRUE(events.log.empty());
        inside.letScrollPend(false);
        EXPECT_TRUE(repaint().empty()) << "every further pass is turned away";
    }
};

// Wanted: a pass that gave up leaves `paintBusy` set.
TEST_F(GivingUp, BeforeTheOriginSearch) {
    const Lines log = paintUntil("BackColor");
    EXPECT_EQ(after(log, "BackColor"), Lines{});
    expectStuck();
}

TEST_F(GivingUp, BeforeTheHeaderPass) {
    const Lines log = paintUntil("Font");
    EXPECT_EQ(after(log, "Font"), Lines{}) << "the font was set, no header was painted";
    expectStuck();
}

TEST_F(GivingUp, BeforeAHeadersText) {
    // The sixth stroke is the last of the background.
    const Lines log = paintUntil("Line", 5);
    EXPECT_EQ(after(log, "Line", 5), Lines{});
    expectStuck();
}

TEST_F(GivingUp, BehindAHeaderCell) {
    const Lines log = paintUntil("Text");
    EXPECT_EQ(after(log, "Text"), Lines{}) << "the second header is not begun";
    expectStuck();
}

TEST_F(GivingUp, BeforeTheRows) {
    const Lines log = paintUntil("Fill 120,0-200");
    EXPECT_EQ(after(log, "Fill 120,0-200").size(), 3U) << "the rest of the empty field";
    expectStuck();
}

TEST_F(GivingUp, AtTheStartOfARow) {
    // The host waits while its control above the view is hidden, which comes between the headers and the
    // rows.
    inside.vertical().letValue(1);
    const auto object = TestObject::control(100);
    object->onPut = [this] { inside.letScrollPend(true); };
    list.setItemObject(1, 1, object);
    const Lines log = repaint();
    EXPECT_EQ(log.back().substr(0, 9), "Line 120,") << "the foot of the empty field";
    object->onPut = nullptr;
    expectStuck();
}

TEST_F(GivingUp, BetweenACellsColoursAndItsIcon) {
    // The first font is the header's, the second that of the first cell.
    const Lines log = paintUntil("Font", 2);
    EXPECT_EQ(after(log, "Font", 2), Lines{}) << "no text";
    expectStuck();
}

TEST_F(GivingUp, BehindACell) {
    const Lines log = paintUntil("Text 'a'", 2);
    EXPECT_EQ(after(log, "Text 'a'", 2).size(), 1U) << "the cell's grid line; the second cell is not begun";
    expectStuck();
}

TEST_F(GivingUp, BehindARow) {
    // Vertical lines end where the horizontal ones begin: the row's foot.
    const Lines log = paintUntil("Line 0,45");
    EXPECT_EQ(after(log, "Line 0,45"), Lines{}) << "the second row is not begun";
    EXPECT_EQ(inside.rows()[0].Height, 20) << "stored before the checkpoint";
    expectStuck();
}

} // namespace lumtex::testing

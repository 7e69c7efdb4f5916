/// A paint begun while a bar's `Change` waits: where it gives up, and what it leaves behind.
#include "painted_list.h"

namespace lumtex::testing {

struct Checkpoint {
    const char* name;
    const char* operation; ///< the start of the line at which another bar begins to wait
    int count;             ///< which of these lines
    std::size_t rest;      ///< lines that still come before the checkpoint
};

/// In the order of a pass over headers, rows and cells with grid lines.
const Checkpoint checkpoints[] = {
    {"BeforeTheOriginSearch", "BackColor", 1, 0},
    {"BeforeTheHeaderPass", "Font", 1, 0},
    {"BeforeAHeadersText", "Line", 5, 0},
    {"BehindAHeaderCell", "Text", 1, 0},
    {"BeforeTheRows", "Fill 120,0-200", 1, 3},
    {"BetweenACellsColoursAndItsIcon", "Font", 2, 0},
    {"BehindACell", "Text 'a'", 2, 1},
    {"BehindARow", "Line 0,45", 1, 0},
};

class GivingUpInAChange : public PaintedList {
  protected:
    GivingUpInAChange() {
        addColumns({60, 60});
        addRows(8, u"a,b");
        list.letGridLines(true);
        list.CheckScroll();
    }

    /// Presses the first arrow of a bar, the vertical one if none is named, and runs `body` while the
    /// `Change` of that step waits.
    void duringChange(const std::function<void()>& body, bars::ScrollBar* bar = nullptr) {
        desktop.move((bar != nullptr ? bar : &inside.vertical())->window(), 8, 8);
        bool ran = false;
        desktop.onYield([&] {
            EXPECT_TRUE(says(inside.scroll(), "pending=yes"));
            ran = true;
            body();
        });
        desktop.click();
        EXPECT_TRUE(ran);
    }
};

TEST_F(GivingUpInAChange, OfTheHorizontalBarPaintsGiveUpToo) {
    list.letColumnWidth(2, 6000);
    list.CheckScroll();
    ASSERT_TRUE(inside.horizontal().Visible());
    Lines painted;
    duringChange([&] { painted = repaint(); }, &inside.horizontal());
    ASSERT_FALSE(painted.empty());
    EXPECT_EQ(painted.back().substr(0, 9), "BackColor");
    EXPECT_TRUE(says(inside.scroll(), "pending=no"));
}

TEST_F(GivingUpInAChange, APaintStopsBeforeItsFirstCheckpoint) {
    Lines painted;
    duringChange([&] { painted = repaint(); });
    ASSERT_FALSE(painted.empty());
    EXPECT_EQ(painted.back().substr(0, 9), "BackColor") << "cleared, and no more";
    EXPECT_TRUE(says(inside.painting(), "held=yes")) << "the flag stays set";
    EXPECT_TRUE(says(inside.scroll(), "pending=no"));
    EXPECT_EQ(drawn().log, painted) << "the paint that ends the change is turned away";
    EXPECT_TRUE(repaint().empty()) << "and so is every further one";
    inside.holdPainting(false);
    EXPECT_FALSE(repaint().empty());
}

// Wanted: a flag, not a counter, so that a nested change clears it for the outer one too.
TEST_F(GivingUpInAChange, AChangeInsideAChangeLetsPaintsThroughAgain) {
    duringChange([&] {
        inside.verticalChange();
        EXPECT_TRUE(says(inside.scroll(), "pending=no"));
        EXPECT_TRUE(says(inside.painting(), "held=no"));
        EXPECT_GT(repaint().size(), 20U) << "a whole pass, though the outer change still waits";
    });
    EXPECT_TRUE(says(inside.painting(), "held=no"));
}

class GivingUpAt : public GivingUpInAChange, public ::testing::WithParamInterface<Checkpoint> {};
INSTANTIATE_TEST_SUITE_P(Checkpoints,
                         GivingUpAt,
                         ::testing::ValuesIn(checkpoints),
                         [](const ::testing::TestParamInfo<Checkpoint>& row) {
                             return std::string(row.param.name);
                         });

// Wanted: a pass that gave up leaves `paintBusy` set.
TEST_P(GivingUpAt, ThePaintEndsThereAndLeavesItsFlag) {
    const Checkpoint& point = GetParam();
    Lines painted;
    duringChange([&] {
        inside.verticalChange(); // lets the paint begin
        int seen = 0;
        drawn().before = [&](const std::string& line) {
            if (line.rfind(point.operation, 0) == 0 && ++seen == point.count)
                inside.letScrollPend(true);
        };
        painted = repaint();
        drawn().before = nullptr;
        EXPECT_TRUE(says(inside.scroll(), "pending=yes"));
    });
    int left = point.count;
    const auto last = std::find_if(painted.begin(), painted.end(), [&](const std::string& line) {
        return line.rfind(point.operation, 0) == 0 && --left == 0;
    });
    ASSERT_NE(last, painted.end());
    EXPECT_EQ(static_cast<std::size_t>(painted.end() - last) - 1, point.rest);
    EXPECT_TRUE(says(inside.painting(), "held=yes"));
    EXPECT_TRUE(says(inside.scroll(), "pending=no")) << "cleared by the change";
    EXPECT_EQ(drawn().log, painted) << "the paint that ends the change is turned away";
    EXPECT_TRUE(repaint().empty());
}

TEST_F(GivingUpInAChange, AtTheStartOfARowThePaintEndsAndLeavesItsFlag) {
    // The host waits while its control above the view is hidden, between the headers and the rows.
    inside.vertical().letValue(1);
    inside.vertical().letMin(1);
    const auto object = TestObject::control(100);
    list.setItemObject(1, 1, object);
    Lines painted;
    duringChange([&] {
        inside.verticalChange();
        object->onPut = [this] { inside.letScrollPend(true); };
        painted = repaint();
        object->onPut = nullptr;
    });
    EXPECT_EQ(painted.back().substr(0, 9), "Line 120,") << "the foot of the empty field";
    EXPECT_TRUE(says(inside.painting(), "held=yes"));
    EXPECT_TRUE(says(inside.scroll(), "pending=no"));
    EXPECT_EQ(drawn().log, painted);
}

} // namespace lumtex::testing

/// Bars under any order of calls, presses and time.
#include "bar_fixture.h"

#include <random>

namespace lumtex::testing {

using Inside = bars::ScrollInspector;
using AnyOrder = BothBars;
INSTANTIATE_TEST_SUITE_P(Axes,
                         AnyOrder,
                         ::testing::Values(bars::Axis::vertical, bars::Axis::horizontal),
                         axisName);

TEST_P(AnyOrder, OfCallsPressesAndTimeLeavesABarThatWorks) {
    std::mt19937 random(20261121);
    const auto pick = [&](auto... values) {
        const std::array<Long, sizeof...(values)> all{static_cast<Long>(values)...};
        return all.at(random() % all.size());
    };
    const auto number = [&] {
        constexpr Long least = std::numeric_limits<Long>::min();
        constexpr Long most = std::numeric_limits<Long>::max();
        return pick(least, -1000, -1, 0, 1, 7, 50, 1000, 1000000, most);
    };
    const auto pixel = [&] {
        return static_cast<Single>(pick(-300, -140, -1, 0, 5, 17, 20, 60, 100, 125, 134, 290));
    };
    bool held = false;
    const std::vector<std::function<void()>> actions{
        [&] { bar().letMin(number()); },
        [&] { bar().letMax(number()); },
        [&] { bar().letValue(number()); },
        [&] { bar().letColorStyle(pick(0, 1, 2, 99, 5)); },
        [&] { bar().letEnabled(pick(0, 1, 1) != 0); },
        [&] { bar().letGradient(pick(0, 1) != 0); },
        [&] { bar().letActiveScrolling(pick(0, 1) != 0); },
        [&] { bar().letVisible(pick(0, 1, 1) != 0); },
        [&] { setLength(static_cast<Single>(pick(-5, 0, 10, 34, 46, 134, 200))); },
        [&] {
            if (isVertical())
                vertical().letScrollButtonJumpLines(number());
        },
        [&] {
            const Single crosswise = pixel();
            moveTo(pixel(), crosswise);
        },
        [&] {
            desktop.press(thumb().window(), 3, 3);
            held = true;
        },
        [&] { moveTo(pixel()); },
        [&] { moveTo(pixel()); },
        [&] {
            desktop.press();
            held = true;
        },
        [&] {
            desktop.release();
            held = false;
        },
        [&] { desktop.advance(std::chrono::milliseconds(pick(0, 99, 100, 350))); },
        [&] { desktop.doubleClick(); },
    };
    int drags = 0;
    for (int i = 0; i < 4000; ++i) {
        const bool dragged = Inside::dragging(bar());
        actions[random() % actions.size()]();
        ASSERT_LE(bar().Min(), bar().Max()) << "after step " << i;
        ASSERT_EQ(along.breadth(bar().window()), 17);
        if (dragged && !Inside::dragging(bar())) {
            ++drags;
            ASSERT_GE(bar().Value(), bar().Min()) << "a drag ends in the range, step " << i;
            ASSERT_LE(bar().Value(), bar().Max()) << "a drag ends in the range, step " << i;
        }
    }
    EXPECT_GT(drags, 0);

    // Whatever came before, a fresh range works.
    if (held)
        desktop.release();
    // A bar that was hidden or disabled during a press has missed the release.
    for (UserControl* child : std::initializer_list<UserControl*>{&thumb(), &low(), &high(), &bar()})
        child->UserControl_MouseUp(leftButton, 0, 0, 0);
    bar().letEnabled(true);
    bar().letVisible(true);
    bar().letColorStyle(0);
    bar().letActiveScrolling(true);
    setLength(134);
    bar().letMin(std::numeric_limits<Long>::min());
    bar().letMax(50);
    bar().letMin(0);
    bar().letValue(0);
    log.clear();
    desktop.move({299, 299});
    pressAt(27);
    moveTo(37);
    desktop.release();
    EXPECT_EQ(take(), (Lines{"Scroll", "Change"}));
    EXPECT_EQ(bar().Value(), 10);
}

} // namespace lumtex::testing

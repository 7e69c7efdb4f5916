/// The sample in C++ as its user meets it: a program of its own, with nothing registered.
#include "samples/program_sample.h"
#include "stage/user_input.h"

#include <set>
#include <vector>

namespace lumtex::testing {
namespace {

class CitiesSample : public ProgramSample {
  protected:
    CitiesSample() : ProgramSample("cities") {}
};

TEST_F(CitiesSample, HostsTheListAndHearsOfAClick) {
    copyProgram();
    copyComponent();
    const RunningProgram running(program().wstring());
    HWND window = running.window(L"Cities");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(titleOf(window), L"Cities");
    HWND list = GetWindow(GetWindow(window, GW_CHILD), GW_CHILD);
    ASSERT_NE(list, nullptr);

    UserInput hands([] {});
    // A column of pixels from a place downwards.
    const auto look = [&](LONG x, LONG y) {
        std::vector<COLORREF> colors;
        HDC screen = GetDC(nullptr);
        for (LONG down = 0; down < 24; ++down) {
            const POINT point = onScreen(list, x, y + down);
            colors.push_back(GetPixel(screen, point.x, point.y));
        }
        ReleaseDC(nullptr, screen);
        return colors;
    };
    const auto header = [&] { return look(120, 0); };
    const auto row = [&] { return look(120, 40); };
    hands.move(onScreen(list, 60, 100), 0);
    // Shades, and the line below them.
    ASSERT_TRUE(until([&] {
        const std::vector<COLORREF> colors = header();
        return std::set<COLORREF>(colors.begin(), colors.end()).size() > 3;
    }));
    // The look of the header under the mouse tells that the list knows where the mouse is.
    const std::vector<COLORREF> usual = header();
    LONG step = 0;
    ASSERT_TRUE(until([&] {
        hands.move(onScreen(list, 60 + ++step % 2, 10), 0);
        return header() != usual;
    }));
    hands.move(onScreen(list, 60, 50), 0);
    const std::vector<COLORREF> plain = row();
    hands.press(leftButton, 0);
    // A press lets waiting input through, and would hear of its release too early.
    ASSERT_TRUE(until([&] { return row() != plain; }));
    hands.release(leftButton, 0);
    EXPECT_TRUE(until([&] { return titleOf(window) == L"Row 2, column 1"; }));

    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(running.exitCode(), 0U);
}

TEST_F(CitiesSample, TellsWhenTheComponentIsMissing) {
    copyProgram();
    const RunningProgram running(program().wstring());
    HWND box = running.window(L"#32770");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(titleOf(box), L"Cities");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(running.exitCode(), 1U);
}

} // namespace
} // namespace lumtex::testing

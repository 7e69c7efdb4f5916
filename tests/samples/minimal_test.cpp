/// The shortest sample in C++, whose only window is the container.
#include "samples/told_program.h"

namespace lumtex::testing {
namespace {

class MinimalSample : public ProgramSample {
  protected:
    MinimalSample() : ProgramSample("minimal") {}
};

TEST_F(MinimalSample, TellsWhichRowWasClicked) {
    copyProgram();
    copyComponent();
    const ToldProgram running(program().wstring(), L"");
    HWND window = running.window(L"AtlAxWin");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(titleOf(window), L"Cities");
    HWND list = GetWindow(window, GW_CHILD);
    ASSERT_NE(list, nullptr);
    ListUser user(list);
    // A header, then rows of about 15 pixels.
    constexpr LONG secondRow = 45;
    EXPECT_TRUE(repeatUntil([&] { user.click(60, secondRow); }, [&] { return titleOf(window) == L"Row 2"; }));
    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(running.exitCode(), 0U);
}

TEST_F(MinimalSample, TellsWhenTheComponentIsMissing) {
    copyProgram();
    const ToldProgram running(program().wstring(), L"");
    HWND box = running.window(L"#32770");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(titleOf(box), L"Cities");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(running.exitCode(), 1U);
}

} // namespace
} // namespace lumtex::testing

/// The sample in C++ that uses the classes for hosts.
#include "samples/program_sample.h"
#include "stage/user_input.h"

namespace lumtex::testing {
namespace {

class TasksSample : public ProgramSample {
  protected:
    TasksSample() : ProgramSample("tasks") {}
};

TEST_F(TasksSample, TicksTasksOffButTheFirst) {
    copyProgram();
    copyComponent();
    const RunningProgram running(program().wstring());
    HWND window = running.window(L"Tasks");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(titleOf(window), L"Tasks: 1 of 3 done");
    HWND list = GetWindow(GetWindow(window, GW_CHILD), GW_CHILD);
    ASSERT_NE(list, nullptr);

    // Rows are 20 pixels high, below a header of as many.
    constexpr LONG firstRow = 30;
    constexpr LONG thirdRow = 70;
    UserInput hands([] {});
    const auto clickBox = [&](LONG y) {
        hands.move(onScreen(list, 100, y), 0);
        hands.move(onScreen(list, 9, y), 0);
        hands.press(leftButton, 0);
        hands.release(leftButton, 0);
    };
    // A click may come while the list is still busy with the one before, and be lost; nobody clicks twice
    // within a second without looking.
    const auto clickUntil = [&](LONG y, const auto& isDone) {
        for (int clicks = 0; clicks < 10; ++clicks) {
            clickBox(y);
            for (int looks = 0; looks < 75; ++looks) {
                if (isDone())
                    return true;
                Sleep(20);
            }
        }
        return false;
    };
    const auto isTitled = [&](const wchar_t* title) { return [=] { return titleOf(window) == title; }; };
    EXPECT_TRUE(clickUntil(thirdRow, isTitled(L"Tasks: 2 of 3 done")));
    const auto firstLook = [&] {
        const POINT point = onScreen(list, 250, firstRow);
        HDC screen = GetDC(nullptr);
        const COLORREF color = GetPixel(screen, point.x, point.y);
        ReleaseDC(nullptr, screen);
        return color;
    };
    // A press that counts selects the row.
    const COLORREF plain = firstLook();
    ASSERT_TRUE(clickUntil(firstRow, [&] { return firstLook() != plain; }));
    EXPECT_TRUE(clickUntil(thirdRow, isTitled(L"Tasks: 1 of 3 done"))) << "the first one stays ticked";

    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(running.exitCode(), 0U);
}

TEST_F(TasksSample, TellsWhenTheComponentIsMissing) {
    copyProgram();
    const RunningProgram running(program().wstring());
    HWND box = running.window(L"#32770");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(titleOf(box), L"Tasks");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(running.exitCode(), 1U);
}

} // namespace
} // namespace lumtex::testing

/// The sample in C++ that follows a log.
#include "samples/told_program.h"

namespace lumtex::testing {
namespace {

constexpr COLORREF errorColor = RGB(0xB0, 0x00, 0x20);

class LogViewerSample : public ProgramSample {
  protected:
    LogViewerSample() : ProgramSample("log_viewer") {
        copyProgram();
        copyComponent();
    }

    static std::string lines(int count) {
        std::string text;
        for (int line = 1; line <= count; ++line)
            text += "12:00:00 INFO line " + std::to_string(line) + '\n';
        return text;
    }
    void append(const std::string& text) const {
        std::ofstream(log, std::ios::app | std::ios::binary) << text;
    }
    std::wstring words() const { return L'"' + log.wstring() + L'"'; }
    std::wstring title(int count) const { return log.wstring() + L": " + std::to_wstring(count) + L" lines"; }

    const std::filesystem::path log = folder.path / "service.log";
};

TEST_F(LogViewerSample, FollowsItsFileUntilTheReaderScrollsUp) {
    append(lines(100));
    ProgramInUse used(program(), words(), L"Log");
    const auto says = [&](int count) { return until([&] { return used.title() == title(count); }); };
    EXPECT_TRUE(says(100));
    EXPECT_FALSE(used.user.shows(errorColor));
    append("12:00:01 ERROR disk is full\n");
    EXPECT_TRUE(says(101));
    EXPECT_TRUE(until([&] { return used.user.shows(errorColor); })) << "the last line is in view";

    used.user.click(200, 60); // the wheel turns what has the keyboard
    EXPECT_TRUE(repeatUntil([&] { used.user.wheel(120); }, [&] { return !used.user.shows(errorColor); }));
    append("12:00:02 ERROR still full\n");
    EXPECT_TRUE(says(102));
    Sleep(500);
    EXPECT_FALSE(used.user.shows(errorColor)) << "who reads further up stays there";

    EXPECT_EQ(used.close(), 0U);
}

TEST_F(LogViewerSample, WaitsForItsFileAndBeginsAnewWhereThatWasCutShort) {
    ProgramInUse used(program(), words(), L"Log");
    const auto says = [&](const std::wstring& wanted) {
        return until([&] { return used.title() == wanted; });
    };
    EXPECT_TRUE(says(L"Waiting for " + log.wstring()));
    append(lines(50) + "without an end");
    EXPECT_TRUE(says(title(51)));
    append(" yet\n");
    append("and another\n");
    EXPECT_TRUE(says(title(52)));
    folder.write("service.log", "anew\n");
    EXPECT_TRUE(says(title(1)));
    EXPECT_EQ(used.close(), 0U);
}

TEST_F(LogViewerSample, TakesAMillionLinesAndGoesOnFollowing) {
    constexpr int million = 1'000'000;
    append(lines(million));
    ProgramInUse used(program(), words(), L"Log");
    const auto says = [&](int count) {
        // A machine that does other things, too, may need minutes.
        for (int tries = 0; tries < 10; ++tries)
            if (until([&] { return used.title() == title(count); }))
                return true;
        return false;
    };
    EXPECT_TRUE(says(million));
    append("12:00:01 ERROR one more\n");
    EXPECT_TRUE(says(million + 1));
    EXPECT_TRUE(until([&] { return used.user.shows(errorColor); }));
    EXPECT_EQ(used.close(), 0U);
}

TEST_F(LogViewerSample, IsClosedInTheMiddleOfLoading) {
    append(lines(300'000));
    ProgramInUse used(program(), words(), L"Log");
    EXPECT_TRUE(until([&] { return used.title().find(L" lines") != std::wstring::npos; }));
    EXPECT_EQ(used.close(), 0U);
}

TEST_F(LogViewerSample, AsksForAFile) {
    const ToldProgram running(program().wstring(), L"");
    HWND box = running.window(L"#32770");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(wholeTitle(box), L"Log");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(running.exitCode(), 1U);
}

} // namespace
} // namespace lumtex::testing

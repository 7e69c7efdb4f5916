/// The sample in C++ as its user meets it: a program of its own, with nothing registered.
#include "folders.h"
#include "scratch_folder.h"
#include "stage/user_input.h"

#include <set>
#include <string>
#include <vector>

namespace lumtex::testing {
namespace {

/// Whether it came true within half a minute.
template <class Condition>
bool until(Condition condition) {
    for (int tries = 0; tries < 1500; ++tries) {
        if (condition())
            return true;
        Sleep(20);
    }
    return false;
}

/// A program that is running; ended with this object at the latest.
class RunningProgram {
  public:
    explicit RunningProgram(std::wstring path) {
        STARTUPINFOW how{};
        how.cb = sizeof(how);
        if (CreateProcessW(
                path.c_str(), path.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &process_) ==
            FALSE)
            throw std::runtime_error("the program does not start");
    }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram() {
        TerminateProcess(process_.hProcess, 99);
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }

    /// Its first window of the class, once it shows.
    HWND window(const wchar_t* windowClass) const {
        HWND found = nullptr;
        until([&] {
            found = nullptr;
            while ((found = FindWindowExW(nullptr, found, windowClass, nullptr)) != nullptr) {
                DWORD owner = 0;
                GetWindowThreadProcessId(found, &owner);
                if (owner == process_.dwProcessId && IsWindowVisible(found) != FALSE)
                    return true;
            }
            return false;
        });
        return found;
    }
    /// What it returns; 99 where it does not end.
    DWORD exitCode() const {
        DWORD code = 99;
        if (WaitForSingleObject(process_.hProcess, 30000) == WAIT_OBJECT_0)
            GetExitCodeProcess(process_.hProcess, &code);
        return code;
    }

  private:
    PROCESS_INFORMATION process_{};
};

class CitiesSample : public ::testing::Test {
  protected:
    static std::filesystem::path programFolder() {
        wchar_t path[MAX_PATH];
        GetModuleFileNameW(nullptr, path, MAX_PATH);
        return std::filesystem::path(path).parent_path();
    }
    static std::wstring titleOf(HWND window) {
        wchar_t title[64] = L"";
        GetWindowTextW(window, title, 64);
        return title;
    }
    void copyProgram() const {
        std::filesystem::copy(programFolder() / "cities.exe", folder.path / "cities.exe");
        const std::filesystem::path tree = sourceFolder();
        std::filesystem::copy(tree / "samples/cpp-host/cities.exe.manifest",
                              folder.path / "cities.exe.manifest");
        std::filesystem::copy(tree / "src/activex/LumtexListView.manifest",
                              folder.path / "LumtexListView.manifest");
    }

    ScratchFolder folder;
};

TEST_F(CitiesSample, HostsTheListAndHearsOfAClick) {
    copyProgram();
    std::filesystem::copy(programFolder() / "LumtexListView.ocx", folder.path / "LumtexListView.ocx");
    const RunningProgram program((folder.path / "cities.exe").wstring());
    HWND window = program.window(L"Cities");
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(titleOf(window), L"Cities");
    HWND list = GetWindow(GetWindow(window, GW_CHILD), GW_CHILD);
    ASSERT_NE(list, nullptr);
    const auto onScreen = [&](LONG x, LONG y) {
        POINT point{x, y};
        ClientToScreen(list, &point);
        return point;
    };

    UserInput hands([] {});
    // A column of pixels from a place downwards.
    const auto look = [&](LONG x, LONG y) {
        std::vector<COLORREF> colors;
        HDC screen = GetDC(nullptr);
        for (LONG down = 0; down < 24; ++down) {
            const POINT point = onScreen(x, y + down);
            colors.push_back(GetPixel(screen, point.x, point.y));
        }
        ReleaseDC(nullptr, screen);
        return colors;
    };
    const auto header = [&] { return look(120, 0); };
    const auto row = [&] { return look(120, 40); };
    hands.move(onScreen(60, 100), 0);
    // Shades, and the line below them.
    ASSERT_TRUE(until([&] {
        const std::vector<COLORREF> colors = header();
        return std::set<COLORREF>(colors.begin(), colors.end()).size() > 3;
    }));
    // The look of the header under the mouse tells that the list knows where the mouse is.
    const std::vector<COLORREF> usual = header();
    LONG step = 0;
    ASSERT_TRUE(until([&] {
        hands.move(onScreen(60 + ++step % 2, 10), 0);
        return header() != usual;
    }));
    hands.move(onScreen(60, 50), 0);
    const std::vector<COLORREF> plain = row();
    hands.press(leftButton, 0);
    // A press lets waiting input through, and would hear of its release too early.
    ASSERT_TRUE(until([&] { return row() != plain; }));
    hands.release(leftButton, 0);
    EXPECT_TRUE(until([&] { return titleOf(window) == L"Row 2, column 1"; }));

    PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.exitCode(), 0U);
}

TEST_F(CitiesSample, TellsWhenTheComponentIsMissing) {
    copyProgram();
    const RunningProgram program((folder.path / "cities.exe").wstring());
    HWND box = program.window(L"#32770");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(titleOf(box), L"Cities");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(program.exitCode(), 1U);
}

} // namespace
} // namespace lumtex::testing

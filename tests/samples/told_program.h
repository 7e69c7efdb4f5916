/// \file
/// A sample in C++ that is told words on its command line, and a user's hands on its list.
#pragma once

#include "samples/program_sample.h"
#include "stage/user_input.h"

#include <filesystem>
#include <string>

namespace lumtex::testing {

/// A program that is running; ended with this object at the latest.
class ToldProgram {
  public:
    /// The words stand behind its name, as they are.
    ToldProgram(const std::wstring& path, const std::wstring& words);
    ToldProgram(const ToldProgram&) = delete;
    ToldProgram& operator=(const ToldProgram&) = delete;
    ~ToldProgram();

    /// Its window of the class, once it shows.
    HWND window(const wchar_t* windowClass) const;
    /// What it returns; 99 where it does not end.
    DWORD exitCode() const;

  private:
    PROCESS_INFORMATION process_{};
};

/// The whole text, however long.
std::wstring wholeTitle(HWND window);
/// The list of a program, or none where it has no window.
HWND listIn(HWND window);

/// Does something until it shows, as often as a user would at most.
template <class Act, class Condition>
bool repeatUntil(Act act, Condition condition) {
    for (int tries = 0; tries < 20; ++tries) {
        act();
        if (condition())
            return true;
    }
    return false;
}

/// Somebody who waits for the list between two moves, as its own timer sees where the mouse is.
class ListUser {
  public:
    explicit ListUser(HWND list) : list_(list) {}

    /// Places are pixels of the list.
    void click(LONG x, LONG y);
    void doubleClick(LONG x, LONG y);
    void press(Integer key);
    /// 120 a notch, positive away from the user.
    void wheel(Long rotation);
    /// A pixel of what the screen shows.
    COLORREF color(LONG x, LONG y) const;
    /// Whether the screen shows one pixel of that colour in the list, at least.
    bool shows(COLORREF color) const;

  private:
    void goTo(LONG x, LONG y);
    POINT onScreen(LONG x, LONG y) const;

    HWND list_;
    UserInput hands_{[] {}};
};

/// A program that is waited for until its window shows, with its user.
class ProgramInUse {
  public:
    ProgramInUse(const std::filesystem::path& path, const std::wstring& words, const wchar_t* windowClass)
        : running_(path.wstring(), words), window(running_.window(windowClass)), user(listIn(window)) {
        EXPECT_NE(listIn(window), nullptr);
    }
    std::wstring title() const { return wholeTitle(window); }
    /// As its user closes it. What it returns.
    DWORD close() const {
        PostMessageW(window, WM_CLOSE, 0, 0);
        return running_.exitCode();
    }

  private:
    ToldProgram running_;

  public:
    const HWND window;
    ListUser user;
};

} // namespace lumtex::testing

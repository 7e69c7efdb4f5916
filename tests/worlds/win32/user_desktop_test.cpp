/// What the user hears, sees and presses: the runtime asks the system for all of it.
#include "replaced_import.h"
#include "scratch_folder.h"
#include "values/text.h"
#include "worlds/win32/win32_runtime.h"

#include <array>

#include <gtest/gtest.h>
#include <mmsystem.h>
#include <shellapi.h>
#include <uxtheme.h>

// In 32-bit programs the linker's names also tell the bytes of the arguments.
#ifdef __i386__
#define LUMTEX_IMPORTED(name, bytes) __asm__("__imp__" #name "@" #bytes)
#else
#define LUMTEX_IMPORTED(name, bytes) __asm__("__imp_" #name)
#endif

extern "C" {
extern decltype(sndPlaySoundW)* __imp_sndPlaySoundW LUMTEX_IMPORTED(sndPlaySoundW, 8);
extern decltype(ShellExecuteW)* __imp_ShellExecuteW LUMTEX_IMPORTED(ShellExecuteW, 24);
extern decltype(GetCurrentThemeName)* __imp_GetCurrentThemeName LUMTEX_IMPORTED(GetCurrentThemeName, 24);
}

namespace lumtex::testing {
namespace {

/// What the system was asked for, one line each.
std::vector<std::string> asked;

std::string shown(const wchar_t* text) {
    return text != nullptr ? "'" + toUtf8(win32::textOf(text)) + "'" : "none";
}

class UserDesktop : public ::testing::Test {
  protected:
    UserDesktop() { asked.clear(); }

    win32::Win32Runtime runtime{GetModuleHandleW(nullptr)};
};

BOOL WINAPI noteSound(LPCWSTR file, UINT flags) {
    asked.push_back("sound " + shown(file) + " " + std::to_string(flags));
    return FALSE;
}

TEST_F(UserDesktop, ASoundIsTheSystemsAndItsFailureNobodys) {
    const ReplacedImport replaced(__imp_sndPlaySoundW, noteSound);
    runtime.playSound(u"C:\\Klänge\\a.wav");
    runtime.playSound(u"");
    EXPECT_EQ(asked, (std::vector<std::string>{"sound 'C:\\Klänge\\a.wav' 3", "sound '' 3"}));
}

TEST_F(UserDesktop, AMissingSoundFileIsSilence) {
    runtime.playSound(u"Z:\\no\\such\\sound.wav");
    EXPECT_EQ(sndPlaySoundW(L"Z:\\no\\such\\sound.wav", SND_SYNC | SND_NODEFAULT), FALSE);
}

HINSTANCE WINAPI
noteShell(HWND window, LPCWSTR verb, LPCWSTR file, LPCWSTR parameters, LPCWSTR folder, INT show) {
    asked.push_back("open " + std::to_string(win32::fromHWND(window)) + " " + shown(verb) + " " +
                    shown(file) + " " + shown(parameters) + " " + shown(folder) + " " + std::to_string(show));
    return nullptr;
}

/// Everything that is not said here stays as it is by default.
OpenRequest requestFor(const String& file, const String& parameters = {}, const String& folder = {}) {
    OpenRequest request;
    request.file = file;
    request.parameters = parameters;
    request.folder = folder;
    return request;
}

TEST_F(UserDesktop, WhatIsLeftEmptyIsLeftToTheSystem) {
    const ReplacedImport replaced(__imp_ShellExecuteW, noteShell);
    OpenRequest whole = requestFor(u"a.txt", u"/p", u"C:\\");
    whole.window = 77;
    whole.maximised = true;
    runtime.open(whole);
    runtime.open(requestFor(u"https://example.com"));
    EXPECT_EQ(asked,
              (std::vector<std::string>{"open 77 'Open' 'a.txt' '/p' 'C:\\' 3",
                                        "open 0 'Open' 'https://example.com' none none 1"}));
}

/// The program may hold for a moment what it made, and the folder that it stands in.
bool removed(const String& folder) {
    constexpr int tries = 1000;
    for (int i = 0; i < tries; ++i) {
        if (RemoveDirectoryW(win32::wide(folder)))
            return true;
        Sleep(20);
    }
    return false;
}

TEST_F(UserDesktop, AProgramIsStartedWithItsParametersInItsFolder) {
    const ScratchFolder scratch;
    const String folder = fromUtf8(scratch.path.string());
    const String made = folder + u"\\made";
    const HANDLE change =
        FindFirstChangeNotificationW(win32::wide(folder), FALSE, FILE_NOTIFY_CHANGE_DIR_NAME);
    runtime.open(requestFor(u"cmd.exe", u"/c mkdir made", folder));
    constexpr DWORD enough = 20000; // milliseconds
    EXPECT_EQ(WaitForSingleObject(change, enough), WAIT_OBJECT_0);
    FindCloseChangeNotification(change);
    EXPECT_TRUE(removed(made)) << "the program made it";
    EXPECT_TRUE(removed(folder));
}

TEST_F(UserDesktop, AProgramThatIsNotThereIsNoFailure) {
    SetLastError(ERROR_SUCCESS);
    runtime.open(requestFor(u"Z:\\no\\such\\program.exe"));
    EXPECT_NE(GetLastError(), static_cast<DWORD>(ERROR_SUCCESS)) << "the system refused";
}

HRESULT WINAPI noTheme(LPWSTR /*file*/, int, LPWSTR /*color*/, int, LPWSTR /*size*/, int) {
    return E_FAIL;
}
HRESULT WINAPI noteTheme(LPWSTR file, int fileRoom, LPWSTR color, int colorRoom, LPWSTR size, int sizeRoom) {
    asked.push_back(std::to_string(fileRoom) + " " + std::to_string(colorRoom) + " " +
                    std::to_string(sizeRoom));
    lstrcpynW(file, L"C:\\luna.msstyles", fileRoom);
    lstrcpynW(color, L"Metallic", colorRoom);
    lstrcpynW(size, L"NormalSize", sizeRoom);
    return S_OK;
}

TEST_F(UserDesktop, TheColorSchemeIsThatOfTheActiveTheme) {
    const ReplacedImport replaced(__imp_GetCurrentThemeName, noteTheme);
    EXPECT_EQ(runtime.colorScheme(), u"Metallic");
    EXPECT_EQ(asked, std::vector<std::string>{"260 255 255"});
}

TEST_F(UserDesktop, WithoutAThemeThereIsNoColorScheme) {
    const ReplacedImport replaced(__imp_GetCurrentThemeName, noTheme);
    EXPECT_EQ(runtime.colorScheme(), std::nullopt);
}

TEST_F(UserDesktop, ThereIsAColorSchemeWhileAThemeIsActive) {
    EXPECT_EQ(runtime.colorScheme().has_value(), IsThemeActive() != FALSE);
}

} // namespace
} // namespace lumtex::testing

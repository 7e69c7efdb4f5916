/// What the system serves apart from windows.
#include "error_number.h"
#include "guards/current_exe_path.h"
#include "helpers/sp_ev.h"
#include "scratch_folder.h"
#include "values/text.h"
#include "values/version.h"
#include "variant_printing.h"
#include "worlds/win32/win32_locale.h"
#include "worlds/win32/win32_runtime.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class SystemRuntime : public ::testing::Test {
  protected:
    win32::Win32Runtime runtime{GetModuleHandleW(nullptr)};
    const ScratchFolder scratch;
    const String folder = scratch.pathTo("");
};

TEST_F(SystemRuntime, NamesItsModule) {
    EXPECT_EQ(runtime.component().exeName, u"lumtex_test_win32");
    EXPECT_FALSE(runtime.component().folder.empty());
    EXPECT_NE(runtime.component().folder.back(), u'\\');
    EXPECT_EQ(runtime.component().major, versionMajor);
}

TEST_F(SystemRuntime, ListsItselfAmongTheProcesses) {
    const auto processes = runtime.processes();
    ASSERT_TRUE(processes.has_value());
    EXPECT_TRUE(std::any_of(processes->begin(), processes->end(), [&](const ProcessEntry& entry) {
        return entry.id == runtime.currentProcessId() &&
               entry.fileName.find(u"lumtex_test_win32") != String::npos;
    }));
    EXPECT_TRUE(CurrentExePath(runtime, runtime.files()).ends_with(u"lumtex_test_win32.exe"));
}

TEST_F(SystemRuntime, PutsTheUsersSettingsInForce) {
    EXPECT_EQ(&currentLocale(), &win32::win32UsersLocale());
}

TEST_F(SystemRuntime, KnowsTheTimeOfTheDay) {
    SYSTEMTIME local{};
    GetLocalTime(&local);
    Double days = 0;
    SystemTimeToVariantTime(&local, &days);
    const Double difference = runtime.now().days - days;
    EXPECT_GE(difference, -2.0 / 86400);
    EXPECT_LT(difference, 1.0);
}

TEST_F(SystemRuntime, KeepsTextsInFiles) {
    const String file = folder + u"a.txt";
    EXPECT_EQ(errorNumberOf([&] { runtime.files().readFile(file); }), ErrorNumber::fileNotFound);
    runtime.files().createFile(file);
    EXPECT_EQ(runtime.files().readFile(file), u"");
    runtime.files().appendToFile(file, u"one\r\n");
    runtime.files().appendToFile(file, u"Größe");
    EXPECT_EQ(runtime.files().readFile(file), u"one\r\nGröße");
    EXPECT_EQ(errorNumberOf([&] { runtime.files().readFile(folder + u"none\\a.txt"); }),
              ErrorNumber::pathNotFound);
    EXPECT_EQ(errorNumberOf([&] { runtime.files().createFile(folder + u"none\\a.txt"); }),
              ErrorNumber::pathNotFound);
}

TEST_F(SystemRuntime, AFileOfBytesStandsUnderItsNameOnceItIsClosed) {
    const String file = folder + u"b.bin";
    const std::vector<Byte> bytes{0, 1, 2, 255};
    {
        const auto dropped = runtime.files().openForBinaryWriting(file);
        dropped->write(bytes);
    }
    EXPECT_EQ(errorNumberOf([&] { runtime.files().openForBinaryReading(file); }), ErrorNumber::fileNotFound);
    const auto written = runtime.files().openForBinaryWriting(file);
    written->write(bytes);
    written->close();
    const auto read = runtime.files().openForBinaryReading(file);
    EXPECT_EQ(read->size(), 4);
    std::vector<Byte> back(10);
    EXPECT_EQ(read->read(back), 4U);
    back.resize(4);
    EXPECT_EQ(back, bytes);
}

TEST_F(SystemRuntime, DeletesPlainFilesAlone) {
    const String file = folder + u"b.bin";
    EXPECT_EQ(errorNumberOf([&] { runtime.files().deleteFile(file); }), ErrorNumber::fileNotFound);
    runtime.files().createFile(file);
    runtime.files().deleteFile(file);
    EXPECT_EQ(errorNumberOf([&] { runtime.files().deleteFile(file); }), ErrorNumber::fileNotFound);
    EXPECT_EQ(errorNumberOf([&] { runtime.files().deleteFile(folder.substr(0, folder.size() - 1)); }),
              ErrorNumber::pathFileAccess);
    EXPECT_EQ(errorNumberOf([&] { runtime.files().deleteFile(u"NUL"); }), ErrorNumber::pathFileAccess);
    EXPECT_EQ(errorNumberOf([&] { runtime.files().deleteFile(folder + u"none\\b.bin"); }),
              ErrorNumber::pathNotFound);
}

TEST_F(SystemRuntime, EachByteOfTheCodePageComesBack) {
    std::vector<Byte> bytes(256);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<Byte>(i);
    String text(bytes.size(), u'\0');
    runtime.fromAnsi(bytes, text);
    std::vector<Byte> back(bytes.size());
    runtime.toAnsi(text, back);
    EXPECT_EQ(back, bytes);
    Byte unknown = 0;
    runtime.toAnsi(u"\u4E2D", {&unknown, 1});
    EXPECT_EQ(unknown, Byte{'?'});
}

TEST_F(SystemRuntime, ALetterThatTheCodePageLacksBecomesTheNearest) {
    std::vector<Byte> bytes(3);
    runtime.toAnsi(u"\u0100\u010D\u221E", bytes);
    EXPECT_EQ(std::string(bytes.begin(), bytes.end()), "Ac8");
}

TEST_F(SystemRuntime, FindsFilesByPattern) {
    runtime.files().createFile(folder + u"a.txt");
    const Long found = runtime.files().findFirstFile(folder + u"*.txt");
    EXPECT_NE(found, -1);
    runtime.files().findClose(found);
    runtime.files().findClose(found);
    runtime.files().findClose(-1);
    EXPECT_EQ(runtime.files().findFirstFile(folder + u"*.none"), -1);
    EXPECT_EQ(runtime.files().findFirstFile(u""), -1);
}

TEST_F(SystemRuntime, CompletesNamesFromTheCurrentFolder) {
    wchar_t current[MAX_PATH]{};
    GetCurrentDirectoryW(MAX_PATH, current);
    const String full = runtime.files().fullPathName(u"some.exe");
    EXPECT_TRUE(full.starts_with(win32::textOf(current)));
    EXPECT_TRUE(full.ends_with(u"\\some.exe"));
}

TEST_F(SystemRuntime, MakesObjectsByTheirProgramIdentifier) {
    ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
    EXPECT_NE(runtime.createObject(u"Scripting.Dictionary"), nullptr);
    EXPECT_EQ(errorNumberOf([&] { runtime.createObject(u"LumtexErrorHandler.NoSuchThing"); }),
              ErrorNumber::cannotCreateObject);
    EXPECT_EQ(errorNumberOf([&] { runtime.createObject(u""); }), ErrorNumber::cannotCreateObject);
    CoUninitialize();
}

TEST_F(SystemRuntime, LetsPostedMessagesThroughAndLeavesTheEndOfTheProgramToItsLoop) {
    PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
    EXPECT_TRUE(runtime.hasPendingEvents());
    runtime.DoEvents();
    PostQuitMessage(3);
    runtime.DoEvents();
    MSG message{};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 3U);
}

TEST_F(SystemRuntime, TwipsFollowTheScreen) {}

TEST_F(SystemRuntime, IsOfTheFamilyThatHasThemes) {
    EXPECT_EQ(runtime.systemVersion().platformId, 2);
    EXPECT_GE(runtime.systemVersion().major, 5);
}

} // namespace
} // namespace lumtex::testing

/// What the system serves apart from windows.
#include "error_number.h"
#include "guards/current_exe_path.h"
#include "guards/registry_value.h"
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
    Win32Runtime runtime{GetModuleHandleW(nullptr)};
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
    EXPECT_TRUE(CurrentExePath(runtime).ends_with(u"lumtex_test_win32.exe"));
}

class StoredValues : public SystemRuntime {
  protected:
    StoredValues() { RegCreateKeyW(HKEY_CURRENT_USER, wide(path_), &key_); }
    ~StoredValues() override {
        RegCloseKey(key_);
        RegDeleteKeyW(HKEY_CURRENT_USER, wide(path_));
    }

    void store(DWORD type, const void* data, std::size_t size) {
        RegSetValueExW(key_, L"Value", 0, type, static_cast<const BYTE*>(data), static_cast<DWORD>(size));
    }
    String read() { return RegistryValue(runtime, currentUserHive, path_, u"Value"); }

  private:
    /// Of this program's own, as its folder is.
    const String path_ = u"Software\\" + fromUtf8(scratch.path.filename().string());
    HKEY key_ = nullptr;
};

TEST_F(StoredValues, AreTextsAndNumbers) {
    EXPECT_EQ(read(), u"");
    const String text = u"C:\\Größe";
    store(REG_SZ, text.c_str(), (text.size() + 1) * sizeof(char16_t));
    EXPECT_EQ(read(), text);
    store(REG_EXPAND_SZ, text.c_str(), text.size() * sizeof(char16_t));
    EXPECT_EQ(read(), text);
    const DWORD number = 4000000000U;
    store(REG_DWORD, &number, sizeof(number));
    EXPECT_EQ(read(), u"4000000000");
    store(REG_BINARY, &number, sizeof(number));
    EXPECT_EQ(read(), u"");
    EXPECT_EQ(runtime.storedSetting(currentUserHive, u"Software\\LumtexNothing", u"Value"), std::nullopt);
}

TEST_F(SystemRuntime, PutsTheUsersSettingsInForce) {
    EXPECT_EQ(&currentLocale(), &win32UsersLocale());
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
    EXPECT_EQ(errorNumberOf([&] { runtime.readFile(file); }), fileNotFound);
    runtime.createFile(file);
    EXPECT_EQ(runtime.readFile(file), u"");
    runtime.appendToFile(file, u"one\r\n");
    runtime.appendToFile(file, u"Größe");
    EXPECT_EQ(runtime.readFile(file), u"one\r\nGröße");
    EXPECT_EQ(errorNumberOf([&] { runtime.readFile(folder + u"none\\a.txt"); }), pathNotFound);
    EXPECT_EQ(errorNumberOf([&] { runtime.createFile(folder + u"none\\a.txt"); }), pathNotFound);
}

TEST_F(SystemRuntime, AFileOfBytesStandsUnderItsNameOnceItIsClosed) {
    const String file = folder + u"b.bin";
    const std::vector<Byte> bytes{0, 1, 2, 255};
    {
        const auto dropped = runtime.openForBinaryWriting(file);
        dropped->write(bytes);
    }
    EXPECT_EQ(errorNumberOf([&] { runtime.openForBinaryReading(file); }), fileNotFound);
    const auto written = runtime.openForBinaryWriting(file);
    written->write(bytes);
    written->close();
    const auto read = runtime.openForBinaryReading(file);
    EXPECT_EQ(read->size(), 4);
    std::vector<Byte> back(10);
    EXPECT_EQ(read->read(back), 4U);
    back.resize(4);
    EXPECT_EQ(back, bytes);
}

TEST_F(SystemRuntime, DeletesPlainFilesAlone) {
    const String file = folder + u"b.bin";
    EXPECT_EQ(errorNumberOf([&] { runtime.deleteFile(file); }), fileNotFound);
    runtime.createFile(file);
    runtime.deleteFile(file);
    EXPECT_EQ(errorNumberOf([&] { runtime.deleteFile(file); }), fileNotFound);
    EXPECT_EQ(errorNumberOf([&] { runtime.deleteFile(folder.substr(0, folder.size() - 1)); }),
              pathFileAccess);
    EXPECT_EQ(errorNumberOf([&] { runtime.deleteFile(u"NUL"); }), pathFileAccess);
    EXPECT_EQ(errorNumberOf([&] { runtime.deleteFile(folder + u"none\\b.bin"); }), pathNotFound);
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
    runtime.createFile(folder + u"a.txt");
    const Long found = runtime.findFirstFile(folder + u"*.txt");
    EXPECT_NE(found, -1);
    runtime.findClose(found);
    runtime.findClose(found);
    runtime.findClose(-1);
    EXPECT_EQ(runtime.findFirstFile(folder + u"*.none"), -1);
    EXPECT_EQ(runtime.findFirstFile(u""), -1);
}

TEST_F(SystemRuntime, CompletesNamesFromTheCurrentFolder) {
    wchar_t current[MAX_PATH]{};
    GetCurrentDirectoryW(MAX_PATH, current);
    const String full = runtime.fullPathName(u"some.exe");
    EXPECT_TRUE(full.starts_with(textOf(current)));
    EXPECT_TRUE(full.ends_with(u"\\some.exe"));
}

TEST_F(SystemRuntime, MakesObjectsByTheirProgramIdentifier) {
    ASSERT_TRUE(SUCCEEDED(CoInitialize(nullptr)));
    EXPECT_NE(runtime.createObject(u"Scripting.Dictionary"), nullptr);
    EXPECT_EQ(errorNumberOf([&] { runtime.createObject(u"LumtexErrorHandler.NoSuchThing"); }),
              cannotCreateObject);
    EXPECT_EQ(errorNumberOf([&] { runtime.createObject(u""); }), cannotCreateObject);
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

TEST_F(SystemRuntime, TwipsFollowTheScreen) {
    HDC screen = GetDC(nullptr);
    EXPECT_EQ(runtime.twipsPerPixelY(), 1440.0F / static_cast<Single>(GetDeviceCaps(screen, LOGPIXELSY)));
    ReleaseDC(nullptr, screen);
}

TEST_F(SystemRuntime, IsOfTheFamilyThatHasThemes) {
    EXPECT_EQ(runtime.systemVersion().platformId, 2);
    EXPECT_GE(runtime.systemVersion().major, 5);
}

TEST_F(SystemRuntime, ReadsSettingsThatItMayNotWrite) {
    constexpr StringView key = u"Software\\LumtexTestReading";
    const String text(3000, u'x');
    RegSetKeyValueW(HKEY_CURRENT_USER,
                    L"Software\\LumtexTestReading",
                    L"Value",
                    REG_SZ,
                    text.c_str(),
                    static_cast<DWORD>((text.size() + 1) * sizeof(char16_t)));
    const auto stored = runtime.readOnlySetting(currentUserHive, key, u"Value");
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\LumtexTestReading");
    ASSERT_TRUE(stored.has_value());
    EXPECT_EQ(stored->type, StoredSetting::text);
    EXPECT_GE(stored->data.size(), text.size());
    EXPECT_EQ(runtime.readOnlySetting(currentUserHive, key, u"Value"), std::nullopt);
}

} // namespace
} // namespace lumtex::testing

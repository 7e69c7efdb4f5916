#include "desktop_fixture.h"
#include "error_number.h"
#include "scratch_folder.h"
#include "test_object.h"
#include "values/fixed_locale.h"
#include "values/text.h"
#include "values/version.h"

#include <array>
#include <filesystem>
#include <sstream>

namespace lumtex::testing {

using MessageBoxes = DesktopFixture;
using RuntimeRules = DesktopFixture;

TEST_F(MessageBoxes, AreNotedWithTextStyleAndTitle) {
    desktop.runtime().messageBox(u"Min darf nicht größer sein als Max!", BoxStyle::critical, u"");
    desktop.runtime().messageBox(u"b", BoxStyle::plain, u"Error");
    ASSERT_EQ(desktop.runtime().boxes.size(), 2U);
    EXPECT_EQ(desktop.runtime().boxes[0].text, u"Min darf nicht größer sein als Max!");
    EXPECT_EQ(desktop.runtime().boxes[0].style, BoxStyle::critical);
    EXPECT_EQ(desktop.runtime().boxes[0].title, u"");
    EXPECT_EQ(desktop.runtime().boxes[1].title, u"Error");
}

TEST_F(MessageBoxes, AreWrittenWhereTheProgramWishes) {
    std::ostringstream written;
    desktop.runtime().boxesTo = &written;
    desktop.runtime().messageBox(u"Error no.: 9\r\nSubscript größer", BoxStyle::critical, u"Title");
    EXPECT_EQ(written.str(), "Title: Error no.: 9\nSubscript größer\n");
}

TEST_F(MessageBoxes, LetHostCodeAndWaitingEventsRunWhileTheyAreOpen) {
    desktop.runtime().whileBoxIsOpen = [this] { events.record("host"); };
    desktop.postMove({15, 25});
    desktop.runtime().messageBox(u"", BoxStyle::plain, u"");
    events.record("dismissed");
    EXPECT_TRUE(sameLog(events.take(), {"  host", "  a.MouseMove Button=0 Shift=0 X=5 Y=5", "dismissed"}));
}

TEST_F(MessageBoxes, ASecondBoxComesOnTopOfTheFirst) {
    events.on("a.MouseMove", [this] {
        events.record("second");
        desktop.runtime().messageBox(u"second", BoxStyle::plain, u"");
    });
    desktop.runtime().whileBoxIsOpen = [this] {
        events.record("open", {{"boxes", static_cast<Long>(desktop.runtime().boxes.size())}});
    };
    desktop.postMove({15, 25});
    desktop.runtime().messageBox(u"first", BoxStyle::plain, u"");
    EXPECT_TRUE(sameLog(
        events.take(),
        {"  open boxes=1", "  a.MouseMove Button=0 Shift=0 X=5 Y=5", "  second", "    open boxes=2"}));
}

TEST_F(MessageBoxes, HostCodeMayTakeItselfBack) {
    int opened = 0;
    desktop.runtime().whileBoxIsOpen = [&] {
        ++opened;
        desktop.runtime().whileBoxIsOpen = nullptr;
    };
    desktop.runtime().messageBox(u"", BoxStyle::plain, u"");
    desktop.runtime().messageBox(u"", BoxStyle::plain, u"");
    EXPECT_EQ(opened, 1);
}

TEST_F(MessageBoxes, BoxesThatOpenBoxesEndAtTheBound) {
    desktop.runtime().whileBoxIsOpen = [this] {
        desktop.post([] {});
        desktop.runtime().messageBox(u"again", BoxStyle::plain, u"");
    };
    desktop.runtime().messageBox(u"first", BoxStyle::plain, u"");
    EXPECT_EQ(desktop.runtime().boxes.size(), static_cast<std::size_t>(headless::EventLoop::deepest) + 1);
    EXPECT_EQ(desktop.yieldDepth(), 0);
    EXPECT_TRUE(desktop.idle());
}

TEST_F(RuntimeRules, SettingsAreFoundInAnyCase) {
    headless::HeadlessRuntime& runtime = desktop.runtime();
    EXPECT_EQ(runtime.text(u"Software\\Lumtex", u"ErrorLog"), std::nullopt);
    runtime.letSetting(u"Software\\Lumtex", u"ErrorLog", u"C:\\Log");
    EXPECT_EQ(runtime.text(u"software\\LUMTEX", u"errorLOG"), u"C:\\Log");
    EXPECT_EQ(runtime.text(u"Software\\Lumtex", u"Other"), std::nullopt);
    EXPECT_EQ(runtime.text(u"Software", u"Lumtex\\ErrorLog"), std::nullopt);
    runtime.letSetting(u"SOFTWARE\\LUMTEX", u"ERRORLOG", u"D:\\");
    EXPECT_EQ(runtime.text(u"Software\\Lumtex", u"ErrorLog"), u"D:\\");
}

TEST_F(RuntimeRules, TheComponentIsTheProjectUntilATestSaysOtherwise) {
    const ComponentInfo& info = desktop.runtime().component();
    EXPECT_EQ(info.exeName, u"LumtexListView");
    EXPECT_EQ(info.major, versionMajor);
    EXPECT_EQ(info.minor, versionMinor);
    EXPECT_EQ(info.revision, versionRevision);
    EXPECT_TRUE(std::filesystem::is_directory(toUtf8(info.folder)));
    desktop.runtime().componentInfo.exeName = u"Other";
    EXPECT_EQ(info.exeName, u"Other");
}

TEST_F(RuntimeRules, TheRunningProgramIsTheOneProcess) {
    headless::HeadlessRuntime& runtime = desktop.runtime();
    const std::optional<std::vector<ProcessEntry>> processes = runtime.processes();
    ASSERT_TRUE(processes.has_value());
    ASSERT_EQ(processes->size(), 1U);
    EXPECT_EQ(processes->front().id, runtime.currentProcessId());
    const std::filesystem::path path = toUtf8(runtime.files().fullPathName(processes->front().fileName));
    EXPECT_EQ(path.filename(), "lumtex_test_headless");
    EXPECT_TRUE(std::filesystem::exists(path));
}

TEST_F(RuntimeRules, AFileNameIsCompletedFromTheCurrentFolder) {
    const String current = fromUtf8(std::filesystem::current_path().string());
    EXPECT_EQ(desktop.runtime().files().fullPathName(u"name.txt"), current + u"/name.txt");
    EXPECT_EQ(desktop.runtime().files().fullPathName(u"/some/./name.txt"), u"/some/name.txt");
}

TEST_F(RuntimeRules, TheDateMovesWithTheVirtualClock) {
    headless::HeadlessRuntime& runtime = desktop.runtime();
    EXPECT_EQ(currentLocale().dateText(runtime.now()), u"2000-01-01");
    EXPECT_EQ(currentLocale().timeText(runtime.now()), u"12:00:00");
    runtime.clock = Date{45000.25};
    desktop.advance(std::chrono::hours(24) + std::chrono::seconds(61));
    EXPECT_EQ(currentLocale().dateText(runtime.now()), u"2023-03-16");
    EXPECT_EQ(currentLocale().timeText(runtime.now()), u"06:01:01");
}

TEST_F(RuntimeRules, TextConvertsByTheInvariantRulesUntilAnotherLocaleIsGiven) {
    EXPECT_EQ(Variant(1.5).toText(), u"1.5");
    EXPECT_EQ(Variant(Date{36526}).toText(), u"2000-01-01");
    {
        headless::Desktop german;
        german.runtime().letLocale(germanLocale());
        EXPECT_EQ(Variant(1.5).toText(), u"1,5");
        EXPECT_EQ(Variant(Date{36526}).toText(), u"01.01.2000");
        EXPECT_EQ(Variant(u"1,5").toDouble(), 1.5);
        german.runtime().letLocale(invariantLocale());
        EXPECT_EQ(Variant(1.5).toText(), u"1.5");
        german.runtime().letLocale(germanLocale());
    }
    EXPECT_EQ(Variant(1.5).toText(), u"1.5");
}

class AppendToFile : public DesktopFixture {
  protected:
    const ScratchFolder folder;
};

TEST_F(AppendToFile, GrowsTheFileAndKeepsLineEndsAsGiven) {
    desktop.runtime().files().appendToFile(folder.pathTo("log.txt"), u"größer\r\n");
    desktop.runtime().files().appendToFile(folder.pathTo("log.txt"), u"b\n");
    EXPECT_EQ(folder.contentOf("log.txt"),
              "gr\xC3\xB6\xC3\x9F"
              "er\r\nb\n");
}

TEST_F(AppendToFile, BackslashesSeparateFolders) {
    std::filesystem::create_directories(folder.path / "inner");
    String path = folder.pathTo("inner");
    path += u"\\log.txt";
    desktop.runtime().files().appendToFile(path, u"a");
    EXPECT_EQ(folder.contentOf("inner/log.txt"), "a");
}

TEST_F(AppendToFile, FailsWithThePathWhereTheFolderDoesNotExist) {
    EXPECT_EQ(errorNumberOf(
                  [&] { desktop.runtime().files().appendToFile(folder.pathTo("missing\\log.txt"), u"a"); }),
              ErrorNumber::pathNotFound);
    EXPECT_FALSE(std::filesystem::exists(folder.path / "missing"));
}

TEST_F(AppendToFile, FailsWithTheAccessWhereTheFileCannotBeOpened) {
    EXPECT_EQ(
        errorNumberOf([&] { desktop.runtime().files().appendToFile(fromUtf8(folder.path.string()), u"a"); }),
        ErrorNumber::pathFileAccess);
    EXPECT_EQ(errorNumberOf([&] { desktop.runtime().files().appendToFile(u"", u"a"); }),
              ErrorNumber::pathFileAccess);
}

TEST_F(RuntimeRules, ObjectsComeFromTheirFactories) {
    headless::HeadlessRuntime& runtime = desktop.runtime();
    EXPECT_EQ(errorNumberOf([&] { runtime.createObject(u"Some.Class"); }), ErrorNumber::cannotCreateObject);
    const auto object = std::make_shared<TestObject>();
    runtime.factories[u"Some.Class"] = [&] { return object; };
    EXPECT_EQ(runtime.createObject(u"some.CLASS"), object);
    runtime.factories[u"Some.Class"] = nullptr;
    EXPECT_EQ(errorNumberOf([&] { runtime.createObject(u"Some.Class"); }), ErrorNumber::cannotCreateObject);
}

TEST_F(RuntimeRules, ThereIsNoApplicationUntilATestSaysOtherwise) {
    EXPECT_EQ(desktop.runtime().applicationObject(), nullptr);
}

} // namespace lumtex::testing

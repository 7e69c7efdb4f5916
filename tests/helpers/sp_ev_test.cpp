#include "guards/error.h"
#include "helpers/sp_ev.h"
#include "report_catcher.h"
#include "scratch_folder.h"
#include "test_fonts.h"
#include "test_list.h"
#include "test_object.h"
#include "worlds/headless/desktop.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class SpEvTest : public ::testing::Test {
  protected:
    SpEvTest() {
        runtime.factories[String(ReportCatcher::programId)] = [this] { return handler; };
    }

    std::string reports() const { return toUtf8(handler->reports()); }
    /// The entries as text, one line each.
    static std::string linesOf(const TestList& list) {
        std::string lines;
        for (const Variant& entry : list.entries)
            lines += toUtf8(entry.toText()) + "|";
        return lines;
    }

    headless::Desktop desktop{testFonts()};
    headless::HeadlessRuntime& runtime = desktop.runtime();
    std::shared_ptr<ReportCatcher> handler = std::make_shared<ReportCatcher>();
    ScratchFolder folder;
    SpEv spEv{runtime};
    std::shared_ptr<TestList> list = std::make_shared<TestList>();
};

using TextRead = SpEvTest;
using TextSave = SpEvTest;
using ListSave = SpEvTest;
using ListRead = SpEvTest;
using FileExists = SpEvTest;
using PlayMusic = SpEvTest;
using ActiveXPTheme = SpEvTest;
using MouseButtonPressed = SpEvTest;

TEST_F(TextRead, OfAnEmptyFileIsTheEmptyString) {
    folder.write("empty.txt", "");
    EXPECT_EQ(spEv.TextRead(folder.pathTo("empty.txt")), u"");
    EXPECT_EQ(reports(), "");
}

TEST_F(TextRead, GivesTheWholeFile) {
    folder.write("text.txt",
                 "gr\xC3\xB6\xC3\x9F"
                 "er\r\n\nlast");
    EXPECT_EQ(spEv.TextRead(folder.pathTo("text.txt")), u"größer\r\n\nlast");
    EXPECT_EQ(reports(), "");
}

TEST_F(TextRead, OfAFileThatCannotBeOpenedIsReportedAndEmpty) {
    EXPECT_EQ(spEv.TextRead(folder.pathTo("missing.txt")), u"");
    EXPECT_EQ(reports(), "53 TextRead: File not found\n52 TextRead: Bad file name or number\n");
    handler->calls.clear();
    EXPECT_EQ(spEv.TextRead(folder.pathTo("missing/file.txt")), u"");
    EXPECT_EQ(reports(), "76 TextRead: Path not found\n52 TextRead: Bad file name or number\n");
    handler->calls.clear();
    EXPECT_EQ(spEv.TextRead(folder.pathTo("")), u"");
    EXPECT_EQ(reports(), "75 TextRead: Path/File access error\n52 TextRead: Bad file name or number\n");
    handler->calls.clear();
    EXPECT_EQ(spEv.TextRead(u""), u"");
    EXPECT_EQ(reports(), "53 TextRead: File not found\n52 TextRead: Bad file name or number\n");
}

TEST_F(TextRead, ReportsNameTheClass) {
    spEv.TextRead(folder.pathTo("missing.txt"));
    ASSERT_FALSE(handler->calls.empty());
    EXPECT_EQ(handler->calls[0][6], Variant(u"Klassenmodul"));
    EXPECT_EQ(handler->calls[0][7], Variant(u"SpEv"));
}

TEST_F(TextSave, ThenTextReadGivesTheSameTextBackWithNoLineEndAdded) {
    for (const StringView text : {StringView(u"one\r\ntwo"),
                                  StringView(u""),
                                  StringView(u"größer\n\n"),
                                  StringView(u"zero \0 inside", 13)}) {
        spEv.TextSave(folder.pathTo("text.txt"), text);
        EXPECT_EQ(spEv.TextRead(folder.pathTo("text.txt")), text);
    }
    spEv.TextSave(folder.pathTo("text.txt"), u"ab");
    EXPECT_EQ(folder.contentOf("text.txt"), "ab");
    EXPECT_EQ(reports(), "");
}

TEST_F(TextSave, EmptiesTheFileFirst) {
    folder.write("text.txt", "what was there before");
    spEv.TextSave(folder.pathTo("text.txt"), u"new");
    EXPECT_EQ(folder.contentOf("text.txt"), "new");
}

TEST_F(TextSave, IntoAFolderThatDoesNotExistFailsAtEachStatement) {
    spEv.TextSave(folder.pathTo("missing/file.txt"), u"a");
    EXPECT_EQ(reports(), "76 TextSave: Path not found\n52 TextSave: Bad file name or number\n");
    handler->calls.clear();
    spEv.TextSave(u"", u"a");
    EXPECT_EQ(reports(), "75 TextSave: Path/File access error\n52 TextSave: Bad file name or number\n");
}

TEST_F(TextSave, SilentErrorTrueMeansNoReport) {
    Error error;
    error.letSilentError(true);
    spEv.TextSave(folder.pathTo("missing/file.txt"), u"a");
    error.letSilentError(false);
    EXPECT_EQ(reports(), "");
}

TEST_F(ListSave, ThenListReadIntoAnEmptyListGivesTheSameEntries) {
    list->entries = {u"first", u"", u"größer, \"quoted\"", u"last"};
    spEv.ListSave(list, folder.pathTo("list.txt"));
    EXPECT_EQ(folder.contentOf("list.txt"),
              "first\r\n\r\ngr\xC3\xB6\xC3\x9F"
              "er, \"quoted\"\r\nlast\r\n");
    const auto copy = std::make_shared<TestList>();
    spEv.ListRead(copy, folder.pathTo("list.txt"));
    EXPECT_EQ(copy->entries, list->entries);
    EXPECT_EQ(reports(), "");
}

TEST_F(ListSave, WritesTheTextsBeforeAndAfterEachEntry) {
    list->entries = {u"a", u"b"};
    spEv.ListSave(list, folder.pathTo("list.txt"), u"<li>", u"</li>");
    EXPECT_EQ(folder.contentOf("list.txt"), "<li>a</li>\r\n<li>b</li>\r\n");
}

TEST_F(ListSave, WhoseCountCannotBeReadHasEmptiedTheFile) {
    folder.write("list.txt", "before");
    list->claimedCount = u"many";
    spEv.ListSave(list, folder.pathTo("list.txt"));
    EXPECT_EQ(folder.contentOf("list.txt"), "");
    EXPECT_NE(reports(), "");
}

TEST_F(ListSave, OfAnEmptyListEmptiesTheFile) {
    folder.write("list.txt", "before");
    spEv.ListSave(list, folder.pathTo("list.txt"), u"<", u">");
    EXPECT_EQ(folder.contentOf("list.txt"), "");
}

TEST_F(ListSave, WritesEntriesOfOtherKindsAsTheirText) {
    list->entries = {Long{12}, Null(), Variant(), true};
    spEv.ListSave(list, folder.pathTo("list.txt"), u"[", u"]");
    EXPECT_EQ(folder.contentOf("list.txt"), "[12]\r\n[]\r\n[]\r\n[True]\r\n");
    EXPECT_EQ(reports(), "");
}

TEST_F(ListSave, AnEntryThatFailsCostsItsLineAndAReport) {
    list->entries = {u"a", Variant(ObjectRef()), u"c"};
    spEv.ListSave(list, folder.pathTo("list.txt"));
    EXPECT_EQ(folder.contentOf("list.txt"), "a\r\nc\r\n");
    EXPECT_EQ(handler->calls.size(), 1U);
}

TEST_F(ListSave, AnObjectThatIsNoListIsReportedOnce) {
    spEv.ListSave(std::make_shared<TestObject>(), folder.pathTo("list.txt"));
    EXPECT_EQ(reports(), "438 ListSave: Object doesn't support this property or method\n");
    EXPECT_EQ(folder.contentOf("list.txt"), "");
    handler->calls.clear();
    spEv.ListSave(nullptr, folder.pathTo("list.txt"));
    EXPECT_EQ(reports(), "91 ListSave: Object variable or With block variable not set\n");
}

TEST_F(ListSave, IntoAFileThatCannotBeOpenedFailsForEachEntry) {
    list->entries = {u"a", u"b"};
    spEv.ListSave(list, folder.pathTo("missing/list.txt"));
    EXPECT_EQ(reports(),
              "76 ListSave: Path not found\n52 ListSave: Bad file name or number\n"
              "52 ListSave: Bad file name or number\n");
}

TEST_F(ListSave, OfTheMostEntriesThatAnIntegerCountsSucceeds) {
    list->entries.assign(32767, u"x");
    spEv.ListSave(list, folder.pathTo("list.txt"));
    EXPECT_EQ(reports(), "");
    EXPECT_EQ(folder.contentOf("list.txt").size(), 32767U * 3);
}

TEST_F(ListSave, OfMoreThan32767EntriesFailsWithAnOverflow) {
    // Wanted: the index is an Integer, so a list of more than 32767 entries ends in an overflow.
    for (const std::size_t count : {std::size_t{32768}, std::size_t{32769}, std::size_t{40000}}) {
        handler->calls.clear();
        list->entries.assign(count, u"x");
        spEv.ListSave(list, folder.pathTo("list.txt"));
        EXPECT_EQ(reports(), "6 ListSave: Overflow\n") << count;
        EXPECT_EQ(folder.contentOf("list.txt").size(), 32768U * 3) << count;
    }
}

TEST_F(ListSave, ACountThatIsNoUsableNumberWritesNothing) {
    for (const Variant& count : {Variant(Long{-5}), Variant(Long{-2147483647 - 1})}) {
        list->claimedCount = count;
        spEv.ListSave(list, folder.pathTo("list.txt"));
    }
    EXPECT_EQ(reports(), "");
    list->claimedCount = u"many";
    spEv.ListSave(list, folder.pathTo("list.txt"));
    EXPECT_EQ(reports(), "13 ListSave: Type mismatch\n");
    EXPECT_EQ(folder.contentOf("list.txt"), "");
}

TEST_F(ListRead, DoesNotClearTheListFirst) {
    list->entries = {u"before"};
    folder.write("list.txt", "a\r\nb\r\n");
    spEv.ListRead(list, folder.pathTo("list.txt"));
    EXPECT_EQ(linesOf(*list), "before|a|b|");
}

struct LineRule {
    const char* name;
    const char* bytes;
    const char* entries;
};

TEST_F(ListRead, LinesEndAtACarriageReturnOrAtTheEndOfTheFile) {
    // Wanted: a line feed alone ends no line, so that entries which hold one come back whole.
    constexpr LineRule rules[] = {
        {"an empty file has no line", "", ""},
        {"the last line needs no end", "a\r\nb", "a|b|"},
        {"a line end alone is an empty line", "\r\n", "|"},
        {"an empty line at the end", "a\r\n\r\n", "a||"},
        {"carriage returns alone", "a\rb\r", "a|b|"},
        {"line feeds alone", "a\nb\n", "a\nb\n|"},
        {"a line feed before a carriage return", "a\n\rb", "a\n|b|"},
        {"a line feed at the start", "\na\r\n\nb", "\na|\nb|"},
    };
    for (const LineRule& rule : rules) {
        list->entries.clear();
        folder.write("list.txt", rule.bytes);
        spEv.ListRead(list, folder.pathTo("list.txt"));
        EXPECT_EQ(linesOf(*list), rule.entries) << rule.name;
    }
}

TEST_F(ListRead, OfAFileThatCannotBeOpenedIsReportedAndEnds) {
    spEv.ListRead(list, folder.pathTo("missing.txt"));
    EXPECT_EQ(reports(), "53 ListRead: File not found\n52 ListRead: Bad file name or number\n");
    EXPECT_TRUE(list->entries.empty());
}

TEST_F(ListRead, ALineThatTheListRefusesCostsAReport) {
    folder.write("list.txt", "a\r\nb\r\nc\r\n");
    int added = 0;
    list->onAddItem = [&] {
        if (++added == 2)
            throw RuntimeError(ErrorNumber::outOfMemory);
    };
    spEv.ListRead(list, folder.pathTo("list.txt"));
    EXPECT_EQ(linesOf(*list), "a|c|");
    EXPECT_EQ(reports(), "7 ListRead: Out of memory\n");
}

TEST_F(ListRead, IntoNoListFailsForEachLine) {
    folder.write("list.txt", "a\r\nb\r\n");
    spEv.ListRead(nullptr, folder.pathTo("list.txt"));
    EXPECT_EQ(reports(),
              "91 ListRead: Object variable or With block variable not set\n"
              "91 ListRead: Object variable or With block variable not set\n");
}

TEST_F(ListRead, AListThatWritesTheFileMeanwhileDoesNotKeepItGoing) {
    folder.write("list.txt", "a\r\nb\r\n");
    list->onAddItem = [&] { runtime.files().appendToFile(folder.pathTo("list.txt"), u"more\r\n"); };
    spEv.ListRead(list, folder.pathTo("list.txt"));
    EXPECT_EQ(linesOf(*list), "a|b|");
}

TEST_F(FileExists, OfTheEmptyStringIsFalse) {
    EXPECT_FALSE(spEv.FileExists(u""));
    EXPECT_EQ(reports(), "");
}

TEST_F(FileExists, FilesFoldersAndPatternsThatMatchAnythingCount) {
    struct Row {
        const char* name;
        bool exists;
    };
    folder.write("list.txt", "");
    folder.write("noextension", "");
    std::filesystem::create_directories(folder.path / "inner");
    constexpr Row rows[] = {
        {"list.txt", true},    {"missing.txt", false},
        {"inner", true},       {"inner/missing", false},
        {"list.*", true},      {"l?st.txt", true},
        {"*.txt", true},       {"*.dat", false},
        {"*.*", true},         {"??st.txt*", true},
        {"list.txt?", false},  {"inner/*", true},
        {"missing/*", false},  {"", false},
        {"*i*t*", true},       {"n*n", true},
        {"inner\\*.*", true},  {"x*", false},
        {"list.txt/*", false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(spEv.FileExists(folder.pathTo(row.name)), row.exists) << row.name;
}

TEST_F(FileExists, AnySearchIsClosedAlsoOneThatFoundNothing) {
    // Wanted: the search is closed in every case, also the one that found nothing.
    spEv.FileExists(folder.pathTo("missing"));
    spEv.FileExists(fromUtf8(folder.path.string()));
    EXPECT_EQ(runtime.files().closedSearches.size(), 2U);
    EXPECT_EQ(runtime.files().closedSearches[0], -1);
    EXPECT_NE(runtime.files().closedSearches[1], -1);
}

TEST_F(PlayMusic, PlaysAtOnceAndWithoutTheDefaultSound) {
    spEv.PlayMusic(u"C:\\Media\\ding.wav");
    ASSERT_EQ(runtime.sounds.size(), 1U);
    EXPECT_EQ(runtime.sounds[0], u"C:\\Media\\ding.wav");
    EXPECT_EQ(reports(), "");
}

TEST_F(ActiveXPTheme, TheColourNameDecides) {
    struct Row {
        StringView colorName;
        cActiveXPTheme theme;
    };
    constexpr Row rows[] = {
        {u"NormalColor", styleBlue},
        {u"Metallic", styleSilver},
        {u"HomeStead", styleOlive},
        {u"Other", styleClassic},
        {u"", styleClassic},
        {u"normalcolor", styleClassic},
        {u"Homestead", styleClassic},
        {u"NormalColor ", styleClassic},
    };
    for (const Row& row : rows) {
        runtime.scheme = row.colorName;
        EXPECT_EQ(spEv.ActiveXPTheme(), row.theme) << toUtf8(row.colorName);
    }
}

TEST_F(ActiveXPTheme, NamesLongerThanTheBuffersAreCut) {
    runtime.scheme = String(1000, u'b');
    EXPECT_EQ(spEv.ActiveXPTheme(), styleClassic);
}

TEST_F(ActiveXPTheme, TheClassicLookOnAThemedSystemIsClassic) {
    runtime.scheme = std::nullopt;
    EXPECT_EQ(spEv.ActiveXPTheme(), styleClassic);
}

TEST_F(ActiveXPTheme, TheVersionTestLooksAtMajorAndMinorOnTheirOwn) {
    // Wanted: major and minor are tested on their own, so a later system with a minor version of 0 fails.
    struct Row {
        SystemVersion version;
        cActiveXPTheme theme;
    };
    constexpr Row rows[] = {
        {{2, 5, 1}, styleBlue},
        {{2, 5, 2}, styleBlue},
        {{2, 6, 1}, styleBlue},
        {{2, 10, 3}, styleBlue},
        {{2, 5, 0}, styleClassic},
        {{2, 6, 0}, styleClassic},
        {{2, 10, 0}, styleClassic},
        {{2, 4, 9}, styleClassic},
        {{1, 5, 1}, styleClassic},
        {{3, 6, 1}, styleClassic},
        {{0, 0, 0}, styleClassic},
    };
    runtime.scheme = u"NormalColor";
    for (const Row& row : rows) {
        runtime.version = row.version;
        EXPECT_EQ(spEv.ActiveXPTheme(), row.theme)
            << row.version.platformId << " " << row.version.major << "." << row.version.minor;
    }
}

TEST_F(MouseButtonPressed, NothingPressedIsNone) {
    EXPECT_EQ(spEv.MouseButtonPressed(), mouseNone);
}

TEST_F(MouseButtonPressed, MiddleButtonDownIsFour) {
    // Wanted: the middle button is its key code 4, and not mouseMiddle, which is 3.
    desktop.press(middleButton);
    EXPECT_EQ(static_cast<Long>(spEv.MouseButtonPressed()), 4);
    EXPECT_NE(spEv.MouseButtonPressed(), mouseMiddle);
}

TEST_F(MouseButtonPressed, WithSeveralHeldTheOrderIsLeftRightMiddle) {
    desktop.press(middleButton);
    desktop.press(rightButton);
    EXPECT_EQ(spEv.MouseButtonPressed(), mouseRight);
    desktop.press(leftButton);
    EXPECT_EQ(spEv.MouseButtonPressed(), mouseLeft);
}

TEST_F(MouseButtonPressed, APressSinceTheLastCallCountsOnce) {
    // Wanted: any state but zero counts, so also a press since the last call.
    desktop.click(rightButton);
    EXPECT_EQ(spEv.MouseButtonPressed(), mouseRight);
    EXPECT_EQ(spEv.MouseButtonPressed(), mouseNone);
}

} // namespace
} // namespace lumtex::testing

/// Files that no list wrote, and places where no file can be.
#include "content/content_header.h"
#include "content_fixture.h"
#include "guards/error.h"

#include <csignal>
#include <filesystem>

#include <sys/resource.h>

namespace lumtex::testing {
namespace {

namespace fs = std::filesystem;

class ContentBadFiles : public ContentFixture {
  protected:
    ContentBadFiles() { addColumns({30, 30}); }

    void expectUsableAfter(const std::string& bytes, bool properties) {
        Error().letSilentError(true); // a changed count may announce millions of cells, each a failure
        EXPECT_TRUE(load(bytes, properties));
        Error().letSilentError(false);
        takeReports();
        list.RowsClear();
        list.RowsAdd(Long{-1}, u",", u"still,here");
        ASSERT_EQ(texts(), "still here");
        ASSERT_EQ(takeReports(), "");
    }

    std::string fullFile() const {
        CellProperties cell;
        cell.tag = "t";
        cell.icon = CellProperties::image(iconImage(0));
        cell.iconSelected = CellProperties::image(bitmapImage());
        return ContentBytes()
            .header(2, 2, true)
            .text("one")
            .raw(cell.bytes())
            .text("two")
            .raw(CellProperties().bytes())
            .text("three")
            .raw(CellProperties().bytes())
            .text("four")
            .raw(cell.bytes());
    }
};

TEST_F(ContentBadFiles, AFileThatEndsAnywhereIsReportedAndTheRowsItAnnouncesAreThere) {
    const std::string whole = fullFile();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        EXPECT_TRUE(load(whole.substr(0, size), true));
        ASSERT_NE(takeReports(), "");
        // What was read before the end stays; without the four bytes of their count there are no rows.
        ASSERT_EQ(list.RowsCount(), size < 6 ? 0 : 2);
        if (size > 12 + 4 + 3) {
            ASSERT_EQ(list.ItemText(1, 1), u"one");
        }
    }
    EXPECT_TRUE(load(whole, true));
    EXPECT_EQ(takeReports(), "");
    EXPECT_EQ(texts(), "one three|two four");
}

TEST_F(ContentBadFiles, AShortFileThatEndsAnywhereFailsOnceForEachPieceThatIsMissing) {
    const std::string whole = ContentBytes().header(2, 1, false).text("ab").text("cd");
    const std::string length = "62 ContentInput\n";
    EXPECT_TRUE(load(whole.substr(0, whole.size() - 1), false));
    EXPECT_EQ(takeReports(), length);
    EXPECT_EQ(texts(), "ab | ");
    EXPECT_EQ(list.ItemText(2, 1), u"");
    // Without the length the text is empty, which can be read at the end too.
    EXPECT_TRUE(load(whole.substr(0, 12 + 6 + 3), false));
    EXPECT_EQ(takeReports(), length);
    EXPECT_TRUE(load(whole.substr(0, 12), false));
    EXPECT_EQ(takeReports(), length + length);
    EXPECT_EQ(list.RowsCount(), 2);
    EXPECT_TRUE(load("", false));
    EXPECT_EQ(takeReports(), length + length + length + length);
    EXPECT_EQ(list.RowsCount(), 0);
}

TEST_F(ContentBadFiles, ANegativeLengthIsAnInvalidArgumentAndReadsNothing) {
    const std::string bytes = ContentBytes().header(2, 1, false).number(-1).text("b");
    EXPECT_TRUE(load(bytes, false));
    EXPECT_EQ(takeReports(), "5 ContentInput\n");
    EXPECT_EQ(texts(), " |b ");
    expectUsableAfter(ContentBytes().header(2, 1, false).number(-2147483648LL).text("b"), true);
}

TEST_F(ContentBadFiles, ALengthPastTheEndIsReportedAndNothingIsReadBehindIt) {
    const std::string bytes = ContentBytes().header(2, 1, false).number(2147483647).text("b");
    EXPECT_TRUE(load(bytes, false));
    EXPECT_EQ(takeReports(), "62 ContentInput\n62 ContentInput\n");
    EXPECT_EQ(texts(), " | ");
}

TEST_F(ContentBadFiles, EveryByteChangedLeavesAListThatWorks) {
    list.letAutoRedraw(false);
    window().place(100, 100, 4, 4); // shows no row: finding the font of a damaged name takes long
    const std::string whole = fullFile();
    for (std::size_t i = 0; i < whole.size(); ++i) {
        SCOPED_TRACE(i);
        for (const bool properties : {false, true}) {
            std::string changed = whole;
            changed[i] = static_cast<char>(changed[i] ^ (properties ? '\x80' : '\xFF'));
            expectUsableAfter(changed, properties);
        }
    }
}

struct Counts {
    std::int64_t rows;
    std::int64_t columns;
    bool properties;
    bool possible;
    Long listColumns = 2;
};

constexpr std::int64_t most = 2147483647;

// The file goes on with 4000 bytes.
constexpr std::array<Counts, 23> counts{{
    {0, 0, false, true},
    {0, most, true, true},
    {-1, 5, false, true},
    {-2147483647 - 1, -2147483647 - 1, true, true},
    {1, 1, false, true},
    {2025, 1, false, true},
    {1, 2025, true, true},
    {2'000'000, 1, false, true},
    {2'000'000, 2, true, true},
    {2'000'001, 2, true, false},
    {2'000'001, 1, false, false},
    {1, 4'000'000, false, true},
    {1, 4'000'001, false, false},
    {1000, 1, false, true, 5000},
    {1001, 1, false, false, 5000},
    {most, 1, false, false},
    {most, most, true, false},
    {most, 0, false, false},
    {most, -1, true, false, 0},
    {4'000'000, 0, false, true},
    {4'000'001, -most, false, false},
    {4'000'000, 0, true, true, 4},
    {4'000'000, 0, true, false, 5},
}};

TEST_F(ContentBadFiles, CountsThatTheBytesCannotHoldAreImpossible) {
    for (const Counts& row : counts) {
        const content::ContentHeader header{
            275, static_cast<Long>(row.rows), static_cast<Long>(row.columns), row.properties};
        EXPECT_EQ(content::isPossible(header, 4000, row.listColumns), row.possible)
            << row.rows << " x " << row.columns << (row.properties ? " with" : " without");
    }
    // As many as the bytes hold are possible, however many that is.
    for (const std::int64_t missing : {0, 1}) {
        EXPECT_EQ(content::isPossible({275, 5'000'000, 2, false}, 40'000'000 - missing, 2), missing == 0);
        EXPECT_EQ(content::isPossible({275, 5'000'000, 2, true}, 560'000'000 - missing, 2), missing == 0);
    }
}

TEST_F(ContentBadFiles, ImpossibleCountsRunOutOfMemoryOnceAndLeaveNoRows) {
    for (const Counts& row : counts) {
        if (row.possible || row.listColumns != 2)
            continue;
        SCOPED_TRACE(std::to_string(row.rows) + " x " + std::to_string(row.columns));
        addRows(2);
        const std::string bytes =
            ContentBytes().header(row.rows, row.columns, row.properties).raw(std::string(4000, '\0'));
        EXPECT_TRUE(load(bytes, true));
        EXPECT_EQ(takeReports(), "7 ContentInput\n");
        EXPECT_EQ(list.RowsCount(), 0);
    }
}

TEST_F(ContentBadFiles, EachMissingCellIsAFailureOfItsOwnHoweverManyThereAre) {
    for (const Long rows : {1024, 1025, 3000}) {
        EXPECT_TRUE(load(ContentBytes().header(rows, 2, false).text("one"), false));
        const std::string reports = takeReports();
        EXPECT_EQ(std::count(reports.begin(), reports.end(), '\n'), 2 * rows - 1);
        EXPECT_EQ(reports.substr(0, 16), "62 ContentInput\n");
        EXPECT_EQ(list.RowsCount(), rows);
        EXPECT_EQ(list.ItemText(1, 1), u"one");
    }
}

TEST_F(ContentBadFiles, MoreThanAMillionRowsWithoutColumnsComeBack) {
    addRows(3);
    list.ColumnsClear();
    EXPECT_EQ(saved(false), std::string(ContentBytes().header(3, 0, false))) << "what such a list becomes";
    constexpr Long many = 1'048'577;
    addColumns({30});
    EXPECT_TRUE(load(ContentBytes().header(many, 0, false), false));
    EXPECT_EQ(takeReports(), "");
    EXPECT_EQ(list.RowsCount(), many);
    EXPECT_EQ(list.ItemText(many, 1), u"");
}

TEST_F(ContentBadFiles, RowsWithoutCellsComeBackAsEmptyRows) {
    EXPECT_TRUE(load(ContentBytes().header(3, 0, true), true));
    EXPECT_EQ(texts(), " | | ");
    EXPECT_TRUE(load(ContentBytes().header(3, -5, false), true));
    EXPECT_EQ(texts(), " | | ");
    EXPECT_TRUE(load(ContentBytes().header(-3, 2, false), true));
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(takeReports(), "");
}

TEST_F(ContentBadFiles, AGarbagePictureIsReportedAndTheRestOfTheRecordRead) {
    CellProperties cell;
    cell.icon = CellProperties::image("BM and no picture");
    cell.iconSelected = CellProperties::image(bitmapImage());
    EXPECT_TRUE(load(ContentBytes().header(1, 1, true).text("x").raw(cell.bytes()), true));
    EXPECT_EQ(takeReports(), "481 GetStringPicture\n");
    EXPECT_EQ(list.ItemIcon(1, 1), nullptr);
    EXPECT_EQ(list.ItemIconSelected(1, 1)->bitmap(), bitmapPixels());
}

TEST_F(ContentBadFiles, APictureOfNegativeLengthIsNone) {
    CellProperties cell;
    cell.icon = ContentBytes().byte(1).number(-5);
    EXPECT_TRUE(load(ContentBytes().header(1, 1, true).text("x").raw(cell.bytes()), true));
    EXPECT_EQ(takeReports(), "5 ContentInput\n481 GetStringPicture\n");
    EXPECT_TRUE(load(false));
    EXPECT_EQ(takeReports(), "5 ContentInput\n");
}

TEST_F(ContentBadFiles, AFontSizeThatIsNoNumberIsKeptAndPainted) {
    for (const std::int64_t bits : {0x7FC00000LL, 0x7F800000LL, 0xFF800000LL, 0x7F7FFFFFLL, 0x80000000LL}) {
        CellProperties cell;
        cell.fontSize = std::bit_cast<float>(static_cast<std::uint32_t>(bits));
        const std::string bytes =
            ContentBytes().header(1, 2, true).text("x").raw(cell.bytes()).text("y").raw(cell.bytes());
        EXPECT_TRUE(load(bytes, true));
        takeReports();
        EXPECT_EQ(texts(), "x y");
        list.letItemFontSize(1, 1, 9);
        EXPECT_EQ(saved(true).substr(12, 5), std::string(ContentBytes().text("x")));
    }
}

TEST_F(ContentBadFiles, AFolderIsNeitherReadNorReplaced) {
    addRows(2, u"a,b");
    fs::create_directory(folder.path / name);
    EXPECT_TRUE(load(true));
    EXPECT_EQ(takeReports(),
              "75 ContentInput\n52 ContentInput\n52 ContentInput\n52 ContentInput\n52 ContentInput\n");
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_TRUE(save(false));
    EXPECT_EQ(takeReports().substr(0, 48), "75 ContentSave\n75 ContentSave\n52 ContentSave\n52 ");
    EXPECT_TRUE(fs::is_directory(folder.path / name));
}

TEST_F(ContentBadFiles, APlaceWhereNoFileCanBeFailsAtOpening) {
    folder.write("file", "text");
    for (const char* place : {"file/below", "nowhere/list.dat", "/proc/list.dat", "/dev/full", ""}) {
        SCOPED_TRACE(place);
        EXPECT_TRUE(list.ContentSave(fromUtf8((folder.path / place).string())));
        EXPECT_NE(takeReports().find("52 ContentSave\n"), std::string::npos);
    }
    EXPECT_EQ(folder.contentOf("file"), "text");
    EXPECT_TRUE(fs::exists("/dev/full"));
    EXPECT_TRUE(list.ContentSave(u""));
    EXPECT_NE(takeReports(), "");
}

TEST_F(ContentBadFiles, AFullDiskFailsAtEachStatementBehindItAndKeepsWhatItTook) {
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit full = before;
    full.rlim_cur = 100;
    addRows(1);
    list.letItemText(1, 1, String(200'000, u'x'));
    setrlimit(RLIMIT_FSIZE, &full);
    EXPECT_TRUE(save(false));
    setrlimit(RLIMIT_FSIZE, &before);
    static_cast<void>(std::signal(SIGXFSZ, handler));
    EXPECT_EQ(takeReports(), "61 ContentSave\n61 ContentSave\n61 ContentSave\n");
    EXPECT_EQ(folder.contentOf(name),
              std::string(ContentBytes().header(1, 2, false).text(std::string(200'000, 'x'))).substr(0, 100));
    EXPECT_TRUE(load(false));
    EXPECT_EQ(texts(), " ");
}

TEST_F(ContentBadFiles, ALinkToItselfIsNoFileToReadAndNoneToReplace) {
    fs::create_symlink(folder.path / name, folder.path / name);
    addRows(1, u"a,b");
    EXPECT_TRUE(save(false));
    EXPECT_NE(takeReports(), "");
    list.ContentInput(path());
    takeReports();
    list.RowsAdd(Long{-1}, u",", u"still,here");
    EXPECT_EQ(list.ItemText(list.RowsCount(), 1), u"still");
}

TEST_F(ContentBadFiles, WithReportsSilencedTheSameIsReadWithoutABox) {
    Error().letSilentError(true);
    EXPECT_TRUE(load(fullFile().substr(0, 100), true));
    Error().letSilentError(false);
    EXPECT_EQ(takeReports(), "");
    EXPECT_EQ(texts(), "one | ");
}

TEST_F(ContentBadFiles, SilencedFailuresLeaveTheSameListAsReportedOnes) {
    const std::string whole = fullFile();
    const auto content = [&] { return saved(true); };
    for (std::size_t size = 12; size < whole.size(); size += 7) {
        for (const bool properties : {false, true}) {
            SCOPED_TRACE(std::to_string(size) + (properties ? " with" : " without"));
            EXPECT_TRUE(load(whole.substr(0, size), properties));
            const std::string heard = content();
            Error().letSilentError(true);
            EXPECT_TRUE(load(whole.substr(0, size), properties));
            Error().letSilentError(false);
            EXPECT_EQ(content(), heard);
        }
    }
    // Cells that the list does not have, in the middle of the file.
    list.ColumnsClear();
    addColumns({30});
    EXPECT_TRUE(load(whole, true));
    const std::string heard = content();
    takeReports();
    Error().letSilentError(true);
    EXPECT_TRUE(load(whole, true));
    Error().letSilentError(false);
    EXPECT_EQ(content(), heard);
    EXPECT_EQ(takeReports(), "");
}

TEST_F(ContentBadFiles, HostCodeAtAReportMayLoadAndSaveItself) {
    int boxes = 0;
    desktop.runtime().whileBoxIsOpen = [&] {
        if (++boxes > 3)
            return;
        folder.write("other.dat", ContentBytes().header(1, 2, false).text("x").text("y"));
        list.ContentInput(folder.pathTo("other.dat"));
        list.ContentSave(folder.pathTo("third.dat"));
    };
    EXPECT_TRUE(load(fullFile().substr(0, 200), true));
    EXPECT_GT(boxes, 3);
    takeReports();
    EXPECT_EQ(list.RowsCount(), 1);
    EXPECT_TRUE(list.AutoRedraw());
    EXPECT_TRUE(list.AutoCheckScroll());
    list.RowsAdd(Long{-1}, u",", u"still,here");
    EXPECT_EQ(list.ItemText(2, 2), u"here");
}

} // namespace
} // namespace lumtex::testing

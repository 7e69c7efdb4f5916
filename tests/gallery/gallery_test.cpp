#include "csv_source.h"
#include "directory_source.h"
#include "list_fixture.h"
#include "scenes.h"
#include "scratch_folder.h"

#include <fstream>

namespace lumtex::testing {

namespace fs = std::filesystem;

/// A folder of its own, and a list to fill.
class Gallery : public ::testing::Test {
  protected:
    Gallery() { list.UserControl_ReadProperties(MemoryPropertyBag()); }

    fs::path file(const std::string& name, const std::string& content) const {
        std::ofstream(folder / name, std::ios::binary) << content;
        return folder / name;
    }
    std::string failureOfCsv(const fs::path& path) {
        try {
            gallery::ListBuilder builder(list, [](Long) {});
            readCsv(path, builder);
        } catch (const gallery::Failure& failure) {
            return failure.what();
        }
        return "no failure";
    }

    const ScratchFolder scratch;
    const fs::path& folder = scratch.path;
    headless::Desktop desktop{testFonts()};
    TestHost host;
    RecordingEvents events;
    lmListView list{desktop, host, events};
};

TEST_F(Gallery, AMissingFileIsNamed) {
    EXPECT_EQ(failureOfCsv(folder / "none.csv"), "cannot open " + (folder / "none.csv").string());
}

TEST_F(Gallery, AnEmptyFileAndOneThatIsNoTextAreToldApart) {
    EXPECT_TRUE(failureOfCsv(file("empty.csv", "")).ends_with("is empty"));
    EXPECT_TRUE(failureOfCsv(file("mark.csv", "\xEF\xBB\xBF")).ends_with("is empty"));
    EXPECT_TRUE(failureOfCsv(file("binary.csv", std::string("a,b\0c", 5))).ends_with("is not a text file"));
}

TEST_F(Gallery, RaggedRecordsGetTheColumnsTheyNeed) {
    EXPECT_EQ(failureOfCsv(file("ragged.csv", "a,b\n1\n1,2,3\n\"x, \"\"y\"\"\n&\"\n")), "no failure");
    EXPECT_EQ(list.RowsCount(), 3);
    EXPECT_EQ(list.ColumnsCount(), 4) << "check boxes, two named ones, one more";
    EXPECT_EQ(list.ColumnText(2), u"a");
    EXPECT_EQ(list.ColumnText(4), u"Column 3");
    EXPECT_EQ(list.ItemText(1, 3), u"");
    EXPECT_EQ(list.ItemText(2, 4), u"3");
    EXPECT_EQ(list.ItemText(3, 2), u"x, \"y\"\n&&") << "the list draws && as one";
}

TEST_F(Gallery, SemicolonsAndTabulatorsSeparateToo) {
    EXPECT_EQ(failureOfCsv(file("semicolon.csv", "a;b;c\n1,5;2;3\n")), "no failure");
    EXPECT_EQ(list.ItemText(1, 2), u"1,5");
    EXPECT_EQ(list.ItemText(1, 4), u"3");
}

TEST_F(Gallery, NumbersStandAtTheRight) {
    EXPECT_EQ(failureOfCsv(file("numbers.csv", "name,amount\na,1.5\nb,\n")), "no failure");
    EXPECT_EQ(list.ColumnAlignment(3), cColumnRight);
    EXPECT_EQ(list.ItemAlignment(1, 3), cItemRight);
    EXPECT_EQ(list.ItemAlignment(1, 2), cItemLeft);
}

TEST_F(Gallery, AFolderShowsFoldersFirst) {
    file("b.txt", "12345");
    fs::create_directories(folder / "z");
    gallery::ListBuilder builder(list, [](Long) {});
    readDirectory(folder, builder);
    EXPECT_EQ(list.RowsCount(), 2);
    EXPECT_EQ(list.ItemText(1, 2), u"z");
    EXPECT_EQ(list.ItemText(1, 4), u"Folder");
    EXPECT_EQ(list.ItemText(2, 3), u"5");
    EXPECT_EQ(list.ItemText(2, 4), u"TXT file");
    EXPECT_NE(list.ItemIcon(1, 2), nullptr);
    EXPECT_NE(list.ItemIcon(1, 2), list.ItemIcon(2, 2));
}

TEST_F(Gallery, EveryStyleIsShownInEveryLook) {
    EXPECT_EQ(failureOfCsv(file("rows.csv", "a,b\n1,2\n3,4\n5,6\n7,8\n9,10\n11,12\n13,14\n")), "no failure");
    const std::vector<gallery::Scene> scenes = gallery::renderScenes(desktop, list);
    ASSERT_EQ(scenes.size(), 24U);
    EXPECT_EQ(scenes.front().name, "blue-plain");
    EXPECT_EQ(scenes.back().name, "custom-scrolled");
    for (std::size_t i = 0; i < scenes.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(scenes[i].picture == scenes[j].picture) << scenes[i].name << " " << scenes[j].name;
    }
    EXPECT_GT(gallery::contactSheet(desktop, scenes).width, 1500);
    EXPECT_TRUE(desktop.runtime().boxes.empty());
}

} // namespace lumtex::testing

/// The example that prints a report, as its user runs it.
#include "adapters/pictures/image_file.h"
#include "folders.h"
#include "picture_check.h"
#include "scratch_folder.h"

#include <array>
#include <cstdlib>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class ReportExample : public ::testing::Test {
  protected:
    /// Its status; what it prints is in files afterwards.
    int print(const std::string& table) const {
        const std::string command = "cd '" + folder.path.string() + "' && FONTCONFIG_FILE='" + testFolder() +
                                    "/fonts/fonts.conf' '" LUMTEX_PROGRAMS "/examples/report' '" + table +
                                    "' page >printed.txt 2>reported.txt";
        return std::system(command.c_str());
    }
    bool hasPage(int number) const {
        return std::filesystem::exists(folder.path / ("page-" + std::to_string(number) + ".png"));
    }
    /// Sales of all products in all regions, 4 x 12 lines.
    void writeSales() const {
        std::string table;
        int amount = 0;
        for (const char* product : {"Kettles",
                                    "Lamps",
                                    "Chairs",
                                    "Clocks",
                                    "Rugs",
                                    "Vases",
                                    "Mirrors",
                                    "Benches",
                                    "Shelves",
                                    "Baskets",
                                    "Trays",
                                    "Pots & pans"})
            for (const char* region : {"South", "East", "North", "West"}) {
                amount = (amount * 31 + 1741) % 4001;
                table += std::string(region) + ';' + product + ';' + std::to_string(amount) + '\n';
            }
        folder.write("sales.csv", table);
    }

    ScratchFolder folder;
};

TEST_F(ReportExample, LeavesAPictureOfEachPage) {
    writeSales();
    ASSERT_EQ(print("sales.csv"), 0);
    EXPECT_EQ(folder.contentOf("printed.txt"), "Pages: 2\n");
    EXPECT_EQ(folder.contentOf("reported.txt"), "");
    EXPECT_TRUE(hasPage(2));
    EXPECT_FALSE(hasPage(3));
    PictureFolders folders = usualPictureFolders();
    folders.references = std::filesystem::path(sourceFolder()) / "docs" / "images" / "examples-programs";
    EXPECT_TRUE(showsPicture("report", pictures::loadPicture(folder.path / "page-1.png")->bitmap(), folders));
}

/// 38 lines, the sum of their region, and the sum of all.
TEST_F(ReportExample, FillsAPageBeforeItBeginsAnother) {
    std::string table;
    for (int line = 1; line <= 38; ++line)
        table += "North;Lamps;1\n";
    folder.write("full.csv", table);
    ASSERT_EQ(print("full.csv"), 0);
    EXPECT_EQ(folder.contentOf("printed.txt"), "Pages: 1\n");
    folder.write("more.csv", table + "North;Lamps;1\n");
    ASSERT_EQ(print("more.csv"), 0);
    EXPECT_EQ(folder.contentOf("printed.txt"), "Pages: 2\n");
}

TEST_F(ReportExample, TellsThatThereIsNoTable) {
    EXPECT_NE(print("none.csv"), 0);
    EXPECT_EQ(folder.contentOf("reported.txt"), "There is no such table.\n");
    EXPECT_FALSE(hasPage(1));
}

} // namespace
} // namespace lumtex::testing

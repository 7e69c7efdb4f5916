#include "adapters/pictures/image_file.h"
#include "picture_check.h"

#include <filesystem>
#include <string>

namespace lumtex::testing {
namespace {

namespace fs = std::filesystem;

/// A check of its own folders, so that its failures lie nowhere near real ones.
class PictureCheck : public ::testing::Test {
  protected:
    PictureCheck() { fs::remove_all(root); }
    ~PictureCheck() override { fs::remove_all(root); }

    /// Always the same place in the source, as the check demands of a name.
    ::testing::AssertionResult check(const std::string& name, const Bitmap& actual) {
        return showsPicture(name, actual, folders);
    }
    void refer(const std::string& name, const Bitmap& bitmap) {
        fs::create_directories(folders.references);
        pictures::savePng(bitmap, folders.references / (name + ".png"));
    }
    bool failureShown(const std::string& name) { return fs::exists(folders.failures / (name + ".png")); }

    const fs::path root =
        fs::path(::testing::TempDir()) /
        ("picture_check_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    PictureFolders folders{root / "references", root / "failures", ""};
    const Bitmap grey{3, 2, 0xFF808080U};
};

TEST_F(PictureCheck, EqualPicturePassesAndTakesAnOldFailureAway) {
    refer("equal", grey);
    Bitmap other = grey;
    other.at(1, 1) = 0xFF808081U;
    EXPECT_FALSE(check("equal", other));
    EXPECT_TRUE(failureShown("equal"));
    EXPECT_TRUE(check("equal", grey));
    EXPECT_FALSE(failureShown("equal"));
}

TEST_F(PictureCheck, DifferenceOfOneStepInOneChannelFails) {
    refer("step", grey);
    Bitmap other = grey;
    other.at(2, 1) ^= 1U;
    EXPECT_FALSE(check("step", other));
}

TEST_F(PictureCheck, FailureShowsActualExpectedAndDifferenceSideBySide) {
    refer("beside", grey);
    Bitmap other = grey;
    other.at(1, 0) = 0xFF00FF00U;
    ASSERT_FALSE(check("beside", other));
    const PictureRef board = pictures::loadPicture(folders.failures / "beside.png");
    ASSERT_EQ(board->bitmap().width, 3 * 3 + 2 * 4);
    ASSERT_EQ(board->bitmap().height, 2);
    EXPECT_EQ(board->bitmap().at(1, 0), 0xFF00FF00U);
    EXPECT_EQ(board->bitmap().at(7 + 1, 0), 0xFF808080U);
    EXPECT_EQ(board->bitmap().at(14 + 1, 0), 0xFFFF0000U);
    EXPECT_NE(board->bitmap().at(14, 0), 0xFFFF0000U);
}

TEST_F(PictureCheck, FailureNeverTouchesTheReference) {
    refer("kept", grey);
    EXPECT_FALSE(check("kept", Bitmap(3, 2, 0xFF000000U)));
    EXPECT_EQ(pictures::loadPicture(folders.references / "kept.png")->bitmap(), grey);
}

TEST_F(PictureCheck, AnotherSizeFails) {
    refer("size", grey);
    EXPECT_FALSE(check("size", Bitmap(3, 3, 0xFF808080U)));
    EXPECT_TRUE(failureShown("size"));
}

TEST_F(PictureCheck, MissingReferenceFailsAndIsNotWritten) {
    EXPECT_FALSE(check("missing", grey));
    EXPECT_TRUE(failureShown("missing"));
    EXPECT_FALSE(fs::exists(folders.references));
}

TEST_F(PictureCheck, AcceptingWritesTheReferenceAndStillFails) {
    folders.accepted = "acc*d";
    EXPECT_FALSE(check("accepted", grey));
    EXPECT_EQ(pictures::loadPicture(folders.references / "accepted.png")->bitmap(), grey);
    folders.accepted = "";
    EXPECT_TRUE(check("accepted", grey));
}

TEST_F(PictureCheck, AcceptingLeavesPicturesOfOtherNamesAlone) {
    refer("left_alone", grey);
    folders.accepted = "left";
    EXPECT_FALSE(check("left_alone", Bitmap(3, 2, 0xFF000000U)));
    EXPECT_EQ(pictures::loadPicture(folders.references / "left_alone.png")->bitmap(), grey);
}

TEST_F(PictureCheck, ANameBelongsToOnePlaceInTheTests) {
    refer("owned", grey);
    EXPECT_TRUE(showsPicture("owned", grey, folders));
    EXPECT_FALSE(showsPicture("owned", grey, folders));
}

TEST_F(PictureCheck, PictureThatIsNotOpaqueFails) {
    refer("clear", grey);
    Bitmap clear = grey;
    clear.at(0, 0) = 0x7F404040U;
    EXPECT_FALSE(check("clear", clear));
}

} // namespace
} // namespace lumtex::testing

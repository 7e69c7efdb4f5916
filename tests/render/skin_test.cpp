/// The strip that the hover bar of the headers is cut from.
#include "broken_picture.h"
#include "painted_list.h"

namespace lumtex::testing {
namespace {

class Skin : public PaintedList {
  protected:
    /// Each pixel says where it stands: green its column, blue its row.
    static std::uint32_t mark(Long x, Long y) {
        return 0xFF000000U | static_cast<std::uint32_t>(x * 256 + y);
    }

    static PictureRef strip(Long width, Long height) {
        Bitmap bitmap(width, height);
        for (Long y = 0; y < height; ++y)
            for (Long x = 0; x < width; ++x)
                bitmap.at(x, y) = mark(x, y);
        return std::make_shared<BitmapPicture>(std::move(bitmap));
    }

    const Bitmap& piece(std::size_t i) { return inside.artwork().imgCol[i]->bitmap(); }

    /// The picture with the mouse on the first header, as it looks in a style.
    std::vector<std::uint32_t> painted(cColorStyle style) {
        list.letColorStyle(style);
        mouseAt(20, 5);
        list.Redraw();
        const auto pixels = window().inner().surface().pixels();
        return {pixels.begin(), pixels.end()};
    }
};

struct Piece {
    Long sourceX;
    Long width;
};

/// Left cap, two stamps, right cap.
constexpr Piece cuttingTable[] = {{0, 6}, {6, 1}, {7, 1}, {8, 8}};

TEST_F(Skin, IsCutIntoFourPieces) {
    list.setSkin(strip(16, 3));
    for (std::size_t i = 0; i < std::size(cuttingTable); ++i) {
        const auto& [sourceX, width] = cuttingTable[i];
        ASSERT_EQ(piece(i).width, width) << i;
        ASSERT_EQ(piece(i).height, 3) << i;
        for (Long y = 0; y < 3; ++y)
            for (Long x = 0; x < width; ++x)
                EXPECT_EQ(piece(i).at(x, y), mark(sourceX + x, y)) << i;
    }
}

TEST_F(Skin, WiderThanSixteenPixelsHasAnUnusedPart) {
    list.setSkin(strip(40, 3));
    EXPECT_EQ(piece(3).width, 8);
    EXPECT_EQ(piece(3).at(7, 0), mark(15, 0));
}

TEST_F(Skin, TallerThanThreePixelsCountsWithItsTopRows) {
    list.setSkin(strip(16, 9));
    for (std::size_t i = 0; i < std::size(cuttingTable); ++i)
        EXPECT_EQ(piece(i).height, 3);
    EXPECT_EQ(piece(0).at(0, 2), mark(0, 2));
}

TEST_F(Skin, NarrowerOrLowerLeavesTheBoardsBackground) {
    constexpr std::uint32_t board = 0xFFFFFFFFU;
    list.setSkin(strip(7, 2));
    EXPECT_EQ(piece(0).at(5, 1), mark(5, 1));
    EXPECT_EQ(piece(0).at(5, 2), board);
    EXPECT_EQ(piece(1).at(0, 0), mark(6, 0));
    EXPECT_EQ(piece(2).at(0, 0), board);
    EXPECT_EQ(piece(3).at(4, 1), board);
}

TEST_F(Skin, OfNothingIsTheDefaultStrip) {
    const auto untouched = drawing::ListViewArtwork::standard();
    for (std::size_t i = 0; i < std::size(cuttingTable); ++i)
        EXPECT_EQ(piece(i), untouched.imgCol[i]->bitmap()) << "a control without a skin cuts nothing";
    list.setSkin(strip(16, 3));
    list.setSkin(nullptr);
    for (std::size_t i = 0; i < std::size(cuttingTable); ++i) {
        EXPECT_EQ(piece(i), untouched.imgCol[i]->bitmap());
        for (Long y = 0; y < 3; ++y)
            EXPECT_EQ(piece(i).at(0, y), untouched.imgDefault->bitmap().at(cuttingTable[i].sourceX, y));
    }
}

TEST_F(Skin, RepaintsWhateverAutoRedrawSaysAndThenTellsTheHost) {
    ASSERT_FALSE(list.AutoRedraw());
    host.changed.clear();
    drawn().log.clear();
    const PictureRef picture = strip(16, 3);
    list.setSkin(picture);
    EXPECT_FALSE(drawn().log.empty());
    EXPECT_EQ(host.changed, (std::vector<String>{u"Skin"}));
    EXPECT_EQ(list.Skin(), picture);
}

TEST_F(Skin, ShowsUnderTheMouseInBlueAndSilverAlone) {
    addColumns({60, 60});
    for (const auto& [style, shows] :
         {std::pair{cXPBlue, true}, {cXPSilver, true}, {cXPOlive, false}, {cCustom, false}}) {
        list.setSkin(nullptr);
        const auto before = painted(style);
        list.setSkin(plainPicture(16, 3, 0xFFFF00FFU));
        EXPECT_EQ(painted(style) != before, shows) << style;
    }
}

TEST_F(Skin, WithoutPixelsLeavesTheBoard) {
    list.setSkin(plainPicture(0, 0));
    EXPECT_EQ(piece(0).width, 6);
    EXPECT_EQ(piece(0).at(0, 0), 0xFFFFFFFFU);
}

TEST_F(Skin, ThatCannotBePaintedLeavesFourBoards) {
    list.setSkin(std::make_shared<BrokenPicture>());
    EXPECT_EQ(desktop.runtime().boxes.size(), 4U) << "one statement of each piece";
    for (std::size_t i = 0; i < std::size(cuttingTable); ++i) {
        EXPECT_EQ(piece(i).width, cuttingTable[i].width);
        EXPECT_EQ(piece(i).at(0, 0), 0xFFFFFFFFU);
    }
}

} // namespace
} // namespace lumtex::testing

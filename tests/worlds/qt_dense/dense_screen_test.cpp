/// On a screen of one and a half pixels to each unit of widgets.
#include "list_fixture.h"
#include "worlds/common/composed_picture.h"
#include "worlds/qt/qt_picture.h"
#include "worlds/qt/world_fixture.h"

namespace lumtex::testing {

namespace {

using QtDenseScreen = QtWorldTest;

constexpr OLE_COLOR red = 0x0000FFU;

/// The first pixel, row by row, in which the widget differs from the surface; "none" if there is none.
std::string firstDifference(const Bitmap& shown, const Bitmap& surface) {
    for (Long y = 0; y < surface.height; ++y)
        for (Long x = 0; x < surface.width; ++x)
            if (x >= shown.width || y >= shown.height || shown.at(x, y) != surface.at(x, y))
                return std::to_string(x) + " " + std::to_string(y);
    return "none";
}

TEST_F(QtDenseScreen, EachPixelOfTheSurfaceIsOneOfTheScreen) {
    window->place(0, 0, 151, 99);
    for (Long y = 0; y < 99; ++y)
        for (Long x = y % 2; x < 151; x += 2)
            window->surface().pset(static_cast<Single>(x), static_cast<Single>(y), red);
    window->present();
    const QImage shown = screen().grab().toImage();
    EXPECT_EQ(shown.devicePixelRatio(), 1.5);
    EXPECT_EQ(firstDifference(qt::bitmapOf(shown), window->surface().image()), "none");
}

TEST_F(QtDenseScreen, PiecesStandOnPixelsThatNoWidgetCouldStandOn) {
    NotingControl inner;
    const std::unique_ptr<Window> child = world.createWindow(window.get(), inner);
    child->place(7, 5, 4, 4);
    child->surface().letBackColor(red);
    child->letVisible(true);
    const Bitmap shown = qt::bitmapOf(screen().grab().toImage());
    EXPECT_EQ(shown.at(6, 5), 0xFFFFFFFFU);
    EXPECT_EQ(shown.at(7, 5), 0xFFFF0000U);
    EXPECT_EQ(shown.at(10, 8), 0xFFFF0000U);
    EXPECT_EQ(shown.at(11, 8), 0xFFFFFFFFU);
}

TEST_F(QtDenseScreen, FontsAndTwipsFollowThePixelsOfAnInch) {
    EXPECT_EQ(window->surface().pixelsPerInchX(), 144);
    EXPECT_EQ(world.createSurface(4, 4)->pixelsPerInchY(), 144);
}

TEST_F(QtDenseScreen, ThePointerIsToldInPixels) {
    window->place(15, 30, 150, 90);
    hands.move({20, 40}, 0);
    hands.press(leftButton, 0);
    EXPECT_EQ(control.heard, (std::vector<std::string>{"focus", "down 15 30"}));
    hands.release(leftButton, 0);
}

TEST_F(QtDenseScreen, AListIsShownPixelByPixel) {
    TestHost host;
    RecordingEvents events;
    lmListView list(world, host, events);
    list.UserControl_InitProperties();
    list.window().place(0, 0, 301, 151);
    list.ColumnsAdd(u"City", nullptr, nullptr, nullptr, cColumnLeft, 2400);
    list.RowsAdd(-1, u",", u"Lisbon");
    world.runtime().queue().DoEvents();
    auto& shownWindow = static_cast<qt::QtWindow&>(list.window());
    const Bitmap shown = qt::bitmapOf(shownWindow.screen()->grab().toImage());
    Bitmap whole(301, 151);
    worlds::composePicture(whole, shownWindow, {0, 0, 301, 151}, worlds::Boxes::leftOut);
    EXPECT_EQ(firstDifference(shown, whole), "none");
    EXPECT_NE(whole.at(2, 2), whole.at(150, 140)) << "nothing was drawn";
}

} // namespace
} // namespace lumtex::testing

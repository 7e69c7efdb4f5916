#include "world_fixture.h"
#include "worlds/qt/qt_picture.h"

namespace lumtex::testing {

namespace {

using QtScreen = QtWorldTest;

constexpr OLE_COLOR red = 0x0000FFU;

TEST_F(QtScreen, ShowsTheSurfaceAndWhatLiesInTheWindow) {
    NotingControl inner;
    const std::unique_ptr<Window> child = world.createWindow(window.get(), inner);
    child->place(50, 40, 20, 10);
    child->letVisible(true);
    child->surface().letBackColor(red);
    child->present();
    const Bitmap shown = qt::bitmapOf(screen().grab().toImage());
    EXPECT_EQ(shown.width, 200);
    EXPECT_EQ(shown.height, 100);
    EXPECT_EQ(shown.at(49, 40), 0xFFFFFFFFU);
    EXPECT_EQ(shown.at(50, 40), 0xFFFF0000U);
    EXPECT_EQ(shown.at(69, 49), 0xFFFF0000U);
    EXPECT_EQ(shown.at(70, 49), 0xFFFFFFFFU);
}

TEST_F(QtScreen, PaintsOnlyPixelsThatChanged) {
    screen().grab();
    const std::int64_t before = screen().pixelsChanged();
    window->surface().fillBox(10, 10, 12, 11, red);
    window->present();
    QCoreApplication::processEvents();
    EXPECT_EQ(screen().pixelsChanged() - before, 3 * 2);
    window->surface().fillBox(10, 10, 12, 11, red);
    window->present();
    QCoreApplication::processEvents();
    EXPECT_EQ(screen().pixelsChanged() - before, 3 * 2) << "the same pixels again";
}

TEST_F(QtScreen, AChildThatGoesUncoversWhatItCovered) {
    NotingControl inner;
    std::unique_ptr<Window> child = world.createWindow(window.get(), inner);
    child->place(50, 40, 20, 10);
    child->surface().letBackColor(red);
    child->letVisible(true);
    screen().grab();
    child.reset();
    EXPECT_EQ(qt::bitmapOf(screen().grab().toImage()).at(50, 40), 0xFFFFFFFFU);
}

TEST_F(QtScreen, AWindowOutlivesItsWidget) {
    container.reset();
    EXPECT_EQ(static_cast<qt::QtWindow&>(*window).screen(), nullptr);
    window->place(0, 0, 50, 60);
    window->surface().letBackColor(red);
    window->present();
    window->setFocus();
    window->letVisible(false);
    EXPECT_EQ(window->Width(), 50);
    EXPECT_TRUE(control.heard.empty());
    container = std::make_unique<QWidget>();
    container->show();
}

TEST_F(QtScreen, AWindowMayGoInItsOwnEvent) {
    control.onMouseDown = [&] { window.reset(); };
    hands.move({60, 70}, 0);
    hands.press(leftButton, 0);
    EXPECT_EQ(window, nullptr);
    hands.release(leftButton, 0);
    EXPECT_EQ(control.heard, (std::vector<std::string>{"focus", "down 50 50"}));
}

} // namespace
} // namespace lumtex::testing

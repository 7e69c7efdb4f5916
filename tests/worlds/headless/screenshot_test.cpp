#include "desktop_fixture.h"

#include <algorithm>

namespace lumtex::testing {

using Screenshots = DesktopFixture;

constexpr std::uint32_t white = 0xFFFFFFFFU;
constexpr std::uint32_t black = 0xFF000000U;
constexpr std::uint32_t red = 0xFFFF0000U;
constexpr std::uint32_t green = 0xFF00FF00U;
constexpr std::uint32_t blue = 0xFF0000FFU;
constexpr OLE_COLOR asRed = 0x0000FFU;
constexpr OLE_COLOR asGreen = 0x00FF00U;
constexpr OLE_COLOR asBlue = 0xFF0000U;

struct DeafClient final : TextBoxClient {
    void textBoxKeyPress(Integer& /*KeyAscii*/) override {}
    void textBoxLostFocus() override {}
};

TEST_F(Screenshots, ShowTheSurfaceInItsSize) {
    a->window().surface().pset(99, 79, asRed);
    const Bitmap picture = desktop.screenshot(a->window());
    EXPECT_EQ(picture.width, 100);
    EXPECT_EQ(picture.height, 80);
    EXPECT_EQ(picture.at(99, 79), red);
    EXPECT_EQ(picture.at(0, 0), white);
}

TEST_F(Screenshots, ShowVisibleChildrenAtTheirPlacesInTheirOrder) {
    const auto b = child("b", *a, 10, 10, 20, 20);
    const auto c = child("c", *a, 20, 20, 20, 20);
    const auto hidden = child("h", *a, 0, 0, 100, 80);
    b->window().surface().letBackColor(asRed);
    c->window().surface().letBackColor(asGreen);
    hidden->window().surface().letBackColor(asBlue);
    hidden->window().letVisible(false);
    const Bitmap picture = desktop.screenshot(a->window());
    EXPECT_EQ(picture.at(9, 10), white);
    EXPECT_EQ(picture.at(10, 10), red);
    EXPECT_EQ(picture.at(19, 19), red);
    EXPECT_EQ(picture.at(20, 20), green);
    EXPECT_EQ(picture.at(39, 39), green);
    EXPECT_EQ(picture.at(40, 39), white);
}

TEST_F(Screenshots, ShowADisabledChildToo) {
    const auto b = child("b", *a, 10, 10, 20, 20);
    b->window().surface().letBackColor(asRed);
    b->window().letEnabled(false);
    EXPECT_EQ(desktop.screenshot(a->window()).at(10, 10), red);
}

TEST_F(Screenshots, ClipChildrenToTheirParents) {
    const auto b = child("b", *a, 10, 10, 20, 20);
    const auto inner = child("i", *b, -5, 15, 100, 100);
    inner->window().surface().letBackColor(asRed);
    const auto beyond = child("o", *a, 90, 70, 50, 50);
    beyond->window().surface().letBackColor(asGreen);
    const auto outside = child("p", *a, 200, -300, 10, 10);
    const Bitmap picture = desktop.screenshot(a->window());
    EXPECT_EQ(std::count(picture.pixels.begin(), picture.pixels.end(), red), 20 * 5);
    EXPECT_EQ(picture.at(10, 25), red);
    EXPECT_EQ(picture.at(9, 25), white);
    EXPECT_EQ(picture.at(29, 29), red);
    EXPECT_EQ(std::count(picture.pixels.begin(), picture.pixels.end(), green), 10 * 10);
}

TEST_F(Screenshots, ShowWhatWasAdopted) {
    const auto stranger = pad("s");
    stranger->show(3, 4, 5, 6);
    stranger->window().surface().letBackColor(asBlue);
    ASSERT_TRUE(a->window().adopt(stranger->window().hWnd()));
    EXPECT_EQ(desktop.screenshot(a->window()).at(3, 4), blue);
}

TEST_F(Screenshots, ShowTheGuideLineOnePixelWideUnderTheChildrenAndNotOnTheSurface) {
    const auto b = child("b", *a, 0, 0, 100, 10);
    b->window().surface().letBackColor(asGreen);
    const auto line = desktop.createGuideLine(a->window());
    line->place(30.5F, 80);
    EXPECT_EQ(desktop.screenshot(a->window()).at(30, 40), white);
    line->letVisible(true);
    const Bitmap picture = desktop.screenshot(a->window());
    EXPECT_EQ(picture.at(30, 9), green);
    EXPECT_EQ(std::count(picture.pixels.begin(), picture.pixels.end(), black), 70);
    for (Long y = 10; y < 80; ++y)
        EXPECT_EQ(picture.at(30, y), black);
    EXPECT_EQ(a->window().surface().image().at(30, 40), white);
}

TEST_F(Screenshots, AGuideLineAtNoPlaceAtAllHarmsNothing) {
    const auto line = desktop.createGuideLine(a->window());
    line->place(3e9F, -2e9F);
    line->letVisible(true);
    EXPECT_EQ(desktop.screenshot(a->window()).width, 100);
}

TEST_F(Screenshots, ShowATextBoxAsAWhiteFieldWithItsTextAndSelection) {
    DeafClient client;
    a->window().surface().letBackColor(asRed);
    const auto box = desktop.createTextBox(a->window(), client);
    box->letLeft(10);
    box->letTop(10);
    box->letWidth(60);
    box->letHeight(20);
    box->setFont({.Name = u"Verdana", .Size = 9});
    box->letForeColor(asBlue);
    EXPECT_EQ(desktop.screenshot(a->window()).at(10, 10), red);
    box->letVisible(true);
    Bitmap picture = desktop.screenshot(a->window());
    EXPECT_EQ(picture.at(10, 10), white);
    EXPECT_EQ(picture.at(69, 29), white);
    EXPECT_EQ(picture.at(70, 29), red);

    box->letText(u"ll");
    picture = desktop.screenshot(a->window());
    const auto isInk = [](std::uint32_t pixel) { return pixel != white && pixel != red; };
    EXPECT_GT(std::count_if(picture.pixels.begin(), picture.pixels.end(), isInk), 0);
    EXPECT_EQ(picture.at(11, 10), white);

    box->letSelLength(1);
    const Bitmap selected = desktop.screenshot(a->window());
    EXPECT_NE(selected.at(11, 10), white);
    EXPECT_EQ(selected.at(10, 10), white);
    EXPECT_EQ(selected.at(60, 10), white);
}

TEST_F(Screenshots, OfAWindowWithoutSizeAreEmpty) {
    const auto b = pad("b", a.get());
    EXPECT_EQ(desktop.screenshot(b->window()).pixels.size(), 0U);
}

} // namespace lumtex::testing

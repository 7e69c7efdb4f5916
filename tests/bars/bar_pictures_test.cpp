/// Whole bars in every scheme, state and direction.
#include "bar_fixture.h"
#include "picture_check.h"

namespace lumtex::testing {

using namespace std::chrono_literals;

struct State {
    const char* name;
    std::function<void(OneBar&)> enter;
};

/// In the order in which they stand side by side.
const std::vector<State> states{
    {"normal", [](OneBar&) {}},
    {"pointer over the thumb", [](OneBar& one) { one.moveTo(60); }},
    {"thumb pressed", [](OneBar& one) { one.pressAt(60); }},
    {"thumb pressed and slid off",
     [](OneBar& one) {
         one.pressAt(60);
         one.moveTo(60, 40);
     }},
    {"pointer over the low button", [](OneBar& one) { one.moveTo(8); }},
    {"low button pressed", [](OneBar& one) { one.pressAt(8); }},
    {"pointer over the high button", [](OneBar& one) { one.moveTo(112); }},
    {"high button pressed", [](OneBar& one) { one.pressAt(112); }},
    {"high button pressed and slid off",
     [](OneBar& one) {
         one.pressAt(112);
         one.moveTo(112, 40);
     }},
    {"trough pressed before the thumb", [](OneBar& one) { one.pressAt(20); }},
    {"trough pressed behind the thumb, at the first repeat",
     [](OneBar& one) {
         one.pressAt(100);
         one.desktop.advance(350ms);
     }},
    {"disabled", [](OneBar& one) { one.bar().letEnabled(false); }},
    {"no gradient", [](OneBar& one) { one.bar().letGradient(false); }},
    {"shortest thumb, at the end",
     [](OneBar& one) {
         one.bar().letMax(500);
         one.bar().letValue(500);
     }},
    {"too short for a thumb", [](OneBar& one) { one.setLength(40); }},
};

constexpr Long barLength = 120;
constexpr Long gap = 5;

/// A bar of its own for each state, so that none hangs on the one before.
Bitmap barIn(bars::Axis axis, Long style, const State& state) {
    OneBar one(axis);
    one.setLength(barLength);
    one.bar().letMax(50);
    one.bar().letValue(15);
    if (style == 99) {
        MemoryPropertyBag colors;
        const auto color = [&](const char16_t* key, OLE_COLOR value) {
            colors.WriteProperty(key, value, OLE_COLOR{1});
        };
        color(u"ScrollBackColor", 0xF7F0E8);
        color(u"ScrollBar", 0xD9B98C);
        color(u"ScrollBarDown", 0xA87F45);
        color(u"ScrollBarHover", 0xE8CFA8);
        color(u"ScrollArrows", 0x5A3A10);
        color(u"ScrollArrowsDown", 0xFFFFFF);
        color(u"ScrollArrowsHover", 0x8A5A2B);
        color(u"ScrollButtons", 0xE8D9C5);
        color(u"ScrollButtonsDown", 0xA87F45);
        color(u"ScrollButtonsHover", 0xF5ECE0);
        one.bar().SetNewProperty(colors);
    }
    one.bar().letColorStyle(style);
    state.enter(one);
    return one.desktop.screenshot(one.bar().window());
}

Bitmap sheet(bars::Axis axis, Long style) {
    const bool vertical = axis == bars::Axis::vertical;
    const auto across = static_cast<Long>(states.size()) * (17 + gap) + gap;
    const Long along = barLength + 2 * gap;
    Bitmap board(vertical ? across : along, vertical ? along : across, 0xFF808080U);
    Long place = gap;
    for (const State& state : states) {
        const Bitmap bar = barIn(axis, style, state);
        const Point at = vertical ? Point{place, gap} : Point{gap, place};
        for (Long y = 0; y < bar.height; ++y) {
            for (Long x = 0; x < bar.width; ++x)
                board.at(at.x + x, at.y + y) = bar.at(x, y);
        }
        place += 17 + gap;
    }
    return board;
}

using BarPictures = ::testing::TestWithParam<bars::Axis>;
INSTANTIATE_TEST_SUITE_P(Axes,
                         BarPictures,
                         ::testing::Values(bars::Axis::vertical, bars::Axis::horizontal),
                         axisName);

TEST_P(BarPictures, AreTheReferencesInEverySchemeAndState) {
    const std::map<Long, std::string> schemes{{0, "blue"}, {1, "silver"}, {2, "olive"}, {99, "custom"}};
    for (const auto& [style, name] : schemes) {
        const char* direction = GetParam() == bars::Axis::vertical ? "vertical" : "horizontal";
        EXPECT_TRUE(showsPicture("scroll-" + name + "-" + direction, sheet(GetParam(), style)));
    }
}

/// What a person must be able to tell apart differs by more than a shade.
TEST_P(BarPictures, TellTheLooksOfAButtonAndOfAThumbApart) {
    const auto contrast = [](std::uint32_t a, std::uint32_t b) {
        int sum = 0;
        for (unsigned shift = 0; shift <= 16; shift += 8)
            sum += std::abs(static_cast<int>((a >> shift) & 0xFFU) - static_cast<int>((b >> shift) & 0xFFU));
        return sum;
    };
    const auto looks = [&](const std::vector<PictureRef>& pictures, Long x, Long y) {
        for (std::size_t i = 0; i < pictures.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_GE(contrast(pictures[i]->bitmap().at(x, y), pictures[j]->bitmap().at(x, y)), 24)
                    << i << " and " << j;
        }
    };
    const bars::ScrollArtwork& artwork = bars::ScrollArtwork::standard();
    for (std::size_t style = 0; style < 3; ++style) {
        const bars::ThumbArtwork& thumb = artwork.thumbOf(GetParam());
        looks({thumb[style * 6 + 1], thumb[style * 6 + 2], thumb[style * 6 + 3]}, 6, 0);
        const bars::ButtonArtwork& button =
            artwork.buttonOf(GetParam() == bars::Axis::vertical ? bars::Arrow::up : bars::Arrow::left);
        looks({button[style * 4 + 1], button[style * 4 + 2], button[style * 4 + 3]}, 3, 3);
        EXPECT_GE(
            contrast(button[style * 4 + 1]->bitmap().at(9, 7), button[style * 4 + 4]->bitmap().at(9, 7)), 24);
    }
}

TEST_P(BarPictures, HaveTheirSizes) {
    const bars::ScrollArtwork& artwork = bars::ScrollArtwork::standard();
    const bool vertical = GetParam() == bars::Axis::vertical;
    const bars::ThumbArtwork& thumb = artwork.thumbOf(GetParam());
    ASSERT_EQ(thumb.size(), 19U);
    for (std::size_t i = 1; i < thumb.size(); ++i) {
        const Bitmap& picture = thumb[i]->bitmap();
        const bool body = (i - 1) % 6 < 3;
        EXPECT_EQ(picture.width, body ? (vertical ? 14 : 13) : (vertical ? 8 : 7)) << i;
        EXPECT_EQ(picture.height, body ? (vertical ? 13 : 14) : (vertical ? 7 : 8)) << i;
    }
    for (const bars::Arrow arrow : {vertical ? bars::Arrow::up : bars::Arrow::left,
                                    vertical ? bars::Arrow::down : bars::Arrow::right}) {
        const bars::ButtonArtwork& button = artwork.buttonOf(arrow);
        ASSERT_EQ(button.size(), 13U);
        for (std::size_t i = 1; i < button.size(); ++i) {
            EXPECT_EQ(button[i]->bitmap().width, 17) << i;
            EXPECT_EQ(button[i]->bitmap().height, 17) << i;
            for (const std::uint32_t pixel : button[i]->bitmap().pixels)
                ASSERT_EQ(pixel >> 24U, 255U) << i;
        }
    }
}

} // namespace lumtex::testing

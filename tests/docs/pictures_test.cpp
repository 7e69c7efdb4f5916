/// The pictures of the reference are what the list shows at the values that stand below them.
#include "automation/call_by_name.h"
#include "automation/page_pictures.h"
#include "doc_files.h"
#include "picture_check.h"
#include "program.h"
#include "report_catcher.h"
#include "test_fonts.h"
#include "values/color.h"
#include "values/references/picture.h"

#include <set>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

namespace fs = std::filesystem;
using automation::PagePicture;
using automation::PictureValue;

constexpr Long width = 200; // pixels
constexpr Long height = 110;
constexpr Long gap = 10;

/// Three cities in two columns; the settings of the picture.
void prepare(lmListView& list, unsigned settings) {
    const auto asked = [&](automation::PictureSetting setting) { return (settings & setting) != 0; };
    const auto square = std::make_shared<BitmapPicture>(Bitmap(16, 16, 0xFF2060A0));
    const PictureRef icon = asked(automation::withIcons) ? square : nullptr;
    list.ColumnsAdd(u"City", icon, icon, icon, cColumnLeft, 1500);
    list.ColumnsAdd(u"Land", nullptr, nullptr, nullptr, cColumnLeft, 1050);
    for (const char16_t* row : {u"Lisbon,Portugal", u"Oslo,Norway", u"Quito,Ecuador"})
        list.RowsAdd(-1, u",", row);
    if (asked(automation::customScheme)) {
        list.letColorStyle(cCustom);
        list.letScrollColorStyle(cScrollCustom);
    }
    if (asked(automation::boxesToCheck)) {
        list.letStyle(cCheckBoxes);
        list.letColumnCheckBoxes(1, true);
    }
    if (asked(automation::equalRows)) {
        list.letRowsDynamic(false);
        list.letRowHeight(450);
    }
    if (asked(automation::rowChosen))
        list.letRowSelected(2, true);
    if (asked(automation::withIcons))
        list.setItemIcon(2, 1, square);
    if (asked(automation::colouredRows)) {
        list.letRowColorFirst(white);
        list.letRowColorSecond(0xF4EBE2);
        list.letAutoRowColor(true);
    }
    if (asked(automation::cellOff))
        list.letItemEnabled(2, 1, false);
    if (asked(automation::listOff))
        list.letEnabled(false);
    if (asked(automation::largeCell))
        list.letItemFontSize(2, 1, 14);
}

std::vector<Variant> placeOf(const PagePicture& picture) {
    switch (picture.place) {
    case automation::PicturePlace::list:
        return {};
    case automation::PicturePlace::column:
        return {Long{1}};
    case automation::PicturePlace::row:
        return {Long{2}};
    case automation::PicturePlace::cell:
        break;
    }
    return {Long{2}, Long{1}};
}

Bitmap listWith(const PagePicture& picture, const PictureValue& value) {
    examples::Program program(testFonts(), std::make_unique<lmListViewEvents>());
    const auto reports = std::make_shared<ReportCatcher>();
    program.desktop.runtime().factories[String(ReportCatcher::programId)] = [&] { return reports; };
    program.list.window().place(0, 0, width, height);
    prepare(program.list, picture.settings);
    std::vector<Variant> place = placeOf(picture);
    automation::CallByName(program.list)
        .let(picture.member, place, value.text.empty() ? Variant(value.number) : Variant(String(value.text)));
    program.list.CheckScroll();
    program.list.Redraw();
    program.desktop.run();
    EXPECT_EQ(toUtf8(reports->reports()), "") << toUtf8(picture.member);
    return program.desktop.screenshot(program.list.window());
}

Bitmap besideEachOther(const Bitmap& left, const Bitmap& right) {
    Bitmap both(left.width + gap + right.width, left.height, 0xFFFFFFFF);
    for (Long y = 0; y < left.height; ++y)
        for (Long x = 0; x < left.width; ++x) {
            both.at(x, y) = left.at(x, y);
            both.at(left.width + gap + x, y) = right.at(x, y);
        }
    return both;
}

TEST(Pictures, OfTheReferenceShowTheirMembersAtTwoValues) {
    PictureFolders folders = usualPictureFolders();
    folders.references = docsFolder / "images" / "reference";
    std::set<std::string> names;
    for (const PagePicture& picture : automation::pagePictures()) {
        const Bitmap left = listWith(picture, picture.left);
        const Bitmap right = listWith(picture, picture.right);
        const std::string name = toUtf8(picture.member);
        EXPECT_NE(left, right) << name << " does not show";
        EXPECT_TRUE(showsPicture(name, besideEachOther(left, right), folders));
        names.insert(name + ".png");
    }
    std::set<std::string> found;
    for (const auto& entry : fs::directory_iterator(folders.references))
        found.insert(entry.path().filename().string());
    EXPECT_EQ(found, names);
}

} // namespace
} // namespace lumtex::testing

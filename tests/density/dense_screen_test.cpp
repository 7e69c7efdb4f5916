/// Screens with more pixels to the inch: what is said in twips and points keeps its size.
///
/// The system tells a program how dense the screen is when it starts. So the tests of one density run in a
/// program of their own, which is this one again.
#include "bars/scroll_artwork.h"
#include "drawing/picture_size.h"
#include "list_fixture.h"
#include "values/rounding.h"
#include "worlds/win32/screen_density.h"
#include "worlds/win32/win32_list.h"
#include "worlds/win32/win32_text_box.h"

#include <cstdlib>

namespace lumtex::testing {
namespace {

constexpr const wchar_t* densityName = L"LUMTEX_PIXELS_PER_INCH";
constexpr const wchar_t* desktopKey = L"Control Panel\\Desktop";
constexpr const wchar_t* densityValue = L"LogPixels";

/// While one lives, programs that start find a screen of this density.
class ScreenOf {
  public:
    explicit ScreenOf(DWORD pixelsPerInch) {
        DWORD size = sizeof(former_);
        had_ = RegGetValueW(
                   HKEY_CURRENT_USER, desktopKey, densityValue, RRF_RT_REG_DWORD, nullptr, &former_, &size) ==
               ERROR_SUCCESS;
        store(pixelsPerInch);
        SetEnvironmentVariableW(densityName, win32::wide(textFromNumber(static_cast<Double>(pixelsPerInch))));
    }
    ScreenOf(const ScreenOf&) = delete;
    ScreenOf& operator=(const ScreenOf&) = delete;
    ~ScreenOf() {
        if (had_)
            store(former_);
        else
            RegDeleteKeyValueW(HKEY_CURRENT_USER, desktopKey, densityValue);
        SetEnvironmentVariableW(densityName, nullptr);
    }

  private:
    static void store(DWORD pixelsPerInch) {
        RegSetKeyValueW(
            HKEY_CURRENT_USER, desktopKey, densityValue, REG_DWORD, &pixelsPerInch, sizeof(pixelsPerInch));
    }

    DWORD former_ = 0;
    bool had_ = false;
};

/// What came of the tests of `OnOneScreen` in a program that starts now: 0 if all passed.
DWORD resultOfThisProgram() {
    wchar_t path[MAX_PATH]{};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    String command = u"\"" + String(win32::textOf(path)) + u"\" --gtest_filter=OnOneScreen.*";
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr,
                       win32::wide(command.data()),
                       nullptr,
                       nullptr,
                       FALSE,
                       0,
                       nullptr,
                       nullptr,
                       &start,
                       &process) == FALSE)
        return GetLastError();
    constexpr DWORD enough = 60000; // milliseconds
    DWORD result = WaitForSingleObject(process.hProcess, enough);
    if (result == WAIT_OBJECT_0)
        GetExitCodeProcess(process.hProcess, &result);
    else
        TerminateProcess(process.hProcess, result);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return result;
}

TEST(DenseScreens, AreDrawnOnInTheirOwnPixels) {
    for (const DWORD pixelsPerInch : {120U, 144U, 168U, 192U}) {
        const ScreenOf screen(pixelsPerInch);
        EXPECT_EQ(resultOfThisProgram(), 0U) << pixelsPerInch << " pixels per inch";
    }
}

/// On the screen that there is, by a program that knows about dense ones.
class OnOneScreen : public ::testing::Test {
  protected:
    static void SetUpTestSuite() { SetProcessDPIAware(); }

    static Long expected() {
        const char* const told = std::getenv("LUMTEX_PIXELS_PER_INCH");
        return told != nullptr ? static_cast<Long>(std::atoi(told)) : 96;
    }
    /// The height of letters of `points`, as fonts of the system say it.
    static LONG letterHeight(Single points) {
        return -roundToLong(static_cast<Double>(points) * expected() / 72);
    }
    static LONG heightOf(HFONT font) {
        LOGFONTW description{};
        GetObjectW(font, sizeof(description), &description);
        return description.lfHeight;
    }

    NotedRuntime runtime{GetModuleHandleW(nullptr)};
    win32::Win32World world{GetModuleHandleW(nullptr), nullptr, &runtime};
    TestHost host;
    RecordingEvents events;
    lmListView list{world, host, events};
};

TEST_F(OnOneScreen, TheProgramIsToldItsDensity) {
    EXPECT_EQ(win32::screenDensity().x, expected());
    EXPECT_EQ(win32::screenDensity().y, expected());
}

TEST_F(OnOneScreen, ATwipIsA1440thOfAnInch) {
    const auto surface = world.createSurface(1, 1);
    EXPECT_FLOAT_EQ(scaleY(*surface, 1, Unit::pixels, Unit::twips) * static_cast<Single>(expected()), 1440);
}

TEST_F(OnOneScreen, SurfacesOfAllKindsHaveTheDensityOfTheScreen) {
    EXPECT_EQ(world.createSurface(1, 1)->pixelsPerInchX(), expected());
    EXPECT_EQ(world.createSurface(1, 1)->pixelsPerInchY(), expected());
    EXPECT_EQ(list.window().surface().pixelsPerInchX(), expected());
    EXPECT_EQ(list.window().surface().pixelsPerInchY(), expected());
}

TEST_F(OnOneScreen, TheEditorHasTheLettersOfTheList) {
    const FontSpec font{.Name = u"Verdana", .Size = 9.75F};
    TextBox& editor = ListViewInspector(list).editor();
    editor.setFont(font);
    const auto inEditor =
        reinterpret_cast<HFONT>(SendMessageW(win32::toHWND(editor.hWnd()), WM_GETFONT, 0, 0));
    EXPECT_EQ(heightOf(inEditor), letterHeight(9.75F));
    win32::GdiSurface& surface = dynamic_cast<win32::GdiSurface&>(list.window().surface());
    surface.setFont(font);
    surface.textWidth(u"X");
    EXPECT_EQ(heightOf(static_cast<HFONT>(GetCurrentObject(surface.memoryDc(), OBJ_FONT))),
              letterHeight(9.75F));
}

TEST_F(OnOneScreen, ColumnsAndRowsAreAsLargeAsTheirTwips) {
    list.UserControl_ReadProperties(MemoryPropertyBag{});
    list.letBorderVisible(false);
    list.letRowsDynamic(false);
    list.letRowHeight(720);
    list.window().place(0, 0, 600, 400);
    for (int column = 0; column < 2; ++column)
        list.ColumnsAdd(u"a", nullptr, nullptr, nullptr, cColumnLeft, 1440);
    for (int row = 0; row < 2; ++row)
        list.RowsAdd(Long{-1}, u",", u"x,y");
    list.Redraw();
    ListViewInspector inside(list);
    EXPECT_TRUE(says(inside.painting(), "right=" + numberText(static_cast<Single>(2 * expected()))));
    EXPECT_EQ(inside.rows()[1].Top - inside.rows()[0].Top, static_cast<Single>(expected()) / 2);
}

TEST_F(OnOneScreen, DrawingsOfTheProductHaveTheirOwnPixels) {
    list.UserControl_ReadProperties(MemoryPropertyBag{});
    list.letBorderVisible(false);
    list.letRowsDynamic(false);
    list.letRowHeight(720);
    list.letStyle(cCheckBoxes);
    list.setSkin(nullptr);
    list.window().place(0, 0, 600, 400);
    list.ColumnsAdd(u"a", nullptr, nullptr, nullptr, cColumnLeft, 2880);
    list.letColumnCheckBoxes(1, true);
    list.RowsAdd(Long{-1}, u",", u"x");
    list.Redraw();
    ListViewInspector inside(list);
    const Surface& surface = list.window().surface();
    const Bitmap& box = inside.artwork().img[1]->bitmap();
    EXPECT_EQ(drawing::GetPictureWidth(surface, *inside.artwork().img[1]), 13);
    EXPECT_EQ(drawing::GetPictureHeight(surface, *inside.artwork().img[1]), 13);
    for (const PictureRef& piece : inside.artwork().imgCol)
        EXPECT_EQ(drawing::GetPictureWidth(surface, *piece), piece->bitmap().width);
    // Its left edge stands 5 pixels into the cell; how far down depends on the icon's height.
    const Bitmap picture = list.window().surface().image();
    Long hits = 0;
    for (Long top = 0; top + box.height <= picture.height; ++top) {
        bool same = true;
        for (Long y = 0; y < box.height && same; ++y)
            for (Long x = 0; x < box.width && same; ++x)
                same = (picture.at(5 + x, top + y) & 0xFFFFFFU) == (box.at(x, y) & 0xFFFFFFU);
        hits += same ? 1 : 0;
    }
    EXPECT_EQ(hits, 1) << "the box, pixel by pixel";
    EXPECT_EQ(
        inside.vertical().Width(),
        static_cast<Single>(
            bars::pictureAt(bars::ScrollArtwork::standard().buttonOf(bars::Arrow::up), 1).bitmap().width));
}

} // namespace
} // namespace lumtex::testing

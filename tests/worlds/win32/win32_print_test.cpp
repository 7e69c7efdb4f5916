/// What a window gives to somebody who wants a picture of it.
#include "list_fixture.h"
#include "surface_pair.h"
#include "win32_list.h"
#include "window_pictures.h"

namespace lumtex::testing {
namespace {

class Printing : public Win32List {
  protected:
    HWND window() { return win32::toHWND(listWindow()); }
    Bitmap surface() { return list->window().surface().image(); }
    /// By a message that paints on the context that it is given.
    Bitmap painted(UINT message, LPARAM flags) {
        return drawnPicture(300, 200, [&](HDC target) {
            SendMessageW(window(), message, reinterpret_cast<WPARAM>(target), flags);
        });
    }
    static Bitmap nothing() {
        return drawnPicture(300, 200, [](HDC /*target*/) {});
    }
};

TEST_F(Printing, ShowsWhatTheScreenShowsWithAllThatLiesInTheWindow) {
    fill(60);
    GuideLine& guide = ListViewInspector(*list).anyGuide();
    guide.place(40, 150);
    guide.letVisible(true);
    list->SetEdit(Long{2}, Long{1});
    runtime.DoEvents();
    HideCaret(win32::toHWND(list->hwndEdit()));
    const Bitmap shown = screenPicture(window());
    EXPECT_TRUE(samePixels(printedPicture(window()), shown));
    EXPECT_TRUE(samePixels(painted(WM_PRINT, PRF_CLIENT | PRF_CHILDREN), shown));
    EXPECT_FALSE(samePixels(surface(), shown)) << "bar, editor and guide line are not on the surface";
}

TEST_F(Printing, WithoutChildrenShowsTheSurface) {
    fill(60);
    EXPECT_TRUE(samePixels(painted(WM_PRINTCLIENT, PRF_CLIENT), surface()));
    EXPECT_TRUE(samePixels(painted(WM_PRINT, PRF_CLIENT), surface()));
}

TEST_F(Printing, LeavesOutHiddenChildren) {
    fill(2);
    EXPECT_FALSE(ListViewInspector(*list).vertical().Visible());
    EXPECT_TRUE(samePixels(painted(WM_PRINT, PRF_CLIENT | PRF_CHILDREN), surface()));
}

TEST_F(Printing, AHiddenWindowPrintsUnlessItIsAskedToCheck) {
    fill(2);
    list->window().letVisible(false);
    EXPECT_TRUE(samePixels(painted(WM_PRINT, PRF_CLIENT), surface()));
    EXPECT_TRUE(samePixels(painted(WM_PRINT, PRF_CLIENT | PRF_CHECKVISIBLE), nothing()));
}

TEST_F(Printing, LeavesTheContextAsItWas) {
    fill(60);
    const Bitmap shown = screenPicture(window());
    const Bitmap page = drawnPicture(400, 300, [&](HDC target) {
        SetViewportOrgEx(target, 50, 60, nullptr);
        const HGDIOBJ pen = GetCurrentObject(target, OBJ_PEN);
        SendMessageW(window(), WM_PRINT, reinterpret_cast<WPARAM>(target), PRF_CLIENT | PRF_CHILDREN);
        POINT origin{};
        GetViewportOrgEx(target, &origin);
        EXPECT_EQ(origin.x, 50);
        EXPECT_EQ(origin.y, 60);
        EXPECT_EQ(GetCurrentObject(target, OBJ_PEN), pen);
        RECT clip{};
        EXPECT_NE(GetClipBox(target, &clip), NULLREGION);
        EXPECT_EQ(clip.right - clip.left, 400) << "the children's clipping is gone";
    });
    Bitmap part(300, 200);
    for (Long y = 0; y < 200; ++y)
        for (Long x = 0; x < 300; ++x)
            part.at(x, y) = page.at(x + 50, y + 60);
    EXPECT_TRUE(samePixels(part, shown));
    EXPECT_EQ(page.at(49, 100) & 0xFFFFFFU, 0U);
    EXPECT_EQ(page.at(350, 100) & 0xFFFFFFU, 0U);
}

TEST_F(Printing, TheBackgroundIsNeverErased) {
    fill(2);
    LRESULT answer = FALSE;
    const Bitmap erased = drawnPicture(300, 200, [&](HDC target) {
        answer = SendMessageW(window(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(target), 0);
    });
    EXPECT_EQ(answer, TRUE) << "the system need not do it either";
    EXPECT_TRUE(samePixels(erased, nothing()));
}

} // namespace
} // namespace lumtex::testing

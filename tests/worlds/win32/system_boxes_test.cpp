/// Boxes of the system, and what goes on while one is open.
#include "win32_list.h"
#include "windows/box_watch.h"

namespace lumtex::testing {
namespace {

/// A list whose boxes are the system's own.
class SystemBoxes : public ::testing::Test {
  protected:
    static void SetUpTestSuite() { program = std::make_unique<ProgramWindow>(); }
    static void TearDownTestSuite() { program.reset(); }
    void SetUp() override {
        ASSERT_NE(program->get(), nullptr) << "no display";
        SetActiveWindow(program->get());
        list = std::make_unique<lmListView>(world, host, events);
        list->UserControl_ReadProperties(MemoryPropertyBag{});
        list->window().place(100, 100, 300, 200);
    }

    static inline std::unique_ptr<ProgramWindow> program;
    BoxWatch watch;
    win32::Win32World world{GetModuleHandleW(nullptr), program->get()};
    TestHost host;
    RecordingEvents events;
    std::unique_ptr<lmListView> list;
};

TEST_F(SystemBoxes, LieOverTheActiveWindowAndHoldItUntilTheyAreDismissed) {
    HWND owner = nullptr;
    bool programTookInput = true;
    bool hasIcon = false;
    String title(100, u'\0');
    watch.whileOpen = [&](HWND box) {
        owner = GetWindow(box, GW_OWNER);
        programTookInput = IsWindowEnabled(program->get()) != FALSE;
        title.resize(static_cast<std::size_t>(GetWindowTextW(box, win32::wide(title.data()), 100)));
        for (HWND child = GetWindow(box, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
            hasIcon = hasIcon || (GetWindowLongPtrW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON;
    };
    world.runtime().queue().messageBox(u"Größe", BoxStyle::critical, u"a title");
    EXPECT_EQ(std::exchange(watch.boxes, {}), std::vector<String>{u"Größe"});
    EXPECT_EQ(title, u"a title");
    EXPECT_EQ(owner, program->get());
    EXPECT_TRUE(hasIcon);
    EXPECT_FALSE(programTookInput);
    EXPECT_TRUE(IsWindowEnabled(program->get()));
}

TEST_F(SystemBoxes, ShowReportsAndLetEventsThroughMeanwhile) {
    events.log.clear();
    watch.whileOpen = [&](HWND /*box*/) {
        SendMessageW(win32::toHWND(list->hwnd()), WM_MOUSEMOVE, 0, MAKELPARAM(30, 40));
    };
    EXPECT_FALSE(list->ItemChecked(Long{1}, Long{1})) << "a list without rows has no cell";
    const std::vector<String> boxes = std::exchange(watch.boxes, {});
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(boxes[0].starts_with(u"Error no.: 9\r\n")) << toUtf8(boxes[0]);
    EXPECT_EQ(events.log, std::vector<std::string>{"MouseMove Button=0 Shift=0 X=30 Y=40"});
}

TEST_F(SystemBoxes, OfAReportLeaveAnOpenEditorAsItIsAndGiveItTheFocusBack) {
    list->ColumnsAdd(u"a", nullptr, nullptr, nullptr, cColumnLeft, 900);
    list->RowsAdd(Long{-1}, u",", u"x");
    list->SetEdit(Long{1}, Long{1});
    HWND editor = win32::toHWND(list->hwndEdit());
    ASSERT_EQ(GetFocus(), editor);
    SetWindowTextW(editor, L"typed");
    bool boxHadFocus = false;
    watch.whileOpen = [&](HWND box) { boxHadFocus = IsChild(box, GetFocus()) != FALSE; };
    list->ItemText(Long{99}, Long{1});
    EXPECT_EQ(std::exchange(watch.boxes, {}).size(), 1U);
    EXPECT_TRUE(boxHadFocus);
    EXPECT_TRUE(IsWindowVisible(editor));
    EXPECT_EQ(GetFocus(), editor);
    wchar_t text[10]{};
    GetWindowTextW(editor, text, 10);
    EXPECT_STREQ(text, L"typed");
}

} // namespace
} // namespace lumtex::testing

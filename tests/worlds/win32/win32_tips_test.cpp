/// Tips of the system, through the class that hosts use.
#include "test_object.h"
#include "tips/tool_tip.h"
#include "win32_list.h"

#include <commctrl.h>

namespace lumtex::testing {
namespace {

constexpr auto autoPop = static_cast<Long>(TipDelay::autoPop);

class Win32TipWindows : public Win32List {
  protected:
    std::shared_ptr<TestObject> objectOf(HWND window) const {
        auto object = std::make_shared<TestObject>();
        object->properties[u"hwnd"] = win32::fromHWND(window);
        return object;
    }
    /// A control on the program's window.
    std::shared_ptr<TestObject> control() const {
        auto made = objectOf(win32::toHWND(list->hwnd()));
        made->properties[u"Container"] = ObjectRef(objectOf(program->get()));
        return made;
    }

    tips::lmToolTip tips{runtime, world.tips()};
};

TEST_F(Win32TipWindows, StandOnFormsAndOurSurfacesAlone) {
    EXPECT_TRUE(world.tips().isFormOrSurface(win32::fromHWND(program->get())));
    EXPECT_TRUE(world.tips().isFormOrSurface(listWindow()));
    EXPECT_FALSE(world.tips().isFormOrSurface(list->hwndEdit()));
    EXPECT_FALSE(world.tips().isFormOrSurface(0));
    EXPECT_FALSE(tips.Create(objectOf(win32::toHWND(list->hwndEdit()))));
}

TEST_F(Win32TipWindows, HoldOneToolForEachControl) {
    ASSERT_TRUE(tips.Create(objectOf(program->get())));
    const WindowHandle window = tips.hwnd();
    EXPECT_TRUE(IsWindow(win32::toHWND(window)));
    EXPECT_TRUE(tips.Create(objectOf(program->get())));
    EXPECT_EQ(tips.hwnd(), window);
    const auto tool = control();
    EXPECT_TRUE(tips.AddTool(tool, u"Größe"));
    EXPECT_FALSE(tips.AddTool(tool, u"again"));
    EXPECT_EQ(tips.ToolCount(), 1);
    EXPECT_EQ(tips.ToolText(tool), u"Größe");
    tips.letToolText(tool, u"a much longer text than before");
    EXPECT_EQ(tips.ToolText(tool), u"a much longer text than before");
    EXPECT_TRUE(tips.RemoveTool(tool));
    EXPECT_EQ(tips.ToolCount(), 0);
}

TEST_F(Win32TipWindows, KeepTimesMarginsWidthAndColours) {
    ASSERT_TRUE(tips.Create(objectOf(program->get())));
    tips.letDelayTime(autoPop, 4321);
    EXPECT_EQ(tips.DelayTime(autoPop), 4321);
    tips.letMargin(2, 7);
    EXPECT_EQ(tips.Margin(2), 7);
    EXPECT_EQ(tips.Margin(0), 0);
    tips.letMaxTipWidth(250);
    EXPECT_EQ(tips.MaxTipWidth(), 250);
    tips.letMaxTipWidth(0);
    EXPECT_EQ(tips.MaxTipWidth(), -1);
    tips.letBackColor(0x123456);
    EXPECT_EQ(tips.BackColor(), 0x123456U);
}

TEST_F(Win32TipWindows, GoWithTheObjectThatMadeThem) {
    HWND window = nullptr;
    {
        tips::lmToolTip own(runtime, world.tips());
        ASSERT_TRUE(own.Create(objectOf(program->get())));
        window = win32::toHWND(own.hwnd());
    }
    EXPECT_FALSE(IsWindow(window));
}

/// The messages that reach a window, in the classes' own range.
class MessageLog {
  public:
    explicit MessageLog(HWND window) : window_(window) {
        heard.clear();
        inner = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(hear)));
    }
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;
    ~MessageLog() { SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(inner)); }

    static std::vector<std::string> take() { return std::exchange(heard, {}); }

  private:
    static LRESULT CALLBACK hear(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message >= WM_USER) {
            std::string line = std::to_string(message) + " " + std::to_string(wParam);
            if (message == TTM_ADDTOOLA || message == TTM_DELTOOLA || message == TTM_UPDATETIPTEXTA)
                line += " flags " + std::to_string(reinterpret_cast<const TTTOOLINFOA*>(lParam)->uFlags);
            heard.push_back(line);
        }
        return CallWindowProcA(inner, window, message, wParam, lParam);
    }

    static inline std::vector<std::string> heard;
    static inline WNDPROC inner = nullptr;
    HWND window_;
};

TEST_F(Win32TipWindows, SendTheMessagesOfTheSystemsClass) {
    ASSERT_TRUE(tips.Create(objectOf(program->get())));
    const MessageLog log(win32::toHWND(tips.hwnd()));
    const auto tool = control();
    using Lines = std::vector<std::string>;
    tips.AddTool(tool, u"a");
    EXPECT_EQ(MessageLog::take(), (Lines{"1037 0", "1028 0 flags 17"}));
    tips.letToolText(tool, u"b");
    EXPECT_EQ(MessageLog::take(), (Lines{"1037 0", "1038 0", "1036 0 flags 17"}));
    tips.RemoveTool(tool);
    EXPECT_EQ(MessageLog::take(), (Lines{"1037 0", "1038 0", "1029 0 flags 17"}));
    tips.letBackColor(5);
    tips.BackColor();
    tips.letForeColor(6);
    tips.ForeColor();
    EXPECT_EQ(MessageLog::take(), (Lines{"1043 5", "1046 0", "1044 6", "1044 0"}));
    tips.letDelayTime(2, 100);
    tips.DelayTime(2);
    tips.letMargin(0, 1);
    tips.letMaxTipWidth(10);
    tips.MaxTipWidth();
    EXPECT_EQ(MessageLog::take(), (Lines{"1027 2", "1045 2", "1051 0", "1050 0", "1048 0", "1049 0"}));
}

} // namespace
} // namespace lumtex::testing

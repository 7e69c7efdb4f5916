/// Tips of the system, through the class that hosts use.
#include "test_object.h"
#include "tips/tool_tip.h"
#include "win32_list.h"

namespace lumtex::testing {
namespace {

class Win32TipWindows : public Win32List {
  protected:
    std::shared_ptr<TestObject> objectOf(HWND window) const {
        auto object = std::make_shared<TestObject>();
        object->properties[u"hwnd"] = fromHWND(window);
        return object;
    }
    /// A control on the program's window.
    std::shared_ptr<TestObject> control() const {
        auto made = objectOf(toHWND(list->hwnd()));
        made->properties[u"Container"] = ObjectRef(objectOf(program->get()));
        return made;
    }

    lmToolTip tips{runtime, world.tips()};
};

TEST_F(Win32TipWindows, StandOnFormsAndOurSurfacesAlone) {
    EXPECT_TRUE(world.tips().isFormOrSurface(fromHWND(program->get())));
    EXPECT_TRUE(world.tips().isFormOrSurface(listWindow()));
    EXPECT_FALSE(world.tips().isFormOrSurface(list->hwndEdit()));
    EXPECT_FALSE(world.tips().isFormOrSurface(0));
    EXPECT_FALSE(tips.Create(objectOf(toHWND(list->hwndEdit()))));
}

TEST_F(Win32TipWindows, HoldOneToolForEachControl) {
    ASSERT_TRUE(tips.Create(objectOf(program->get())));
    const WindowHandle window = tips.hwnd();
    EXPECT_TRUE(IsWindow(toHWND(window)));
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
    tips.letDelayTime(tipDelayAutoPop, 4321);
    EXPECT_EQ(tips.DelayTime(tipDelayAutoPop), 4321);
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
        lmToolTip own(runtime, world.tips());
        ASSERT_TRUE(own.Create(objectOf(program->get())));
        window = toHWND(own.hwnd());
    }
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(Win32TipWindows, AHandleThatNamesNoTipWindowIsAnsweredWithNothing) {
    ToolInfo tool{.size = 40, .flags = 17, .owner = 0, .id = listWindow(), .text = u"x"};
    EXPECT_EQ(world.tips().send(listWindow(), ttmAddTool, 0, tool), 0);
    EXPECT_EQ(world.tips().send(listWindow(), ttmGetToolCount, 0, 0), 0);
    world.tips().destroyWindow(listWindow());
    EXPECT_TRUE(IsWindow(toHWND(listWindow())));
}

} // namespace
} // namespace lumtex::testing

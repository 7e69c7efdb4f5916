#include "log_comparison.h"
#include "recording_tips.h"
#include "test_fonts.h"
#include "test_object.h"
#include "tips/qi.h"
#include "tips/tool_tip.h"
#include "values/color.h"
#include "worlds/common/kept_tip_window.h"
#include "worlds/headless/desktop.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

constexpr auto autoPop = static_cast<Long>(TipDelay::autoPop);

class Plain final : public UserControl {};

class ToolTip : public ::testing::Test, private TextBoxClient {
  protected:
    ToolTip() {
        form->properties[u"hwnd"] = formWindow->hWnd();
        first = control(101);
        second = control(102);
    }

    /// On the form.
    std::shared_ptr<TestObject> control(WindowHandle handle) const {
        auto made = std::make_shared<TestObject>();
        made->properties[u"hwnd"] = handle;
        made->properties[u"Container"] = ObjectRef(form);
        return made;
    }
    std::string number(Long value) const { return std::to_string(value); }
    std::string owner() const { return number(formWindow->hWnd()); }
    /// With its window, and nothing recorded yet.
    tips::lmToolTip& created() {
        EXPECT_TRUE(tips.Create(form));
        platform.log.clear();
        return tips;
    }

    void textBoxKeyPress(Integer& /*KeyAscii*/) override {}
    void textBoxLostFocus() override {}

    headless::Desktop desktop{testFonts()};
    RecordingTips platform{desktop.tips()};
    Plain client;
    std::unique_ptr<Window> formWindow = desktop.createWindow(nullptr, client);
    std::unique_ptr<TextBox> box = desktop.createTextBox(*formWindow, *this);
    std::shared_ptr<TestObject> form = std::make_shared<TestObject>();
    std::shared_ptr<TestObject> first;
    std::shared_ptr<TestObject> second;
    tips::lmToolTip tips{desktop.runtime(), platform};
};

TEST_F(ToolTip, CreateMakesATipWindowOwnedByTheParent) {
    EXPECT_EQ(tips.hwnd(), 0);
    EXPECT_TRUE(tips.Create(form));
    EXPECT_NE(tips.hwnd(), 0);
    EXPECT_TRUE(sameLog(platform.take(), {"create owner=" + owner()}));
}

TEST_F(ToolTip, ASecondCreateReturnsTrueAndKeepsTheWindow) {
    created();
    const WindowHandle window = tips.hwnd();
    EXPECT_TRUE(tips.Create(form));
    EXPECT_EQ(tips.hwnd(), window);
    EXPECT_TRUE(platform.log.empty());
    EXPECT_EQ(desktop.tips().windows().size(), 1U);
}

TEST_F(ToolTip, CreateRefusesAParentThatIsNeitherFormNorControlSurface) {
    const auto windowless = std::make_shared<TestObject>();
    const auto textBox = std::make_shared<TestObject>();
    textBox->properties[u"hwnd"] = box->hWnd();
    const auto gone = std::make_shared<TestObject>();
    gone->properties[u"hwnd"] = Long{12345};
    const auto odd = std::make_shared<TestObject>();
    odd->properties[u"hwnd"] = u"no number";
    for (const ObjectRef& parent :
         {ObjectRef(), ObjectRef(windowless), ObjectRef(textBox), ObjectRef(gone), ObjectRef(odd)})
        EXPECT_FALSE(tips.Create(parent));
    EXPECT_TRUE(platform.log.empty());
    EXPECT_TRUE(desktop.runtime().boxes.empty());
}

TEST_F(ToolTip, CreateRefusesSuchAParentAlsoOnceThereIsAWindow) {
    created();
    EXPECT_FALSE(tips.Create(nullptr));
    EXPECT_NE(tips.hwnd(), 0);
}

TEST_F(ToolTip, CreateIsFalseWhereThePlatformGivesNoWindow) {
    platform.refusesWindows = true;
    EXPECT_FALSE(tips.Create(form));
    EXPECT_EQ(tips.hwnd(), 0);
    platform.refusesWindows = false;
    EXPECT_TRUE(tips.Create(form));
}

TEST_F(ToolTip, TheWindowGoesWithTheObject) {
    {
        tips::lmToolTip other(desktop.runtime(), platform);
        other.Create(form);
        EXPECT_EQ(desktop.tips().windows().size(), 1U);
    }
    EXPECT_EQ(platform.log.back(), "destroy");
    EXPECT_EQ(desktop.tips().windows().size(), 0U);
    platform.log.clear();
    { const tips::lmToolTip never(desktop.runtime(), platform); }
    EXPECT_TRUE(platform.log.empty());
}

TEST_F(ToolTip, AddToolLooksForTheControlAndAddsIt) {
    EXPECT_TRUE(created().AddTool(first, u"Größe"));
    EXPECT_TRUE(sameLog(platform.take(), {"toolCount", "add owner=" + owner() + " id=101 text=Größe"}));
    EXPECT_EQ(desktop.tips().tipOf(101), u"Größe");
}

TEST_F(ToolTip, AddToolForAControlThatHasAToolReturnsFalse) {
    created().AddTool(first, u"old");
    tips.AddTool(second, u"other");
    platform.log.clear();
    EXPECT_FALSE(tips.AddTool(second, u"new"));
    EXPECT_TRUE(sameLog(platform.take(), {"toolCount", "tool 0 room=0", "tool 1 room=0"}));
    EXPECT_EQ(tips.ToolCount(), 2);
    EXPECT_EQ(tips.ToolText(second), u"other");
}

TEST_F(ToolTip, AControlWithoutAContainerHasNoOwnerAndNoReport) {
    const auto alone = std::make_shared<TestObject>();
    alone->properties[u"hwnd"] = Long{7};
    const auto strange = std::make_shared<TestObject>();
    strange->properties[u"hwnd"] = Long{8};
    strange->properties[u"Container"] = u"no object";
    EXPECT_TRUE(created().AddTool(alone, u"a"));
    EXPECT_TRUE(tips.AddTool(strange, u""));
    EXPECT_EQ(platform.log[1], "add owner=0 id=7 text=a");
    EXPECT_EQ(platform.log.back(), "add owner=0 id=8 text=");
    EXPECT_TRUE(desktop.runtime().boxes.empty());
}

TEST_F(ToolTip, RemoveToolRemovesTheOneThatWasFound) {
    created().AddTool(first, u"a");
    tips.AddTool(second, u"b");
    platform.log.clear();
    EXPECT_TRUE(tips.RemoveTool(first));
    EXPECT_TRUE(sameLog(platform.take(),
                        {"toolCount", "tool 0 room=0", "remove owner=" + owner() + " id=101 text="}));
    EXPECT_FALSE(tips.RemoveTool(first));
    EXPECT_EQ(tips.ToolCount(), 1);
    EXPECT_EQ(tips.ToolText(second), u"b");
}

TEST_F(ToolTip, ToolTextReadsAsMuchAsTheLongestTextWas) {
    created().AddTool(first, u"four");
    EXPECT_EQ(tips.ToolText(first), u"four");
    EXPECT_EQ(platform.log.back(), "tool 0 room=5");
    tips.letToolText(first, u"twelve units");
    EXPECT_EQ(tips.ToolText(first), u"twelve units");
    EXPECT_EQ(platform.log.back(), "tool 0 room=13");
    tips.letToolText(first, u"six");
    EXPECT_EQ(tips.ToolText(first), u"six");
    EXPECT_EQ(platform.log.back(), "tool 0 room=13");
    tips.AddTool(second, String(300, u'x'));
    EXPECT_EQ(tips.ToolText(first), u"six");
    EXPECT_EQ(tips.ToolText(second), String(300, u'x'));
    EXPECT_EQ(platform.log.back(), "tool 1 room=301");
}

TEST_F(ToolTip, ToolTextEndsAtTheFirstZero) {
    created().AddTool(first, StringView(u"ab\0cd", 5));
    EXPECT_EQ(tips.ToolText(first), u"ab");
}

TEST_F(ToolTip, ToolTextIsCutToTheLongestTextSoFar) {
    created().AddTool(first, u"ab");
    // Someone else's text in the same window, longer than all that went through here.
    platform.last->setText({.owner = formWindow->hWnd(), .id = 101, .text = u"abcdef"});
    EXPECT_EQ(tips.ToolText(first), u"abc");
}

TEST_F(ToolTip, SettingToolTextGivesTheToolTheNewText) {
    created().AddTool(first, u"a");
    platform.log.clear();
    tips.letToolText(first, u"b");
    EXPECT_TRUE(sameLog(platform.take(),
                        {"toolCount", "tool 0 room=0", "setText owner=" + owner() + " id=101 text=b"}));
}

TEST_F(ToolTip, SettingToolTextOfAControlWithoutAToolMakesNone) {
    created().letToolText(first, u"b");
    EXPECT_EQ(tips.ToolCount(), 0);
    EXPECT_EQ(tips.ToolText(first), u"");
}

TEST_F(ToolTip, ColoursAreThoseOfTheWindow) {
    created().letBackColor(0xFF8040U);
    EXPECT_EQ(tips.BackColor(), 0xFF8040U);
    tips.letForeColor(0x80000017U);
    EXPECT_TRUE(sameLog(platform.take(), {"setBackColor 16744512", "backColor", "setTextColor 2147483671"}));
}

TEST_F(ToolTip, ReadingForeColorSetsTheTextToBlack) {
    // Wanted: reading ForeColor sends the setter's message with a colour of 0, which turns the text black.
    created().letForeColor(0x0000FFU);
    platform.log.clear();
    EXPECT_EQ(tips.ForeColor(), 0U);
    EXPECT_TRUE(sameLog(platform.take(), {"setTextColor 0"}));
    EXPECT_EQ(desktop.tips().textColorOf(tips.hwnd()), black);
}

struct DelayRule {
    const char* name;
    Long which;
    Long sent;
};

TEST_F(ToolTip, WhichDelayTimeIsMaskedWithThree) {
    constexpr DelayRule rules[] = {
        {"reshow", 1, 1},
        {"auto pop", 2, 2},
        {"initial", 3, 3},
        {"five is one", 5, 1},
        {"minus one is three", -1, 3},
    };
    created();
    for (const DelayRule& rule : rules) {
        SCOPED_TRACE(rule.name);
        platform.log.clear();
        tips.letDelayTime(rule.which, 1000 + rule.which);
        EXPECT_EQ(tips.DelayTime(rule.which), 1000 + rule.which);
        EXPECT_TRUE(sameLog(platform.take(),
                            {"setDelay " + number(rule.sent) + " " + number(1000 + rule.which),
                             "delay " + number(rule.sent)}));
    }
}

TEST_F(ToolTip, MarginReadsAllFourAndReplacesOne) {
    created();
    for (Long side = 0; side < 4; ++side)
        tips.letMargin(side, 10 + side);
    EXPECT_TRUE(sameLog(platform.take(),
                        {"margins 0,0,0,0",
                         "setMargins 10,0,0,0",
                         "margins 10,0,0,0",
                         "setMargins 10,11,0,0",
                         "margins 10,11,0,0",
                         "setMargins 10,11,12,0",
                         "margins 10,11,12,0",
                         "setMargins 10,11,12,13"}));
    for (Long side = 0; side < 4; ++side)
        EXPECT_EQ(tips.Margin(side), 10 + side);
    EXPECT_EQ(tips.Margin(4), 0);
    EXPECT_EQ(tips.Margin(-1), 0);
    platform.log.clear();
    tips.letMargin(4, 1);
    tips.letMargin(-1, 1);
    EXPECT_TRUE(platform.log.empty());
}

TEST_F(ToolTip, MaxTipWidthBelowOneIsNoLimit) {
    created();
    for (const Integer width : {Integer{0}, Integer{-1}, Integer{-32768}}) {
        tips.letMaxTipWidth(width);
        EXPECT_EQ(platform.log.back(), "setMaxWidth -1");
        EXPECT_EQ(tips.MaxTipWidth(), -1);
    }
    for (const Integer width : {Integer{1}, Integer{32767}}) {
        tips.letMaxTipWidth(width);
        EXPECT_EQ(platform.log.back(), "setMaxWidth " + number(width));
        EXPECT_EQ(tips.MaxTipWidth(), width);
    }
    EXPECT_EQ(platform.log.back(), "maxWidth");
}

TEST_F(ToolTip, EverythingWithoutAWindowIsAQuietNoOp) {
    EXPECT_FALSE(tips.AddTool(first, u"a"));
    EXPECT_FALSE(tips.RemoveTool(first));
    tips.letToolText(first, u"a");
    EXPECT_EQ(tips.ToolText(first), u"");
    EXPECT_EQ(tips.ToolCount(), 0);
    tips.letBackColor(white);
    EXPECT_EQ(tips.BackColor(), 0U);
    tips.letForeColor(white);
    EXPECT_EQ(tips.ForeColor(), 0U);
    tips.letDelayTime(autoPop, 1);
    EXPECT_EQ(tips.DelayTime(autoPop), 0);
    tips.letMargin(0, 1);
    EXPECT_EQ(tips.Margin(0), 0);
    tips.letMaxTipWidth(1);
    EXPECT_EQ(tips.MaxTipWidth(), 0);
    EXPECT_TRUE(platform.log.empty());
    EXPECT_TRUE(desktop.runtime().boxes.empty());
}

TEST_F(ToolTip, AControlWithoutAWindowIsAQuietNoOp) {
    created();
    const auto windowless = std::make_shared<TestObject>();
    for (const ObjectRef& odd : {ObjectRef(), ObjectRef(windowless)}) {
        EXPECT_FALSE(tips.AddTool(odd, u"a"));
        EXPECT_FALSE(tips.RemoveTool(odd));
        tips.letToolText(odd, u"a");
        EXPECT_EQ(tips.ToolText(odd), u"");
    }
    EXPECT_TRUE(platform.log.empty());
    EXPECT_TRUE(desktop.runtime().boxes.empty());
}

class QiTest : public ToolTip {
  protected:
    /// The one tip window that there is.
    const worlds::KeptTipWindow& tipWindow() { return *desktop.tips().windows().at(0); }

    tips::QI qi{desktop};
};

TEST_F(QiTest, CreateMakesTheTipWithWidthDelayAndText) {
    qi.Create(form, first, u"Hello", 2500, 0);
    EXPECT_EQ(tipWindow().maxWidth(), -1);
    EXPECT_EQ(tipWindow().delay(TipDelay::autoPop), 2500);
    EXPECT_EQ(desktop.tips().tipOf(101), u"Hello");
}

TEST_F(QiTest, ARepeatedCreateChangesTheTextAndKeepsOneTool) {
    qi.Create(form, first, u"old", 1000, 100);
    qi.Create(form, first, u"new and longer", 1000, 100);
    EXPECT_EQ(tipWindow().toolCount(), 1);
    EXPECT_EQ(desktop.tips().tipOf(101), u"new and longer");
}

TEST_F(QiTest, RemoveBeforeAnyCreateDoesNothing) {
    qi.Remove(first);
    EXPECT_EQ(desktop.tips().windows().size(), 0U);
    EXPECT_TRUE(desktop.runtime().boxes.empty());
}

TEST_F(QiTest, RemoveTakesTheTipAway) {
    qi.Create(form, first, u"a", 1000, 0);
    qi.Remove(first);
    EXPECT_EQ(desktop.tips().tipOf(101), std::nullopt);
}

TEST_F(QiTest, AParentThatIsRefusedLeavesEverythingQuiet) {
    qi.Create(nullptr, first, u"a", 1000, 0);
    EXPECT_TRUE(desktop.tips().windows().empty());
    EXPECT_TRUE(desktop.runtime().boxes.empty());
}

} // namespace
} // namespace lumtex::testing

/// What is answered to the message that asks for the list, and the events of UI Automation.
#include "provided_list.h"

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using namespace accessibility;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UiaSpeaker : public ProvidedList {
  protected:
    void SetUp() override {
        ProvidedList::SetUp();
        spoken.reset();
        uia.searches = 0;
        speaker = std::make_unique<win32::ListSpeaker>(*list, *control.get(), NotedUia::find);
    }
    LRESULT ask() { return speaker->answer(1, win32::uiaRootObject); }
    /// What is raised while `body` runs, once somebody has asked for the list.
    std::vector<std::string> raisedBy(const std::function<void()>& body) {
        ask();
        uia.take();
        body();
        return uia.take();
    }

    std::unique_ptr<win32::ListSpeaker> speaker;
};

TEST_F(UiaSpeaker, TheMessageIsAnsweredWithTheList) {
    EXPECT_EQ(uia.searches, 0) << "no library is loaded before somebody asks";
    EXPECT_EQ(ask(), NotedUia::answer);
    EXPECT_EQ(named(elementOf(uia.given.get())), "list");
    EXPECT_EQ(ask(), NotedUia::answer);
    EXPECT_EQ(uia.searches, 1);
    EXPECT_EQ(speaker->answer(1, OBJID_WINDOW), 0);
}

TEST_F(UiaSpeaker, WithoutTheLibraryTheOlderAnswerIsGiven) {
    uia.isThere = false;
    EXPECT_EQ(ask(), 0);
    EXPECT_NE(speaker->answer(0, OBJID_CLIENT), 0);
    list->ItemText(1, 1);
    list->RowsRemove(1);
    EXPECT_THAT(uia.raised, IsEmpty());
}

TEST_F(UiaSpeaker, TheSystemHasTheLibrary) {
    const auto* library = win32::systemsUiaLibrary();
    ASSERT_NE(library, nullptr);
    EXPECT_EQ(library, win32::systemsUiaLibrary());
    Simple window;
    EXPECT_EQ(library->hostProvider(win32::toHWND(listWindow()), window.out()), S_OK);
    EXPECT_TRUE(window);
}

TEST_F(UiaSpeaker, NothingIsRaisedBeforeSomebodyAskedOrWhileNobodyListens) {
    list->RowsRemove(3);
    ask();
    uia.listening = false;
    list->RowsRemove(2);
    EXPECT_THAT(uia.raised, IsEmpty());
}

TEST_F(UiaSpeaker, FocusAndSelectionAreTold) {
    SetFocus(win32::toHWND(listWindow()));
    EXPECT_THAT(raisedBy([&] { strike(runtime, VK_DOWN); }), ElementsAre("focus row 1", "selected row 1"));
    list->letMultiSelect(true);
    EXPECT_THAT(raisedBy([&] {
                    list->letRowSelected(3, true);
                    list->Redraw();
                }),
                ElementsAre("added to selection row 3"));
    EXPECT_THAT(raisedBy([&] {
                    list->letRowSelected(3, false);
                    list->Redraw();
                }),
                ElementsAre("removed from selection row 3"));
    EXPECT_THAT(raisedBy([&] {
                    list->letAutoRedraw(false);
                    list->letRowSelected(2, true);
                    list->letRowSelected(3, true);
                    list->letAutoRedraw(true);
                    list->Redraw();
                }),
                ElementsAre("selection invalidated list"));
}

TEST_F(UiaSpeaker, TheKeyboardBringsTheFocusOfTheRow) {
    list->letRowIndex(2);
    SetFocus(program->get());
    EXPECT_THAT(raisedBy([&] { speaker->tellFocus(); }), IsEmpty()) << "the keyboard is elsewhere";
    SetFocus(win32::toHWND(listWindow()));
    EXPECT_THAT(raisedBy([&] { speaker->tellFocus(); }), ElementsAre("focus row 2"));
}

TEST_F(UiaSpeaker, TextsMarksAndSwitchesAreToldWithWhatTheyAreNow) {
    EXPECT_THAT(raisedBy([&] {
                    list->letItemText(2, 1, u"Bergen");
                    list->Redraw();
                }),
                ElementsAre("name cell 2,1 Bergen", "value cell 2,1 Bergen"));
    EXPECT_THAT(raisedBy([&] {
                    list->letItemChecked(1, 2, true);
                    list->Redraw();
                }),
                ElementsAre("toggle box 1,2 1"));
    EXPECT_THAT(raisedBy([&] { list->letColumnText(1, u"Town"); }), Contains("name header 1 Town"));
    EXPECT_THAT(raisedBy([&] { list->letEnabled(false); }), ElementsAre("enabled list False"));
}

TEST_F(UiaSpeaker, RowsColumnsAndOrderAreToldOfTheList) {
    EXPECT_THAT(raisedBy([&] { list->RowsAdd(Long{-1}, u",", u"Porto,Portugal"); }),
                ElementsAre("many added list"));
    EXPECT_THAT(raisedBy([&] { list->RowsRemove(1); }), ElementsAre("many removed list"));
    EXPECT_THAT(raisedBy([&] { list->ColumnsAdd(u"Since"); }), ElementsAre("invalidated list"));
    EXPECT_THAT(raisedBy([&] { list->Sort(2, cAscending); }),
                ElementsAre("reordered list", "status header 2 sorted, ascending"));
}

TEST_F(UiaSpeaker, BarsAndTheEditorComeAndGo) {
    EXPECT_THAT(raisedBy([&] { addRows(); }), Contains("child added vertical bar (vertical bar)"));
    EXPECT_THAT(raisedBy([&] { list->letTopIndex(4); }), Contains("range vertical bar 4"));
    EXPECT_THAT(raisedBy([&] { list->SetEdit(5, 1); }), Contains("child added editor (editor)"));
    EXPECT_THAT(raisedBy([&] {
                    list->RowsClear();
                    settle();
                }),
                Contains("child removed list (vertical bar)"));
}

TEST_F(UiaSpeaker, WhoListensMayEndTheListAndItsControl) {
    const auto raised = raisedBy([&] {
        uia.onRaise = [&] {
            speaker.reset();
            control = {};
            list.reset();
        };
        list->letItemText(2, 1, u"Bergen");
        if (list)
            list->Redraw();
    });
    EXPECT_FALSE(list);
    EXPECT_EQ(raised.front(), "name cell 2,1 Bergen");
}

TEST_F(UiaSpeaker, TheEndIsToldOnceSomebodyAsked) {
    speaker->tellEnd();
    EXPECT_THAT(uia.raised, IsEmpty());
    EXPECT_THAT(raisedBy([&] { speaker.reset(); }), ElementsAre("over"));
}

TEST_F(UiaSpeaker, TheEndIsNotToldOfAWindowThatIsGone) {
    EXPECT_THAT(raisedBy([&] {
                    list.reset();
                    speaker.reset();
                }),
                IsEmpty());
}

} // namespace
} // namespace lumtex::testing

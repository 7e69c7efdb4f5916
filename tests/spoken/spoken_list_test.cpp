/// What another program hears of a list, and does to it.
#include "listening_program.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <oleacc.h>

namespace lumtex::testing {
namespace {

using ::testing::ElementsAre;

class Spoken : public PlacedControl {
  protected:
    void SetUp() override {
        ASSERT_NE(container.window, nullptr) << "no display";
        container.ambients[DISPID_AMBIENT_DISPLAYNAME] = Variant(u"cities");
        place();
        let(L"RowsDynamic", {false});
        let(L"RowHeight", {300.0F});
        for (const char16_t* column : {u"City", u"Country"})
            call(L"ColumnsAdd", {column});
        for (const Long column : {1, 2}) {
            let(L"ColumnWidth", {column, 1200.0F});
            let(L"ColumnAllowSorting", {column, true});
        }
        for (const char16_t* row : {u"Lisbon,Portugal", u"Oslo,Norway", u"Quito,Ecuador"})
            call(L"RowsAdd", {Long{-1}, u",", row});
        call(L"CheckScroll");
        call(L"Redraw");
    }

    std::vector<std::string> asked(const std::string& arguments) {
        return ListeningProgram(window(), arguments).lines();
    }
    win32::ComRef<IAccessible> accessible() {
        win32::ComRef<IAccessible> list;
        AccessibleObjectFromWindow(window(),
                                   static_cast<DWORD>(OBJID_CLIENT),
                                   __uuidof(IAccessible),
                                   reinterpret_cast<void**>(list.out()));
        return list;
    }
    /// The events that another program hears while `body` runs.
    std::vector<std::string> heardOf(const std::function<void()>& body) {
        const std::string suffix = std::to_string(GetCurrentProcessId());
        const std::string readyName = "lumtexReady" + suffix;
        const std::string doneName = "lumtexDone" + suffix;
        const HANDLE ready = CreateEventA(nullptr, TRUE, FALSE, readyName.c_str());
        const HANDLE done = CreateEventA(nullptr, TRUE, FALSE, doneName.c_str());
        ListeningProgram program(window(), "listen " + readyName + " " + doneName);
        EXPECT_TRUE(ListeningProgram::waitFor(ready));
        // A thread learns of hooks of others as it gets a message.
        PostMessageW(window(), WM_NULL, 0, 0);
        EXPECT_TRUE(ListeningProgram::waitFor(ready));
        body();
        SetEvent(done);
        std::vector<std::string> lines = program.lines();
        CloseHandle(ready);
        CloseHandle(done);
        return lines;
    }
};

VARIANT numbered(LONG number) {
    VARIANT id;
    VariantInit(&id);
    id.vt = VT_I4;
    id.lVal = number;
    return id;
}

TEST_F(Spoken, TheTreeIsWhatIsOnTheScreen) {
    EXPECT_THAT(
        asked("tree"),
        ElementsAre(
            "list \"cities\" focusable over cell \"Ecuador\"",
            " list item \"Lisbon\" (Country: Portugal) focusable selectable [Select] over cell \"Portugal\"",
            "  cell \"Lisbon\" =Lisbon (City) readonly selectable [Press]",
            "  cell \"Portugal\" =Portugal (Country) readonly selectable [Press]",
            " list item \"Oslo\" (Country: Norway) focusable selectable [Select] over cell \"Norway\"",
            "  cell \"Oslo\" =Oslo (City) readonly selectable [Press]",
            "  cell \"Norway\" =Norway (Country) readonly selectable [Press]",
            " list item \"Quito\" (Country: Ecuador) focusable selectable [Select] over cell \"Ecuador\"",
            "  cell \"Quito\" =Quito (City) readonly selectable [Press]",
            "  cell \"Ecuador\" =Ecuador (Country) readonly selectable [Press]",
            " grouping \"Headers\" over column header \"Country\"",
            "  column header \"City\" (sorted, descending) [Sort]",
            "  column header \"Country\" [Sort]"));
}

TEST_F(Spoken, StatesFollowTheList) {
    let(L"MultiSelect", {true});
    let(L"FullRowSelect", {false});
    let(L"Style", {Long{1}});
    let(L"ColumnCheckBoxes", {Long{2}, true});
    let(L"ItemChecked", {Long{1}, Long{2}, true});
    let(L"ItemAllowEdit", {Long{2}, Long{1}, true});
    let(L"RowEnabled", {Long{3}, false});
    let(L"ColumnWidth", {Long{2}, 0.0F});
    let(L"RowSelected", {Long{1}, true});
    call(L"Sort", {Long{1}, Long{2}});
    call(L"Sort", {Long{1}, Long{1}});
    call(L"Redraw");
    const std::vector<std::string> lines = asked("tree");
    ASSERT_EQ(lines.size(), 16U);
    EXPECT_EQ(lines[0], "list \"cities\" focusable multiselectable");
    EXPECT_EQ(
        lines[1],
        " list item \"Lisbon\" selected focusable selectable multiselectable [Select] over cell \"Lisbon\"");
    EXPECT_EQ(lines[2], "  cell \"Lisbon\" =Lisbon (City) selected readonly selectable [Press]");
    EXPECT_EQ(
        lines[3],
        "  cell \"Portugal\" =Portugal (Country) checked readonly invisible selectable [Press] nowhere");
    EXPECT_EQ(lines[4], "   check button \"Portugal\" checked invisible [Uncheck] nowhere");
    EXPECT_EQ(lines[6], "  cell \"Oslo\" =Oslo (City) selectable [Edit]");
    EXPECT_EQ(lines[9], " list item \"Quito\" unavailable over cell \"Quito\"");
    EXPECT_EQ(lines[14], "  column header \"City\" (sorted, ascending) [Sort]");
    EXPECT_EQ(lines[15], "  column header \"Country\" invisible [Sort] nowhere");
}

TEST_F(Spoken, BarsAndEditorArePartOfIt) {
    for (int i = 0; i < 30; ++i)
        call(L"RowsAdd", {Long{-1}, u",", u"Porto,Portugal"});
    call(L"CheckScroll");
    call(L"Redraw");
    call(L"SetEdit", {Long{1}, Long{2}});
    std::vector<std::string> lines = asked("tree");
    ASSERT_GE(lines.size(), 8U);
    lines.erase(lines.begin(), lines.end() - 8);
    EXPECT_THAT(lines,
                ElementsAre(" grouping \"Headers\" over column header \"Country\"",
                            "  column header \"City\" (sorted, descending) [Sort]",
                            "  column header \"Country\" [Sort]",
                            " scroll bar \"Vertical\" =0 over indicator \"Position\"",
                            "  push button \"Line up\" [Press]",
                            "  indicator \"Position\"",
                            "  push button \"Line down\" [Press]",
                            " text \"Country\" =Portugal focused focusable"));
}

TEST_F(Spoken, StepsLeadFromElementToElement) {
    EXPECT_THAT(asked("walk f"), ElementsAre("list item \"Lisbon\""));
    EXPECT_THAT(asked("walk fn"), ElementsAre("list item \"Oslo\""));
    EXPECT_THAT(asked("walk fnf>"), ElementsAre("cell \"Norway\""));
    EXPECT_THAT(asked("walk fnf>d<"), ElementsAre("cell \"Quito\""));
    EXPECT_THAT(asked("walk fnfu"), ElementsAre("cell \"Lisbon\""));
    EXPECT_THAT(asked("walk l"), ElementsAre("grouping \"Headers\""));
    EXPECT_THAT(asked("walk lp"), ElementsAre("list item \"Quito\""));
    EXPECT_THAT(asked("walk fp"), ElementsAre("nowhere"));
    EXPECT_THAT(asked("walk n"), ElementsAre("nowhere"));
}

TEST_F(Spoken, ActsAreTheUsers) {
    EXPECT_THAT(asked("act fn"), ElementsAre("done"));
    EXPECT_EQ(get(L"RowIndex").toLong(), 2);
    EXPECT_THAT(asked("act lf"), ElementsAre("done"));
    EXPECT_EQ(get(L"SortColumnIndex").toLong(), 1);
    EXPECT_THAT(asked("act l"), ElementsAre("refused"));
    EXPECT_THAT(asked("value ff Lisboa"), ElementsAre("refused"));
    let(L"ItemAllowEdit", {Long{1}, Long{1}, true});
    EXPECT_THAT(asked("value ff Lisboa"), ElementsAre("done"));
    EXPECT_EQ(toUtf8(get(L"ItemText", {Long{1}, Long{1}}).toText()), "Lisboa");
}

TEST_F(Spoken, SelectionIsToldAndChanged) {
    let(L"MultiSelect", {true});
    EXPECT_THAT(asked("select f 2"), ElementsAre("done"));
    EXPECT_THAT(asked("focus"), ElementsAre("selected list item \"Lisbon\""));
    EXPECT_THAT(asked("select fnn 8"), ElementsAre("done"));
    EXPECT_THAT(asked("focus"), ElementsAre("selected 1 \"Lisbon\"", "selected 3 \"Quito\""));
    EXPECT_THAT(asked("select f 16"), ElementsAre("done"));
    EXPECT_THAT(asked("select fn 1"), ElementsAre("done"));
    EXPECT_THAT(asked("focus"), ElementsAre("focus list item \"Oslo\"", "selected list item \"Oslo\""));
    EXPECT_THAT(asked("select fn 4"), ElementsAre("refused"));
    EXPECT_THAT(asked("select lf 2"), ElementsAre("refused"));
}

TEST_F(Spoken, EventsAreHeardElsewhere) {
    SetFocus(window());
    const std::vector<std::string> heard = heardOf([&] {
        SendMessageW(window(), WM_KEYDOWN, VK_DOWN, 0);
        let(L"ItemText", {Long{2}, Long{1}, u"Bergen"});
        call(L"RowsAdd", {Long{-1}, u",", u"Porto,Portugal"});
        call(L"Sort", {Long{2}, Long{1}});
        let(L"ColumnText", {Long{1}, u"Town"});
    });
    EXPECT_THAT(
        heard,
        ElementsAre(
            "focus 1", "selection 1", "name 2", "reorder 0", "reorder 0", "description -18", "name -17"));
}

TEST_F(Spoken, TheKeyboardBringsTheFocusOfTheRow) {
    let(L"RowIndex", {Long{2}});
    const std::vector<std::string> heard = heardOf([&] { SetFocus(window()); });
    EXPECT_THAT(heard, ::testing::Contains("focus 2"));
}

TEST_F(Spoken, ProgramsOfUiAutomationFindTheList) {
    EXPECT_THAT(asked("automation"), ElementsAre("50028 \"cities\""));
}

TEST_F(Spoken, NumbersOfEventsNameTheirElements) {
    const auto list = accessible();
    ASSERT_TRUE(list);
    const auto name = [&](LONG number) {
        BSTR text = nullptr;
        list->get_accName(numbered(number), &text);
        const std::string result = toUtf8(win32::textOf(text));
        SysFreeString(text);
        return result;
    };
    EXPECT_EQ(name(0), "cities");
    EXPECT_EQ(name(3), "Quito");
    EXPECT_EQ(name(-1), "Headers");
    EXPECT_EQ(name(-18), "Country");
    BSTR text = nullptr;
    EXPECT_EQ(list->get_accName(numbered(5), &text), E_INVALIDARG);
    EXPECT_EQ(list->get_accName(numbered(-2), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(list->get_accName(numbered(-19), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(list->get_accName(numbered(-2147483647 - 1), &text), CO_E_OBJNOTCONNECTED);
}

TEST_F(Spoken, ObjectsOutliveRowsAndControl) {
    const auto list = accessible();
    ASSERT_TRUE(list);
    win32::ComRef<IDispatch> child;
    ASSERT_EQ(list->get_accChild(numbered(3), child.out()), S_OK);
    const auto row = child.as<IAccessible>();
    call(L"RowsClear");
    BSTR text = nullptr;
    VARIANT state;
    VariantInit(&state);
    EXPECT_EQ(row->get_accName(numbered(0), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(row->get_accState(numbered(0), &state), CO_E_OBJNOTCONNECTED);
    LONG count = -1;
    EXPECT_EQ(list->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 1) << "the headers";
    object->Close(OLECLOSE_NOSAVE);
    object->SetClientSite(nullptr);
    const auto kept = object;
    object = {};
    dispatch = {};
    control = {};
    const_cast<win32::ComRef<IOleObject>&>(kept) = {};
    EXPECT_EQ(list->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(list->accDoDefaultAction(numbered(0)), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(row->get_accName(numbered(0), &text), CO_E_OBJNOTCONNECTED);
    EXPECT_FALSE(component.canUnload());
    control = component.make("lmListView");
    object = control.as<IOleObject>();
}

TEST_F(Spoken, NullPlacesAreRefused) {
    const auto list = accessible();
    ASSERT_TRUE(list);
    EXPECT_EQ(list->get_accName(numbered(0), nullptr), E_POINTER);
    EXPECT_EQ(list->get_accChild(numbered(1), nullptr), E_POINTER);
    EXPECT_EQ(list->get_accRole(numbered(0), nullptr), E_POINTER);
    EXPECT_EQ(list->get_accState(numbered(0), nullptr), E_POINTER);
    EXPECT_EQ(list->get_accChildCount(nullptr), E_POINTER);
    EXPECT_EQ(list->get_accParent(nullptr), E_POINTER);
    EXPECT_EQ(list->get_accFocus(nullptr), E_POINTER);
    EXPECT_EQ(list->get_accSelection(nullptr), E_POINTER);
    EXPECT_EQ(list->accLocation(nullptr, nullptr, nullptr, nullptr, numbered(0)), E_POINTER);
    EXPECT_EQ(list->accNavigate(NAVDIR_NEXT, numbered(0), nullptr), E_POINTER);
    EXPECT_EQ(list->accHitTest(0, 0, nullptr), E_POINTER);
    EXPECT_EQ(list->put_accValue(numbered(1), nullptr), DISP_E_MEMBERNOTFOUND);
}

TEST_F(Spoken, ChildrenAreEnumeratedByNumber) {
    const auto list = accessible();
    ASSERT_TRUE(list);
    const auto children = list.as<IEnumVARIANT>();
    ASSERT_TRUE(children);
    VARIANT found[3]{};
    ULONG fetched = 0;
    EXPECT_EQ(children->Skip(2), S_OK);
    EXPECT_EQ(children->Next(3, found, &fetched), S_FALSE);
    EXPECT_EQ(fetched, 2U);
    for (VARIANT& each : found)
        VariantClear(&each);
    EXPECT_EQ(children->Skip(1), S_FALSE);
    win32::ComRef<IEnumVARIANT> copy;
    EXPECT_EQ(children->Clone(copy.out()), S_OK);
    EXPECT_EQ(copy->Next(1, found, nullptr), S_FALSE);
    EXPECT_EQ(children->Reset(), S_OK);
    EXPECT_EQ(children->Skip(4), S_OK);
    EXPECT_EQ(copy->Next(1, found, nullptr), S_FALSE);
}

} // namespace
} // namespace lumtex::testing

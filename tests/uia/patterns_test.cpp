/// What elements of UI Automation can do, and what the list makes of it.
#include "provided_list.h"

#include <limits>

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using namespace accessibility;
using ::testing::ElementsAre;

class Patterns : public ProvidedList {
  protected:
    std::string patternsOf(const Element& element) {
        struct Known {
            PATTERNID number;
            const GUID& interfaceId;
            const char* name;
        };
        static const Known all[] = {
            {UIA_GridPatternId, win32::IGridProvider::interfaceId, "grid "},
            {UIA_TablePatternId, win32::ITableProvider::interfaceId, "table "},
            {UIA_SelectionPatternId, win32::ISelectionProvider::interfaceId, "selection "},
            {UIA_SelectionItemPatternId, win32::ISelectionItemProvider::interfaceId, "selected "},
            {UIA_GridItemPatternId, win32::IGridItemProvider::interfaceId, "gridItem "},
            {UIA_TableItemPatternId, win32::ITableItemProvider::interfaceId, "tableItem "},
            {UIA_TogglePatternId, win32::IToggleProvider::interfaceId, "toggle "},
            {UIA_ValuePatternId, win32::IValueProvider::interfaceId, "value "},
            {UIA_RangeValuePatternId, win32::IRangeValueProvider::interfaceId, "range "},
            {UIA_ScrollPatternId, win32::IScrollProvider::interfaceId, "scrolled "},
            {UIA_ScrollItemPatternId, win32::IScrollItemProvider::interfaceId, "scroll "},
            {UIA_InvokePatternId, win32::IInvokeProvider::interfaceId, "invoke "},
        };
        std::string names;
        for (const Known& each : all) {
            win32::ComRef<IUnknown> face;
            EXPECT_EQ(provider(element)->GetPatternProvider(each.number, face.out()), S_OK);
            win32::ComRef<IUnknown> direct;
            const HRESULT asked =
                provider(element)->QueryInterface(each.interfaceId, reinterpret_cast<void**>(direct.out()));
            EXPECT_EQ(asked == S_OK, static_cast<bool>(face)) << each.name << named(element);
            names += face ? each.name : "";
        }
        return names;
    }
    auto bar(const Element& element) {
        return pattern<win32::IRangeValueProvider>(element, UIA_RangeValuePatternId);
    }
    auto valueOf(const Element& element) {
        return pattern<win32::IValueProvider>(element, UIA_ValuePatternId);
    }
    auto boxOf(const Element& element) {
        return pattern<win32::IToggleProvider>(element, UIA_TogglePatternId);
    }
    auto button(const Element& element) {
        return pattern<win32::IInvokeProvider>(element, UIA_InvokePatternId);
    }
    auto row(Long number) {
        return pattern<win32::ISelectionItemProvider>(rowElement(number), UIA_SelectionItemPatternId);
    }
    std::string selection() {
        SAFEARRAY* rows = nullptr;
        EXPECT_EQ(pattern<win32::ISelectionProvider>(theList, UIA_SelectionPatternId)->GetSelection(&rows),
                  S_OK);
        return namesIn(rows);
    }
};

TEST_F(Patterns, EachKindHasItsOwn) {
    addRows();
    list->SetEdit(1, 1);
    EXPECT_EQ(patternsOf(theList), "grid table selection scrolled ");
    EXPECT_EQ(patternsOf(rowElement(1)), "selected scroll ");
    EXPECT_EQ(patternsOf(cellElement(1, 1)), "gridItem tableItem value scroll invoke ");
    EXPECT_EQ(patternsOf(checkBoxElement(1, 2)), "toggle scroll ");
    EXPECT_EQ(patternsOf(theHeaders), "");
    EXPECT_EQ(patternsOf(headerElement(1)), "scroll invoke ");
    EXPECT_EQ(patternsOf(verticalBar), "range ");
    EXPECT_EQ(patternsOf({Kind::lowArrow}), "invoke ");
    EXPECT_EQ(patternsOf({Kind::thumb}), "");
    EXPECT_EQ(patternsOf({Kind::highArrow}), "invoke ");
    EXPECT_EQ(patternsOf(theEditor), "value ");
}

TEST_F(Patterns, TheListIsAGridOfItsCells) {
    const auto grid = pattern<win32::IGridProvider>(theList, UIA_GridPatternId);
    int count = 0;
    EXPECT_EQ(grid->get_RowCount(&count), S_OK);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(grid->get_ColumnCount(&count), S_OK);
    EXPECT_EQ(count, 2);
    Simple cell;
    EXPECT_EQ(grid->GetItem(2, 1, cell.out()), S_OK);
    EXPECT_EQ(named(elementOf(cell.get())), "cell 3,2");
    for (const auto& [wrongRow, wrongColumn] : {std::pair{-1, 0}, {3, 0}, {0, -1}, {0, 2}})
        EXPECT_EQ(grid->GetItem(wrongRow, wrongColumn, cell.out()), E_INVALIDARG);
    EXPECT_FALSE(cell);
}

TEST_F(Patterns, ACellKnowsItsPlaceInTheGrid) {
    const auto cell = pattern<win32::IGridItemProvider>(cellElement(3, 2), UIA_GridItemPatternId);
    int number = -1;
    EXPECT_EQ(cell->get_Row(&number), S_OK);
    EXPECT_EQ(number, 2);
    EXPECT_EQ(cell->get_Column(&number), S_OK);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(cell->get_RowSpan(&number), S_OK);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(cell->get_ColumnSpan(&(number = 0)), S_OK);
    EXPECT_EQ(number, 1);
    Simple grid;
    EXPECT_EQ(cell->get_ContainingGrid(grid.out()), S_OK);
    EXPECT_EQ(named(elementOf(grid.get())), "list");
}

TEST_F(Patterns, HeadersAreThoseOfTheColumns) {
    const auto table = pattern<win32::ITableProvider>(theList, UIA_TablePatternId);
    const auto cell = pattern<win32::ITableItemProvider>(cellElement(1, 2), UIA_TableItemPatternId);
    SAFEARRAY* headers = nullptr;
    EXPECT_EQ(table->GetColumnHeaders(&headers), S_OK);
    EXPECT_EQ(namesIn(headers), "header 1, header 2");
    EXPECT_EQ(cell->GetColumnHeaderItems(&headers), S_OK);
    EXPECT_EQ(namesIn(headers), "header 2");
    EXPECT_EQ(table->GetRowHeaders(&headers), S_OK);
    EXPECT_EQ(headers, nullptr);
    EXPECT_EQ(cell->GetRowHeaderItems(&headers), S_OK);
    EXPECT_EQ(headers, nullptr);
    auto order = win32::TableOrder::columns;
    EXPECT_EQ(table->get_RowOrColumnMajor(&order), S_OK);
    EXPECT_EQ(order, win32::TableOrder::rows);
    list->letHideColumnHeaders(true);
    EXPECT_EQ(table->GetColumnHeaders(&headers), S_OK);
    EXPECT_EQ(headers, nullptr);
    EXPECT_EQ(cell->GetColumnHeaderItems(&headers), S_OK);
    EXPECT_EQ(headers, nullptr);
}

TEST_F(Patterns, RowsAreSelectedAsTheListAllows) {
    EXPECT_EQ(row(2)->Select(), S_OK);
    EXPECT_EQ(selection(), "row 2");
    EXPECT_EQ(row(1)->AddToSelection(), S_OK);
    EXPECT_EQ(selection(), "row 1") << "one at a time";
    list->letMultiSelect(true);
    EXPECT_EQ(row(3)->AddToSelection(), S_OK);
    EXPECT_EQ(selection(), "row 1, row 3");
    WINBOOL isIt = FALSE;
    EXPECT_EQ(row(3)->get_IsSelected(&isIt), S_OK);
    EXPECT_TRUE(isIt);
    EXPECT_EQ(row(3)->RemoveFromSelection(), S_OK);
    EXPECT_EQ(row(3)->get_IsSelected(&isIt), S_OK);
    EXPECT_FALSE(isIt);
    EXPECT_EQ(selection(), "row 1");
    Simple container;
    EXPECT_EQ(row(3)->get_SelectionContainer(container.out()), S_OK);
    EXPECT_EQ(named(elementOf(container.get())), "list");
    EXPECT_THAT(events.log, ElementsAre());
}

TEST_F(Patterns, HowMuchMayBeSelectedFollowsTheList) {
    const auto whole = pattern<win32::ISelectionProvider>(theList, UIA_SelectionPatternId);
    WINBOOL is = TRUE;
    EXPECT_EQ(whole->get_CanSelectMultiple(&is), S_OK);
    EXPECT_FALSE(is);
    list->letMultiSelect(true);
    EXPECT_EQ(whole->get_CanSelectMultiple(&is), S_OK);
    EXPECT_TRUE(is);
    EXPECT_EQ(whole->get_IsSelectionRequired(&is), S_OK);
    EXPECT_FALSE(is);
    EXPECT_EQ(selection(), "");
}

TEST_F(Patterns, ABoxIsPressedAsByTheMouse) {
    const auto box = boxOf(checkBoxElement(1, 2));
    auto state = win32::ToggleMark::on;
    EXPECT_EQ(box->get_ToggleState(&state), S_OK);
    EXPECT_EQ(state, win32::ToggleMark::off);
    EXPECT_EQ(box->Toggle(), S_OK);
    EXPECT_EQ(box->get_ToggleState(&state), S_OK);
    EXPECT_EQ(state, win32::ToggleMark::on);
    EXPECT_TRUE(list->ItemChecked(1, 2));
    ASSERT_GE(events.log.size(), 2U);
    EXPECT_EQ(events.log[0].substr(0, 9), "ItemCheck");
    EXPECT_EQ(events.log[1].substr(0, 11), "ItemChecked");
}

TEST_F(Patterns, AHeaderIsClicked) {
    EXPECT_EQ(spoken->list.states(headerElement(2)) & (sortedUp | sortedDown), 0);
    EXPECT_EQ(button(headerElement(2))->Invoke(), S_OK);
    ASSERT_GE(events.log.size(), 1U);
    EXPECT_EQ(events.log[0].substr(0, 11), "ColumnClick");
    EXPECT_NE(spoken->list.states(headerElement(2)) & (sortedUp | sortedDown), 0);
}

TEST_F(Patterns, ACellIsEditedWhereItMayBe) {
    const auto cell = valueOf(cellElement(1, 1));
    BSTR text = nullptr;
    WINBOOL readOnly = FALSE;
    EXPECT_EQ(cell->get_Value(&text), S_OK);
    EXPECT_EQ(win32::viewBSTR(text), u"Lisbon");
    SysFreeString(text);
    EXPECT_EQ(cell->get_IsReadOnly(&readOnly), S_OK);
    EXPECT_TRUE(readOnly);
    EXPECT_EQ(cell->SetValue(L"Lisboa"), win32::uiaInvalidOperation);
    list->letItemAllowEdit(1, 1, true);
    list->letAllowEdit(true);
    EXPECT_EQ(cell->get_IsReadOnly(&readOnly), S_OK);
    EXPECT_FALSE(readOnly);
    EXPECT_EQ(cell->SetValue(L"Lisboa"), S_OK);
    EXPECT_EQ(toUtf8(list->ItemText(1, 1)), "Lisboa");
    EXPECT_EQ(cell->SetValue(static_cast<LPCWSTR>(nullptr)), E_POINTER);
}

TEST_F(Patterns, TheOpenEditorTakesText) {
    list->SetEdit(1, 1);
    const auto editor = valueOf(theEditor);
    EXPECT_EQ(editor->SetValue(L"Lisboa"), S_OK);
    BSTR text = nullptr;
    EXPECT_EQ(editor->get_Value(&text), S_OK);
    EXPECT_EQ(win32::viewBSTR(text), u"Lisboa");
    SysFreeString(text);
    EXPECT_EQ(toUtf8(list->ItemText(1, 1)), "Lisbon") << "until it is closed";
}

TEST_F(Patterns, ABarIsARange) {
    addRows();
    const auto vertical = bar(verticalBar);
    const auto expected = *spoken->list.range(verticalBar);
    const auto read = [&](HRESULT (STDMETHODCALLTYPE win32::IRangeValueProvider::*part)(double*)) {
        double value = -1;
        EXPECT_EQ((vertical.get()->*part)(&value), S_OK);
        return value;
    };
    using Range = win32::IRangeValueProvider;
    EXPECT_EQ(read(&Range::get_Minimum), expected.least);
    EXPECT_EQ(read(&Range::get_Maximum), expected.most);
    EXPECT_EQ(read(&Range::get_SmallChange), expected.step);
    EXPECT_EQ(read(&Range::get_LargeChange), expected.page);
    EXPECT_GT(expected.most, 10);
    EXPECT_GT(expected.page, 0);
    EXPECT_EQ(vertical->SetValue(7.4), S_OK);
    EXPECT_EQ(list->TopIndex(), 7);
    EXPECT_EQ(read(&Range::get_Value), 7);
    EXPECT_EQ(property(verticalBar, UIA_RangeValueValuePropertyId).toLong(), 7);
    for (const double outside : {-1.0, expected.most + 1.0, 1e300, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(vertical->SetValue(outside), E_INVALIDARG) << outside;
    EXPECT_EQ(list->TopIndex(), 7);
    WINBOOL readOnly = TRUE;
    EXPECT_EQ(vertical->get_IsReadOnly(&readOnly), S_OK);
    EXPECT_FALSE(readOnly);
}

TEST_F(Patterns, TheListIsScrolledByAmountsAndPercentages) {
    using win32::ScrollAmount;
    addRows();
    const auto scrolled = pattern<win32::IScrollProvider>(theList, UIA_ScrollPatternId);
    const auto range = *spoken->list.range(verticalBar);
    const auto read = [&](HRESULT (STDMETHODCALLTYPE win32::IScrollProvider::*part)(double*)) {
        double value = -7;
        EXPECT_EQ((scrolled.get()->*part)(&value), S_OK);
        return value;
    };
    EXPECT_EQ(scrolled->Scroll(ScrollAmount::none, ScrollAmount::smallIncrement), S_OK);
    EXPECT_EQ(list->TopIndex(), range.step);
    EXPECT_EQ(scrolled->Scroll(ScrollAmount::none, ScrollAmount::largeIncrement), S_OK);
    EXPECT_EQ(list->TopIndex(), range.step + range.page);
    EXPECT_EQ(scrolled->Scroll(ScrollAmount::none, ScrollAmount::smallDecrement), S_OK);
    EXPECT_EQ(list->TopIndex(), range.page);
    for (int i = 0; i < 100; ++i)
        scrolled->Scroll(ScrollAmount::none, ScrollAmount::largeDecrement);
    EXPECT_EQ(list->TopIndex(), 0);
    EXPECT_EQ(read(&win32::IScrollProvider::get_VerticalScrollPercent), 0);

    EXPECT_EQ(scrolled->SetScrollPercent(-1, 100), S_OK);
    EXPECT_EQ(list->TopIndex(), range.most);
    EXPECT_EQ(read(&win32::IScrollProvider::get_VerticalScrollPercent), 100);
    EXPECT_EQ(scrolled->SetScrollPercent(-1, 50), S_OK);
    EXPECT_NEAR(list->TopIndex(), range.most / 2.0, 0.5);
    const double shown = read(&win32::IScrollProvider::get_VerticalViewSize);
    EXPECT_GT(shown, 0);
    EXPECT_LT(shown, 100);
    WINBOOL can = FALSE;
    EXPECT_EQ(scrolled->get_VerticallyScrollable(&can), S_OK);
    EXPECT_TRUE(can);
}

TEST_F(Patterns, AListIsNotScrolledWhereItHasNoBarOrByWhatIsNoAmount) {
    using win32::ScrollAmount;
    addRows();
    const auto scrolled = pattern<win32::IScrollProvider>(theList, UIA_ScrollPatternId);
    EXPECT_EQ(scrolled->Scroll(ScrollAmount::smallIncrement, ScrollAmount::smallIncrement),
              win32::uiaInvalidOperation);
    EXPECT_EQ(scrolled->SetScrollPercent(50, 50), win32::uiaInvalidOperation);
    EXPECT_EQ(scrolled->Scroll(ScrollAmount::none, static_cast<ScrollAmount>(5)), E_INVALIDARG);
    for (const double percentage : {-0.5, 100.5, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(scrolled->SetScrollPercent(-1, percentage), E_INVALIDARG) << percentage;
    EXPECT_EQ(list->TopIndex(), 0);
    double percentage = 0;
    EXPECT_EQ(scrolled->get_HorizontalScrollPercent(&percentage), S_OK);
    EXPECT_EQ(percentage, -1);
    EXPECT_EQ(scrolled->get_HorizontalViewSize(&percentage), S_OK);
    EXPECT_EQ(percentage, 100);
    WINBOOL can = TRUE;
    EXPECT_EQ(scrolled->get_HorizontallyScrollable(&can), S_OK);
    EXPECT_FALSE(can);
    list->letEnabled(false);
    EXPECT_EQ(scrolled->Scroll(ScrollAmount::none, ScrollAmount::smallIncrement), win32::uiaNotEnabled);
}

TEST_F(Patterns, AnArrowStepsAndARowIsScrolledTo) {
    addRows();
    EXPECT_EQ(button({Kind::highArrow})->Invoke(), S_OK);
    EXPECT_EQ(list->TopIndex(), 1);
    const auto last = pattern<win32::IScrollItemProvider>(rowElement(33), UIA_ScrollItemPatternId);
    EXPECT_FALSE(spoken->list.place(rowElement(33)));
    EXPECT_EQ(last->ScrollIntoView(), S_OK);
    EXPECT_TRUE(spoken->list.place(rowElement(33)));
}

TEST_F(Patterns, WhatIsDisabledDoesNothingButCanBeLookedAt) {
    addRows();
    list->letRowEnabled(33, false);
    EXPECT_EQ(row(33)->Select(), win32::uiaNotEnabled);
    EXPECT_EQ(selection(), "");
    EXPECT_EQ(pattern<win32::IScrollItemProvider>(rowElement(33), UIA_ScrollItemPatternId)->ScrollIntoView(),
              S_OK);
    list->letEnabled(false);
    EXPECT_EQ(button(headerElement(1))->Invoke(), win32::uiaNotEnabled);
    EXPECT_EQ(boxOf(checkBoxElement(1, 2))->Toggle(), win32::uiaNotEnabled);
    EXPECT_EQ(bar(verticalBar)->SetValue(3.0), win32::uiaNotEnabled);
    EXPECT_THAT(events.log, ElementsAre());
}

TEST_F(Patterns, TheHostMayEndTheListInAnAct) {
    auto header = button(headerElement(1));
    events.on("ColumnClick", [&] {
        spoken.reset();
        control = {};
        list.reset();
    });
    EXPECT_EQ(header->Invoke(), S_OK);
    EXPECT_FALSE(list);
    EXPECT_EQ(header->Invoke(), win32::uiaNotAvailable);
}

TEST_F(Patterns, TheHostMayEndTheListBeforeATextIsSet) {
    list->letAllowEdit(true);
    list->letItemAllowEdit(1, 1, true);
    const auto cell = valueOf(cellElement(1, 1));
    events.on("ItemDown", [&] { list.reset(); });
    EXPECT_EQ(cell->SetValue(L"Lisboa"), win32::uiaNotAvailable);
}

} // namespace
} // namespace lumtex::testing

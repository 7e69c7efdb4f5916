/// What an element can do, beside being part of a table.
#include "activex/uia_element.h"
#include "values/rounding.h"

namespace lumtex::win32 {

using accessibility::Element;
using accessibility::Kind;
using List = accessibility::AccessibleList;

HRESULT UiaElement::SetFocus() {
    return act([&](List& list) { return list.takeFocus(element_); });
}

HRESULT UiaElement::GetSelection(SAFEARRAY** selected) {
    return answer(selected, [&] {
        std::vector<Element> rows;
        for (Long row = spoken_->list.nextSelected(0); row != 0; row = spoken_->list.nextSelected(row))
            rows.push_back(accessibility::rowElement(row));
        return arrayOf(rows);
    });
}

HRESULT UiaElement::get_CanSelectMultiple(WINBOOL* several) {
    return answer(several, [&] { return is(accessibility::multiSelectable) ? TRUE : FALSE; });
}

HRESULT UiaElement::get_IsSelectionRequired(WINBOOL* required) {
    return answer(required, [] { return FALSE; });
}

HRESULT UiaElement::Select() {
    return act([&](List& list) { return list.selectOnly(element_); });
}

HRESULT UiaElement::AddToSelection() {
    return act([&](List& list) { return list.select(element_, true); });
}

HRESULT UiaElement::RemoveFromSelection() {
    return act([&](List& list) { return list.select(element_, false); });
}

HRESULT UiaElement::get_IsSelected(WINBOOL* selected) {
    return answer(selected, [&] { return is(accessibility::selected) ? TRUE : FALSE; });
}

HRESULT UiaElement::get_SelectionContainer(IRawElementProviderSimple** container) {
    return answer(container, [&] { return give(accessibility::theList); });
}

HRESULT UiaElement::Toggle() {
    return act([&](List& list) { return list.act(element_); });
}

HRESULT UiaElement::get_ToggleState(ToggleMark* state) {
    return answer(state, [&] { return is(accessibility::checked) ? ToggleMark::on : ToggleMark::off; });
}

HRESULT UiaElement::SetValue(LPCWSTR value) {
    if (value == nullptr)
        return E_POINTER;
    return act([&](List& list) { return list.setValue(element_, textOf(value)); });
}

HRESULT UiaElement::get_Value(BSTR* value) {
    return answer(value, [&] { return newBSTR(spoken_->list.value(element_)); });
}

HRESULT UiaElement::get_IsReadOnly(WINBOOL* readOnly) {
    return answer(readOnly, [&] {
        const bool changes = spoken_->list.range(element_) || is(accessibility::editable);
        return changes && !is(accessibility::unavailable) ? FALSE : TRUE;
    });
}

HRESULT UiaElement::SetValue(double value) {
    bool outside = false;
    const HRESULT result = act([&](List& list) {
        const auto range = list.range(element_);
        outside = !range || !(value >= range->least && value <= range->most);
        return !outside && list.setRange(element_, roundToLong(value));
    });
    return outside ? E_INVALIDARG : result;
}

HRESULT UiaElement::range(double* to, Long List::Range::*part) noexcept {
    return answer(to, [&] {
        const auto range = spoken_->list.range(element_);
        return range ? static_cast<double>((*range).*part) : 0.0;
    });
}

HRESULT UiaElement::get_Value(double* value) {
    return range(value, &List::Range::value);
}

HRESULT UiaElement::get_Maximum(double* most) {
    return range(most, &List::Range::most);
}

HRESULT UiaElement::get_Minimum(double* least) {
    return range(least, &List::Range::least);
}

HRESULT UiaElement::get_LargeChange(double* page) {
    return range(page, &List::Range::page);
}

HRESULT UiaElement::get_SmallChange(double* step) {
    return range(step, &List::Range::step);
}

HRESULT UiaElement::ScrollIntoView() {
    // What is disabled can be looked at.
    return about([&] { return spoken_->list.scrollTo(element_) ? S_OK : uiaInvalidOperation; });
}

HRESULT UiaElement::Invoke() {
    return act([&](List& list) { return list.act(element_); });
}

} // namespace lumtex::win32

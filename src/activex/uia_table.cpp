/// The list as a table, and the cell as a part of it.
#include "activex/uia_element.h"

namespace lumtex::win32 {

using accessibility::Element;

namespace {

struct SafeArrayDrop {
    void operator()(SAFEARRAY* array) const { SafeArrayDestroy(array); }
};

} // namespace

/// Null for none, as for no elements.
SAFEARRAY* UiaElement::arrayOf(const std::vector<Element>& elements) const {
    if (elements.empty())
        return nullptr;
    std::unique_ptr<SAFEARRAY, SafeArrayDrop> array(
        SafeArrayCreateVector(VT_UNKNOWN, 0, static_cast<ULONG>(elements.size())));
    if (!array)
        throw std::bad_alloc();
    auto* to = static_cast<IUnknown**>(array->pvData);
    for (const Element& element : elements)
        *to++ = static_cast<IRawElementProviderSimple*>(give(element));
    return array.release();
}

HRESULT UiaElement::GetItem(int row, int column, IRawElementProviderSimple** cell) {
    if (cell == nullptr)
        return E_POINTER;
    *cell = nullptr;
    return about([&] {
        const auto& list = spoken_->list;
        if (row < 0 || row >= list.rowCount() || column < 0 || column >= list.columnCount())
            return E_INVALIDARG;
        *cell = give(accessibility::cellElement(row + 1, column + 1));
        return S_OK;
    });
}

HRESULT UiaElement::get_RowCount(int* count) {
    return answer(count, [&] { return spoken_->list.rowCount(); });
}

HRESULT UiaElement::get_ColumnCount(int* count) {
    return answer(count, [&] { return spoken_->list.columnCount(); });
}

HRESULT UiaElement::get_Row(int* row) {
    return answer(row, [&] { return element_.row - 1; });
}

HRESULT UiaElement::get_Column(int* column) {
    return answer(column, [&] { return element_.column - 1; });
}

HRESULT UiaElement::get_RowSpan(int* rows) {
    return answer(rows, [] { return 1; });
}

HRESULT UiaElement::get_ColumnSpan(int* columns) {
    return answer(columns, [] { return 1; });
}

HRESULT UiaElement::get_ContainingGrid(IRawElementProviderSimple** grid) {
    return answer(grid, [&] { return give(accessibility::theList); });
}

HRESULT UiaElement::GetRowHeaders(SAFEARRAY** headers) {
    return answer(headers, [] { return nullptr; });
}

HRESULT UiaElement::GetColumnHeaders(SAFEARRAY** headers) {
    return answer(headers, [&] {
        const auto& list = spoken_->list;
        std::vector<Element> all;
        for (Long column = 1; column <= list.childCount(accessibility::theHeaders); ++column)
            all.push_back(list.child(accessibility::theHeaders, column));
        return arrayOf(all);
    });
}

HRESULT UiaElement::get_RowOrColumnMajor(TableOrder* order) {
    return answer(order, [] { return TableOrder::rows; });
}

HRESULT UiaElement::GetRowHeaderItems(SAFEARRAY** headers) {
    return answer(headers, [] { return nullptr; });
}

HRESULT UiaElement::GetColumnHeaderItems(SAFEARRAY** headers) {
    return answer(headers, [&] {
        const Element header = accessibility::headerElement(element_.column);
        return spoken_->list.exists(header) ? arrayOf({header}) : nullptr;
    });
}

} // namespace lumtex::win32

/// \file
/// What the system's headers lack of UI Automation: numbers, and the interfaces for what an element can do.
#pragma once

#include "activex/guid.h"

// The header above both does not compile as C++.
#include <uiautomationclient.h>
#include <uiautomationcore.h>

namespace lumtex::win32 {

/// What WM_GETOBJECT asks for.
constexpr LONG uiaRootObject = -25;
/// The first number of an identifier that goes on from that of the window.
constexpr int uiaAppendRuntimeId = 3;

constexpr auto uiaNotEnabled = static_cast<HRESULT>(0x80040200);
constexpr auto uiaNotAvailable = static_cast<HRESULT>(0x80040201);
constexpr auto uiaInvalidOperation = static_cast<HRESULT>(0x80131509);

enum class UiaControl : int {
    button = 50000,
    checkBox = 50002,
    edit = 50004,
    scrollBar = 50014,
    custom = 50025,
    thumb = 50027,
    dataGrid = 50028,
    dataItem = 50029,
    header = 50034,
    headerItem = 50035,
};

enum class UiaEvent : EVENTID {
    focusChanged = 20005,
    addedToSelection = 20010,
    removedFromSelection = 20011,
    selected = 20012,
    selectionInvalidated = 20013,
};

enum class ToggleMark : int { off, on };
enum class ScrollAmount : int { largeDecrement, smallDecrement, none, largeIncrement, smallIncrement };
/// In place of a percentage: not that way.
constexpr double uiaNoScroll = -1;
enum class TableOrder : int { rows, columns };
enum class StructureChange : int { childAdded, childRemoved, invalidated, manyAdded, manyRemoved, reordered };

/// Arrays are of providers; null stands for an empty one. The caller owns what it gets. Indices count from 0.
struct UiaPattern : IUnknown {
  protected:
    ~UiaPattern() = default;
};

struct IInvokeProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("54fcb24b-e18e-47a2-b4d3-eccbe77599a2");

    virtual HRESULT STDMETHODCALLTYPE Invoke() = 0;
};

struct ISelectionProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("fb8b03af-3bdf-48d4-bd36-1a65793be168");

    virtual HRESULT STDMETHODCALLTYPE GetSelection(SAFEARRAY** selected) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_CanSelectMultiple(WINBOOL* several) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsSelectionRequired(WINBOOL* required) = 0;
};

struct ISelectionItemProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("2acad808-b2d4-452d-a407-91ff1ad167b2");

    virtual HRESULT STDMETHODCALLTYPE Select() = 0;
    virtual HRESULT STDMETHODCALLTYPE AddToSelection() = 0;
    virtual HRESULT STDMETHODCALLTYPE RemoveFromSelection() = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsSelected(WINBOOL* selected) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SelectionContainer(IRawElementProviderSimple** container) = 0;
};

struct IValueProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("c7935180-6fb3-4201-b174-7df73adbf64a");

    virtual HRESULT STDMETHODCALLTYPE SetValue(LPCWSTR value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Value(BSTR* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsReadOnly(WINBOOL* readOnly) = 0;
};

struct IRangeValueProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("36dc7aef-33e6-4691-afe1-2be7274b3d33");

    virtual HRESULT STDMETHODCALLTYPE SetValue(double value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Value(double* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_IsReadOnly(WINBOOL* readOnly) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Maximum(double* most) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Minimum(double* least) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_LargeChange(double* page) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_SmallChange(double* step) = 0;
};

/// Percent of what can be scrolled, and of what is shown.
struct IScrollProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("b38b8077-1fc3-42a5-8cae-d40c2215055a");

    virtual HRESULT STDMETHODCALLTYPE Scroll(ScrollAmount horizontal, ScrollAmount vertical) = 0;
    virtual HRESULT STDMETHODCALLTYPE SetScrollPercent(double horizontal, double vertical) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_HorizontalScrollPercent(double* percentage) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VerticalScrollPercent(double* percentage) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_HorizontalViewSize(double* percentage) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VerticalViewSize(double* percentage) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_HorizontallyScrollable(WINBOOL* can) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_VerticallyScrollable(WINBOOL* can) = 0;
};

struct IScrollItemProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("2360c714-4bf1-4b26-ba65-9b21316127eb");

    virtual HRESULT STDMETHODCALLTYPE ScrollIntoView() = 0;
};

struct IGridProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("b17d6187-0907-464b-a168-0ef17a1572b1");

    virtual HRESULT STDMETHODCALLTYPE GetItem(int row, int column, IRawElementProviderSimple** cell) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_RowCount(int* count) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ColumnCount(int* count) = 0;
};

struct IGridItemProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("d02541f1-fb81-4d64-ae32-f520f8a6dbd1");

    virtual HRESULT STDMETHODCALLTYPE get_Row(int* row) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_Column(int* column) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_RowSpan(int* rows) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ColumnSpan(int* columns) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ContainingGrid(IRawElementProviderSimple** grid) = 0;
};

struct ITableProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("9c860395-97b3-490a-b52a-858cc22af166");

    virtual HRESULT STDMETHODCALLTYPE GetRowHeaders(SAFEARRAY** headers) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetColumnHeaders(SAFEARRAY** headers) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_RowOrColumnMajor(TableOrder* order) = 0;
};

struct ITableItemProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("b9734fa6-771f-4d78-9c90-2517999349cd");

    virtual HRESULT STDMETHODCALLTYPE GetRowHeaderItems(SAFEARRAY** headers) = 0;
    virtual HRESULT STDMETHODCALLTYPE GetColumnHeaderItems(SAFEARRAY** headers) = 0;
};

struct IToggleProvider : UiaPattern {
    static constexpr GUID interfaceId = guidFrom("56d00bd0-c4f4-433c-a836-1a52a57e0892");

    virtual HRESULT STDMETHODCALLTYPE Toggle() = 0;
    virtual HRESULT STDMETHODCALLTYPE get_ToggleState(ToggleMark* state) = 0;
};

} // namespace lumtex::win32

/// \file
/// One element of the list as an object of UI Automation.
#pragma once

#include "activex/spoken_list.h"
#include "worlds/win32/module_lock.h"
#include "worlds/win32/variant_bridge.h"

#include <array>
#include <atomic>
#include <vector>

namespace lumtex::win32 {

/// Starts with one reference, the caller's. Has the interfaces of those patterns that are its kind's. What is
/// there no more, and all of a list that has ended, is UIA_E_ELEMENTNOTAVAILABLE; what is disabled
/// UIA_E_ELEMENTNOTENABLED when it should act, what the list refuses UIA_E_INVALIDOPERATION. Calls from a
/// wrong thread are refused. Places are pixels of the screen.
class UiaElement final : public IRawElementProviderSimple,
                         public IRawElementProviderFragment,
                         public IRawElementProviderFragmentRoot,
                         public IGridProvider,
                         public IGridItemProvider,
                         public ITableProvider,
                         public ITableItemProvider,
                         public ISelectionProvider,
                         public ISelectionItemProvider,
                         public IToggleProvider,
                         public IValueProvider,
                         public IRangeValueProvider,
                         public IScrollProvider,
                         public IScrollItemProvider,
                         public IInvokeProvider {
  public:
    UiaElement(std::shared_ptr<SpokenList> spoken, const accessibility::Element& element)
        : spoken_(std::move(spoken)), element_(element) {}
    UiaElement(const UiaElement&) = delete;
    UiaElement& operator=(const UiaElement&) = delete;

    // What it is, and what lies around it (uia_element.cpp)

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE get_ProviderOptions(ProviderOptions* options) override;
    HRESULT STDMETHODCALLTYPE GetPatternProvider(PATTERNID pattern, IUnknown** provider) override;
    HRESULT STDMETHODCALLTYPE GetPropertyValue(PROPERTYID property, VARIANT* value) override;
    /// Of the window that the element has, if it has one of its own.
    HRESULT STDMETHODCALLTYPE get_HostRawElementProvider(IRawElementProviderSimple** provider) override;

    HRESULT STDMETHODCALLTYPE Navigate(NavigateDirection direction,
                                       IRawElementProviderFragment** found) override;
    /// None for the list, which has that of its window.
    HRESULT STDMETHODCALLTYPE GetRuntimeId(SAFEARRAY** id) override;
    HRESULT STDMETHODCALLTYPE get_BoundingRectangle(UiaRect* place) override;
    HRESULT STDMETHODCALLTYPE GetEmbeddedFragmentRoots(SAFEARRAY** roots) override;
    HRESULT STDMETHODCALLTYPE SetFocus() override;
    HRESULT STDMETHODCALLTYPE get_FragmentRoot(IRawElementProviderFragmentRoot** root) override;

    /// The innermost element; null outside the list.
    HRESULT STDMETHODCALLTYPE ElementProviderFromPoint(double x,
                                                       double y,
                                                       IRawElementProviderFragment** found) override;
    /// Null where it is the list itself, or none of it.
    HRESULT STDMETHODCALLTYPE GetFocus(IRawElementProviderFragment** found) override;

    // What it can do (uia_table.cpp, uia_scroll.cpp, uia_acts.cpp)

    HRESULT STDMETHODCALLTYPE GetItem(int row, int column, IRawElementProviderSimple** cell) override;
    HRESULT STDMETHODCALLTYPE get_RowCount(int* count) override;
    HRESULT STDMETHODCALLTYPE get_ColumnCount(int* count) override;

    HRESULT STDMETHODCALLTYPE get_Row(int* row) override;
    HRESULT STDMETHODCALLTYPE get_Column(int* column) override;
    HRESULT STDMETHODCALLTYPE get_RowSpan(int* rows) override;
    HRESULT STDMETHODCALLTYPE get_ColumnSpan(int* columns) override;
    HRESULT STDMETHODCALLTYPE get_ContainingGrid(IRawElementProviderSimple** grid) override;

    HRESULT STDMETHODCALLTYPE GetRowHeaders(SAFEARRAY** headers) override;
    HRESULT STDMETHODCALLTYPE GetColumnHeaders(SAFEARRAY** headers) override;
    HRESULT STDMETHODCALLTYPE get_RowOrColumnMajor(TableOrder* order) override;

    HRESULT STDMETHODCALLTYPE GetRowHeaderItems(SAFEARRAY** headers) override;
    HRESULT STDMETHODCALLTYPE GetColumnHeaderItems(SAFEARRAY** headers) override;

    /// Walks over all rows.
    HRESULT STDMETHODCALLTYPE GetSelection(SAFEARRAY** selected) override;
    HRESULT STDMETHODCALLTYPE get_CanSelectMultiple(WINBOOL* several) override;
    HRESULT STDMETHODCALLTYPE get_IsSelectionRequired(WINBOOL* required) override;

    HRESULT STDMETHODCALLTYPE Select() override;
    HRESULT STDMETHODCALLTYPE AddToSelection() override;
    HRESULT STDMETHODCALLTYPE RemoveFromSelection() override;
    HRESULT STDMETHODCALLTYPE get_IsSelected(WINBOOL* selected) override;
    HRESULT STDMETHODCALLTYPE get_SelectionContainer(IRawElementProviderSimple** container) override;

    HRESULT STDMETHODCALLTYPE Toggle() override;
    HRESULT STDMETHODCALLTYPE get_ToggleState(ToggleMark* state) override;

    /// Of a cell that may be edited, or of the open editor.
    HRESULT STDMETHODCALLTYPE SetValue(LPCWSTR value) override;
    HRESULT STDMETHODCALLTYPE get_Value(BSTR* value) override;
    HRESULT STDMETHODCALLTYPE get_IsReadOnly(WINBOOL* readOnly) override;

    /// Of a bar, rounded; E_INVALIDARG outside its range.
    HRESULT STDMETHODCALLTYPE SetValue(double value) override;
    HRESULT STDMETHODCALLTYPE get_Value(double* value) override;
    HRESULT STDMETHODCALLTYPE get_Maximum(double* most) override;
    HRESULT STDMETHODCALLTYPE get_Minimum(double* least) override;
    HRESULT STDMETHODCALLTYPE get_LargeChange(double* page) override;
    HRESULT STDMETHODCALLTYPE get_SmallChange(double* step) override;

    /// E_INVALIDARG for what is no amount or percentage, and UIA_E_INVALIDOPERATION without a bar for it;
    /// nothing moves then.
    HRESULT STDMETHODCALLTYPE Scroll(ScrollAmount horizontal, ScrollAmount vertical) override;
    HRESULT STDMETHODCALLTYPE SetScrollPercent(double horizontal, double vertical) override;
    HRESULT STDMETHODCALLTYPE get_HorizontalScrollPercent(double* percentage) override;
    HRESULT STDMETHODCALLTYPE get_VerticalScrollPercent(double* percentage) override;
    HRESULT STDMETHODCALLTYPE get_HorizontalViewSize(double* percentage) override;
    HRESULT STDMETHODCALLTYPE get_VerticalViewSize(double* percentage) override;
    HRESULT STDMETHODCALLTYPE get_HorizontallyScrollable(WINBOOL* can) override;
    HRESULT STDMETHODCALLTYPE get_VerticallyScrollable(WINBOOL* can) override;

    HRESULT STDMETHODCALLTYPE ScrollIntoView() override;
    HRESULT STDMETHODCALLTYPE Invoke() override;

  private:
    using List = accessibility::AccessibleList;
    /// An interface, and the pattern that it stands for; 0 for none.
    struct Face {
        const GUID& iid;
        PATTERNID pattern;
        IUnknown* object;
    };

    ~UiaElement() = default;

    std::array<Face, 15> faces();
    /// Runs `body`, which gives an HRESULT, if the element is there.
    template <class Body>
    HRESULT about(Body&& body) noexcept;
    /// Stores what `body` gives, and a zero if the element is not there.
    template <class Value, class Body>
    HRESULT answer(Value* to, Body&& body) noexcept;
    /// Says of `body`, which gives whether the list did it, why it did not.
    template <class Body>
    HRESULT act(Body&& body) noexcept;
    /// Null for what is not there; the caller owns it.
    UiaElement* give(const accessibility::Element& element) const;
    SAFEARRAY* arrayOf(const std::vector<accessibility::Element>& elements) const;
    HRESULT range(double* to, Long List::Range::*part) noexcept;
    template <class Wish, class Move>
    HRESULT scrollBoth(Wish horizontal, Wish vertical, Wish none, Move&& move) noexcept;
    HRESULT percent(double* to, const accessibility::Element& bar) noexcept;
    HRESULT viewSize(double* to, const accessibility::Element& bar) noexcept;
    HRESULT scrollable(WINBOOL* to, const accessibility::Element& bar) noexcept;
    bool is(accessibility::State state) const { return (spoken_->list.states(element_) & state) != 0; }

    std::atomic<ULONG> references_{1};
    ModuleLock lock_;
    std::shared_ptr<SpokenList> spoken_;
    accessibility::Element element_;
};

template <class Body>
HRESULT UiaElement::about(Body&& body) noexcept {
    return spoken_->entered(
        static_cast<IRawElementProviderSimple&>(*this), uiaNotAvailable, [&]() -> HRESULT {
            return spoken_->list.exists(element_) ? body() : uiaNotAvailable;
        });
}

template <class Body>
HRESULT UiaElement::act(Body&& body) noexcept {
    return about([&]() -> HRESULT {
        if (is(accessibility::unavailable))
            return uiaNotEnabled;
        if (body(spoken_->list))
            return S_OK;
        return spoken_->hasEnded() ? uiaNotAvailable : uiaInvalidOperation;
    });
}

template <class Value, class Body>
HRESULT UiaElement::answer(Value* to, Body&& body) noexcept {
    if (to == nullptr)
        return E_POINTER;
    *to = Value{};
    return about([&] {
        *to = body();
        return S_OK;
    });
}

/// The element as an object.
ComRef<IRawElementProviderSimple> uiaProvider(const std::shared_ptr<SpokenList>& spoken,
                                              const accessibility::Element& element);

/// What the element is called by below its window; never that of another one.
std::array<int, 5> uiaRuntimeId(const accessibility::Element& element);

/// What a program reads of an element; empty for what is not said of it.
Variant uiaProperty(const SpokenList& spoken, const accessibility::Element& element, PROPERTYID property);

/// Whether elements of the kind can do what the pattern is about.
bool hasUiaPattern(accessibility::Kind kind, PATTERNID pattern);

} // namespace lumtex::win32

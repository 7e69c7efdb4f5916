/// What an element is, and what lies around it.
#include "activex/uia_element.h"

#include "values/rounding.h"

#include <algorithm>
#include <cmath>

namespace lumtex::win32 {

using accessibility::Direction;
using accessibility::Element;
using accessibility::Kind;

namespace {

/// None for a direction that is not known.
std::optional<Direction> wayOf(NavigateDirection direction) {
    switch (direction) {
    case NavigateDirection_Parent:
        return Direction::parent;
    case NavigateDirection_NextSibling:
        return Direction::next;
    case NavigateDirection_PreviousSibling:
        return Direction::previous;
    case NavigateDirection_FirstChild:
        return Direction::firstChild;
    case NavigateDirection_LastChild:
        return Direction::lastChild;
    }
    return std::nullopt;
}

} // namespace

std::array<UiaElement::Face, 15> UiaElement::faces() {
    return {
        {{__uuidof(IRawElementProviderSimple), 0, static_cast<IRawElementProviderSimple*>(this)},
         {__uuidof(IRawElementProviderFragment), 0, static_cast<IRawElementProviderFragment*>(this)},
         {__uuidof(IRawElementProviderFragmentRoot), 0, static_cast<IRawElementProviderFragmentRoot*>(this)},
         {IGridProvider::interfaceId, UIA_GridPatternId, static_cast<IGridProvider*>(this)},
         {IGridItemProvider::interfaceId, UIA_GridItemPatternId, static_cast<IGridItemProvider*>(this)},
         {ITableProvider::interfaceId, UIA_TablePatternId, static_cast<ITableProvider*>(this)},
         {ITableItemProvider::interfaceId, UIA_TableItemPatternId, static_cast<ITableItemProvider*>(this)},
         {ISelectionProvider::interfaceId, UIA_SelectionPatternId, static_cast<ISelectionProvider*>(this)},
         {ISelectionItemProvider::interfaceId,
          UIA_SelectionItemPatternId,
          static_cast<ISelectionItemProvider*>(this)},
         {IToggleProvider::interfaceId, UIA_TogglePatternId, static_cast<IToggleProvider*>(this)},
         {IValueProvider::interfaceId, UIA_ValuePatternId, static_cast<IValueProvider*>(this)},
         {IRangeValueProvider::interfaceId, UIA_RangeValuePatternId, static_cast<IRangeValueProvider*>(this)},
         {IScrollProvider::interfaceId, UIA_ScrollPatternId, static_cast<IScrollProvider*>(this)},
         {IScrollItemProvider::interfaceId, UIA_ScrollItemPatternId, static_cast<IScrollItemProvider*>(this)},
         {IInvokeProvider::interfaceId, UIA_InvokePatternId, static_cast<IInvokeProvider*>(this)}}};
}

HRESULT UiaElement::QueryInterface(REFIID iid, void** found) {
    if (found == nullptr)
        return E_POINTER;
    *found = nullptr;
    const bool isRoot = element_.kind == Kind::list;
    if (IsEqualIID(iid, IID_IUnknown))
        *found = static_cast<IRawElementProviderSimple*>(this);
    else if (isRoot || !IsEqualIID(iid, __uuidof(IRawElementProviderFragmentRoot)))
        for (const Face& face : faces())
            if (IsEqualIID(iid, face.iid) &&
                (face.pattern == 0 || hasUiaPattern(element_.kind, face.pattern)))
                *found = face.object;
    if (*found == nullptr)
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

ULONG UiaElement::Release() {
    const ULONG left = --references_;
    if (left == 0)
        delete this;
    return left;
}

UiaElement* UiaElement::give(const Element& element) const {
    return spoken_->list.exists(element) ? new UiaElement(spoken_, element) : nullptr;
}

HRESULT UiaElement::get_ProviderOptions(ProviderOptions* options) {
    if (options == nullptr)
        return E_POINTER;
    // The list belongs to its thread.
    *options =
        static_cast<ProviderOptions>(ProviderOptions_ServerSideProvider | ProviderOptions_UseComThreading);
    return S_OK;
}

HRESULT UiaElement::GetPatternProvider(PATTERNID pattern, IUnknown** provider) {
    return answer(provider, [&]() -> IUnknown* {
        if (hasUiaPattern(element_.kind, pattern))
            for (const Face& face : faces())
                if (face.pattern == pattern) {
                    AddRef();
                    return face.object;
                }
        return nullptr;
    });
}

HRESULT UiaElement::GetPropertyValue(PROPERTYID property, VARIANT* value) {
    return answer(value, [&] { return toVARIANT(uiaProperty(*spoken_, element_, property)).release(); });
}

HRESULT UiaElement::get_HostRawElementProvider(IRawElementProviderSimple** provider) {
    if (provider == nullptr)
        return E_POINTER;
    *provider = nullptr;
    return about([&] {
        const HWND window = toHWND(spoken_->list.window(element_));
        return window != nullptr ? spoken_->uia->hostProvider(window, provider) : S_OK;
    });
}

HRESULT UiaElement::Navigate(NavigateDirection direction, IRawElementProviderFragment** found) {
    if (found == nullptr)
        return E_POINTER;
    *found = nullptr;
    return about([&] {
        const auto way = wayOf(direction);
        if (!way)
            return E_INVALIDARG;
        *found = give(spoken_->list.navigate(element_, *way));
        return S_OK;
    });
}

HRESULT UiaElement::GetRuntimeId(SAFEARRAY** id) {
    return answer(id, [&]() -> SAFEARRAY* {
        if (element_.kind == Kind::list)
            return nullptr;
        const auto numbers = uiaRuntimeId(element_);
        SAFEARRAY* const array = SafeArrayCreateVector(VT_I4, 0, static_cast<ULONG>(numbers.size()));
        if (array == nullptr)
            throw std::bad_alloc();
        std::copy(numbers.begin(), numbers.end(), static_cast<int*>(array->pvData));
        return array;
    });
}

HRESULT UiaElement::get_BoundingRectangle(UiaRect* place) {
    return answer(place, [&]() -> UiaRect {
        const std::optional<Rect> shown = spoken_->place(element_);
        if (!shown)
            return {};
        return {static_cast<double>(shown->Left),
                static_cast<double>(shown->Top),
                static_cast<double>(shown->Right - shown->Left),
                static_cast<double>(shown->Bottom - shown->Top)};
    });
}

HRESULT UiaElement::GetEmbeddedFragmentRoots(SAFEARRAY** roots) {
    return answer(roots, [] { return nullptr; });
}

HRESULT UiaElement::get_FragmentRoot(IRawElementProviderFragmentRoot** root) {
    return answer(root, [&] { return give(accessibility::theList); });
}

HRESULT UiaElement::ElementProviderFromPoint(double x, double y, IRawElementProviderFragment** found) {
    return answer(found, [&] {
        // A pixel reaches from its own number to the next one.
        return give(spoken_->at(roundToLong(std::floor(x)), roundToLong(std::floor(y))));
    });
}

HRESULT UiaElement::GetFocus(IRawElementProviderFragment** found) {
    return answer(found, [&]() -> UiaElement* {
        const Element focused = spoken_->list.focus();
        return spoken_->hasKeyboard() && focused != accessibility::theList ? give(focused) : nullptr;
    });
}

ComRef<IRawElementProviderSimple> uiaProvider(const std::shared_ptr<SpokenList>& spoken,
                                              const Element& element) {
    return ComRef<IRawElementProviderSimple>::adopting(new UiaElement(spoken, element));
}

std::array<int, 5> uiaRuntimeId(const Element& element) {
    return {uiaAppendRuntimeId,
            static_cast<int>(element.kind),
            element.row,
            element.column,
            element.horizontal ? 1 : 0};
}

} // namespace lumtex::win32

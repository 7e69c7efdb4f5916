/// \file
/// UI Automation's side of the system, which notes what it is told.
#pragma once

#include "accessibility/spoken_list.h"
#include "activex/uia_element.h"

#include <string>
#include <vector>

namespace lumtex::testing {

/// The element behind a provider; nothing for null.
inline accessibility::Element elementOf(IRawElementProviderFragment* provider) {
    SAFEARRAY* id = nullptr;
    if (provider == nullptr || provider->GetRuntimeId(&id) != S_OK)
        return accessibility::nothing;
    if (id == nullptr)
        return accessibility::theList;
    int numbers[5]{};
    for (LONG i = 0; i < 5; ++i)
        SafeArrayGetElement(id, &i, &numbers[i]);
    SafeArrayDestroy(id);
    EXPECT_EQ(numbers[0], win32::uiaAppendRuntimeId);
    return {static_cast<accessibility::Kind>(numbers[1]), numbers[2], numbers[3], numbers[4] != 0};
}
inline accessibility::Element elementOf(IRawElementProviderSimple* provider) {
    return elementOf(win32::queryFor<IRawElementProviderFragment>(provider).get());
}

/// One at a time, for the functions of a library have no object.
class NotedUia {
  public:
    NotedUia() { now = this; }
    NotedUia(const NotedUia&) = delete;
    NotedUia& operator=(const NotedUia&) = delete;
    ~NotedUia() { now = nullptr; }

    static const win32::UiaLibrary* find() {
        ++now->searches;
        static const win32::UiaLibrary library{returnProvider,
                                               hostProvider,
                                               clientsAreListening,
                                               raiseEvent,
                                               raisePropertyChange,
                                               raiseStructure};
        return now->isThere ? &library : nullptr;
    }
    std::vector<std::string> take() { return std::exchange(raised, {}); }

    bool isThere = true;
    bool listening = true;
    int searches = 0;
    win32::ComRef<IRawElementProviderSimple> given; ///< in the answer to the last message
    std::vector<HWND> hosts;                        ///< windows that were asked for
    std::vector<std::string> raised;
    std::function<void()> onRaise; ///< runs once, in the next event

    static constexpr LRESULT answer = 4711;

  private:
    static LRESULT WINAPI returnProvider(HWND, WPARAM, LPARAM lParam, IRawElementProviderSimple* provider) {
        if (provider == nullptr)
            now->note("over");
        now->given = win32::ComRef<IRawElementProviderSimple>(provider);
        return lParam == win32::uiaRootObject ? answer : 0;
    }
    static HRESULT WINAPI hostProvider(HWND window, IRawElementProviderSimple** provider) {
        now->hosts.push_back(window);
        *provider = nullptr;
        return S_OK;
    }
    static WINBOOL WINAPI clientsAreListening() { return now->listening ? TRUE : FALSE; }
    static HRESULT WINAPI raiseEvent(IRawElementProviderSimple* provider, win32::UiaEvent event) {
        now->note(wordOf(event) + " " + named(elementOf(provider)));
        return S_OK;
    }
    static HRESULT WINAPI raisePropertyChange(IRawElementProviderSimple* provider,
                                              PROPERTYID property,
                                              VARIANT before,
                                              VARIANT after) {
        EXPECT_EQ(before.vt, VT_EMPTY);
        now->note(wordOf(property) + " " + named(elementOf(provider)) + " " +
                  toUtf8(win32::fromVARIANT(after).toText()));
        return S_OK;
    }
    static HRESULT WINAPI raiseStructure(IRawElementProviderSimple* provider,
                                         win32::StructureChange change,
                                         int* id,
                                         int count) {
        static constexpr std::array words{
            "child added", "child removed", "invalidated", "many added", "many removed", "reordered"};
        std::string text = words.at(static_cast<std::size_t>(change));
        text += " " + named(elementOf(provider));
        if (count == 5)
            text += " (" + named({static_cast<accessibility::Kind>(id[1]), id[2], id[3], id[4] != 0}) + ")";
        now->note(text);
        return S_OK;
    }

    static std::string wordOf(win32::UiaEvent event) {
        using enum win32::UiaEvent;
        switch (event) {
        case focusChanged:
            return "focus";
        case addedToSelection:
            return "added to selection";
        case removedFromSelection:
            return "removed from selection";
        case selected:
            return "selected";
        case selectionInvalidated:
            return "selection invalidated";
        }
        return "?";
    }
    static std::string wordOf(PROPERTYID property) {
        switch (property) {
        case UIA_NamePropertyId:
            return "name";
        case UIA_ValueValuePropertyId:
            return "value";
        case UIA_RangeValueValuePropertyId:
            return "range";
        case UIA_ToggleToggleStatePropertyId:
            return "toggle";
        case UIA_IsEnabledPropertyId:
            return "enabled";
        case UIA_ItemStatusPropertyId:
            return "status";
        default:
            return std::to_string(property);
        }
    }
    void note(const std::string& text) {
        raised.push_back(text);
        if (onRaise)
            std::exchange(onRaise, nullptr)();
    }

    static inline NotedUia* now = nullptr;
};

} // namespace lumtex::testing

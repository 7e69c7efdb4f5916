/// A program that asks a window of another one what it says of itself.
///
///   screen_reader WINDOW tree             everything, a line each, with what lies under its middle
///   screen_reader WINDOW focus            what has the keyboard, and what is selected
///   screen_reader WINDOW walk STEPS       from the list: f first child, l last, n next, p previous, u d < >
///   screen_reader WINDOW act STEPS        does what that element does
///   screen_reader WINDOW value STEPS TEXT
///   screen_reader WINDOW select STEPS FLAGS
///   screen_reader WINDOW listen READY DONE  events, between one named event and another
///   screen_reader WINDOW automation       type of control and name of the list, by UI Automation
///
/// A number names the window. Elements are written as role, name, value, description, states, action.
#include "worlds/win32/windows_api.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <oleacc.h>
#include <uiautomationclient.h>
#include <uiautomationcore.h>

namespace {

VARIANT self() {
    VARIANT id;
    VariantInit(&id);
    id.vt = VT_I4;
    id.lVal = CHILDID_SELF;
    return id;
}

/// ASCII is enough for what the tests write.
std::string plain(BSTR text) {
    std::string result;
    for (const wchar_t* unit = text; unit != nullptr && *unit != 0; ++unit)
        result += static_cast<char>(*unit < 128 ? *unit : L'?');
    SysFreeString(text);
    return result;
}

template <class Ask>
std::string told(Ask ask) {
    BSTR text = nullptr;
    const HRESULT result = ask(&text);
    if (FAILED(result))
        return "!" + std::to_string(static_cast<unsigned>(result));
    return plain(text);
}

std::string roleAndName(IAccessible* element) {
    VARIANT role;
    VariantInit(&role);
    char words[64] = "?";
    if (SUCCEEDED(element->get_accRole(self(), &role)) && role.vt == VT_I4) {
        wchar_t wideWords[64]{};
        GetRoleTextW(static_cast<DWORD>(role.lVal), wideWords, 64);
        WideCharToMultiByte(CP_ACP, 0, wideWords, -1, words, sizeof words, nullptr, nullptr);
    }
    return std::string(words) + " \"" + told([&](BSTR* to) { return element->get_accName(self(), to); }) +
           "\"";
}

std::string statesOf(IAccessible* element) {
    struct Word {
        LONG state;
        const char* word;
    };
    static constexpr Word words[] = {{STATE_SYSTEM_UNAVAILABLE, "unavailable"},
                                     {STATE_SYSTEM_SELECTED, "selected"},
                                     {STATE_SYSTEM_FOCUSED, "focused"},
                                     {STATE_SYSTEM_PRESSED, "pressed"},
                                     {STATE_SYSTEM_CHECKED, "checked"},
                                     {STATE_SYSTEM_READONLY, "readonly"},
                                     {STATE_SYSTEM_HOTTRACKED, "hot"},
                                     {STATE_SYSTEM_INVISIBLE, "invisible"},
                                     {STATE_SYSTEM_OFFSCREEN, "offscreen"},
                                     {STATE_SYSTEM_FOCUSABLE, "focusable"},
                                     {STATE_SYSTEM_SELECTABLE, "selectable"},
                                     {STATE_SYSTEM_MULTISELECTABLE, "multiselectable"}};
    VARIANT state;
    VariantInit(&state);
    if (FAILED(element->get_accState(self(), &state)) || state.vt != VT_I4)
        return "?";
    std::string text;
    for (const Word& word : words)
        if ((state.lVal & word.state) != 0)
            text += std::string(" ") + word.word;
    return text;
}

std::string all(IAccessible* element) {
    std::string line = roleAndName(element);
    const std::string value = told([&](BSTR* to) { return element->get_accValue(self(), to); });
    const std::string description = told([&](BSTR* to) { return element->get_accDescription(self(), to); });
    const std::string action = told([&](BSTR* to) { return element->get_accDefaultAction(self(), to); });
    if (!value.empty())
        line += " =" + value;
    if (!description.empty())
        line += " (" + description + ")";
    line += statesOf(element);
    return action.empty() ? line : line + " [" + action + "]";
}

IAccessible* accessibleOf(VARIANT& child) {
    IAccessible* found = nullptr;
    if (child.vt == VT_DISPATCH && child.pdispVal != nullptr)
        child.pdispVal->QueryInterface(__uuidof(IAccessible), reinterpret_cast<void**>(&found));
    VariantClear(&child);
    return found;
}

/// What lies under the middle of an element that has a place; empty if it is the element itself.
std::string underMiddle(IAccessible* element) {
    LONG left = 0;
    LONG top = 0;
    LONG width = 0;
    LONG height = 0;
    if (element->accLocation(&left, &top, &width, &height, self()) != S_OK)
        return " nowhere";
    IAccessible* hit = nullptr;
    VARIANT child;
    VariantInit(&child);
    const POINT at{left + width / 2, top + height / 2};
    if (FAILED(AccessibleObjectFromPoint(at, &hit, &child)) || hit == nullptr)
        return " over nothing";
    const std::string found = roleAndName(hit);
    hit->Release();
    VariantClear(&child);
    return found == roleAndName(element) ? "" : " over " + found;
}

void tree(IAccessible* element, int depth) {
    std::printf("%*s%s%s\n", depth, "", all(element).c_str(), underMiddle(element).c_str());
    LONG count = 0;
    element->get_accChildCount(&count);
    for (LONG each = 0; each < count; ++each) {
        VARIANT child;
        VariantInit(&child);
        LONG fetched = 0;
        if (AccessibleChildren(element, each, 1, &child, &fetched) != S_OK || fetched != 1) {
            std::printf("%*sno child %ld\n", depth, "", each);
            continue;
        }
        if (IAccessible* const found = accessibleOf(child)) {
            tree(found, depth + 1);
            found->Release();
        }
    }
}

LONG directionOf(char step) {
    switch (step) {
    case 'f':
        return NAVDIR_FIRSTCHILD;
    case 'l':
        return NAVDIR_LASTCHILD;
    case 'n':
        return NAVDIR_NEXT;
    case 'p':
        return NAVDIR_PREVIOUS;
    case 'u':
        return NAVDIR_UP;
    case 'd':
        return NAVDIR_DOWN;
    case '<':
        return NAVDIR_LEFT;
    default:
        return NAVDIR_RIGHT;
    }
}

/// Takes over the reference to `from`; null where a step leads nowhere.
IAccessible* walked(IAccessible* from, const char* steps) {
    for (; *steps != 0 && from != nullptr; ++steps) {
        VARIANT next;
        VariantInit(&next);
        from->accNavigate(directionOf(*steps), self(), &next);
        from->Release();
        from = accessibleOf(next);
    }
    return from;
}

void focus(IAccessible* list) {
    VARIANT found;
    VariantInit(&found);
    list->get_accFocus(&found);
    if (IAccessible* const element = accessibleOf(found)) {
        std::printf("focus %s\n", roleAndName(element).c_str());
        element->Release();
    }
    list->get_accSelection(&found);
    IEnumVARIANT* rows = nullptr;
    if (found.vt == VT_UNKNOWN)
        found.punkVal->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(&rows));
    if (IAccessible* const element = accessibleOf(found)) {
        std::printf("selected %s\n", roleAndName(element).c_str());
        element->Release();
    }
    VARIANT row;
    VariantInit(&row);
    ULONG fetched = 0;
    while (rows != nullptr && rows->Next(1, &row, &fetched) == S_OK) {
        const std::string name = told([&](BSTR* to) { return list->get_accName(row, to); });
        std::printf("selected %ld \"%s\"\n", row.lVal, name.c_str());
    }
    if (rows != nullptr)
        rows->Release();
}

HWND listened = nullptr;

void CALLBACK heard(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD) {
    if (window != listened || object != OBJID_CLIENT)
        return;
    struct Word {
        DWORD event;
        const char* word;
    };
    static constexpr Word words[] = {{EVENT_OBJECT_FOCUS, "focus"},
                                     {EVENT_OBJECT_SELECTION, "selection"},
                                     {EVENT_OBJECT_SELECTIONADD, "selectionadd"},
                                     {EVENT_OBJECT_SELECTIONREMOVE, "selectionremove"},
                                     {EVENT_OBJECT_SELECTIONWITHIN, "selectionwithin"},
                                     {EVENT_OBJECT_NAMECHANGE, "name"},
                                     {EVENT_OBJECT_VALUECHANGE, "value"},
                                     {EVENT_OBJECT_STATECHANGE, "state"},
                                     {EVENT_OBJECT_DESCRIPTIONCHANGE, "description"},
                                     {EVENT_OBJECT_REORDER, "reorder"},
                                     {EVENT_OBJECT_SHOW, "show"},
                                     {EVENT_OBJECT_HIDE, "hide"}};
    for (const Word& word : words)
        if (word.event == event)
            std::printf("%s %ld\n", word.word, child);
}

void listen(HWND window, const char* ready, const char* done) {
    listened = window;
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    const HWINEVENTHOOK hook =
        SetWinEventHook(EVENT_MIN, EVENT_MAX, nullptr, heard, process, 0, WINEVENT_OUTOFCONTEXT);
    const HANDLE readyEvent = OpenEventA(EVENT_MODIFY_STATE, FALSE, ready);
    const HANDLE doneEvent = OpenEventA(SYNCHRONIZE, FALSE, done);
    SetEvent(readyEvent);
    const auto pump = [] {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE)
            DispatchMessageW(&message);
    };
    while (MsgWaitForMultipleObjects(1, &doneEvent, FALSE, INFINITE, QS_ALLINPUT) == WAIT_OBJECT_0 + 1)
        pump();
    pump();
    UnhookWinEvent(hook);
    CloseHandle(readyEvent);
    CloseHandle(doneEvent);
}

/// By the functions of the system's library, which the system's headers lack.
void automation(HWND window) {
    const HMODULE library = LoadLibraryW(L"uiautomationcore.dll");
    const auto function = [&](const char* name) {
        return reinterpret_cast<void*>(GetProcAddress(library, name));
    };
    using Node = void*;
    const auto ofWindow = reinterpret_cast<HRESULT(WINAPI*)(HWND, Node*)>(function("UiaNodeFromHandle"));
    const auto valueOf =
        reinterpret_cast<HRESULT(WINAPI*)(Node, PROPERTYID, VARIANT*)>(function("UiaGetPropertyValue"));
    const auto release = reinterpret_cast<WINBOOL(WINAPI*)(Node)>(function("UiaNodeRelease"));
    Node list = nullptr;
    if (FAILED(ofWindow(window, &list))) {
        std::printf("nothing\n");
        return;
    }
    VARIANT type;
    VariantInit(&type);
    valueOf(list, UIA_ControlTypePropertyId, &type);
    VARIANT name;
    VariantInit(&name);
    valueOf(list, UIA_NamePropertyId, &name);
    std::printf("%ld \"%s\"\n", type.lVal, name.vt == VT_BSTR ? plain(name.bstrVal).c_str() : "?");
    release(list);
    FreeLibrary(library);
}

int run(int count, char** arguments) {
    const HWND window = lumtex::win32::toHWND(std::atoi(arguments[1]));
    const std::string what = arguments[2];
    if (what == "listen" && count > 4) {
        listen(window, arguments[3], arguments[4]);
        return 0;
    }
    if (what == "automation") {
        automation(window);
        return 0;
    }
    void* found = nullptr;
    if (FAILED(AccessibleObjectFromWindow(
            window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &found)))
        return 3;
    auto* list = static_cast<IAccessible*>(found);
    if (what == "tree") {
        tree(list, 0);
    } else if (what == "focus") {
        focus(list);
    } else if (count > 3) {
        list = walked(list, arguments[3]);
        HRESULT result = S_FALSE;
        if (list != nullptr && what == "act")
            result = list->accDoDefaultAction(self());
        else if (list != nullptr && what == "select" && count > 4)
            result = list->accSelect(std::atoi(arguments[4]), self());
        else if (list != nullptr && what == "value" && count > 4) {
            const std::string text = arguments[4];
            const BSTR value = SysAllocString(std::wstring(text.begin(), text.end()).c_str());
            result = list->put_accValue(self(), value);
            SysFreeString(value);
        }
        if (what == "walk")
            std::printf("%s\n", list != nullptr ? roleAndName(list).c_str() : "nowhere");
        else
            std::printf("%s\n", result == S_OK ? "done" : "refused");
    }
    if (list != nullptr)
        list->Release();
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 3)
        return 2;
    CoInitialize(nullptr);
    const int result = run(count, arguments);
    CoUninitialize();
    return result;
}

/// \file
/// What the user and the host of a list in a container do, so that it raises its events.
#pragma once

#include "activex/event_sink.h"
#include "activex/small_container.h"
#include "hosted_list.h"
#include "message_loop.h"
#include "worlds/win32/dragged_data.h"

#include <functional>
#include <set>
#include <utility>

namespace lumtex::testing {

/// What a host does as it hears of an event.
enum class Ending { lastReference, closed, windowDestroyed };

/// Events of the table by their numbers.
inline const std::set<DISPID> raisedByTheStory{1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11,
                                               12, 14, 15, 19, 20, 22, 23, 24, 25, 26};

/// A list in a container, and what its user and its host do with it. After the control was ended nothing more
/// happens to it.
class Story final : public HostedList {
  public:
    Story() {
        win32::demand(object_->SetClientSite(&container_));
        // As running programs do: the wheel starts with the settings.
        MapBag settings;
        win32::demand(control_.as<IPersistPropertyBag>()->Load(&settings, nullptr));
        win32::demand(object_->DoVerb(
            OLEIVERB_UIACTIVATE, nullptr, &container_, 0, container_.window, &container_.place));
        win32::demand(eventPointOf(control_)->Advise(&sink_, &cookie_));
        let(L"BorderVisible", {false});
        let(L"RowsDynamic", {false});
        let(L"RowHeight", {Long{300}});
        for (int column = 0; column < 2; ++column)
            call(L"ColumnsAdd", {u"column", Missing{}, Missing{}, Missing{}, Long{0}, Long{900}});
        for (int row = 0; row < 12; ++row)
            call(L"RowsAdd", {Long{-1}, u",", u"b,a"});
        let(L"ColumnCheckBoxes", {Long{1}, true});
        saveContent();
        call(L"Redraw");
        sink_.raised.clear();
    }
    Story(const Story&) = delete;
    Story& operator=(const Story&) = delete;
    ~Story() override { end(Ending::closed); }

    /// The first event with this number ends the control.
    void endAt(DISPID event, Ending ending) {
        sink_.handlers[event] = [this, ending](auto /*arguments*/) { end(ending); };
    }
    /// The first event with this number is answered with this.
    void answer(DISPID event, std::function<void()> code) {
        sink_.handlers[event] = [code = std::move(code), answered = false](auto /*arguments*/) mutable {
            if (!std::exchange(answered, true))
                code();
        };
    }

    void run() {
        const std::function<void()> steps[] = {
            [&] { moveTo(cellX, cellY); },
            [&] { mouse(MOUSEEVENTF_LEFTDOWN); },
            [&] { mouse(MOUSEEVENTF_LEFTUP); },
            [&] { mouse(MOUSEEVENTF_LEFTDOWN); },
            [&] { mouse(MOUSEEVENTF_LEFTUP); },
            [&] { moveTo(markX, cellY); },
            [&] { mouse(MOUSEEVENTF_LEFTDOWN); },
            [&] { mouse(MOUSEEVENTF_LEFTUP); },
            [&] { moveTo(cellX, headerY); },
            [&] { mouse(MOUSEEVENTF_LEFTDOWN); },
            [&] { mouse(MOUSEEVENTF_LEFTUP); },
            [&] { mouse(MOUSEEVENTF_WHEEL, -WHEEL_DELTA); },
            [&] { SendMessageW(window(), WM_KEYDOWN, VK_DOWN, 0); },
            [&] { SendMessageW(window(), WM_CHAR, 'x', 0); },
            [&] { SendMessageW(window(), WM_KEYUP, VK_DOWN, 0); },
            [&] {
                call(L"Sort", {Long{1}, Long{1}});
            },
            [&] { assignAWrongIndexThroughTheTable(); },
            [&] { edit(); },
            [&] { drop(); },
        };
        for (const auto& step : steps)
            if (control_)
                step();
        if (GetAsyncKeyState(VK_LBUTTON) < 0)
            mouse(MOUSEEVENTF_LEFTUP);
    }
    bool isOver() const override { return !control_; }
    void end() override { end(Ending::closed); }
    win32::ComRef<IUnknown>& control() { return control_; }
    SmallContainer& container() { return container_; }
    EventSink& sink() { return sink_; }

  private:
    static constexpr int cellX = 30;
    static constexpr int cellY = 35;
    static constexpr int markX = 8;
    static constexpr int headerY = 12;

    void end(Ending ending) {
        if (!control_)
            return;
        if (ending == Ending::windowDestroyed)
            DestroyWindow(container_.window);
        if (ending != Ending::lastReference) {
            object_->Close(OLECLOSE_NOSAVE);
            object_->SetClientSite(nullptr);
        }
        container_.active = {};
        object_ = {};
        control_ = {};
    }
    HWND window() {
        HWND found = nullptr;
        win32::demand(control_.as<IOleWindow>()->GetWindow(&found));
        return found;
    }
    void moveTo(int x, int y) {
        POINT at{x, y};
        ClientToScreen(window(), &at);
        SetCursorPos(at.x, at.y);
        letMessagesThrough();
    }
    void mouse(DWORD what, int turn = 0) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = what;
        input.mi.mouseData = static_cast<DWORD>(turn);
        SendInput(1, &input, sizeof(input));
        letMessagesThrough();
    }
    IDispatch* calls() override { return control_.as<IDispatch>().get(); } // without a reference of its own
    /// A call by the table of functions, where the system holds no reference of its own.
    void assignAWrongIndexThroughTheTable() {
        auto* const dispatch = control_.as<IDispatch>().get();
        win32::ComRef<ITypeInfo> calls;
        win32::demand(dispatch->GetTypeInfo(0, LOCALE_NEUTRAL, calls.out()));
        HREFTYPE reference = 0;
        win32::ComRef<ITypeInfo> table;
        win32::demand(calls->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
        win32::demand(calls->GetRefTypeInfo(reference, table.out()));
        UINT place = 0;
        FUNCDESC* entry = nullptr;
        win32::demand(table.as<ITypeInfo2>()->GetFuncIndexOfMemId(
            idOf(dispatch, L"ListIndex"), INVOKE_PROPERTYPUT, &place));
        win32::demand(table->GetFuncDesc(place, &entry));
        const auto offset = static_cast<ULONG_PTR>(entry->oVft);
        table->ReleaseFuncDesc(entry);
        VARTYPE type = VT_I4;
        VARIANT index;
        V_VT(&index) = VT_I4;
        V_I4(&index) = 77;
        VARIANTARG* argument = &index;
        win32::OwnedVARIANT result;
        win32::demand(
            DispCallFunc(dispatch, offset, CC_STDCALL, VT_ERROR, 1, &type, &argument, result.out()));
    }
    void drop() {
        DraggedData dragged;
        DWORD effect = DROPEFFECT_COPY;
        let(L"OLEDropMode", {Integer{1}});
        const win32::ComRef<IDropTarget> target = dropTargetOf(window());
        const POINTL at{cellX, cellY};
        target->DragEnter(&dragged, MK_LBUTTON, at, &effect);
        target->Drop(&dragged, 0, at, &effect);
    }
    void edit() {
        call(L"SetEdit", {Long{1}, Long{2}});
        HWND box = win32::toHWND(
            invoke(control_.as<IDispatch>().get(), L"hwndEdit", DISPATCH_PROPERTYGET).value.toLong());
        SendMessageW(box, WM_CHAR, 'n', 0);
        if (control_)
            SendMessageW(box, WM_CHAR, VK_RETURN, 0);
    }

    Component component_;
    SmallContainer container_;
    EventSink sink_;
    win32::ComRef<IUnknown> control_ = component_.make("lmListView");
    win32::ComRef<IOleObject> object_ = control_.as<IOleObject>();
    DWORD cookie_ = 0;
};

} // namespace lumtex::testing

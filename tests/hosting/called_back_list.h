/// \file
/// A list in a container whose host calls back at odd moments.
#pragma once

#include "activex/event_sink.h"
#include "activex/small_container.h"
#include "calling_thing.h"
#include "hosted_list.h"

namespace lumtex::testing {

/// What the component holds of its hosts'.
struct HeldThing {
    const wchar_t* member;
    WORD kind;
    enum class Of { cell, column, list } of;
};
constexpr HeldThing heldThings[] = {
    {L"ItemTag", DISPATCH_PROPERTYPUT, HeldThing::Of::cell},
    {L"ItemBackColor", DISPATCH_PROPERTYPUT, HeldThing::Of::cell},
    {L"ItemForeColorSelect", DISPATCH_PROPERTYPUT, HeldThing::Of::cell},
    {L"ItemBackColorSelect", DISPATCH_PROPERTYPUT, HeldThing::Of::cell},
    {L"ItemObject", DISPATCH_PROPERTYPUTREF, HeldThing::Of::cell},
    {L"ItemIcon", DISPATCH_PROPERTYPUTREF, HeldThing::Of::cell},
    {L"ItemIconSelected", DISPATCH_PROPERTYPUTREF, HeldThing::Of::cell},
    {L"ColumnIcon", DISPATCH_PROPERTYPUTREF, HeldThing::Of::column},
    {L"ColumnIconHover", DISPATCH_PROPERTYPUTREF, HeldThing::Of::column},
    {L"BackgroundPicture", DISPATCH_PROPERTYPUTREF, HeldThing::Of::list},
    {L"Skin", DISPATCH_PROPERTYPUTREF, HeldThing::Of::list},
    {L"Recordset", DISPATCH_PROPERTYPUTREF, HeldThing::Of::list},
};

/// A call that ends the control is the last one that reaches it. Nobody but the host holds a reference.
class CalledBackList final : public HostedList {
  public:
    static constexpr Long rows = 4;
    static constexpr Long columns = 2;

    CalledBackList() {
        begin();
        saveContent();
    }
    CalledBackList(const CalledBackList&) = delete;
    CalledBackList& operator=(const CalledBackList&) = delete;
    ~CalledBackList() override { end(); }

    bool isOver() const override { return !control_; }
    SmallContainer& container() { return container_; }

    /// As new; a control that was ended is followed by another one.
    void begin() {
        if (!control_) {
            control_ = component_.make("lmListView");
            object_ = control_.as<IOleObject>();
            win32::demand(object_->SetClientSite(&container_));
            win32::demand(control_.as<IPersistPropertyBag>()->Load(&settings_, nullptr));
            win32::demand(object_->DoVerb(
                OLEIVERB_INPLACEACTIVATE, nullptr, &container_, 0, container_.window, &container_.place));
        }
        let(L"AutoRedraw", {false});
        call(L"RowsClear");
        call(L"ColumnsClear");
        for (Long column = 0; column < columns; ++column)
            call(L"ColumnsAdd", {u"column"});
        for (Long row = 0; row < rows; ++row)
            call(L"RowsAdd", {Long{-1}, u",", u"b,a"});
        let(L"MultiSelect", {true});
        let(L"RowSelected", {Long{1}, true});
        let(L"RowSelected", {Long{3}, true});
        let(L"AutoRedraw", {true});
    }
    /// Whether the list holds its rows and serves.
    bool serves() {
        return get(L"RowsCount") == Variant(rows) && get(L"ItemText", {Long{2}, Long{2}}) == Variant(u"a");
    }

    void hold(const HeldThing& held, LastReleases& releases) {
        let(L"AutoRedraw", {false});
        for (Long row = 1; row <= (held.of == HeldThing::Of::cell ? rows : 1); ++row)
            for (Long column = 1; column <= (held.of == HeldThing::Of::list ? 1 : columns); ++column)
                holdAt(held, row, column, releases);
        let(L"AutoRedraw", {true});
    }
    /// Puts nothing, or a number, in the place of what is held.
    void overwrite(const HeldThing& held) {
        const bool reference = held.kind == DISPATCH_PROPERTYPUTREF;
        std::vector<Variant> arguments = placeOf(held, 1, 1);
        arguments.push_back(reference ? Variant(ObjectRef()) : Variant(Long{1}));
        put(held.member, held.kind, arguments);
    }

    void end() override {
        if (!control_)
            return;
        object_->Close(OLECLOSE_NOSAVE);
        object_->SetClientSite(nullptr);
        container_.active = {};
        object_ = {};
        control_ = {};
    }

  private:
    static std::vector<Variant> placeOf(const HeldThing& held, Long row, Long column) {
        if (held.of == HeldThing::Of::cell)
            return {row, column};
        if (held.of == HeldThing::Of::column)
            return {column};
        return {};
    }
    /// The list gets the one reference that there is.
    void holdAt(const HeldThing& held, Long row, Long column, LastReleases& releases) {
        IDispatch* const dispatch = control_.as<IDispatch>().get();
        std::vector<win32::OwnedVARIANT> owned;
        std::vector<VARIANT> arguments;
        for (const Variant& place : placeOf(held, row, column)) {
            owned.push_back(win32::toVARIANT(place));
            arguments.push_back(owned.back().get());
        }
        auto* const thing = new CallingThing(releases);
        VARIANT value;
        V_VT(&value) = VT_DISPATCH;
        V_DISPATCH(&value) = static_cast<IPictureDisp*>(thing);
        arguments.push_back(value);
        invoke(dispatch, idOf(dispatch, held.member), held.kind, arguments);
        static_cast<IPictureDisp*>(thing)->Release();
    }
    IDispatch* calls() override { return control_.as<IDispatch>().get(); } // without a reference of its own

    MapBag settings_;
    Component component_;
    SmallContainer container_;
    win32::ComRef<IUnknown> control_;
    win32::ComRef<IOleObject> object_;
};

} // namespace lumtex::testing

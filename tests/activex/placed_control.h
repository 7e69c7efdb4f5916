/// \file
/// A control that takes its place in a container with one call.
#pragma once

#include "event_sink.h"
#include "small_container.h"

namespace lumtex::testing {

/// In run mode unless a test says otherwise. Closed at the end.
class PlacedControl : public ListFixture {
  protected:
    PlacedControl() { container.ambients[DISPID_AMBIENT_USERMODE] = Variant(true); }
    ~PlacedControl() override {
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
        object = {};
        SetFocus(nullptr);
    }

    HRESULT verb(LONG number) {
        return object->DoVerb(number, nullptr, &container, 0, container.window, &container.place);
    }
    void place(LONG number = OLEIVERB_INPLACEACTIVATE) {
        ASSERT_EQ(object->SetClientSite(&container), S_OK);
        ASSERT_EQ(control.as<IPersistStreamInit>()->InitNew(), S_OK);
        ASSERT_EQ(verb(number), S_OK);
    }
    HWND window() const {
        HWND found = nullptr;
        control.as<IOleWindow>()->GetWindow(&found);
        return found;
    }

    SmallContainer container;
    win32::ComRef<IOleObject> object = control.as<IOleObject>();
};

} // namespace lumtex::testing

/// \file
/// Listening to the changes of an object, and to its end.
#pragma once

#include "worlds/win32/com_ref.h"
#include "worlds/win32/counted_object.h"

#include <functional>

namespace lumtex::win32 {

/// Calls back at each change that an object reports, with the property's number, and once when nobody holds
/// the sink any longer: an object lets go of its sinks when it ends. The callbacks must not throw.
class PropertySink final : public CountedObject<IPropertyNotifySink> {
  public:
    static ComRef<PropertySink> make(std::function<void(DISPID)> onChanged, std::function<void()> onGone);

    /// Calls back no more.
    void silence();

    /// Has `source` report its changes to this sink. False if it has no way to.
    bool listenTo(IUnknown* source, DWORD& cookie);
    /// Ends that again.
    static void stopListening(IUnknown* source, DWORD cookie);

    STDMETHODIMP OnChanged(DISPID property) override;
    STDMETHODIMP OnRequestEdit(DISPID property) override;

  private:
    PropertySink(std::function<void(DISPID)> onChanged, std::function<void()> onGone);
    ~PropertySink() override;

    std::function<void(DISPID)> onChanged_;
    std::function<void()> onGone_;
};

} // namespace lumtex::win32

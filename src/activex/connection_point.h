/// \file
/// Where hosts register for the control's events.
#pragma once

#include "activex/automation_target.h"
#include "worlds/win32/com_ref.h"

#include <map>
#include <vector>

namespace lumtex::win32 {

/// One outgoing interface. Lives as long as the control; its identity is its own, its lifetime the control's.
class ConnectionPoint final : public IConnectionPoint {
  public:
    /// `container` and `owner` must outlive this and are not counted. Sinks come and go on the owner's
    /// thread.
    ConnectionPoint(IConnectionPointContainer& container,
                    const AutomationTarget& owner,
                    const GUID& interfaceId)
        : container_(container), owner_(owner), interfaceId_(interfaceId) {}
    ConnectionPoint(const ConnectionPoint&) = delete;
    ConnectionPoint& operator=(const ConnectionPoint&) = delete;
    ~ConnectionPoint() = default;

    const GUID& interfaceId() const { return interfaceId_; }
    /// In order of Advise. The references are owned, so a sink may call Unadvise while it is being called.
    std::vector<ComRef<IUnknown>> sinks() const;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return container_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return container_.Release(); }
    HRESULT STDMETHODCALLTYPE GetConnectionInterface(IID* iid) override;
    HRESULT STDMETHODCALLTYPE GetConnectionPointContainer(IConnectionPointContainer** container) override;
    HRESULT STDMETHODCALLTYPE Advise(IUnknown* sink, DWORD* cookie) override;
    HRESULT STDMETHODCALLTYPE Unadvise(DWORD cookie) override;
    HRESULT STDMETHODCALLTYPE EnumConnections(IEnumConnections** connections) override;

  private:
    IConnectionPointContainer& container_;
    const AutomationTarget& owner_;
    GUID interfaceId_;
    std::map<DWORD, ComRef<IUnknown>> sinks_;
    DWORD lastCookie_ = 0;
};

} // namespace lumtex::win32

/// Sinks come and go.
#include "activex/connection_point.h"

#include "activex/com_guard.h"
#include "activex/snapshot_enum.h"

namespace lumtex::win32 {

namespace {

struct ConnectionPolicy {
    static void copy(CONNECTDATA& to, const CONNECTDATA& from) {
        to = from;
        to.pUnk->AddRef();
    }
    static void clear(CONNECTDATA& item) { item.pUnk->Release(); }
};

} // namespace

std::vector<ComRef<IUnknown>> ConnectionPoint::sinks() const {
    std::vector<ComRef<IUnknown>> all;
    all.reserve(sinks_.size());
    for (const auto& [cookie, sink] : sinks_)
        all.push_back(sink);
    return all;
}

HRESULT ConnectionPoint::QueryInterface(REFIID iid, void** found) {
    if (found == nullptr)
        return E_POINTER;
    *found = nullptr;
    if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, IID_IConnectionPoint))
        return E_NOINTERFACE;
    *found = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionInterface(IID* iid) {
    if (iid == nullptr)
        return E_POINTER;
    *iid = interfaceId_;
    return S_OK;
}

HRESULT ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
    if (container == nullptr)
        return E_POINTER;
    *container = &container_;
    container_.AddRef();
    return S_OK;
}

HRESULT ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
    if (sink == nullptr || cookie == nullptr)
        return E_POINTER;
    *cookie = 0;
    if (!owner_.onOwnThread())
        return RPC_E_WRONG_THREAD;
    return guarded([&]() -> HRESULT {
        ComRef<IUnknown> held;
        if (FAILED(sink->QueryInterface(interfaceId_, reinterpret_cast<void**>(held.out())))) {
            // Sinks of scripts answer late-bound calls alone.
            auto dispatch = queryFor<IDispatch>(sink);
            if (!dispatch || IsEqualIID(interfaceId_, IID_IPropertyNotifySink))
                return CONNECT_E_CANNOTCONNECT;
            held = ComRef<IUnknown>::adopting(dispatch.detach());
        }
        sinks_.emplace(++lastCookie_, std::move(held));
        *cookie = lastCookie_;
        return S_OK;
    });
}

HRESULT ConnectionPoint::Unadvise(DWORD cookie) {
    if (!owner_.onOwnThread())
        return RPC_E_WRONG_THREAD;
    const auto found = sinks_.find(cookie);
    if (found == sinks_.end())
        return CONNECT_E_NOCONNECTION;
    // Letting the sink go may run the host's code.
    const ComRef<IUnknown> last = std::move(found->second);
    sinks_.erase(found);
    return S_OK;
}

HRESULT ConnectionPoint::EnumConnections(IEnumConnections** connections) {
    if (connections == nullptr)
        return E_POINTER;
    *connections = nullptr;
    if (!owner_.onOwnThread())
        return RPC_E_WRONG_THREAD;
    return guarded([&] {
        std::vector<CONNECTDATA> items;
        items.reserve(sinks_.size());
        for (const auto& [cookie, sink] : sinks_) {
            CONNECTDATA item{};
            ConnectionPolicy::copy(item, {sink.get(), cookie});
            items.push_back(item);
        }
        *connections = new SnapshotEnum<IEnumConnections, CONNECTDATA, ConnectionPolicy>(std::move(items));
        return S_OK;
    });
}

} // namespace lumtex::win32

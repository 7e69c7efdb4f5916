/// \file
/// An object of the host, reached through its late-bound interface.
#pragma once

#include "values/variant.h"
#include "worlds/win32/com_ref.h"

#include <memory>
#include <span>

namespace lumtex::win32 {

class CallDetails;
class OwnedVARIANT;

/// Made by `objectFrom`.
class DispatchObject final : public Object, public std::enable_shared_from_this<DispatchObject> {
  public:
    explicit DispatchObject(ComRef<IDispatch> dispatch);

    using Object::call;
    using Object::get;
    Variant get(StringView name, std::span<Variant> arguments) override;
    void put(StringView name, const Variant& value) override;
    Variant call(StringView name, std::span<Variant> arguments) override;

    const ComRef<IDispatch>& dispatch() const { return dispatch_; }

  private:
    DISPID idOf(StringView name) const;
    HRESULT
    invoke(DISPID id, WORD kind, DISPPARAMS parameters, OwnedVARIANT* result, CallDetails& details) const;

    ComRef<IDispatch> dispatch_;
};

} // namespace lumtex::win32

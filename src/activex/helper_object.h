/// \file
/// The classes that hosts create beside the control.
#pragma once

#include "activex/automation_face.h"
#include "activex/class_faces.h"
#include "activex/guid.h"
#include "activex/module.h"
#include "worlds/win32/counted_object.h"
#include "worlds/win32/win32_runtime.h"

namespace lumtex::win32 {

class SpEvFace final : public AutomationFace {
  public:
    SpEvFace(IUnknown& outer, AutomationTarget& target) : AutomationFace(outer, target, guidOf("_SpEv")) {}
    ~SpEvFace() = default;

    // clang-format off
#include "activex/sp_ev_entries.inc"
    // clang-format on
};

class ErrorFace final : public AutomationFace {
  public:
    ErrorFace(IUnknown& outer, AutomationTarget& target) : AutomationFace(outer, target, guidOf("_Error")) {}
    ~ErrorFace() = default;

    // clang-format off
#include "activex/error_entries.inc"
    // clang-format on
};

/// An object of the helper calls.
class SpEvTarget final : public AutomationTarget {
  public:
    static constexpr GUID interfaceId = guidOf("_SpEv");
    using DualFace = SpEvFace;

    const automation::ClassDescription& description() const override { return automation::spEvClass(); }
    automation::CallByName byName() override { return automation::CallByName(helper_); }

  private:
    Win32Runtime runtime_{moduleInstance()};
    SpEv helper_{runtime_};
};

/// An object of the switch.
class ErrorTarget final : public AutomationTarget {
  public:
    static constexpr GUID interfaceId = guidOf("_Error");
    using DualFace = ErrorFace;

    const automation::ClassDescription& description() const override { return automation::errorClass(); }
    automation::CallByName byName() override { return automation::CallByName(error_); }

  private:
    Error error_;
};

/// Starts with one reference, the caller's.
template <class Target>
class HelperObject final : public CountedObject<IUnknown> {
  public:
    HelperObject() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        if (found == nullptr)
            return E_POINTER;
        *found = nullptr;
        IUnknown* face = nullptr;
        if (IsEqualIID(iid, IID_IUnknown))
            face = this;
        else if (IsEqualIID(iid, IID_IDispatch) || IsEqualIID(iid, Target::interfaceId))
            face = &face_;
        else if (IsEqualIID(iid, IID_ISupportErrorInfo))
            face = &errorInfo_;
        if (face == nullptr)
            return E_NOINTERFACE;
        AddRef();
        *found = face;
        return S_OK;
    }

  private:
    Target target_;
    typename Target::DualFace face_{*this, target_};
    ErrorInfoFace errorInfo_{*this, Target::interfaceId};
};

} // namespace lumtex::win32

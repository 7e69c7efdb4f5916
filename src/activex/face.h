/// \file
/// One interface of an object that has many.
#pragma once

#include "worlds/win32/windows_api.h"

namespace lumtex::win32 {

/// Shares identity and lifetime with the object as a whole, or with the host's object around it. `outer` must
/// outlive the face and is not counted.
template <class Interface>
class Face : public Interface {
  public:
    explicit Face(IUnknown& outer) : outer_(outer) {}
    Face(const Face&) = delete;
    Face& operator=(const Face&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        return outer_.QueryInterface(iid, found);
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return outer_.AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return outer_.Release(); }

  protected:
    ~Face() = default;

    IUnknown& outer() const { return outer_; }

  private:
    IUnknown& outer_;
};

} // namespace lumtex::win32

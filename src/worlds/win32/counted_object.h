/// \file
/// An object of the component model with one interface.
#pragma once

#include "worlds/win32/module_lock.h"
#include "worlds/win32/windows_api.h"

#include <atomic>

namespace lumtex::win32 {

/// Starts with one reference, the caller's, and ends with the last. Keeps the module in memory meanwhile.
template <class Interface>
class CountedObject : public Interface {
  public:
    CountedObject(const CountedObject&) = delete;
    CountedObject& operator=(const CountedObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** found) override {
        if (found == nullptr)
            return E_POINTER;
        *found = nullptr;
        if (!IsEqualIID(iid, IID_IUnknown) && !IsEqualIID(iid, __uuidof(Interface)))
            return E_NOINTERFACE;
        *found = static_cast<Interface*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() final { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() final {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

  protected:
    CountedObject() = default;
    virtual ~CountedObject() = default;

  private:
    std::atomic<ULONG> references_{1};
    ModuleLock lock_;
};

} // namespace lumtex::win32

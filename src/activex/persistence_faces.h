/// \file
/// The control's settings in a container's bag, stream or storage.
#pragma once

#include "activex/control_core.h"
#include "activex/face.h"

namespace lumtex::win32 {

/// A failed save leaves the dirty mark; one that was already initialised answers E_UNEXPECTED.
class BagFace final : public Face<IPersistPropertyBag> {
  public:
    BagFace(IUnknown& outer, ControlCore& core) : Face(outer), core_(core) {}
    ~BagFace() = default;

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override;
    HRESULT STDMETHODCALLTYPE InitNew() override;
    HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) override;
    HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clearDirty, BOOL everything) override;

  private:
    ControlCore& core_;
};

class StreamFace final : public Face<IPersistStreamInit> {
  public:
    StreamFace(IUnknown& outer, ControlCore& core) : Face(outer), core_(core) {}
    ~StreamFace() = default;

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override;
    HRESULT STDMETHODCALLTYPE IsDirty() override;
    HRESULT STDMETHODCALLTYPE Load(IStream* stream) override;
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) override;
    /// No bound is known: pictures have any size.
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* /*size*/) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE InitNew() override;

  private:
    ControlCore& core_;
};

/// One stream, "Contents", in the container's storage.
class StorageFace final : public Face<IPersistStorage> {
  public:
    StorageFace(IUnknown& outer, ControlCore& core) : Face(outer), core_(core) {}
    ~StorageFace() = default;

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) override;
    HRESULT STDMETHODCALLTYPE IsDirty() override;
    HRESULT STDMETHODCALLTYPE InitNew(IStorage* storage) override;
    HRESULT STDMETHODCALLTYPE Load(IStorage* storage) override;
    HRESULT STDMETHODCALLTYPE Save(IStorage* storage, BOOL sameAsLoad) override;
    HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* storage) override;
    HRESULT STDMETHODCALLTYPE HandsOffStorage() override { return S_OK; }

  private:
    ControlCore& core_;
};

} // namespace lumtex::win32

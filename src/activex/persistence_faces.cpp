/// Saving and loading.
#include "activex/persistence_faces.h"

#include "activex/com_guard.h"
#include "activex/guid.h"
#include "activex/host_property_bag.h"
#include "activex/settings_stream.h"

namespace lumtex::win32 {

namespace {

constexpr const wchar_t* streamName = L"Contents";

HRESULT giveClass(CLSID* id) {
    if (id == nullptr)
        return E_POINTER;
    *id = guidOf("lmListView");
    return S_OK;
}

HRESULT initNew(ControlCore& core) {
    return core.entered([&] { return core.initNew() ? S_OK : E_UNEXPECTED; });
}

/// Storages have a result of their own for a control that was initialised before.
HRESULT onceAgain(HRESULT result) {
    return result == E_UNEXPECTED ? CO_E_ALREADYINITIALIZED : result;
}

HRESULT loadFrom(ControlCore& core, IStream* stream) {
    if (stream == nullptr)
        return E_POINTER;
    return core.entered([&] {
        MemoryPropertyBag bag;
        loadSettings(*stream, bag);
        return core.load(bag) ? S_OK : E_UNEXPECTED;
    });
}

HRESULT saveTo(ControlCore& core, IStream* stream, bool clearDirty) {
    if (stream == nullptr)
        return E_POINTER;
    return core.entered([&] {
        MemoryPropertyBag bag;
        core.save(bag);
        saveSettings(*stream, bag);
        if (clearDirty)
            core.noteSaved();
        return S_OK;
    });
}

} // namespace

HRESULT BagFace::GetClassID(CLSID* id) {
    return giveClass(id);
}

HRESULT BagFace::InitNew() {
    return initNew(core_);
}

HRESULT BagFace::Load(IPropertyBag* bag, IErrorLog* log) {
    if (bag == nullptr)
        return E_POINTER;
    return core_.entered([&] {
        const HostPropertyBag from(*bag, log);
        return core_.load(from) ? S_OK : E_UNEXPECTED;
    });
}

HRESULT BagFace::Save(IPropertyBag* bag, BOOL clearDirty, BOOL everything) {
    if (bag == nullptr)
        return E_POINTER;
    return core_.entered([&] {
        HostPropertyBag to(*bag, nullptr, everything != FALSE);
        core_.save(to);
        if (clearDirty != FALSE)
            core_.noteSaved();
        return S_OK;
    });
}

HRESULT StreamFace::GetClassID(CLSID* id) {
    return giveClass(id);
}

HRESULT StreamFace::IsDirty() {
    return core_.dirty() ? S_OK : S_FALSE;
}

HRESULT StreamFace::Load(IStream* stream) {
    return loadFrom(core_, stream);
}

HRESULT StreamFace::Save(IStream* stream, BOOL clearDirty) {
    return saveTo(core_, stream, clearDirty != FALSE);
}

HRESULT StreamFace::InitNew() {
    return initNew(core_);
}

HRESULT StorageFace::GetClassID(CLSID* id) {
    return giveClass(id);
}

HRESULT StorageFace::IsDirty() {
    return core_.dirty() ? S_OK : S_FALSE;
}

HRESULT StorageFace::InitNew(IStorage* storage) {
    return storage == nullptr ? E_POINTER : onceAgain(initNew(core_));
}

HRESULT StorageFace::Load(IStorage* storage) {
    if (storage == nullptr)
        return E_POINTER;
    ComRef<IStream> stream;
    const HRESULT opened =
        storage->OpenStream(streamName, nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, stream.out());
    return FAILED(opened) ? opened : onceAgain(loadFrom(core_, stream.get()));
}

HRESULT StorageFace::Save(IStorage* storage, BOOL sameAsLoad) {
    if (storage == nullptr)
        return E_POINTER;
    ComRef<IStream> stream;
    const HRESULT created = storage->CreateStream(
        streamName, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, 0, stream.out());
    return FAILED(created) ? created : saveTo(core_, stream.get(), sameAsLoad != FALSE);
}

HRESULT StorageFace::SaveCompleted(IStorage* storage) {
    return core_.entered([&] {
        // A copy for somebody else, which no storage follows, leaves the settings as unsaved as they were.
        if (storage != nullptr)
            core_.noteSaved();
        return S_OK;
    });
}

} // namespace lumtex::win32

#include "worlds/win32/drop_target.h"

#include "platform/user_control.h"
#include "worlds/win32/carried_data.h"
#include "worlds/win32/counted_object.h"
#include "worlds/win32/shift_keys.h"
#include "worlds/win32/win32_world.h"

#include <new>
#include <utility>

#include <ole2.h>

namespace lumtex::win32 {

/// What the system calls. It may still do so once the window is gone.
class DropTarget final : public CountedObject<IDropTarget> {
  public:
    DropTarget(HWND window, UserControl& client) : window_(window), client_(&client) {}

    void detach() { client_ = nullptr; }

    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override {
        if (data == nullptr || effect == nullptr)
            return E_POINTER;
        if (!carry(data))
            return E_OUTOFMEMORY;
        drag({keys, at}, dragEnters, effect);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragOver(DWORD keys, POINTL at, DWORD* effect) override {
        if (effect == nullptr)
            return E_POINTER;
        drag({keys, at}, dragMoves, effect);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE DragLeave() override {
        DWORD none = DROPEFFECT_NONE;
        drag(last_, dragLeaves, &none);
        data_ = nullptr;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD keys, POINTL at, DWORD* effect) override {
        if (data == nullptr || effect == nullptr)
            return E_POINTER;
        if (data_ == nullptr && !carry(data))
            return E_OUTOFMEMORY;
        // The buttons are up by now; what was held during the drag is what the control is told.
        drop({(keys & ~buttonBits) | (last_.keys & buttonBits), at}, effect);
        return S_OK;
    }

  private:
    static constexpr DWORD buttonBits = MK_LBUTTON | MK_RBUTTON | MK_MBUTTON;

    struct Pointer {
        DWORD keys = 0;
        POINTL at{};
    };
    /// The arguments that both events have.
    struct Arguments {
        Long effect;
        Integer button;
        Integer shift;
        Single x;
        Single y;
    };

    bool carry(IDataObject* data) noexcept {
        try {
            data_ = carriedData(ComRef<IDataObject>(data));
            return true;
        } catch (const std::bad_alloc&) {
            return false;
        }
    }

    IUnknown* owner() const {
        const Win32World* const world = Win32World::of(window_);
        return world != nullptr ? world->owner : nullptr;
    }

    Arguments argumentsFor(const Pointer& pointer, DWORD allowed) const {
        POINT at{pointer.at.x, pointer.at.y};
        ScreenToClient(window_, &at);
        return {static_cast<Long>(allowed),
                buttonsIn(pointer.keys),
                shiftKeysIn(pointer.keys, (pointer.keys & MK_ALT) != 0),
                static_cast<Single>(at.x),
                static_cast<Single>(at.y)};
    }

    void drag(const Pointer& pointer, DragState state, DWORD* effect) {
        const ComRef<DropTarget> keep(this);
        last_ = pointer;
        const DWORD allowed = std::exchange(*effect, DROPEFFECT_NONE);
        if (client_ == nullptr || data_ == nullptr)
            return;
        const ObjectRef data = data_;
        Arguments told = argumentsFor(pointer, allowed);
        Integer stateNow = state;
        const ComRef<IUnknown> alive(owner());
        client_->UserControl_OLEDragOver(
            data, told.effect, told.button, told.shift, told.x, told.y, stateNow);
        *effect = static_cast<DWORD>(told.effect) & allowed;
    }

    void drop(const Pointer& pointer, DWORD* effect) {
        const ComRef<DropTarget> keep(this);
        const ObjectRef data = std::exchange(data_, nullptr);
        const DWORD allowed = std::exchange(*effect, DROPEFFECT_NONE);
        if (client_ == nullptr)
            return;
        Arguments told = argumentsFor(pointer, allowed);
        const ComRef<IUnknown> alive(owner());
        client_->UserControl_OLEDragDrop(data, told.effect, told.button, told.shift, told.x, told.y);
        *effect = static_cast<DWORD>(told.effect) & allowed;
    }

    HWND window_;
    UserControl* client_;
    ObjectRef data_;
    Pointer last_;
};

DropPlace::DropPlace(HWND window, UserControl& client)
    : window_(window), hasOle_(SUCCEEDED(OleInitialize(nullptr))) {
    auto target = ComRef<DropTarget>::adopting(new DropTarget(window, client));
    if (hasOle_ && SUCCEEDED(RegisterDragDrop(window, target.get())))
        target_ = std::move(target);
}

DropPlace::~DropPlace() {
    if (target_) {
        target_->detach();
        RevokeDragDrop(window_);
    }
    target_ = {};
    if (hasOle_)
        OleUninitialize();
}

} // namespace lumtex::win32

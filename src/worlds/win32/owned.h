/// \file
/// Owners of what the system hands out and wants back.
#pragma once

#include "worlds/win32/windows_api.h"

#include <utility>

namespace lumtex::win32 {

/// Owns a handle, or null; `release` gives it back.
template <class Handle, void (*release)(Handle)>
class Owned {
  public:
    Owned() = default;
    explicit Owned(Handle handle) : handle_(handle) {}
    Owned(Owned&& other) noexcept : handle_(other.detach()) {}
    Owned& operator=(Owned&& other) noexcept {
        std::swap(handle_, other.handle_);
        return *this;
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    ~Owned() {
        if (handle_ != Handle{})
            release(handle_);
    }

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != Handle{}; }
    /// Where a call stores a handle that it gives away. Only while it owns no handle.
    Handle* out() { return &handle_; }
    /// The handle, now the caller's.
    Handle detach() { return std::exchange(handle_, Handle{}); }

  private:
    Handle handle_{};
};

namespace detail {

inline void dropBitmap(HBITMAP bitmap) {
    DeleteObject(bitmap);
}
inline void dropIcon(HICON icon) {
    DestroyIcon(icon);
}
inline void dropContext(HDC context) {
    DeleteDC(context);
}
inline void dropMemory(HGLOBAL memory) {
    GlobalFree(memory);
}
inline void dropPicture(HENHMETAFILE picture) {
    DeleteEnhMetaFile(picture);
}
inline void dropPlainPicture(HMETAFILE picture) {
    DeleteMetaFile(picture);
}
inline void dropText(BSTR text) {
    SysFreeString(text);
}

} // namespace detail

using OwnedBitmap = Owned<HBITMAP, detail::dropBitmap>;
using OwnedIcon = Owned<HICON, detail::dropIcon>;
/// A memory context. What was selected into it before must go back first.
using OwnedContext = Owned<HDC, detail::dropContext>;
using OwnedMemory = Owned<HGLOBAL, detail::dropMemory>;
using OwnedPicture = Owned<HENHMETAFILE, detail::dropPicture>;
using OwnedPlainPicture = Owned<HMETAFILE, detail::dropPlainPicture>;
using OwnedBSTR = Owned<BSTR, detail::dropText>;

/// The context of the whole screen while this lives; null if there is no screen.
class ScreenContext {
  public:
    ScreenContext() = default;
    ScreenContext(const ScreenContext&) = delete;
    ScreenContext& operator=(const ScreenContext&) = delete;
    ~ScreenContext() { ReleaseDC(nullptr, context_); }

    HDC get() const { return context_; }

  private:
    HDC context_ = GetDC(nullptr);
};

/// A block of memory, which stays its owner's, locked in its place while this lives.
class LockedMemory {
  public:
    explicit LockedMemory(HGLOBAL memory) : memory_(memory), bytes_(GlobalLock(memory)) {}
    LockedMemory(const LockedMemory&) = delete;
    LockedMemory& operator=(const LockedMemory&) = delete;
    ~LockedMemory() {
        if (bytes_ != nullptr)
            GlobalUnlock(memory_);
    }

    /// Null if it could not be locked.
    void* bytes() const { return bytes_; }
    std::size_t size() const { return GlobalSize(memory_); }

  private:
    HGLOBAL memory_;
    void* bytes_;
};

} // namespace lumtex::win32

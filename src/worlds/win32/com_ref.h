/// \file
/// A counted reference to an object of the component model.
#pragma once

#include "worlds/win32/windows_api.h"

#include <utility>

namespace lumtex::win32 {

template <class T>
class ComRef;

/// Null for null, and for an object without that interface.
template <class U, class V>
ComRef<U> queryFor(V* object);

/// Owns one reference, or null.
template <class T>
class ComRef {
  public:
    ComRef() = default;
    /// Adds a reference of its own.
    explicit ComRef(T* object) : object_(object) {
        if (object_ != nullptr)
            object_->AddRef();
    }
    ComRef(const ComRef& other) : ComRef(other.object_) {}
    ComRef(ComRef&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ComRef& operator=(ComRef other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComRef() {
        if (object_ != nullptr)
            object_->Release();
    }

    /// Takes over the reference that the caller owns.
    static ComRef adopting(T* object) {
        ComRef ref;
        ref.object_ = object;
        return ref;
    }

    T* get() const { return object_; }
    T* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

    /// Where a call stores a reference that it gives away. Drops the old one.
    T** out() {
        *this = ComRef();
        return &object_;
    }
    /// The reference, now the caller's.
    T* detach() { return std::exchange(object_, nullptr); }

    /// The same object under another interface; null if it does not have it.
    template <class U>
    ComRef<U> as() const {
        return queryFor<U>(object_);
    }

  private:
    T* object_ = nullptr;
};

template <class U, class V>
ComRef<U> queryFor(V* object) {
    ComRef<U> result;
    void* found = nullptr;
    if (object != nullptr && SUCCEEDED(object->QueryInterface(__uuidof(U), &found)))
        result = ComRef<U>::adopting(static_cast<U*>(found));
    return result;
}

} // namespace lumtex::win32

/// \file
/// One argument of an event on its way to a sink and back.
#pragma once

#include "values/variant_conversion.h"
#include "worlds/win32/object_bridge.h"
#include "worlds/win32/variant_bridge.h"

namespace lumtex::win32 {

/// A reference that comes back to the control.
template <class T>
struct ByReference {
    T& value;
};
template <class T>
ByReference<T> byReference(T& value) {
    return {value};
}

/// How a sink takes arguments by reference.
enum class ReferenceForm : Byte {
    typed,   ///< as a pointer to the type of the interface
    variant, ///< as a pointer to a Variant: script languages lose what they write through any other
};

/// What stands behind a typed reference. `Type` is the system's mark for it.
template <class T>
struct EventStorage;

template <>
struct EventStorage<bool> {
    static constexpr VARTYPE type = VT_BOOL;
    VARIANT_BOOL held;
    explicit EventStorage(bool value) : held(value ? VARIANT_TRUE : VARIANT_FALSE) {}
    bool value() const { return held != VARIANT_FALSE; }
};
template <>
struct EventStorage<Integer> {
    static constexpr VARTYPE type = VT_I2;
    SHORT held;
    explicit EventStorage(Integer value) : held(value) {}
    Integer value() const { return held; }
};
template <>
struct EventStorage<Long> {
    static constexpr VARTYPE type = VT_I4;
    LONG held;
    explicit EventStorage(Long value) : held(value) {}
    Long value() const { return held; }
};
template <>
struct EventStorage<Single> {
    static constexpr VARTYPE type = VT_R4;
    FLOAT held;
    explicit EventStorage(Single value) : held(value) {}
    Single value() const { return held; }
};
template <>
struct EventStorage<Variant> {
    static constexpr VARTYPE type = VT_VARIANT;
    VARIANT held;
    explicit EventStorage(const Variant& value) : held(toVARIANT(value).release()) {}
    EventStorage(const EventStorage&) = delete;
    EventStorage& operator=(const EventStorage&) = delete;
    ~EventStorage() { VariantClear(&held); }
    Variant value() const { return fromVARIANT(held); }
};
template <>
struct EventStorage<ObjectRef> {
    static constexpr VARTYPE type = VT_DISPATCH;
    IDispatch* held;
    explicit EventStorage(const ObjectRef& value) : held(toIDispatch(value).detach()) {}
    EventStorage(const EventStorage&) = delete;
    EventStorage& operator=(const EventStorage&) = delete;
    ~EventStorage() {
        if (held != nullptr)
            held->Release();
    }
    ObjectRef value() const { return objectFrom(held); }
};

/// An argument, and how the sink takes references.
template <class T>
struct Passed {
    const T& argument;
    ReferenceForm form;
};

/// An argument by value.
template <class T>
class EventSlot {
  public:
    explicit EventSlot(const Passed<T>& passed) : value_(toVARIANT(Variant(passed.argument))) {}

    VARIANT asArgument() { return value_.get(); }
    void takeBack() {}

  private:
    OwnedVARIANT value_;
};

/// An argument by reference. What does not convert back leaves the control's value as it was.
template <class T>
class EventSlot<ByReference<T>> {
  public:
    explicit EventSlot(const Passed<ByReference<T>>& passed)
        : target_(passed.argument.value), form_(passed.form), storage_(target_),
          variant_(toVARIANT(Variant(target_))) {}

    VARIANT asArgument() {
        VARIANT result;
        VariantInit(&result);
        const bool asVariant = form_ == ReferenceForm::variant;
        V_VT(&result) =
            static_cast<VARTYPE>(VT_BYREF | (asVariant ? VARTYPE{VT_VARIANT} : EventStorage<T>::type));
        V_BYREF(&result) =
            asVariant ? static_cast<void*>(&variant_.get()) : static_cast<void*>(&storage_.held);
        return result;
    }
    void takeBack() {
        if (form_ == ReferenceForm::typed)
            target_ = storage_.value();
        else
            target_ = fromVariant<T>(fromVARIANT(variant_.get()));
    }

  private:
    T& target_;
    ReferenceForm form_;
    EventStorage<T> storage_;
    OwnedVARIANT variant_;
};

} // namespace lumtex::win32

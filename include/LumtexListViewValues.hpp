/// \file
/// What the calls of LumtexListView.hpp take and give: texts, Variants, references to objects, arguments of
/// events, and what a refused call throws. It stands on the headers of Windows and on the standard library of
/// C++17.
#pragma once

#include <cstddef>
#include <cstdio>
#include <initializer_list>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include <ocidl.h>
#include <olectl.h>
#include <windows.h>

namespace LumtexListView {

/// A call that did not reach its member, and the result that says why. What a list itself cannot do is no
/// such failure: the list reports that, and the call gives a zero.
class Failure : public std::runtime_error {
  public:
    Failure(const char* member, HRESULT result)
        : std::runtime_error(std::string(member) + ": result " + hexadecimal(result)), result_(result) {}

    HRESULT result() const noexcept { return result_; }

  private:
    static std::string hexadecimal(HRESULT result) {
        char text[11];
        std::snprintf(text, sizeof(text), "0x%08lX", static_cast<unsigned long>(result));
        return text;
    }

    HRESULT result_;
};

inline void demand(HRESULT result, const char* member) {
    if (FAILED(result))
        throw Failure(member, result);
}

/// Holds an object as long as it lives itself.
template <class T>
class Ref {
  public:
    Ref() = default;
    /// Shares the object with whoever gave it.
    Ref(T* object) : object_(object) {
        if (object_ != nullptr)
            object_->AddRef();
    }
    Ref(const Ref& other) : Ref(other.object_) {}
    Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Ref& operator=(Ref other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Ref() {
        if (object_ != nullptr)
            object_->Release();
    }

    operator T*() const { return object_; }
    T* operator->() const { return object_; }
    /// Where a call puts an object that it gives. Nothing may be held then.
    T** place() { return &object_; }
    void** anyPlace() { return reinterpret_cast<void**>(&object_); }

  private:
    T* object_ = nullptr;
};

/// Gives a control that was just made the settings of a new one, as containers do for a document that saved
/// them. Programs that save none call it all the same, before anything is asked of the control: a list hears
/// of the wheel only once its settings have come.
inline void loadUsualSettings(IUnknown* control) {
    Ref<IPersistStreamInit> loading;
    demand(control->QueryInterface(IID_IPersistStreamInit, loading.anyPlace()), "loadUsualSettings");
    CLSID itsClass{};
    demand(loading->GetClassID(&itsClass), "loadUsualSettings");
    Ref<IPersistStreamInit> usual;
    demand(
        CoCreateInstance(itsClass, nullptr, CLSCTX_INPROC_SERVER, IID_IPersistStreamInit, usual.anyPlace()),
        "loadUsualSettings");
    Ref<IStream> settings;
    demand(CreateStreamOnHGlobal(nullptr, TRUE, settings.place()), "loadUsualSettings");
    demand(usual->InitNew(), "loadUsualSettings");
    demand(usual->Save(settings, FALSE), "loadUsualSettings");
    demand(settings->Seek(LARGE_INTEGER{}, STREAM_SEEK_SET, nullptr), "loadUsualSettings");
    demand(loading->Load(settings), "loadUsualSettings");
}

/// A text on its way to a call or back. The units are UTF-16, under whichever name.
class Text {
  public:
    Text() = default;
    template <class From, std::enable_if_t<std::is_convertible_v<const From&, std::wstring_view>, int> = 0>
    Text(const From& from) : Text(std::wstring_view(from), 0) {}
    template <class From, std::enable_if_t<std::is_convertible_v<const From&, std::u16string_view>, long> = 0>
    Text(const From& from) : Text(wide(std::u16string_view(from)), 0) {}
    Text(const Text& other) : Text(std::wstring_view(other.str()), 0) {}
    Text(Text&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
    Text& operator=(Text other) noexcept {
        std::swap(text_, other.text_);
        return *this;
    }
    ~Text() { SysFreeString(text_); }

    BSTR get() const { return text_; }
    /// Where a call puts a text, which frees the one that it takes away.
    BSTR* place() { return &text_; }
    std::wstring str() const { return std::wstring(text_ != nullptr ? text_ : L"", SysStringLen(text_)); }

  private:
    Text(std::wstring_view text, int)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
        if (text_ == nullptr)
            throw std::bad_alloc();
    }
    static std::wstring_view wide(std::u16string_view text) {
        return {reinterpret_cast<const wchar_t*>(text.data()), text.size()};
    }

    BSTR text_ = nullptr;
};

/// For programs that keep their texts as std::u16string.
inline std::u16string utf16(std::wstring_view text) {
    return std::u16string(reinterpret_cast<const char16_t*>(text.data()), text.size());
}

/// A Variant: an index, a tag, a colour that may be left open.
class Value {
  public:
    Value() { VariantInit(&value_); }
    template <class From, std::enable_if_t<std::is_same_v<From, bool>, int> = 0>
    Value(From from) : Value() {
        value_.vt = VT_BOOL;
        value_.boolVal = from ? VARIANT_TRUE : VARIANT_FALSE;
    }
    /// Any whole number, as a Long: no list has more rows. A colour keeps its bits.
    template <
        class From,
        std::enable_if_t<(std::is_integral_v<From> && !std::is_same_v<From, bool>) || std::is_enum_v<From>,
                         long> = 0>
    Value(From from) : Value() {
        value_.vt = VT_I4;
        value_.lVal = static_cast<long>(from);
    }
    Value(double from) : Value() {
        value_.vt = VT_R8;
        value_.dblVal = from;
    }
    template <class From, std::enable_if_t<std::is_constructible_v<Text, const From&>, int> = 0>
    Value(const From& from) : Value() {
        Text text(from);
        value_.vt = VT_BSTR;
        std::swap(value_.bstrVal, *text.place());
    }
    /// Shares the object with whoever gave it.
    Value(IDispatch* from) : Value() {
        value_.vt = VT_DISPATCH;
        value_.pdispVal = from;
        if (from != nullptr)
            from->AddRef();
    }
    explicit Value(const VARIANT& from) : Value() {
        demand(VariantCopyInd(&value_, readable(from)), "Value");
    }
    Value(const Value& other) : Value(other.value_) {}
    Value(Value&& other) noexcept : Value() { std::swap(value_, other.value_); }
    Value& operator=(Value other) noexcept {
        std::swap(value_, other.value_);
        return *this;
    }
    ~Value() { VariantClear(&value_); }

    /// As the system marks it, VT_I4 or another.
    VARTYPE type() const { return value_.vt; }
    const VARIANT& get() const { return value_; }
    /// Where a call puts a Variant, which clears the one that it takes away.
    VARIANT* place() { return &value_; }

    // These throw Failure for what does not convert.

    bool toBool() const { return as(VT_BOOL).value_.boolVal != VARIANT_FALSE; }
    long toLong() const { return as(VT_I4).value_.lVal; }
    double toDouble() const { return as(VT_R8).value_.dblVal; }
    std::wstring toText() const {
        const Value text = as(VT_BSTR);
        return std::wstring(text.value_.bstrVal, SysStringLen(text.value_.bstrVal));
    }
    Ref<IDispatch> toObject() const { return as(VT_DISPATCH).value_.pdispVal; }

  private:
    // Not every kit's header promises that these are only read.
    static VARIANT* readable(const VARIANT& from) { return const_cast<VARIANT*>(&from); }
    Value as(VARTYPE type) const {
        Value result;
        demand(VariantChangeType(&result.value_, readable(value_), 0, type), "Value");
        return result;
    }

    VARIANT value_;
};

/// Any number of Variants.
class Values {
  public:
    Values() = default;
    Values(std::initializer_list<Value> values) : Values(std::vector<Value>(values)) {}
    Values(const std::vector<Value>& values)
        : array_(SafeArrayCreateVector(VT_VARIANT, 0, static_cast<ULONG>(values.size()))) {
        if (array_ == nullptr)
            throw std::bad_alloc();
        LONG place = 0;
        for (const Value& value : values) {
            VARIANT item = value.get();
            const HRESULT result = SafeArrayPutElement(array_, &place, &item);
            if (FAILED(result))
                SafeArrayDestroy(array_);
            demand(result, "Values");
            ++place;
        }
    }
    Values(const Values&) = delete;
    Values& operator=(const Values&) = delete;
    ~Values() { SafeArrayDestroy(array_); }

    /// None for no values.
    SAFEARRAY* get() const { return array_; }

  private:
    SAFEARRAY* array_ = nullptr;
};

template <class T>
T* placeOf(T& variable) {
    return &variable;
}
inline VARIANT* placeOf(Value& variable) {
    return variable.place();
}
inline BSTR* placeOf(Text& variable) {
    return variable.place();
}

/// An argument that the list may change: a value, or the address of a variable, which then has what the list
/// left.
template <class T>
class Changing {
  public:
    Changing(T* variable) : variable_(variable) {}
    template <class From, std::enable_if_t<std::is_constructible_v<T, const From&>, int> = 0>
    Changing(const From& value) : own_(value), variable_(&own_) {}
    Changing(const Changing&) = delete;
    Changing& operator=(const Changing&) = delete;
    ~Changing() = default;

    auto place() { return placeOf(*variable_); }

  private:
    T own_{};
    T* variable_;
};

/// One argument of an event, as a handler takes it. Throws Failure for a Variant of another kind.
template <class T>
class EventArgument;

namespace details {

inline VARIANT& ofKind(VARIANT& from, int type) {
    if (from.vt != type)
        throw Failure("event", DISP_E_TYPEMISMATCH);
    return from;
}

/// A variable of the list's.
template <class T, VARTYPE type>
class Reference {
  public:
    explicit Reference(VARIANT& from) : variable_(static_cast<T*>(ofKind(from, VT_BYREF | type).byref)) {}
    operator T&() const { return *variable_; }

  private:
    T* variable_;
};

} // namespace details

template <>
class EventArgument<long> {
  public:
    explicit EventArgument(VARIANT& from) : value_(details::ofKind(from, VT_I4).lVal) {}
    operator long() const { return value_; }

  private:
    long value_;
};
template <>
class EventArgument<bool> {
  public:
    explicit EventArgument(VARIANT& from) : value_(details::ofKind(from, VT_BOOL).boolVal != VARIANT_FALSE) {}
    operator bool() const { return value_; }

  private:
    bool value_;
};
template <>
class EventArgument<const std::wstring&> {
  public:
    explicit EventArgument(VARIANT& from) {
        const BSTR text = details::ofKind(from, VT_BSTR).bstrVal;
        value_.assign(text != nullptr ? text : L"", SysStringLen(text));
    }
    operator const std::wstring&() const { return value_; }

  private:
    std::wstring value_;
};
template <>
class EventArgument<IDispatch*> {
  public:
    explicit EventArgument(VARIANT& from)
        : object_(*details::ofKind(from, VT_BYREF | VT_DISPATCH).ppdispVal) {}
    operator IDispatch*() const { return object_; }

  private:
    Ref<IDispatch> object_;
};
template <>
class EventArgument<short&> : public details::Reference<short, VT_I2> {
    using Reference::Reference;
};
template <>
class EventArgument<long&> : public details::Reference<long, VT_I4> {
    using Reference::Reference;
};
template <>
class EventArgument<float&> : public details::Reference<float, VT_R4> {
    using Reference::Reference;
};
template <>
class EventArgument<VARIANT&> : public details::Reference<VARIANT, VT_VARIANT> {
    using Reference::Reference;
};
/// What the handler leaves goes back once it has returned.
template <>
class EventArgument<bool&> {
  public:
    explicit EventArgument(VARIANT& from)
        : variable_(details::ofKind(from, VT_BYREF | VT_BOOL).pboolVal), value_(*variable_ != VARIANT_FALSE) {
    }
    EventArgument(const EventArgument&) = delete;
    EventArgument& operator=(const EventArgument&) = delete;
    ~EventArgument() { *variable_ = value_ ? VARIANT_TRUE : VARIANT_FALSE; }
    operator bool&() { return value_; }

  private:
    VARIANT_BOOL* variable_;
    bool value_;
};

namespace details {

// Arguments come last to first.
template <class Events, class... Arguments, std::size_t... places>
void tell(Events& events,
          void (Events::*event)(Arguments...),
          const DISPPARAMS& parameters,
          std::index_sequence<places...>) {
    constexpr std::size_t count = sizeof...(Arguments);
    if (parameters.cArgs != count)
        throw Failure("event", DISP_E_BADPARAMCOUNT);
    [[maybe_unused]] std::tuple<EventArgument<Arguments>...> held{parameters.rgvarg[count - 1 - places]...};
    (events.*event)(std::get<places>(held)...);
}

} // namespace details

/// Has the handler of an event take the arguments that a list gave.
template <class Events, class... Arguments>
void tell(Events& events, void (Events::*event)(Arguments...), const DISPPARAMS& parameters) {
    details::tell(events, event, parameters, std::index_sequence_for<Arguments...>());
}

} // namespace LumtexListView

/// An object of the host, as ours.
#include "worlds/win32/dispatch_object.h"

#include "values/runtime_error.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/owned.h"
#include "worlds/win32/variant_bridge.h"

#include <vector>

#include <dispex.h>

namespace lumtex::win32 {

namespace {

/// Arguments as a call takes them: the last one first.
class PassedArguments {
  public:
    explicit PassedArguments(std::span<const Variant> arguments) {
        values_.reserve(arguments.size());
        for (auto it = arguments.rbegin(); it != arguments.rend(); ++it)
            values_.push_back(toVARIANT(*it));
        passed_.resize(values_.size());
    }

    /// Valid while this object lives and until the next call.
    DISPPARAMS byValue() {
        for (std::size_t i = 0; i < values_.size(); ++i)
            passed_[i] = values_[i].get();
        return parameters();
    }
    DISPPARAMS byReference() {
        for (std::size_t i = 0; i < values_.size(); ++i) {
            VariantInit(&passed_[i]);
            V_VT(&passed_[i]) = VT_BYREF | VT_VARIANT;
            V_VARIANTREF(&passed_[i]) = &values_[i].get();
        }
        return parameters();
    }
    /// What the called object left in them.
    void readBack(std::span<Variant> arguments) const {
        for (std::size_t i = 0; i < arguments.size(); ++i)
            arguments[i] = fromVARIANT(values_[values_.size() - 1 - i].get());
    }

  private:
    DISPPARAMS parameters() { return {passed_.data(), nullptr, static_cast<UINT>(passed_.size()), 0}; }

    std::vector<OwnedVARIANT> values_;
    std::vector<VARIANT> passed_; ///< own nothing
};

} // namespace

DispatchObject::DispatchObject(ComRef<IDispatch> dispatch) : dispatch_(std::move(dispatch)) {}

DISPID DispatchObject::idOf(StringView name) const {
    if (name.empty())
        return DISPID_VALUE;
    const String copy(name);
    auto* spelled = const_cast<wchar_t*>(wide(copy)); // the call takes no const and changes nothing
    DISPID id = DISPID_UNKNOWN;
    HRESULT result = dispatch_->GetIDsOfNames(IID_NULL, &spelled, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(result)) {
        // A class of a script answers only here.
        if (const auto extended = dispatch_.as<IDispatchEx>()) {
            const OwnedBSTR sought(newBSTR(name));
            result = extended->GetDispID(sought.get(), fdexNameCaseInsensitive, &id);
        }
    }
    if (FAILED(result))
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    return id;
}

HRESULT DispatchObject::invoke(
    DISPID id, WORD kind, DISPPARAMS parameters, OwnedVARIANT* result, CallDetails& details) const {
    UINT wrongArgument = 0;
    return dispatch_->Invoke(id,
                             IID_NULL,
                             LOCALE_USER_DEFAULT,
                             kind,
                             &parameters,
                             result != nullptr ? result->out() : nullptr,
                             details.out(),
                             &wrongArgument);
}

Variant DispatchObject::get(StringView name, std::span<Variant> arguments) {
    // A handler of the called object may drop the last reference to this one.
    const ObjectRef keep = shared_from_this();
    const DISPID id = idOf(name);
    PassedArguments passed(arguments);
    OwnedVARIANT value;
    CallDetails details;
    HRESULT result = invoke(id, DISPATCH_METHOD | DISPATCH_PROPERTYGET, passed.byValue(), &value, details);
    // A plain property of a script object refuses to be called.
    if (FAILED(result) && arguments.empty()) {
        CallDetails again;
        const HRESULT second = invoke(id, DISPATCH_PROPERTYGET, passed.byValue(), &value, again);
        if (SUCCEEDED(second))
            result = second;
    }
    if (FAILED(result))
        throwCallFailure(result, details);
    return fromVARIANT(value.get());
}

void DispatchObject::put(StringView name, const Variant& value) {
    const ObjectRef keep = shared_from_this();
    const DISPID id = idOf(name);
    OwnedVARIANT argument = toVARIANT(value);
    DISPID put = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{&argument.get(), &put, 1, 1};
    CallDetails details;
    HRESULT result = DISP_E_MEMBERNOTFOUND;
    if (value.isObject())
        result = invoke(id, DISPATCH_PROPERTYPUTREF, parameters, nullptr, details);
    // Many objects know but one way of assigning.
    if (result == DISP_E_MEMBERNOTFOUND || result == E_NOTIMPL) {
        result = invoke(id, DISPATCH_PROPERTYPUT, parameters, nullptr, details);
    }
    if (FAILED(result))
        throwCallFailure(result, details);
}

Variant DispatchObject::call(StringView name, std::span<Variant> arguments) {
    const ObjectRef keep = shared_from_this();
    const DISPID id = idOf(name);
    PassedArguments passed(arguments);
    OwnedVARIANT value;
    CallDetails details;
    HRESULT result = invoke(id, DISPATCH_METHOD, passed.byReference(), &value, details);
    // Refused before anything was done: a function that is only known as a property, or one that takes no
    // references.
    if (result == DISP_E_MEMBERNOTFOUND) {
        result = invoke(id, DISPATCH_METHOD | DISPATCH_PROPERTYGET, passed.byReference(), &value, details);
    }
    if (result == DISP_E_TYPEMISMATCH || result == DISP_E_BADVARTYPE) {
        result = invoke(id, DISPATCH_METHOD, passed.byValue(), &value, details);
    }
    if (FAILED(result))
        throwCallFailure(result, details);
    passed.readBack(arguments);
    return fromVARIANT(value.get());
}

ObjectRef objectFrom(IDispatch* dispatch) {
    if (dispatch == nullptr)
        return nullptr;
    return std::make_shared<DispatchObject>(ComRef<IDispatch>(dispatch));
}

} // namespace lumtex::win32

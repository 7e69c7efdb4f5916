/// One of our objects, as the host sees it.
#include "worlds/win32/object_bridge.h"

#include "values/runtime_error.h"
#include "values/text.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/counted_object.h"
#include "worlds/win32/dispatch_object.h"
#include "worlds/win32/variant_bridge.h"
#include "worlds/win32/write_back.h"

#include <new>
#include <vector>

namespace lumtex::win32 {

namespace {

/// Numbers names in the order in which it is asked for them: whether there is such a member shows in the
/// call.
class ObjectDispatch final : public CountedObject<IDispatch> {
  public:
    explicit ObjectDispatch(ObjectRef object) : object_(std::move(object)) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        if (count == nullptr)
            return E_POINTER;
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT /*index*/, LCID /*locale*/, ITypeInfo** info) override {
        if (info == nullptr)
            return E_POINTER;
        *info = nullptr;
        return DISP_E_BADINDEX;
    }
    HRESULT STDMETHODCALLTYPE
    GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*locale*/, DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id,
                                     REFIID iid,
                                     LCID locale,
                                     WORD kind,
                                     DISPPARAMS* parameters,
                                     VARIANT* result,
                                     EXCEPINFO* details,
                                     UINT* wrongArgument) override;

    const ObjectRef& object() const { return object_; }

  private:
    DISPID idOf(StringView name);
    Variant perform(StringView name, WORD kind, const DISPPARAMS& parameters);

    ObjectRef object_;
    std::vector<String> names_; ///< by id, from 1
};

HRESULT ObjectDispatch::GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID /*locale*/, DISPID* ids) {
    if (!IsEqualIID(iid, IID_NULL))
        return DISP_E_UNKNOWNINTERFACE;
    if (names == nullptr || ids == nullptr || count == 0)
        return E_INVALIDARG;
    try {
        ids[0] = idOf(textOf(names[0]));
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
    for (UINT i = 1; i < count; ++i)
        ids[i] = DISPID_UNKNOWN;
    return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

DISPID ObjectDispatch::idOf(StringView name) {
    std::size_t known = 0;
    while (known < names_.size() && !sameName(names_[known], name))
        ++known;
    if (known == names_.size())
        names_.emplace_back(name);
    return static_cast<DISPID>(known + 1);
}

Variant ObjectDispatch::perform(StringView name, WORD kind, const DISPPARAMS& parameters) {
    if ((kind & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
        if (parameters.cArgs != 1)
            throw RuntimeError(ErrorNumber::wrongNumberOfArguments);
        object_->put(name, fromVARIANT(parameters.rgvarg[0]));
        return {};
    }
    std::vector<Variant> arguments;
    arguments.reserve(parameters.cArgs);
    for (UINT i = parameters.cArgs; i > 0; --i)
        arguments.push_back(fromVARIANT(parameters.rgvarg[i - 1]));
    if (kind == DISPATCH_PROPERTYGET)
        return object_->get(name, arguments);
    Variant result;
    try {
        result = object_->call(name, arguments);
    } catch (const RuntimeError& failure) {
        // Whoever says "method or property" means a property here.
        if (failure.number() != ErrorNumber::objectDoesNotSupportMember || (kind & DISPATCH_PROPERTYGET) == 0)
            throw;
        return object_->get(name, arguments);
    }
    for (UINT i = 0; i < parameters.cArgs; ++i)
        writeBack(arguments[parameters.cArgs - 1 - i], parameters.rgvarg[i]);
    return result;
}

HRESULT ObjectDispatch::Invoke(DISPID id,
                               REFIID iid,
                               LCID /*locale*/,
                               WORD kind,
                               DISPPARAMS* parameters,
                               VARIANT* result,
                               EXCEPINFO* details,
                               UINT* /*wrongArgument*/) {
    if (!IsEqualIID(iid, IID_NULL))
        return DISP_E_UNKNOWNINTERFACE;
    if (parameters == nullptr || (parameters->cArgs > 0 && parameters->rgvarg == nullptr))
        return E_INVALIDARG;
    if (id < 1 || static_cast<std::size_t>(id) > names_.size())
        return DISP_E_MEMBERNOTFOUND;
    const ComRef<IDispatch> keep(this);
    try {
        const String name = names_[static_cast<std::size_t>(id - 1)];
        OwnedVARIANT value = toVARIANT(perform(name, kind, *parameters));
        if (result != nullptr)
            *result = value.release();
        return S_OK;
    } catch (const RuntimeError& failure) {
        if (failure.number() == ErrorNumber::objectDoesNotSupportMember)
            return DISP_E_MEMBERNOTFOUND;
        if (details == nullptr)
            return resultOf(failure.number());
        *details = {};
        details->scode = resultOf(failure.number());
        details->bstrDescription = SysAllocString(wide(failure.description()));
        return DISP_E_EXCEPTION;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

} // namespace

ComRef<IDispatch> toIDispatch(const ObjectRef& object) {
    if (!object)
        return {};
    if (const auto* host = dynamic_cast<const DispatchObject*>(object.get()))
        return host->dispatch();
    return ComRef<IDispatch>::adopting(new ObjectDispatch(object));
}

} // namespace lumtex::win32

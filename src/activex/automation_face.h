/// \file
/// The dual interface of a public class: calls by dispatch number, and the means for calls by table.
#pragma once

#include "activex/automation_target.h"
#include "activex/com_guard.h"
#include "activex/dual_arguments.h"
#include "activex/face.h"
#include "worlds/win32/com_ref.h"

#include <algorithm>

namespace lumtex::win32 {

/// A derived class includes its generated entries and adds no other virtual function: its table of functions
/// is the one in the type library.
class AutomationFace : public Face<IDispatch> {
  public:
    AutomationFace(IUnknown& outer, AutomationTarget& target, const GUID& interfaceId)
        : Face(outer), target_(target), interfaceId_(interfaceId) {}

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) final;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) final;
    HRESULT STDMETHODCALLTYPE
    GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) final;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID number,
                                     REFIID iid,
                                     LCID locale,
                                     WORD kind,
                                     DISPPARAMS* parameters,
                                     VARIANT* result,
                                     EXCEPINFO* details,
                                     UINT* wrongArgument) final;

  protected:
    ~AutomationFace() = default;

    template <class Result, class... Arguments>
    HRESULT getBy(Long number, Result* result, Arguments... arguments) noexcept {
        return giving(
            result,
            [&](automation::CallByName& byName, automation::ArgumentList& list) {
                return byName.get(memberOf(number), list);
            },
            arguments...);
    }
    template <class Result, class... Arguments>
    HRESULT callBy(Long number, Result* result, Arguments... arguments) noexcept {
        return giving(
            result,
            [&](automation::CallByName& byName, automation::ArgumentList& list) {
                return byName.call(memberOf(number), list);
            },
            arguments...);
    }
    template <class... Arguments>
    HRESULT callBy(Long number, NoResult /*none*/, Arguments... arguments) noexcept {
        return entered([&] {
            passing([&](automation::CallByName& byName,
                        automation::ArgumentList& list) { return byName.call(memberOf(number), list); },
                    arguments...);
        });
    }
    /// The assigned value comes last.
    template <class... Arguments>
    HRESULT letBy(Long number, Arguments... arguments) noexcept {
        return assigning(&automation::CallByName::let, number, arguments...);
    }
    template <class... Arguments>
    HRESULT setBy(Long number, Arguments... arguments) noexcept {
        return assigning(&automation::CallByName::set, number, arguments...);
    }

  private:
    using Assign = void (automation::CallByName::*)(const automation::Member&, automation::ArgumentList&);

    const automation::Member& memberOf(Long number) const;
    HRESULT told(const RuntimeError& error) const noexcept;

    template <class Body>
    HRESULT entered(Body&& body) noexcept {
        if (!target_.onOwnThread())
            return RPC_E_WRONG_THREAD;
        // The object may be let go in the call.
        const ComRef<IUnknown> alive(&outer());
        return guarded([&]() -> HRESULT {
            try {
                body();
                return S_OK;
            } catch (const NullArgument&) {
                return E_POINTER;
            } catch (const RuntimeError& error) {
                return told(error);
            }
        });
    }

    template <class Call, class... Arguments>
    Variant passing(Call&& call, Arguments... arguments) {
        DualArguments own(target_.spareText(), arguments...);
        automation::CallByName byName = target_.byName();
        Variant value = call(byName, own.list());
        // A list of any length comes last and is never written back.
        auto& values = own.list().values();
        values.resize(std::max(values.size(), sizeof...(Arguments)));
        [[maybe_unused]] std::size_t place = 0;
        (storeBack(values[place++], arguments), ...);
        return value;
    }

    template <class Result, class Call, class... Arguments>
    HRESULT giving(Result* result, Call&& call, Arguments... arguments) noexcept {
        if (result == nullptr)
            return E_POINTER;
        *result = Result{};
        return entered([&] { storeResult(passing(call, arguments...), *result); });
    }

    template <class... Arguments>
    HRESULT assigning(Assign assign, Long number, Arguments... arguments) noexcept {
        return entered([&] {
            DualArguments own(target_.spareText(), arguments...);
            automation::CallByName byName = target_.byName();
            (byName.*assign)(memberOf(number), own.list());
        });
    }

    AutomationTarget& target_;
    GUID interfaceId_;
};

} // namespace lumtex::win32

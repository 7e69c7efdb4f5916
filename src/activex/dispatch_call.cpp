/// One call by dispatch number.
#include "activex/dispatch_call.h"

#include "activex/argument_bridge.h"
#include "activex/com_guard.h"
#include "automation/argument_list.h"
#include "guards/failure_of.h"
#include "values/text.h"
#include "values/variant_conversion.h"
#include "worlds/win32/variant_bridge.h"
#include "worlds/win32/win32_locale.h"
#include "worlds/win32/write_back.h"

#include <algorithm>
#include <memory_resource>
#include <utility>
#include <vector>

namespace lumtex::win32 {

namespace {

constexpr WORD reading = DISPATCH_PROPERTYGET | DISPATCH_METHOD;
constexpr WORD assigning = DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF;

bool endsInList(const automation::Member& member) {
    return member.count > 0 &&
           member.entries[member.count - 1].type.code == automation::TypeCode::variantList;
}

/// An argument that cannot be taken, by its place in the caller's array.
class RefusedArgument : public std::exception {
  public:
    RefusedArgument(HRESULT result, UINT place) : result_(result), place_(place) {}

    HRESULT result() const { return result_; }
    UINT place() const { return place_; }

  private:
    HRESULT result_;
    UINT place_;
};

/// Whether it is the mark of any value at all.
bool marksValue(VARTYPE type) {
    const auto held = static_cast<VARTYPE>(type & VT_TYPEMASK);
    const bool elsewhere = (type & (VT_BYREF | VT_ARRAY)) != 0;
    if ((type & ~(VT_TYPEMASK | VT_BYREF | VT_ARRAY)) != 0)
        return false;
    if (held == VT_EMPTY || held == VT_NULL)
        return !elsewhere;
    if (held == VT_VARIANT)
        return elsewhere;
    return held <= VT_DECIMAL || (held >= VT_I1 && held <= VT_UINT) || held == VT_RECORD;
}

Variant valueAt(const DISPPARAMS& parameters, UINT place) {
    const VARIANT& given = parameters.rgvarg[place];
    if (!marksValue(V_VT(&given)))
        throw RefusedArgument(DISP_E_BADVARTYPE, place);
    try {
        return argumentFrom(given);
    } catch (const NullArgument&) {
        throw RefusedArgument(E_POINTER, place);
    } catch (const RuntimeError& error) {
        throw RefusedArgument(automationResult(error), place);
    }
}

/// The arguments in the order of the parameters, and for each the place in the caller's array.
class Arguments {
  public:
    /// `from` leaves out the caller's leading arguments, as an assigned value is one. Throws RuntimeError,
    /// and RefusedArgument.
    Arguments(const automation::Member& member, const DISPPARAMS& parameters, UINT from)
        : parameters_(parameters) {
        places_.reserve(automation::Member::mostParameters);
        const UINT named = parameters.cNamedArgs;
        const UINT positional = parameters.cArgs - named;
        if (!endsInList(member) && positional > member.count)
            throw RuntimeError(ErrorNumber::wrongNumberOfArguments);
        for (UINT i = 0; i < positional; ++i)
            take(i, parameters.cArgs - 1 - i);
        for (UINT i = from; i < named; ++i) {
            const DISPID place = parameters.rgdispidNamedArgs[i];
            // No such parameter, or one that has its argument already.
            if (place < 0 || static_cast<std::size_t>(place) >= member.count || isTaken(place))
                throw RefusedArgument(DISP_E_PARAMNOTFOUND, i);
            take(static_cast<std::size_t>(place), i);
        }
    }

    std::span<Variant> values() { return values_; }
    /// Counts from 0 in the caller's array.
    UINT placeOf(std::size_t parameter) const { return places_[parameter]; }

    bool wasGiven(std::size_t parameter) const { return places_[parameter] != none; }

    /// Where the caller's variable cannot hold a value, it keeps what it has.
    void writeBackTo(const automation::Member& member, LCID locale) {
        for (std::size_t i = 0; i < values_.size() && i < member.count; ++i)
            if (member.entries[i].byReference && places_[i] != none)
                ignoringErrors([&] { writeBack(values_[i], parameters_.rgvarg[places_[i]], locale); });
    }

  private:
    static constexpr UINT none = ~0U;

    bool isTaken(DISPID parameter) const {
        const auto i = static_cast<std::size_t>(parameter);
        return i < places_.size() && places_[i] != none;
    }
    void take(std::size_t parameter, UINT place) {
        if (values_.size() <= parameter) {
            values_.resize(parameter + 1, Missing{});
            places_.resize(parameter + 1, none);
        }
        places_[parameter] = place;
        values_[parameter] = valueAt(parameters_, place);
    }

    const DISPPARAMS& parameters_;
    automation::ArgumentList list_;
    std::pmr::vector<Variant>& values_ = list_.values();
    std::byte room_[automation::Member::mostParameters * sizeof(UINT)];
    std::pmr::monotonic_buffer_resource beyond_{room_, sizeof(room_)};
    std::pmr::vector<UINT> places_ = std::pmr::vector<UINT>(&beyond_);
};

/// Whether the value converts to the type; the control would refuse it else.
bool fits(const Variant& value, automation::TypeCode type) {
    try {
        switch (type) {
        case automation::TypeCode::boolean:
            static_cast<void>(value.toBoolean());
            break;
        case automation::TypeCode::integer:
            static_cast<void>(value.toInteger());
            break;
        case automation::TypeCode::longInteger:
        case automation::TypeCode::enumeration:
            static_cast<void>(value.toLong());
            break;
        case automation::TypeCode::single:
            static_cast<void>(value.toSingle());
            break;
        case automation::TypeCode::string:
            static_cast<void>(value.toText());
            break;
        case automation::TypeCode::color:
            static_cast<void>(value.toColor());
            break;
        case automation::TypeCode::picture:
            static_cast<void>(value.toPicture());
            break;
        case automation::TypeCode::font:
            static_cast<void>(value.toFont());
            break;
        case automation::TypeCode::object:
            static_cast<void>(fromVariant<ObjectRef>(value));
            break;
        default:
            break;
        }
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

UINT placeOfMisfit(const automation::Member& member, Arguments& arguments, const Locale& callers) {
    const UsingLocale asTheCallerWrites(callers);
    const auto values = arguments.values();
    for (std::size_t i = 0; i < values.size() && i < member.count; ++i)
        if (values[i].isMissing() ? !member.entries[i].optional() && arguments.wasGiven(i)
                                  : !fits(values[i], member.entries[i].type.code))
            return arguments.placeOf(i);
    return 0;
}

void assign(automation::CallByName& byName,
            const automation::Member& member,
            const DispatchCall& call,
            Arguments& arguments) {
    Variant value = valueAt(*call.parameters, 0);
    const bool asReference = (call.kind & DISPATCH_PROPERTYPUTREF) != 0;
    // Some script languages have one way to assign for everything.
    if (asReference ? member.isReference() || (call.kind & DISPATCH_PROPERTYPUT) == 0
                    : member.isReference() && value.isObject())
        byName.set(member, arguments.values(), std::move(value));
    else
        byName.let(member, arguments.values(), std::move(value));
}

void describe(const RuntimeError& error, EXCEPINFO* details) {
    if (details == nullptr)
        return;
    *details = {};
    details->scode = resultOf(error.number());
    details->bstrSource = newBSTR(u"LumtexListView");
    details->bstrDescription = newBSTR(error.description());
}

/// The results of refused arguments and members travel as they are, with the place that was wrong; any other
/// failure with its text.
HRESULT refusal(const RuntimeError& error, const DispatchCall& call) {
    const HRESULT result = automationResult(error);
    if (HRESULT_FACILITY(result) == FACILITY_DISPATCH || result == E_OUTOFMEMORY)
        return result;
    describe(error, call.details);
    return DISP_E_EXCEPTION;
}

HRESULT perform(AutomationTarget& target, const automation::Member& member, const DispatchCall& call) {
    const bool assigns = (call.kind & assigning) != 0;
    DISPPARAMS& parameters = *call.parameters;
    if (assigns && (parameters.cArgs == 0 || parameters.cNamedArgs == 0 ||
                    parameters.rgdispidNamedArgs[0] != DISPID_PROPERTYPUT))
        return DISP_E_PARAMNOTOPTIONAL;
    Arguments arguments(member, parameters, assigns ? 1 : 0);
    const Win32Locale callers(call.locale);
    automation::CallByName byName = target.byName();
    byName.letCallersLocale(&callers);
    try {
        if (assigns) {
            assign(byName, member, call, arguments);
            return S_OK;
        }
        const Variant value = member.isMethod() ? byName.call(member, arguments.values())
                                                : byName.get(member, arguments.values());
        arguments.writeBackTo(member, call.locale);
        if (member.type.code != automation::TypeCode::none && call.result != nullptr)
            *call.result = toVARIANT(value).release();
        return S_OK;
    } catch (const RuntimeError& error) {
        if (call.wrongArgument != nullptr)
            *call.wrongArgument = placeOfMisfit(member, arguments, callers);
        return refusal(error, call);
    }
}

} // namespace

HRESULT idsOfNames(const automation::ClassDescription& description,
                   std::span<LPOLESTR> names,
                   std::span<DISPID> ids) {
    std::ranges::fill(ids, DISPID_UNKNOWN);
    const automation::Member* const member = automation::findMember(description, textOf(names[0]));
    if (member == nullptr)
        return DISP_E_UNKNOWNNAME;
    ids[0] = member->number;
    HRESULT result = S_OK;
    for (std::size_t i = 1; i < names.size(); ++i) {
        const auto parameters = member->parameters();
        const auto found = std::ranges::find_if(parameters, [&](const automation::Parameter& parameter) {
            return sameName(parameter.name, textOf(names[i]));
        });
        if (found == parameters.end())
            result = DISP_E_UNKNOWNNAME;
        else
            ids[i] = static_cast<DISPID>(found - parameters.begin());
    }
    return result;
}

HRESULT invokeMember(AutomationTarget& target, const DispatchCall& call) noexcept {
    if (call.parameters == nullptr || call.parameters->cNamedArgs > call.parameters->cArgs ||
        (call.parameters->cArgs > 0 && call.parameters->rgvarg == nullptr) ||
        (call.parameters->cNamedArgs > 0 && call.parameters->rgdispidNamedArgs == nullptr))
        return E_INVALIDARG;
    if (!target.onOwnThread())
        return RPC_E_WRONG_THREAD;
    if (call.result != nullptr)
        VariantInit(call.result);
    return guarded([&]() -> HRESULT {
        const automation::Member* const member =
            automation::findMember(target.description(), Long{call.number});
        if (member == nullptr || (call.kind & (reading | assigning)) == 0)
            return DISP_E_MEMBERNOTFOUND;
        try {
            return perform(target, *member, call);
        } catch (const RefusedArgument& refused) {
            if (call.wrongArgument != nullptr)
                *call.wrongArgument = refused.place();
            return refused.result();
        } catch (const RuntimeError& error) {
            return refusal(error, call);
        }
    });
}

} // namespace lumtex::win32

/// \file
/// Builds the entries of the member table from the functions themselves, so that no type is written twice.
#pragma once

#include "automation/argument.h"
#include "automation/found_record.h"
#include "automation/member.h"
#include "model/list_view.h"

#include <initializer_list>
#include <tuple>
#include <utility>

namespace lumtex::automation::detail {

template <class T>
Variant resultOf(T value) {
    if constexpr (std::is_same_v<T, FindResults>)
        return makeFoundRecord(value);
    else
        return toVariant(std::move(value));
}

/// A parameter's name, and what its absence means.
struct Named {
    StringView name;
    DefaultValue defaultValue{};
    bool byReference = false; ///< by the interface, though the control leaves it as it is

    constexpr Named(const char16_t* required) : name(required) {}
    constexpr Named(const char16_t* optional, DefaultValue value) : name(optional), defaultValue(value) {}
};

using enum DefaultValue::Kind;

constexpr Named orNumber(const char16_t* name, Double value) {
    return {name, {number, value}};
}
constexpr Named orText(const char16_t* name, StringView value) {
    return {name, {text, 0, value}};
}
constexpr Named orFalse(const char16_t* name) {
    return {name, {boolean}};
}
constexpr Named orNothing(const char16_t* name) {
    return {name, {nothing}};
}
/// Any number of arguments, none included.
constexpr Named anyNumberOf(const char16_t* name) {
    return {name, {missing}};
}
constexpr Named byReference(Named parameter) {
    parameter.byReference = true;
    return parameter;
}
constexpr Named orMissing(const char16_t* name) {
    return {name, {missing}};
}

/// The public class that offers what `Class` declares: the list if `Class` is one of its bases, else `Class`
/// itself.
template <class Class>
using Reached = std::conditional_t<std::is_base_of_v<Class, lmListView>, lmListView, Class>;

/// What hosts, and the catalogues of words, call a public class.
template <class Class>
inline constexpr StringView className;
template <>
inline constexpr StringView className<lmListView> = u"lmListView";

/// The pieces of a member function's type, and the call through Variants.
template <class Declaring, auto function, class Returned, class... Parameters>
struct Callable {
    using Class = Reached<Declaring>;
    using Result = Returned;
    static constexpr std::size_t count = sizeof...(Parameters);
    static constexpr std::array<TypeInfo, count> types{typeOf<Parameters>()...};
    static constexpr std::array<bool, count> byReference{travelsBack<Parameters>...};

    static Variant invoke(void* object, std::span<Variant> arguments, const Locale* callers) {
        return invokeWith(
            *static_cast<Class*>(object), arguments, callers, std::make_index_sequence<count>{});
    }

  private:
    template <std::size_t... positions>
    static Variant invokeWith(Class& object,
                              [[maybe_unused]] std::span<Variant> arguments,
                              [[maybe_unused]] const Locale* callers,
                              std::index_sequence<positions...>) {
        // Converted from the first to the last, before the call.
        std::tuple<std::optional<Argument<Parameters>>...> held;
        {
            std::optional<UsingLocale> asTheCallerWrites;
            if (callers != nullptr)
                asTheCallerWrites.emplace(*callers);
            (std::get<positions>(held).emplace(arguments, positions), ...);
        }
        Variant result;
        if constexpr (std::is_void_v<Result>)
            (object.*function)(std::get<positions>(held)->pass()...);
        else
            result = resultOf((object.*function)(std::get<positions>(held)->pass()...));
        (std::get<positions>(held)->writeBack(), ...);
        return result;
    }
};

template <auto function, class Type = decltype(function)>
struct Function;

template <auto function, class Class, class Result, class... Parameters>
struct Function<function, Result (Class::*)(Parameters...)>
    : Callable<Class, function, Result, Parameters...> {};

template <auto function, class Class, class Result, class... Parameters>
struct Function<function, Result (Class::*)(Parameters...) const>
    : Callable<Class, function, Result, Parameters...> {};

template <class Of>
constexpr void nameParameters(Member& member, std::initializer_list<Named> names) {
    for (const Named& named : names) {
        member.entries[member.count] = {named.name,
                                        Of::types[member.count],
                                        named.defaultValue,
                                        named.byReference || Of::byReference[member.count]};
        ++member.count;
    }
}

/// Counts the names against the function's parameters while the table is compiled.
constexpr void sameCount(std::size_t names, std::size_t parameters) {
    if (names != parameters)
        throw "every parameter has a name";
}

// A new member takes a number that its class has not used yet.

template <auto get>
constexpr Member readOnly(Long number, StringView name, std::initializer_list<Named> names = {}) {
    using Get = Function<get>;
    sameCount(names.size(), Get::count);
    Member member{number,
                  name,
                  words::phrase(className<typename Get::Class>, name),
                  typeOf<typename Get::Result>(),
                  Repaint::never,
                  {},
                  0,
                  &Get::invoke,
                  nullptr,
                  nullptr};
    nameParameters<Get>(member, names);
    return member;
}

template <auto get, auto let>
constexpr Member
property(Long number, StringView name, Repaint repaint, std::initializer_list<Named> names = {}) {
    using Let = Function<let>;
    sameCount(names.size() + 1, Let::count);
    Member member = readOnly<get>(number, name, names);
    if (member.type != Let::types.back())
        throw "what is read has the type of what is assigned";
    member.repaint = repaint;
    member.let = &Let::invoke;
    return member;
}

/// A member that lists of properties leave out.
constexpr Member hidden(Member member) {
    member.hidden = true;
    return member;
}

template <auto function>
constexpr Member
method(Long number, StringView name, Repaint repaint, std::initializer_list<Named> names = {}) {
    using Call = Function<function>;
    sameCount(names.size(), Call::count);
    Member member{number,
                  name,
                  words::phrase(className<typename Call::Class>, name),
                  typeOf<typename Call::Result>(),
                  repaint,
                  {},
                  0,
                  nullptr,
                  nullptr,
                  &Call::invoke};
    nameParameters<Call>(member, names);
    return member;
}

} // namespace lumtex::automation::detail

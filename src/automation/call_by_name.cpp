/// Calls by member names over Variants.
#include "automation/call_by_name.h"

#include "values/runtime_error.h"

#include <algorithm>
#include <unordered_map>

namespace lumtex::automation {

namespace {

Variant valueOf(const DefaultValue& value) {
    switch (value.kind) {
    case DefaultValue::Kind::required:
        throw RuntimeError(ErrorNumber::argumentNotOptional);
    case DefaultValue::Kind::missing:
        return Missing{};
    case DefaultValue::Kind::nothing:
        return {};
    case DefaultValue::Kind::boolean:
        return value.number != 0;
    case DefaultValue::Kind::number:
        return value.number;
    case DefaultValue::Kind::text:
        return value.text;
    }
    return {};
}

/// Names hold no letters but A to Z.
String inLowerCase(StringView name) {
    String lower(name);
    for (char16_t& unit : lower)
        if (unit >= u'A' && unit <= u'Z')
            unit = static_cast<char16_t>(unit - u'A' + u'a');
    return lower;
}

Member::Invoke needEntry(Member::Invoke entry) {
    if (entry == nullptr)
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    return entry;
}

bool endsInList(const Member& member) {
    return member.count > 0 && member.entries[member.count - 1].type.code == TypeCode::variantList;
}

} // namespace

const Member* findMember(const ClassDescription& of, StringView name) {
    using Names = std::unordered_map<String, const Member*>;
    static const auto byClass = [] {
        std::unordered_map<StringView, Names> classes;
        for (const ClassDescription& description : classTable())
            for (const Member& member : description.members)
                classes[description.name].emplace(inLowerCase(member.name), &member);
        return classes;
    }();
    const Names& names = byClass.at(of.name);
    const auto found = names.find(inLowerCase(name));
    return found == names.end() ? nullptr : found->second;
}

const Member* findMember(const ClassDescription& of, Long number) {
    const auto found = std::ranges::find(of.members, number, &Member::number);
    return found == of.members.end() ? nullptr : &*found;
}

const Member& CallByName::needMember(StringView name) const {
    const Member* member = findMember(class_, name);
    if (member == nullptr)
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    return *member;
}

Variant CallByName::get(StringView name, std::span<Variant> arguments) {
    return get(needMember(name), arguments);
}

void CallByName::let(StringView name, std::span<Variant> arguments, const Variant& value) {
    let(needMember(name), arguments, value);
}

void CallByName::set(StringView name, std::span<Variant> arguments, const Variant& value) {
    set(needMember(name), arguments, value);
}

Variant CallByName::call(StringView name, std::span<Variant> arguments) {
    return call(needMember(name), arguments);
}

Variant CallByName::get(const Member& member, std::span<Variant> arguments) {
    return invoke(member, needEntry(member.get), arguments, nullptr);
}

void CallByName::let(const Member& member, std::span<Variant> arguments, const Variant& value) {
    if (member.isReference())
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    invoke(member, needEntry(member.let), arguments, &value);
}

void CallByName::set(const Member& member, std::span<Variant> arguments, const Variant& value) {
    if (!member.isReference())
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    invoke(member, needEntry(member.let), arguments, &value);
}

Variant CallByName::call(const Member& member, std::span<Variant> arguments) {
    return invoke(member, needEntry(member.call), arguments, nullptr);
}

/// `value` is what an assignment assigns.
Variant CallByName::invoke(const Member& member,
                           Member::Invoke entry,
                           std::span<Variant> arguments,
                           const Variant* value) {
    const std::size_t fixed = endsInList(member) ? member.count - 1 : member.count;
    if (arguments.size() > fixed && !endsInList(member))
        throw RuntimeError(ErrorNumber::wrongNumberOfArguments);

    std::vector<Variant> all(arguments.begin(), arguments.end());
    all.resize(std::max(all.size(), fixed), Missing{});
    for (std::size_t i = 0; i < fixed; ++i)
        if (all[i].isMissing())
            all[i] = valueOf(member.entries[i].defaultValue);
    if (value != nullptr)
        all.push_back(*value);

    Variant result = entry(object_, all, callers_);
    for (std::size_t i = 0; i < std::min(arguments.size(), fixed); ++i)
        if (member.entries[i].byReference && !arguments[i].isMissing())
            arguments[i] = std::move(all[i]);
    return result;
}

} // namespace lumtex::automation

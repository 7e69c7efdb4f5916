/// Calls by member names over Variants.
#include "automation/call_by_name.h"

#include "values/runtime_error.h"

#include <bitset>
#include <optional>
#include <utility>

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

Member::Invoke needEntry(Member::Invoke entry) {
    if (entry == nullptr)
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    return entry;
}

bool endsInList(const Member& member) {
    return member.count > 0 && member.entries[member.count - 1].type.code == TypeCode::variantList;
}

/// Parameters that are no list.
std::size_t fixedOf(const Member& member) {
    return endsInList(member) ? member.count - 1 : member.count;
}

/// The caller's arguments on their way through a call, complete with defaults. They are moved and not copied,
/// since the copy of a text needs memory, and return to the caller when the call has ended, however it does.
class LentArguments {
  public:
    LentArguments(const Member& member, std::span<Variant> callers)
        : member_(member), callers_(callers), fixed_(fixedOf(member)) {
        if (callers.size() > fixed_ && !endsInList(member))
            throw RuntimeError(ErrorNumber::wrongNumberOfArguments);
    }
    LentArguments(const LentArguments&) = delete;
    LentArguments& operator=(const LentArguments&) = delete;
    ~LentArguments() {
        for (std::size_t i = 0; i < lent_; ++i)
            // One that was left out stays so, whatever its default.
            if (i >= fixed_ || !callers_[i].isMissing())
                callers_[i] = std::move(all_.values()[i]);
    }

    /// `value` is what an assignment assigns; it comes last.
    std::span<Variant> complete(std::optional<Variant> value) {
        auto& all = all_.values();
        for (; lent_ < callers_.size(); ++lent_)
            all.push_back(std::move(callers_[lent_]));
        for (std::size_t i = 0; i < fixed_; ++i) {
            if (i == all.size())
                all.emplace_back(Missing{});
            if (all[i].isMissing())
                all[i] = valueOf(member_.entries[i].defaultValue);
        }
        if (value)
            all.push_back(std::move(*value));
        return all;
    }

  private:
    const Member& member_;
    std::span<Variant> callers_;
    std::size_t fixed_;
    std::size_t lent_ = 0;
    ArgumentList all_;
};

/// The call's own arguments, with defaults in the places of those that were left out as long as this stands.
class FilledIn {
  public:
    FilledIn(const Member& member, std::span<Variant> own) : own_(own) {
        const std::size_t fixed = fixedOf(member);
        if (own.size() < fixed)
            throw RuntimeError(ErrorNumber::argumentNotOptional);
        for (std::size_t i = 0; i < fixed; ++i) {
            if (own[i].isMissing()) {
                own[i] = valueOf(member.entries[i].defaultValue);
                leftOut_.set(i);
            }
        }
    }
    FilledIn(const FilledIn&) = delete;
    FilledIn& operator=(const FilledIn&) = delete;
    ~FilledIn() {
        if (leftOut_.none())
            return;
        for (std::size_t i = 0; i < leftOut_.size(); ++i)
            if (leftOut_.test(i))
                own_[i] = Missing{};
    }

  private:
    std::span<Variant> own_;
    std::bitset<Member::mostParameters> leftOut_;
};

} // namespace

const Member* findMember(const ClassDescription& of, StringView name) {
    return of.index.find(name);
}

const Member* findMember(const ClassDescription& of, Long number) {
    return of.index.find(number);
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

void CallByName::let(StringView name, std::span<Variant> arguments, Variant value) {
    let(needMember(name), arguments, std::move(value));
}

void CallByName::set(StringView name, std::span<Variant> arguments, Variant value) {
    set(needMember(name), arguments, std::move(value));
}

Variant CallByName::call(StringView name, std::span<Variant> arguments) {
    return call(needMember(name), arguments);
}

Variant CallByName::get(const Member& member, std::span<Variant> arguments) {
    return invoke(member, needEntry(member.get), arguments, std::nullopt);
}

void CallByName::let(const Member& member, std::span<Variant> arguments, Variant value) {
    if (member.isReference())
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    invoke(member, needEntry(member.let), arguments, std::move(value));
}

void CallByName::set(const Member& member, std::span<Variant> arguments, Variant value) {
    if (!member.isReference())
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    invoke(member, needEntry(member.let), arguments, std::move(value));
}

Variant CallByName::call(const Member& member, std::span<Variant> arguments) {
    return invoke(member, needEntry(member.call), arguments, std::nullopt);
}

Variant CallByName::get(const Member& member, ArgumentList& own) {
    return invoke(member, needEntry(member.get), own);
}

void CallByName::let(const Member& member, ArgumentList& own) {
    if (member.isReference())
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    invoke(member, needEntry(member.let), own);
}

void CallByName::set(const Member& member, ArgumentList& own) {
    if (!member.isReference())
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    invoke(member, needEntry(member.let), own);
}

Variant CallByName::call(const Member& member, ArgumentList& own) {
    return invoke(member, needEntry(member.call), own);
}

/// `value` is what an assignment assigns.
Variant CallByName::invoke(const Member& member,
                           Member::Invoke entry,
                           std::span<Variant> arguments,
                           std::optional<Variant> value) {
    LentArguments lent(member, arguments);
    return entry(object_, lent.complete(std::move(value)), callers_);
}

Variant CallByName::invoke(const Member& member, Member::Invoke entry, ArgumentList& own) {
    const FilledIn complete(member, own.values());
    return entry(object_, own.values(), callers_);
}

} // namespace lumtex::automation

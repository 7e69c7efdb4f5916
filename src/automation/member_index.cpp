#include "automation/member_index.h"

#include <algorithm>
#include <cstdint>

namespace lumtex::automation {

namespace {

/// Numbers below this one lie in a table, which is as long as the largest of them.
constexpr Long mostUsual = 1024;

constexpr char16_t lowered(char16_t unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit - u'A' + u'a') : unit;
}

} // namespace

MemberIndex::MemberIndex(std::span<const Member> members) {
    for (const Member& member : members) {
        named_.emplace(member.name, &member);
        if (member.number < 0 || member.number >= mostUsual) {
            others_.emplace(member.number, &member);
            continue;
        }
        const auto place = static_cast<std::size_t>(member.number);
        if (usual_.size() <= place)
            usual_.resize(place + 1);
        if (usual_[place] == nullptr)
            usual_[place] = &member;
    }
}

const Member* MemberIndex::find(Long number) const {
    if (number >= 0 && number < mostUsual) {
        const auto place = static_cast<std::size_t>(number);
        return place < usual_.size() ? usual_[place] : nullptr;
    }
    const auto found = others_.find(number);
    return found == others_.end() ? nullptr : found->second;
}

const Member* MemberIndex::find(StringView name) const {
    const auto found = named_.find(name);
    return found == named_.end() ? nullptr : found->second;
}

std::size_t MemberIndex::NameHash::operator()(StringView name) const {
    // FNV-1a, a unit at a time.
    constexpr std::uint32_t start = 0x811C9DC5;
    constexpr std::uint32_t prime = 0x01000193;
    std::uint32_t hash = start;
    for (const char16_t unit : name)
        hash = (hash ^ lowered(unit)) * prime;
    return hash;
}

bool MemberIndex::SameName::operator()(StringView left, StringView right) const {
    return std::ranges::equal(left, right, {}, lowered, lowered);
}

} // namespace lumtex::automation

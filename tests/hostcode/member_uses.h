/// \file
/// Every use of every public member of the list, with arguments.
#pragma once

#include "automation/call_by_name.h"
#include "automation/member_table.h"
#include "values/text.h"

#include <string>
#include <vector>

namespace lumtex::testing {

/// Values for the parameters of a member, good ones or such that are refused.
class CallValues {
  public:
    /// `text` is what parameters and properties without a meaning of their own get.
    explicit CallValues(std::string folder, StringView text = u"text")
        : folder_(std::move(folder)), text_(text) {}

    std::vector<Variant> good(const automation::Member& member) const {
        std::vector<Variant> values;
        for (const automation::Parameter& parameter : member.parameters())
            if (parameter.type.code != automation::TypeCode::variantList)
                values.push_back(goodFor(parameter));
        return values;
    }
    /// Rows and columns that are not there, and texts where numbers belong.
    std::vector<Variant> bad(const automation::Member& member) const {
        std::vector<Variant> values = good(member);
        std::size_t i = 0;
        for (const automation::Parameter& parameter : member.parameters()) {
            if (parameter.type.code == automation::TypeCode::variantList)
                break;
            if (parameter.type.code == automation::TypeCode::variant)
                values[i] = u"no number";
            else if (parameter.type.code == automation::TypeCode::longInteger)
                values[i] = Long{9999};
            ++i;
        }
        return values;
    }
    Variant valueFor(const automation::Member& member) const {
        switch (member.type.code) {
        case automation::TypeCode::string:
            return text_;
        case automation::TypeCode::picture:
            return PictureRef{};
        case automation::TypeCode::font:
            return FontRef{};
        case automation::TypeCode::object:
            return ObjectRef{};
        default:
            return Long{1};
        }
    }

  private:
    Variant goodFor(const automation::Parameter& parameter) const {
        const StringView name = parameter.name;
        if (name == u"sFilename" || name == u"Filename" || name == u"sFile")
            return fromUtf8(folder_ + "/content");
        if (name == u"sFind")
            return u"*b*";
        if (name == u"aItemTexts")
            return u"new,x," + text_;
        if (name == u"SortMode" || name == u"SortType")
            return Long{1};
        if (parameter.optional() || parameter.type.code == automation::TypeCode::picture)
            return Missing{};
        if (parameter.type.code == automation::TypeCode::string)
            return text_;
        return Long{1};
    }

    std::string folder_;
    String text_;
};

/// Every use of every member: what reads, what assigns, what calls.
struct MemberUse {
    const automation::Member* member;
    bool assigns;
};
inline std::vector<MemberUse> memberUses() {
    std::vector<MemberUse> uses;
    for (const automation::Member& member : automation::listViewClass().members) {
        if (member.name == u"About")
            continue; // waits for a user who closes it
        if (member.get != nullptr || member.call != nullptr)
            uses.push_back({&member, false});
        if (member.let != nullptr)
            uses.push_back({&member, true});
    }
    return uses;
}
inline std::string nameOf(const MemberUse& use) {
    return (use.assigns ? "let " : "") + toUtf8(use.member->name);
}

/// Calls by name, with a new value where it assigns; what cannot be converted is refused before it reaches
/// the list.
inline void
use(lmListView& list, const MemberUse& use, std::vector<Variant> arguments, const Variant& value) {
    automation::CallByName byName(list);
    try {
        if (use.assigns && use.member->isReference())
            byName.set(*use.member, arguments, value);
        else if (use.assigns)
            byName.let(*use.member, arguments, value);
        else if (use.member->isMethod())
            byName.call(*use.member, arguments);
        else
            byName.get(*use.member, arguments);
    } catch (const RuntimeError&) {
        // The list is not to blame.
    }
}

} // namespace lumtex::testing

/// \file
/// A list box of a host, reached by name.
#pragma once

#include "values/references/object.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "values/variant.h"

#include <functional>
#include <vector>

namespace lumtex::testing {

/// Knows `ListCount`, `List(index)` and `AddItem(text)`.
class TestList final : public Object {
  public:
    std::vector<Variant> entries;
    /// What `ListCount` says; the number of entries where it is Empty.
    Variant claimedCount;
    std::function<void()> onAddItem = [] {};

    using Object::call;
    using Object::get;

    Variant get(StringView name, std::span<Variant> arguments) override {
        if (sameName(name, u"ListCount"))
            return claimedCount.isEmpty() ? Variant(static_cast<Long>(entries.size())) : claimedCount;
        if (!sameName(name, u"List") || arguments.size() != 1)
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        const Long index = arguments[0].toLong();
        if (index < 0 || static_cast<std::size_t>(index) >= entries.size())
            throw RuntimeError(381, u"Invalid property array index");
        return entries[static_cast<std::size_t>(index)];
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView name, std::span<Variant> arguments) override {
        if (!sameName(name, u"AddItem") || arguments.size() != 1)
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        onAddItem();
        entries.push_back(arguments[0]);
        return {};
    }
};

} // namespace lumtex::testing

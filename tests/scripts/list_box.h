/// \file
/// A list box of a host.
#pragma once

#include "values/references/object.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "values/variant.h"

#include <vector>

namespace lumtex::testing {

/// Knows `ListCount`, `List(index)` and `AddItem(text)`.
class ListBox final : public Object {
  public:
    Variant get(StringView name, std::span<Variant> arguments) override {
        if (sameName(name, u"ListCount"))
            return static_cast<Integer>(entries.size());
        if (sameName(name, u"List") && arguments.size() == 1)
            return entries.at(static_cast<std::size_t>(arguments[0].toLong()));
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView name, std::span<Variant> arguments) override {
        if (!sameName(name, u"AddItem"))
            return get(name, arguments);
        entries.push_back(arguments[0].toText());
        return {};
    }

    std::vector<String> entries{u"first", u"second"};
};

} // namespace lumtex::testing

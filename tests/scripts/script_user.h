/// \file
/// The object by which scripts press keys and buttons.
#pragma once

#include "platform/object.h"

namespace lumtex::testing {

/// What a user does, told to the window of a list without a detour by the real mouse:
/// `KeyDown list, code`, `KeyPress list, code`, `EditorKeyPress list, code`, `Click list, x, y`, in pixels of the
/// list.
class ScriptUser final : public Object {
  public:
    Variant get(StringView name, std::span<Variant> arguments) override;
    void put(StringView name, const Variant& value) override;
    Variant call(StringView name, std::span<Variant> arguments) override;
};

} // namespace lumtex::testing

/// \file
/// The component as an object, for whoever is handed it.
#pragma once

#include "platform/program.h"
#include "values/variant.h"

namespace lumtex {

/// Has the properties EXEName, Path, Major, Minor and Revision, to be read. Throws RuntimeError 438 for any
/// other name and for assignments, 450 for arguments.
class ApplicationObject final : public Object {
  public:
    explicit ApplicationObject(ComponentInfo component) : component_(std::move(component)) {}

    Variant get(StringView name, std::span<Variant> arguments) override;
    void put(StringView name, const Variant& value) override;
    Variant call(StringView name, std::span<Variant> arguments) override;

  private:
    ComponentInfo component_;
};

} // namespace lumtex

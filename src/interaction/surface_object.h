/// \file
/// The control's own surface, for those who know controls by late binding alone.
#pragma once

#include "platform/window.h"
#include "values/references/object.h"
#include "values/runtime_error.h"
#include "values/variant.h"

namespace lumtex {

/// Has a `hwnd`, and nothing else.
class SurfaceObject final : public Object {
  public:
    explicit SurfaceObject(WindowHandle handle) : handle_(handle) {}

    Variant get(StringView name, std::span<Variant> /*arguments*/) override {
        if (name != u"hwnd")
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        return Variant(handle_);
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }

  private:
    WindowHandle handle_;
};

} // namespace lumtex

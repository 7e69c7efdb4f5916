/// \file
/// Things of a host that run its code as the last reference to them goes.
#pragma once

#include "values/references/font.h"
#include "values/references/object.h"
#include "values/references/picture.h"
#include "values/runtime_error.h"
#include "values/variant.h"

#include <functional>
#include <memory>
#include <span>

namespace lumtex::testing {

/// Runs as the host lets go of something, and counts what is still held.
struct Releases {
    std::function<void()> code;
    int alive = 0;
    int gone = 0;

    void born() { ++alive; }
    void died() {
        --alive;
        ++gone;
        if (code)
            code();
    }
};

/// An object that calls back as the last reference to it goes. A recordset without records, and else nothing.
class CallingObject final : public Object {
  public:
    explicit CallingObject(Releases& releases) : releases_(releases) { releases_.born(); }
    ~CallingObject() override { releases_.died(); }

    Variant get(StringView name, std::span<Variant> /*arguments*/) override {
        if (name == u"RecordCount")
            return Long{0};
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    void put(StringView /*name*/, const Variant& /*value*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }
    Variant call(StringView /*name*/, std::span<Variant> /*arguments*/) override {
        throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
    }

  private:
    Releases& releases_;
};

class CallingPicture final : public Picture {
  public:
    explicit CallingPicture(Releases& releases) : releases_(releases) { releases_.born(); }
    ~CallingPicture() override { releases_.died(); }

    Long Width() const override { return 212; } // 8 pixels
    Long Height() const override { return 212; }
    const Bitmap& bitmap() const override { return bitmap_; }

  private:
    Releases& releases_;
    Bitmap bitmap_{8, 8};
};

/// Its copies call back as well.
class CallingFont final : public Font {
  public:
    explicit CallingFont(Releases& releases)
        : Font({.Name = u"DejaVu Sans", .Size = 9}), releases_(releases) {
        releases_.born();
    }
    ~CallingFont() override { releases_.died(); }
    std::shared_ptr<Font> Clone() const override { return std::make_shared<CallingFont>(releases_); }

  private:
    Releases& releases_;
};

} // namespace lumtex::testing

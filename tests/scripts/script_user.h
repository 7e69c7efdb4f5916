/// \file
/// The object by which scripts show a list and use it as a person would.
#pragma once

#include "activex/small_container.h"
#include "values/references/object.h"

#include <memory>

namespace lumtex::testing {

/// `Show list` puts a list into a window. `KeyDown list, code` and `KeyPress list, code` go to it,
/// `EditorKeyPress list, code` to its editor. `Click list, x, y` moves the real mouse, in pixels of the list,
/// and needs the display for itself. `LoadPicture(path)` reads a picture file.
class ScriptUser final : public Object {
  public:
    ~ScriptUser() override;

    Variant get(StringView name, std::span<Variant> arguments) override;
    void put(StringView name, const Variant& value) override;
    Variant call(StringView name, std::span<Variant> arguments) override;

    /// Takes the list out of its window.
    void close();

  private:
    void show(const Variant& list);

    std::unique_ptr<SmallContainer> container_;
    win32::ComRef<IOleObject> shown_;
};

} // namespace lumtex::testing

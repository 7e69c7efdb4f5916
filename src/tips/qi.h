/// \file
/// A tip for a control in one call.
#pragma once

#include "platform/world.h"
#include "tips/tool_tip.h"

#include <memory>

namespace lumtex::about {
class LumtexAbout;
} // namespace lumtex::about

namespace lumtex::tips {

/// Owns one `lmToolTip`, made on first need. The world must outlive it.
class QI {
  public:
    explicit QI(World& world) : world_(world) {}

    /// Gives `Control` a tip, or its tip another text. `Delay` is the time that it stays up, in milliseconds;
    /// `MaxWidth` is in pixels, below 1 for no limit.
    void
    Create(const ObjectRef& Parent, const ObjectRef& Control, StringView Text, Long Delay, Integer MaxWidth);
    /// Nothing happens for a control without a tip.
    void Remove(const ObjectRef& Control);

    /// Shows the about box, hides it, then shows it modally.
    void About();

  private:
    Procedure procedure(StringView name) const;
    lmToolTip& needToolTip();

    World& world_;
    std::unique_ptr<lmToolTip> toolTip_;
    std::shared_ptr<about::LumtexAbout> about_;
};

} // namespace lumtex::tips

/// \file
/// Tips as they are kept. Nothing pops up by itself; what a user would read can be asked.
#pragma once

#include "platform/tip_platform.h"
#include "worlds/common/window_tree.h"

#include <vector>

namespace lumtex::worlds {

class KeptTipWindow;

class KeptTips final : public TipPlatform {
  public:
    explicit KeptTips(WindowTree& tree) : tree_(tree) {}

    /// A window of this desktop, no text box.
    bool isFormOrSurface(WindowHandle window) const override;
    std::unique_ptr<TipWindow> createTipWindow(WindowHandle owner) override;

    const std::vector<KeptTipWindow*>& windows() const { return windows_; }
    /// 0xBBGGRR or a system colour; the usual one if there is no such window.
    OLE_COLOR textColorOf(WindowHandle tips) const;
    /// The tip that would come up over a window; empty if it has no tip.
    std::optional<String> tipOf(WindowHandle window) const;

  private:
    friend KeptTipWindow; // notes itself

    WindowTree& tree_;
    std::vector<KeptTipWindow*> windows_;
};

} // namespace lumtex::worlds

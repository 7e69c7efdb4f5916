/// \file
/// The class of tip windows on the simulated desktop. Nothing pops up; what a user would read can be asked.
#pragma once

#include "platform/tip_platform.h"
#include "worlds/headless/window_tree.h"

#include <map>
#include <vector>

namespace lumtex {

class HeadlessTips final : public TipPlatform {
  public:
    /// The bytes of the record that the class takes; one of another size is refused.
    static constexpr Long toolInfoSize = 40;

    explicit HeadlessTips(WindowTree& tree) : tree_(tree) {}

    /// A window of this desktop, no text box.
    bool isFormOrSurface(WindowHandle window) const override;
    void initCommonControls() override { initialised_ = true; }
    /// Needs `initCommonControls` before it, and knows the one class "tooltips_class32".
    WindowHandle createWindow(const TipWindowForm& form) override;
    void destroyWindow(WindowHandle tips) override { windows_.erase(tips); }
    Long send(WindowHandle tips, TipMessage message, Long wParam, Long lParam) override;
    Long send(WindowHandle tips, TipMessage message, Long wParam, ToolInfo& tool) override;
    Long send(WindowHandle tips, TipMessage message, Long wParam, Rect& margins) override;

    std::size_t windowCount() const { return windows_.size(); }
    /// 0xBBGGRR or a system colour; that of the class where there is no such window.
    OLE_COLOR textColorOf(WindowHandle tips) const;
    /// The tip that would come up over a window; none if it has none.
    std::optional<String> tipOf(WindowHandle window) const;

  private:
    struct Delays {
        Long reshow;
        Long autoPop;
        Long initial;
    };
    struct TipWindow {
        std::vector<ToolInfo> tools;
        OLE_COLOR backColor;
        OLE_COLOR textColor;
        Delays delays;
        Rect margins;
        Long maxWidth;

        ToolInfo* find(const ToolInfo& tool);
        Long delay(Long which) const;
        void letDelay(Long which, Long milliseconds);
    };

    TipWindow* find(WindowHandle tips);
    static Delays delaysFrom(Long milliseconds);

    WindowTree& tree_;
    bool initialised_ = false;
    std::map<WindowHandle, TipWindow> windows_;
};

} // namespace lumtex

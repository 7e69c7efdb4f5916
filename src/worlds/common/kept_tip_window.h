/// \file
/// A tip window that only keeps what it is given.
#pragma once

#include "values/color.h"
#include "worlds/common/kept_tips.h"

#include <array>
#include <vector>

namespace lumtex::worlds {

class KeptTipWindow final : public TipWindow {
  public:
    /// Known to `desktop`, which must outlive it, from here on.
    KeptTipWindow(KeptTips& desktop, WindowHandle handle);
    ~KeptTipWindow() override;

    WindowHandle hWnd() const override { return handle_; }

    bool add(const TipTool& tool) override;
    void remove(const TipTool& tool) override;
    void setText(const TipTool& tool) override;
    Long toolCount() const override { return static_cast<Long>(tools_.size()); }
    std::optional<TipTool> tool(Long index, std::size_t textRoom) const override;

    OLE_COLOR backColor() const override { return backColor_; }
    void setBackColor(OLE_COLOR color) override { backColor_ = color; }
    OLE_COLOR setTextColor(OLE_COLOR color) override;
    Long delay(TipDelay which) const override;
    /// One number sets all three; below 0 it stands for the usual times.
    void setDelay(TipDelay which, Long milliseconds) override;
    Rect margins() const override { return margins_; }
    void setMargins(const Rect& margins) override { margins_ = margins; }
    Long maxWidth() const override { return maxWidth_; }
    void setMaxWidth(Long width) override { maxWidth_ = width; }

    OLE_COLOR textColor() const { return textColor_; }
    const std::vector<TipTool>& tools() const { return tools_; }

    static constexpr OLE_COLOR usualTextColor = 0x80000017U;

  private:
    void setAllDelays(Long milliseconds);

    KeptTips& desktop_;
    WindowHandle handle_;
    std::vector<TipTool> tools_;
    OLE_COLOR backColor_ = 0x80000018U;
    OLE_COLOR textColor_ = usualTextColor;
    std::array<Long, 4> delays_{}; ///< by TipDelay; the first stays 0
    Rect margins_;
    Long maxWidth_ = -1;
};

} // namespace lumtex::worlds

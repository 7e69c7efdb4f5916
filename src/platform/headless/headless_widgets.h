/// \file
/// The child widgets of the simulated desktop.
#pragma once

#include "platform/headless/headless_window.h"

namespace lumtex {

class HeadlessTextBox final : public TextBox {
  public:
    HeadlessTextBox(Desktop& desktop, HeadlessWindow& parent, TextBoxClient& client, WindowHandle handle);
    ~HeadlessTextBox() override;

    WindowHandle hWnd() const override { return handle_; }
    Single Left() const override { return left_; }
    Single Top() const override { return top_; }
    Single Width() const override { return width_; }
    Single Height() const override { return height_; }
    void letLeft(Single left) override { left_ = left; }
    void letTop(Single top) override { top_ = top; }
    void letWidth(Single width) override { width_ = width; }
    void letHeight(Single height) override { height_ = height; }
    bool Visible() const override { return visible_; }
    /// Hiding it takes the focus away from it.
    void letVisible(bool visible) override;
    bool TabStop() const override { return tabStop_; }
    void letTabStop(bool tabStop) override { tabStop_ = tabStop; }
    const FontSpec& font() const override { return font_; }
    void setFont(const FontSpec& font) override { font_ = font; }
    OLE_COLOR ForeColor() const override { return foreColor_; }
    void letForeColor(OLE_COLOR color) override { foreColor_ = color; }
    String Text() const override { return text_; }
    void letText(StringView text) override;
    Long SelStart() const override { return selStart_; }
    Long SelLength() const override { return selLength_; }
    void letSelStart(Long start) override;
    void letSelLength(Long length) override;
    void setFocus() override;

    HeadlessWindow& parent() const { return parent_; }
    TextBoxClient& client() const { return client_; }
    /// A character as the user types it, after the owner was asked.
    void enter(Integer character);

  private:
    Desktop& desktop_;
    HeadlessWindow& parent_;
    TextBoxClient& client_;
    WindowHandle handle_;
    Single left_ = 0;
    Single top_ = 0;
    Single width_ = 0;
    Single height_ = 0;
    bool visible_ = false;
    bool tabStop_ = false;
    FontSpec font_;
    OLE_COLOR foreColor_ = black;
    String text_;
    Long selStart_ = 0;
    Long selLength_ = 0;
};

class HeadlessGuideLine final : public GuideLine {
  public:
    HeadlessGuideLine(std::vector<HeadlessGuideLine*>& all, HeadlessWindow& parent)
        : all_(all), parent_(parent) {
        all_.push_back(this);
    }
    ~HeadlessGuideLine() override { std::erase(all_, this); }

    Single X1() const override { return x1_; }
    Single Y1() const override { return y1_; }
    Single X2() const override { return x2_; }
    Single Y2() const override { return y2_; }
    void letX1(Single x) override { x1_ = x; }
    void letY1(Single y) override { y1_ = y; }
    void letX2(Single x) override { x2_ = x; }
    void letY2(Single y) override { y2_ = y; }
    bool Visible() const override { return visible_; }
    void letVisible(bool visible) override { visible_ = visible; }

    const HeadlessWindow& parent() const { return parent_; }

  private:
    std::vector<HeadlessGuideLine*>& all_;
    HeadlessWindow& parent_;
    Single x1_ = 0;
    Single y1_ = 0;
    Single x2_ = 0;
    Single y2_ = 0;
    bool visible_ = false;
};

class HeadlessTimer final : public Timer {
  public:
    HeadlessTimer(Desktop& desktop, std::function<void()> onTimer);
    ~HeadlessTimer() override;

    bool Enabled() const override { return enabled_; }
    void letEnabled(bool enabled) override;
    Long Interval() const override { return interval_; }
    void letInterval(Long milliseconds) override;

    bool ticking() const { return enabled_ && interval_ > 0; }
    std::chrono::milliseconds due() const { return due_; }
    std::uint64_t arrival() const { return arrival_; }
    /// The next tick is counted from `now`, so that ticks nobody ran do not pile up.
    void tick(std::chrono::milliseconds now);

  private:
    void restart();

    Desktop& desktop_;
    std::function<void()> onTimer_;
    bool enabled_ = false;
    Long interval_ = 0;
    std::chrono::milliseconds due_{0};
    std::uint64_t arrival_ = 0;
};

} // namespace lumtex

/// \file
/// The text box of the simulated desktop: one line of text, a caret, a selection.
#pragma once

#include "platform/text_box.h"
#include "worlds/common/pane.h"
#include "worlds/headless/desktop.h"

namespace lumtex::headless {

/// Places are rounded to whole pixels as those of windows are. The mouse sets the caret and drags a
/// selection; Left, Right, Home, End (with Shift too), Delete and Backspace edit. The wheel goes to the
/// window around it.
class HeadlessTextBox final : public TextBox, public worlds::Pane {
  public:
    HeadlessTextBox(Desktop& desktop, worlds::Pane& parent, TextBoxClient& client);

    WindowHandle hWnd() const override { return handle(); }
    Single Left() const { return static_cast<Single>(area().Left); }
    Single Top() const { return static_cast<Single>(area().Top); }
    Single Width() const { return static_cast<Single>(width_); }
    Single Height() const { return static_cast<Single>(height_); }
    void letLeft(Single left) override;
    void letTop(Single top) override;
    void letWidth(Single width) override;
    void letHeight(Single height) override;
    bool Visible() const override { return isVisible(); }
    /// Hiding it passes on its focus.
    void letVisible(bool visible) override;
    bool TabStop() const { return tabStop_; }
    void letTabStop(bool tabStop) override { tabStop_ = tabStop; }
    const FontSpec& font() const override { return font_; }
    void setFont(const FontSpec& font) override { font_ = font; }
    OLE_COLOR ForeColor() const { return foreColor_; }
    void letForeColor(OLE_COLOR color) override { foreColor_ = color; }
    String Text() const override { return text_; }
    /// The caret goes to the start.
    void letText(StringView text) override;
    Long SelStart() const;
    Long SelLength() const;
    /// Both keep within the text. A new start selects nothing.
    void letSelStart(Long start) override;
    void letSelLength(Long length) override;
    void setFocus() override;

    bool isBox() const override { return true; }
    Bitmap picture() const override;
    void mouseDown(Integer button, Integer shift, Point at) override;
    void doubleClick(Point at) override;
    void mouseMove(Integer buttons, Integer shift, Point at) override;
    void mouseUp(Integer /*button*/, Integer /*shift*/, Point /*at*/) override {}
    void click() override {}
    void keyDown(Integer keyCode, Integer shift) override;
    void character(Integer unit) override;
    void keyUp(Integer /*keyCode*/, Integer /*shift*/) override {}
    void gotFocus() override {}
    void lostFocus(bool toOther) override {
        if (toOther)
            client_.textBoxLostFocus();
    }
    bool wheel(Long /*rotation*/, Integer /*shift*/, Point /*at*/) override { return false; }
    void paint() override {}

  private:
    std::size_t selectionStart() const { return std::min(anchor_, caret_); }
    std::size_t selectionEnd() const { return std::max(anchor_, caret_); }
    void placeCaret(std::size_t caret, bool extend);
    void replaceSelection(StringView text);
    /// The gap between two units that is nearest to a place in the field.
    std::size_t caretAt(Long x) const;

    Desktop& desktop_;
    TextBoxClient& client_;
    Long width_ = 0;
    Long height_ = 0;
    bool tabStop_ = false;
    FontSpec font_;
    OLE_COLOR foreColor_ = black;
    String text_;
    std::size_t anchor_ = 0; ///< where a selection began
    std::size_t caret_ = 0;  ///< where it ends
};

} // namespace lumtex::headless

/// \file
/// The text box in the world of Qt: its own field, over the window.
#pragma once

#include "platform/text_box.h"
#include "worlds/common/pane.h"

#include <QLineEdit>
#include <QPointer>

namespace lumtex::qt {

class QtWorld;
class TextField;

/// Places are rounded to whole pixels as those of windows are. Input methods work in it as in any field.
class QtTextBox final : public TextBox, public worlds::Pane {
  public:
    QtTextBox(QtWorld& world, worlds::Pane& parent, TextBoxClient& client);
    ~QtTextBox() override;

    WindowHandle hWnd() const override { return handle(); }
    void letLeft(Single left) override;
    void letTop(Single top) override;
    void letWidth(Single width) override;
    void letHeight(Single height) override;
    bool Visible() const override { return isVisible(); }
    /// Hiding it passes on its focus.
    void letVisible(bool visible) override;
    void letTabStop(bool tabStop) override;
    const FontSpec& font() const override { return font_; }
    void setFont(const FontSpec& font) override;
    void letForeColor(OLE_COLOR color) override;
    String Text() const override;
    /// The caret goes to the start.
    void letText(StringView text) override;
    /// Both keep within the text. A new start selects nothing.
    void letSelStart(Long start) override;
    void letSelLength(Long length) override;
    void setFocus() override;

    /// Null once the widget around it has gone.
    QLineEdit* field() const;
    /// Whether a widget, which may be null, is the field of a box.
    static bool isField(const QWidget* widget);
    /// Puts the field where the box is, on the widget that shows the window around it.
    void placeField();
    /// The screen is denser by this factor, and so is the cell that the box lies over.
    void stretch(Double factor);

    bool isBox() const override { return true; }
    Bitmap picture() const override { return {}; }
    void mouseDown(Integer button, Integer shift, Point at) override;
    void doubleClick(Point at) override;
    void mouseMove(Integer buttons, Integer shift, Point at) override;
    void mouseUp(Integer button, Integer shift, Point at) override;
    void click() override {}
    void keyDown(Integer /*keyCode*/, Integer /*shift*/) override {}
    void character(Integer /*unit*/) override {}
    void keyUp(Integer /*keyCode*/, Integer /*shift*/) override {}
    void gotFocus() override {}
    void lostFocus(bool toOther) override;
    bool wheel(Long /*rotation*/, Integer /*shift*/, Point /*at*/) override { return false; }
    void paint() override {}

  private:
    friend class TextField;

    QtWorld& world_;
    TextBoxClient& client_;
    QPointer<TextField> field_;
    Long width_ = 0;
    Long height_ = 0;
    FontSpec font_;
};

} // namespace lumtex::qt

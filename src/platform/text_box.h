/// \file
/// The text box that serves as the in-place editor.
#pragma once

#include "platform/window.h"
#include "values/references/font.h"

namespace lumtex {

/// What the box reports to its owner. Neither may throw.
class TextBoxClient {
  public:
    virtual ~TextBoxClient() = default;
    /// A character is about to be entered; setting it to 0 swallows it. Enter comes as 13.
    virtual void textBoxKeyPress(Integer& KeyAscii) = 0;
    virtual void textBoxLostFocus() = 0;
};

/// A borderless single-line text box, created hidden. Pixels of the parent's surface.
class TextBox {
  public:
    TextBox() = default;
    TextBox(const TextBox&) = delete;
    TextBox& operator=(const TextBox&) = delete;
    virtual ~TextBox() = default;

    virtual WindowHandle hWnd() const = 0;
    virtual void letLeft(Single left) = 0;
    virtual void letTop(Single top) = 0;
    virtual void letWidth(Single width) = 0;
    virtual void letHeight(Single height) = 0;
    virtual bool Visible() const = 0;
    virtual void letVisible(bool visible) = 0;
    virtual void letTabStop(bool tabStop) = 0;
    virtual const FontSpec& font() const = 0;
    virtual void setFont(const FontSpec& font) = 0;
    virtual void letForeColor(OLE_COLOR color) = 0;
    virtual String Text() const = 0;
    virtual void letText(StringView text) = 0;
    /// Code units. A selection of length 0 is the caret.
    virtual void letSelStart(Long start) = 0;
    virtual void letSelLength(Long length) = 0;
    virtual void setFocus() = 0;
};

} // namespace lumtex

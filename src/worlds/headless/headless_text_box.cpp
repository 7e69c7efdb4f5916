#include "worlds/headless/headless_text_box.h"

#include "values/rounding.h"
#include "worlds/headless/keyboard.h"

#include <algorithm>
#include <cmath>

namespace lumtex::headless {

namespace {

constexpr OLE_COLOR highlight = 0x8000000DU;
constexpr OLE_COLOR highlightedText = 0x8000000EU;
constexpr Long textInset = 1; // pixels left of the text

/// Characters below it are commands, such as Enter and Escape.
constexpr char16_t firstPrintable = u' ';

std::size_t withinText(Long position, std::size_t length) {
    return std::min(static_cast<std::size_t>(std::max(position, Long{0})), length);
}

} // namespace

HeadlessTextBox::HeadlessTextBox(Desktop& desktop, worlds::Pane& parent, TextBoxClient& client)
    : worlds::Pane(desktop.tree(), &parent), desktop_(desktop), client_(client) {}

void HeadlessTextBox::letLeft(Single left) {
    letArea({roundToLong(left), area().Top}, width_, height_);
}
void HeadlessTextBox::letTop(Single top) {
    letArea({area().Left, roundToLong(top)}, width_, height_);
}
void HeadlessTextBox::letWidth(Single width) {
    width_ = std::max(roundToLong(width), Long{0});
    letArea({area().Left, area().Top}, width_, height_);
}
void HeadlessTextBox::letHeight(Single height) {
    height_ = std::max(roundToLong(height), Long{0});
    letArea({area().Left, area().Top}, width_, height_);
}

void HeadlessTextBox::letVisible(bool visible) {
    visible_ = visible;
    if (!visible)
        desktop_.inputLost(*this);
}

void HeadlessTextBox::letText(StringView text) {
    // The system's own boxes take a text up to its first zero.
    text_ = text.substr(0, text.find(u'\0'));
    placeCaret(0, false);
}

Long HeadlessTextBox::SelStart() const {
    return static_cast<Long>(selectionStart());
}
Long HeadlessTextBox::SelLength() const {
    return static_cast<Long>(selectionEnd() - selectionStart());
}

void HeadlessTextBox::letSelStart(Long start) {
    placeCaret(withinText(start, text_.size()), false);
}

void HeadlessTextBox::letSelLength(Long length) {
    anchor_ = selectionStart();
    caret_ = anchor_ + withinText(length, text_.size() - anchor_);
}

void HeadlessTextBox::setFocus() {
    desktop_.keyFocus().moveTo(*this);
}

void HeadlessTextBox::placeCaret(std::size_t caret, bool extend) {
    caret_ = caret;
    if (!extend)
        anchor_ = caret;
}

void HeadlessTextBox::replaceSelection(StringView text) {
    const std::size_t start = selectionStart();
    text_.replace(start, selectionEnd() - start, text);
    placeCaret(start + text.size(), false);
}

std::size_t HeadlessTextBox::caretAt(Long x) const {
    const std::unique_ptr<Surface> measure = desktop_.createSurface(0, 0);
    measure->setFont(font_);
    std::size_t nearest = 0;
    Single nearestDistance = std::abs(static_cast<Single>(x - textInset));
    for (std::size_t length = 1; length <= text_.size(); ++length) {
        const Single edge = measure->textWidth(StringView(text_).substr(0, length)) + textInset;
        const Single distance = std::abs(edge - static_cast<Single>(x));
        if (distance < nearestDistance) {
            nearest = length;
            nearestDistance = distance;
        }
    }
    return nearest;
}

void HeadlessTextBox::mouseDown(Integer /*button*/, Integer shift, Point at) {
    placeCaret(caretAt(at.x), (shift & keys::shiftMask) != 0);
}

void HeadlessTextBox::doubleClick(Point /*at*/) {
    anchor_ = 0;
    caret_ = text_.size();
}

void HeadlessTextBox::mouseMove(Integer buttons, Integer /*shift*/, Point at) {
    if ((buttons & leftButton) != 0)
        placeCaret(caretAt(at.x), true);
}

void HeadlessTextBox::keyDown(Integer keyCode, Integer shift) {
    const bool extend = (shift & keys::shiftMask) != 0;
    const bool selected = anchor_ != caret_;
    switch (keyCode) {
    case keys::left:
        placeCaret(selected && !extend ? selectionStart() : caret_ - std::min<std::size_t>(caret_, 1),
                   extend);
        break;
    case keys::right:
        placeCaret(selected && !extend ? selectionEnd() : std::min(caret_ + 1, text_.size()), extend);
        break;
    case keys::home:
        placeCaret(0, extend);
        break;
    case keys::end:
        placeCaret(text_.size(), extend);
        break;
    case keys::del:
        if (!selected)
            placeCaret(std::min(caret_ + 1, text_.size()), true);
        replaceSelection({});
        break;
    default:
        break;
    }
}

void HeadlessTextBox::character(Integer unit) {
    const WindowHandle self = handle();
    const worlds::WindowTree& tree = desktop_.tree();
    client_.textBoxKeyPress(unit);
    // The owner may have swallowed the character, or the box.
    if (tree.find(self) == nullptr)
        return;
    const auto entered = static_cast<char16_t>(unit);
    if (entered == keys::backspace) {
        if (anchor_ == caret_)
            placeCaret(caret_ - std::min<std::size_t>(caret_, 1), true);
        replaceSelection({});
    } else if (entered >= firstPrintable) {
        replaceSelection({&entered, 1});
    }
}

Bitmap HeadlessTextBox::picture() const {
    const std::unique_ptr<Surface> field = desktop_.createSurface(width_, height_);
    field->setFont(font_);
    const StringView text = text_;
    const Single top = std::floor((static_cast<Single>(height_) - field->textHeight(u"X")) / 2);
    const auto printAt = [&](Single left, StringView part, OLE_COLOR color) {
        field->letForeColor(color);
        field->print(left, top, part);
    };
    printAt(textInset, text, foreColor_);
    if (anchor_ == caret_)
        return field->image();
    const StringView selected = text.substr(selectionStart(), selectionEnd() - selectionStart());
    const Single left = textInset + field->textWidth(text.substr(0, selectionStart()));
    const Single right = left + field->textWidth(selected);
    field->fillBox(left, 0, right - 1, static_cast<Single>(height_ - 1), highlight);
    printAt(left, selected, highlightedText);
    return field->image();
}

} // namespace lumtex::headless

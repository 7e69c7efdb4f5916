#include "worlds/qt/qt_text_box.h"

#include "values/rounding.h"
#include "worlds/qt/qt_color.h"
#include "worlds/qt/qt_text.h"
#include "worlds/qt/qt_window.h"
#include "worlds/qt/qt_world.h"
#include "worlds/qt/text_field.h"

#include <algorithm>
#include <cmath>

namespace lumtex::qt {

QtTextBox::QtTextBox(QtWorld& world, worlds::Pane& parent, TextBoxClient& client)
    : Pane(world.tree(), &parent), world_(world), client_(client) {
    const auto* window = dynamic_cast<QtWindow*>(&outermost());
    field_ = new TextField(*this, window != nullptr ? window->screen() : nullptr);
}

QtTextBox::~QtTextBox() {
    TextField* field = field_;
    field_.clear();
    if (field == nullptr)
        return;
    world_.inputLost(*this);
    field->loseBox();
    field->hide();
    if (world_.isDelivering())
        field->deleteLater();
    else
        delete field;
}

QLineEdit* QtTextBox::field() const {
    return field_;
}

bool QtTextBox::isField(const QWidget* widget) {
    return dynamic_cast<const TextField*>(widget) != nullptr;
}

void QtTextBox::placeField() {
    const auto* window = dynamic_cast<QtWindow*>(&outermost());
    if (field_ == nullptr || window == nullptr || window->screen() == nullptr)
        return;
    if (field_->parentWidget() != window->screen()) {
        field_->setParent(window->screen());
        field_->setVisible(visible_);
    }
    const Double ratio = world_.ratio();
    const Point corner = origin();
    const Point outer = outermost().origin();
    const auto unit = [&](Long pixels) { return static_cast<int>(std::lround(pixels / ratio)); };
    const QPoint first(unit(corner.x - outer.x), unit(corner.y - outer.y));
    const QPoint last(unit(corner.x - outer.x + width_), unit(corner.y - outer.y + height_));
    field_->setGeometry(first.x(), first.y(), last.x() - first.x(), last.y() - first.y());
}

void QtTextBox::stretch(Double factor) {
    const auto stretched = [&](Long pixels) { return static_cast<Long>(std::lround(pixels * factor)); };
    width_ = stretched(width_);
    height_ = stretched(height_);
    letArea({stretched(area().Left), stretched(area().Top)}, width_, height_);
    placeField();
}

void QtTextBox::letLeft(Single left) {
    letArea({roundToLong(left), area().Top}, width_, height_);
    placeField();
}
void QtTextBox::letTop(Single top) {
    letArea({area().Left, roundToLong(top)}, width_, height_);
    placeField();
}
void QtTextBox::letWidth(Single width) {
    width_ = std::max(roundToLong(width), Long{0});
    letArea({area().Left, area().Top}, width_, height_);
    placeField();
}
void QtTextBox::letHeight(Single height) {
    height_ = std::max(roundToLong(height), Long{0});
    letArea({area().Left, area().Top}, width_, height_);
    placeField();
}

void QtTextBox::letVisible(bool visible) {
    visible_ = visible;
    const QPointer<TextField> field(field_);
    // First, so that a field that hides has no focus to pass on by its own rules.
    if (!visible)
        world_.inputLost(*this);
    if (field == nullptr)
        return;
    field->setVisible(visible);
    if (visible)
        field->raise();
}

void QtTextBox::letTabStop(bool tabStop) {
    if (field_ != nullptr)
        field_->setFocusPolicy(tabStop ? Qt::TabFocus : Qt::NoFocus);
}

void QtTextBox::setFont(const FontSpec& font) {
    font_ = font;
    if (field_ == nullptr)
        return;
    constexpr Double pointsPerInch = 72;
    QFont own(toQString(font.Name));
    const Double pixels = font.Size * *world_.pixelsPerInch() / world_.ratio() / pointsPerInch;
    own.setPixelSize(std::max(1, static_cast<int>(std::lround(pixels))));
    own.setBold(font.Bold);
    own.setItalic(font.Italic);
    own.setUnderline(font.Underline);
    own.setStrikeOut(font.Strikethrough);
    field_->setFont(own);
}

void QtTextBox::letForeColor(OLE_COLOR color) {
    if (field_ == nullptr)
        return;
    QPalette palette = field_->palette();
    palette.setColor(QPalette::Text, toQColor(color));
    field_->setPalette(palette);
}

String QtTextBox::Text() const {
    return field_ != nullptr ? fromQString(field_->text()) : String();
}

void QtTextBox::letText(StringView text) {
    if (field_ == nullptr)
        return;
    field_->setText(toQString(text.substr(0, text.find(u'\0'))));
    field_->setCursorPosition(0);
}

void QtTextBox::letSelStart(Long start) {
    if (field_ == nullptr)
        return;
    field_->deselect();
    field_->setCursorPosition(std::max(start, Long{0}));
}

void QtTextBox::letSelLength(Long length) {
    if (field_ == nullptr)
        return;
    const int start = field_->hasSelectedText() ? field_->selectionStart() : field_->cursorPosition();
    field_->setSelection(start,
                         std::clamp(length, Long{0}, static_cast<Long>(field_->text().size()) - start));
}

void QtTextBox::setFocus() {
    world_.keyFocus().moveTo(*this);
}

void QtTextBox::lostFocus(bool toOther) {
    if (toOther)
        client_.textBoxLostFocus();
}

void QtTextBox::mouseDown(Integer /*button*/, Integer /*shift*/, Point /*at*/) {
    if (field_ != nullptr)
        field_->takeMouseEvent();
}
void QtTextBox::doubleClick(Point /*at*/) {
    if (field_ != nullptr)
        field_->takeMouseEvent();
}
void QtTextBox::mouseMove(Integer /*buttons*/, Integer /*shift*/, Point /*at*/) {
    if (field_ != nullptr)
        field_->takeMouseEvent();
}
void QtTextBox::mouseUp(Integer /*button*/, Integer /*shift*/, Point /*at*/) {
    if (field_ != nullptr)
        field_->takeMouseEvent();
}

} // namespace lumtex::qt

/// The setters with more to them than `setterTable` can say.
#include "drawing/clone_font.h"
#include "model/list_view.h"

namespace lumtex {

void lmListView::letEnabled(bool value) {
    Procedure p = procedure(u"Enabled");
    p.step([&] { properties_.Enabled = value; });
    p.step([&] { window_->letEnabled(value); });
    p.step([&] { VS->letEnabled(value); });
    p.step([&] { HS->letEnabled(value); });
    p.step([&] { host_->PropertyChanged(u"Enabled"); });
    Redraw();
}

void lmListView::letColorStyle(cColorStyle value) {
    Procedure p = procedure(u"ColorStyle");
    p.step([&] { properties_.ColorStyle = value; });
    // A scheme carries the bars along; the custom style leaves them as they are.
    if (value != cCustom)
        letScrollColorStyle(static_cast<cScrollColorStyle>(value));
    p.step([&] { host_->PropertyChanged(u"ColorStyle"); });
    CheckForRedraw();
}

void lmListView::letScrollColorStyle(cScrollColorStyle value) {
    Procedure p = procedure(u"ScrollColorStyle");
    p.step([&] { properties_.ScrollColorStyle = value; });
    p.step([&] { VS->letColorStyle(value); });
    p.step([&] { HS->letColorStyle(value); });
    p.step([&] { host_->PropertyChanged(u"ScrollColorStyle"); });
}

void lmListView::letScrollButtonJumpLines(Long value) {
    // Wanted: a value below 1 is dropped silently.
    if (value < 1)
        return;
    Procedure p = procedure(u"ScrollButtonJumpLines");
    p.step([&] { properties_.ScrollButtonJumpLines = value; });
    p.step([&] { VS->letScrollButtonJumpLines(value); });
    p.step([&] { host_->PropertyChanged(u"ScrollButtonJumpLines"); });
}

void lmListView::letAutoCheckScroll(bool value) {
    Procedure p = procedure(u"AutoCheckScroll");
    p.step([&] { properties_.AutoCheckScroll = value; });
    if (value)
        CheckScroll();
    p.step([&] { host_->PropertyChanged(u"AutoCheckScroll"); });
}

void lmListView::letAutoRedraw(bool value) {
    Procedure p = procedure(u"AutoRedraw");
    p.step([&] { properties_.AutoRedraw = value; });
    if (value)
        Redraw();
    p.step([&] { host_->PropertyChanged(u"AutoRedraw"); });
}

void lmListView::letRowsDynamic(bool value) {
    Procedure p = procedure(u"RowsDynamic");
    p.step([&] { properties_.RowsDynamic = value; });
    p.step([&] { host_->PropertyChanged(u"RowsDynamic"); });
    if (properties_.AutoCheckScroll)
        CheckScroll();
    CheckForRedraw();
}

void lmListView::storeFont(Property property, Held<FontRef>& field, const FontRef& font) {
    const StringView name = setterOf(property).name;
    Procedure p = procedure(name);
    p.step([&] { field = CloneFont(font); });
    p.step([&] { host_->PropertyChanged(name); });
    CheckForRedraw();
}

void lmListView::setDefaultItemFont(const FontRef& font) {
    storeFont(Property::DefaultItemFont, properties_.DefaultItemFont, font);
}

void lmListView::setDefaultColumnFont(const FontRef& font) {
    storeFont(Property::DefaultColumnFont, properties_.DefaultColumnFont, font);
}

void lmListView::setSkin(PictureRef picture) {
    Procedure p = procedure(u"Skin");
    p.step([&] { properties_.Skin = std::move(picture); });
    SplitSkin();
    Redraw();
    p.step([&] { host_->PropertyChanged(u"Skin"); });
}

void lmListView::letOLEDropMode(Long value) {
    Procedure p = procedure(u"OLEDropMode");
    p.step([&] { properties_.OLEDropMode = value; });
    p.step([&] { window_->letOLEDropMode(value); });
    p.step([&] { host_->PropertyChanged(u"OLEDropMode"); });
}

void lmListView::letTextPositionDefault(cTextPosition value) {
    Procedure p = procedure(u"TextPositionDefault");
    p.step([&] { properties_.TextPositionDefault = value; });
    // Wanted: the one setter that does not tell the host.
    CheckForRedraw();
}

} // namespace lumtex

/// The setters with more to them than the property table can say.
#include "drawing/font_attributes.h"
#include "model/list_view_properties.h"
#include "render/painting.h"
#include "scroll/scroller.h"

namespace lumtex {

void ListViewProperties::letEnabled(bool value) {
    Procedure p = procedure(u"Enabled");
    p.step([&] { properties.Enabled = value; });
    p.step([&] { listWindow->letEnabled(value); });
    p.step([&] { scroller->vertical().letEnabled(value); });
    p.step([&] { scroller->horizontal().letEnabled(value); });
    p.step([&] { host().PropertyChanged(u"Enabled"); });
    painting->Redraw();
}

void ListViewProperties::letColorStyle(cColorStyle value) {
    Procedure p = procedure(u"ColorStyle");
    p.step([&] { properties.ColorStyle = value; });
    // A scheme carries the bars along; the custom style leaves them as they are.
    if (value != cCustom)
        letScrollColorStyle(static_cast<cScrollColorStyle>(value));
    p.step([&] { host().PropertyChanged(u"ColorStyle"); });
    CheckForRedraw();
}

void ListViewProperties::letScrollColorStyle(cScrollColorStyle value) {
    Procedure p = procedure(u"ScrollColorStyle");
    p.step([&] { properties.ScrollColorStyle = value; });
    p.step([&] { scroller->vertical().letColorStyle(value); });
    p.step([&] { scroller->horizontal().letColorStyle(value); });
    p.step([&] { host().PropertyChanged(u"ScrollColorStyle"); });
}

void ListViewProperties::letScrollButtonJumpLines(Long value) {
    // Wanted: a value below 1 is dropped silently.
    if (value < 1)
        return;
    Procedure p = procedure(u"ScrollButtonJumpLines");
    p.step([&] { properties.ScrollButtonJumpLines = value; });
    p.step([&] { scroller->vertical().letScrollButtonJumpLines(value); });
    p.step([&] { host().PropertyChanged(u"ScrollButtonJumpLines"); });
}

void ListViewProperties::letAutoCheckScroll(bool value) {
    Procedure p = procedure(u"AutoCheckScroll");
    p.step([&] { properties.AutoCheckScroll = value; });
    if (value)
        scroller->CheckScroll();
    p.step([&] { host().PropertyChanged(u"AutoCheckScroll"); });
}

void ListViewProperties::letAutoRedraw(bool value) {
    Procedure p = procedure(u"AutoRedraw");
    p.step([&] { properties.AutoRedraw = value; });
    if (value)
        painting->Redraw();
    p.step([&] { host().PropertyChanged(u"AutoRedraw"); });
}

void ListViewProperties::letRowsDynamic(bool value) {
    Procedure p = procedure(u"RowsDynamic");
    p.step([&] { properties.RowsDynamic = value; });
    p.step([&] { host().PropertyChanged(u"RowsDynamic"); });
    if (properties.AutoCheckScroll)
        scroller->CheckScroll();
    CheckForRedraw();
}

void ListViewProperties::storeFont(StringView name, Held<FontRef> Properties::*field, const FontRef& font) {
    Procedure p = procedure(name);
    p.step([&] { properties.*field = drawing::CloneFont(font); });
    p.step([&] { host().PropertyChanged(name); });
    CheckForRedraw();
}

void ListViewProperties::setDefaultItemFont(const FontRef& font) {
    storeFont(u"DefaultItemFont", &Properties::DefaultItemFont, font);
}

void ListViewProperties::setDefaultColumnFont(const FontRef& font) {
    storeFont(u"DefaultColumnFont", &Properties::DefaultColumnFont, font);
}

void ListViewProperties::setSkin(PictureRef picture) {
    Procedure p = procedure(u"Skin");
    p.step([&] { properties.Skin = std::move(picture); });
    painting->SplitSkin();
    painting->Redraw();
    p.step([&] { host().PropertyChanged(u"Skin"); });
}

void ListViewProperties::letOLEDropMode(Long value) {
    Procedure p = procedure(u"OLEDropMode");
    p.step([&] { properties.OLEDropMode = value; });
    p.step([&] { listWindow->letOLEDropMode(value); });
    p.step([&] { host().PropertyChanged(u"OLEDropMode"); });
}

void ListViewProperties::letTextPositionDefault(cTextPosition value) {
    Procedure p = procedure(u"TextPositionDefault");
    p.step([&] { properties.TextPositionDefault = value; });
    // Wanted: the one setter that does not tell the host.
    CheckForRedraw();
}

} // namespace lumtex

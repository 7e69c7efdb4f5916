/// What a bar keeps between two runs, and the colours that its owner hands it.
#include "bars/scroll_bar.h"
#include "bars/scroll_colors.h"

#include <algorithm>
#include <array>

namespace lumtex::bars {

struct ScrollBar::SavedProperty {
    StringView key;
    Variant byDefault;
    Variant (*get)(const ScrollBar&);
    void (*let)(ScrollBar&, const Variant&);
};

/// In the order of reading and writing. `Min` and `Max` are checked against each other as they come.
std::span<const ScrollBar::SavedProperty> ScrollBar::savedProperties() const {
    // clang-format off
    static const std::array<SavedProperty, 11> all{{
        {u"Min", Long{0}, [](const ScrollBar& b) { return Variant(b.Min()); }, [](ScrollBar& b, const Variant& v) { b.letMin(v.toLong()); }},
        {u"Max", Long{100}, [](const ScrollBar& b) { return Variant(b.Max()); }, [](ScrollBar& b, const Variant& v) { b.letMax(v.toLong()); }},
        {u"Value", Long{0}, [](const ScrollBar& b) { return Variant(b.Value()); }, [](ScrollBar& b, const Variant& v) { b.letValue(v.toLong()); }},
        {u"Gradient", true, [](const ScrollBar& b) { return Variant(b.Gradient()); }, [](ScrollBar& b, const Variant& v) { b.letGradient(v.toBoolean()); }},
        {u"ColorStyle", Long{0}, [](const ScrollBar& b) { return Variant(b.ColorStyle()); }, [](ScrollBar& b, const Variant& v) { b.letColorStyle(v.toLong()); }},
        {u"ActiveScrolling", true, [](const ScrollBar& b) { return Variant(b.ActiveScrolling()); }, [](ScrollBar& b, const Variant& v) { b.letActiveScrolling(v.toBoolean()); }},
        {u"LargeChange", Long{1}, [](const ScrollBar& b) { return Variant(b.LargeChange()); }, [](ScrollBar& b, const Variant& v) { b.letLargeChange(v.toLong()); }},
        {u"SmallChange", Long{1}, [](const ScrollBar& b) { return Variant(b.SmallChange()); }, [](ScrollBar& b, const Variant& v) { b.letSmallChange(v.toLong()); }},
        {u"Enabled", true, [](const ScrollBar& b) { return Variant(b.Enabled()); }, [](ScrollBar& b, const Variant& v) { b.letEnabled(v.toBoolean()); }},
        {u"BackColor", OLE_COLOR{white}, [](const ScrollBar& b) { return Variant(b.BackColor()); }, [](ScrollBar& b, const Variant& v) { b.letBackColor(v.toColor()); }},
        {u"ScrollButtonJumpLines", Long{4}, [](const ScrollBar& b) { return Variant(b.jumpLines()); }, [](ScrollBar& b, const Variant& v) { b.letJumpLines(v.toLong()); }},
    }};
    // clang-format on
    return std::span(all).first(traits_.jumpsLines ? all.size() : all.size() - 1);
}

void ScrollBar::UserControl_InitProperties() {
    for (const SavedProperty& property : savedProperties())
        property.let(*this, property.byDefault);
    layOut();
}

void ScrollBar::UserControl_ReadProperties(const PropertyBag& bag) {
    Procedure p = procedure(u"UserControl_ReadProperties");
    for (const SavedProperty& property : savedProperties())
        p.step([&] { property.let(*this, bag.ReadProperty(property.key, property.byDefault)); });
}

void ScrollBar::UserControl_WriteProperties(PropertyBag& bag) const {
    Procedure p = procedure(u"UserControl_WriteProperties");
    for (const SavedProperty& property : savedProperties())
        p.step([&] { bag.WriteProperty(property.key, property.get(*this), property.byDefault); });
}

namespace {

struct ButtonColor {
    OLE_COLOR Properties::*ofList;
    OLE_COLOR ArrowColors::*role;
};

constexpr auto buttonColors = std::to_array<ButtonColor>({
    {&Properties::ScrollArrows, &ArrowColors::Arrow},
    {&Properties::ScrollArrowsDown, &ArrowColors::ArrowDown},
    {&Properties::ScrollArrowsHover, &ArrowColors::ArrowHover},
    {&Properties::ScrollButtons, &ArrowColors::Button},
    {&Properties::ScrollButtonsDown, &ArrowColors::ButtonDown},
    {&Properties::ScrollButtonsHover, &ArrowColors::ButtonHover},
});

} // namespace

void ScrollBar::SetNewProperty(const PropertyBag& bag) {
    Procedure p = procedure(u"SetNewProperty");
    const auto color = [&](OLE_COLOR Properties::*ofList) {
        const ScrollColor& row = *std::ranges::find(scrollColors, ofList, &ScrollColor::field);
        return bag.ReadProperty(row.name, row.bagDefault).toColor();
    };
    p.step([&] { letBackColor(color(&Properties::ScrollBackColor)); });
    p.step([&] { thumb_.letBar(color(&Properties::ScrollBar)); });
    p.step([&] { thumb_.letBarDown(color(&Properties::ScrollBarDown)); });
    p.step([&] { thumb_.letBarHover(color(&Properties::ScrollBarHover)); });
    for (ArrowButton* button : {&low_, &high_}) {
        for (const ButtonColor& each : buttonColors)
            p.step([&] { button->letColor(each.role, color(each.ofList)); });
    }
}

} // namespace lumtex::bars

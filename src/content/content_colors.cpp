#include "content/content_colors.h"

#include "guards/procedure.h"
#include "values/color.h"

namespace lumtex::content {

namespace {
constexpr StringView defaultColor = u"def";
} // namespace

Long GetCorrectColor(Runtime& runtime, StringView text) {
    if (text == defaultColor)
        return codeOfDefaultColor;
    const Variant color(text);
    if (!color.isNumeric())
        return white;
    Procedure p{runtime, u"GetCorrectColor", ModuleKind::control, u"lmListView"};
    return p.value<Long>([&] { return color.toLong(); });
}

// Wanted: no HTML colour is parsed, whatever the name says.
Variant HTML2VBColor(Long value) {
    if (value == codeOfDefaultColor)
        return defaultColor;
    return value;
}

} // namespace lumtex::content

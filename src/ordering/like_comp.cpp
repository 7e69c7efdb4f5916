#include "ordering/like_comp.h"

#include "guards/procedure.h"
#include "ordering/like_pattern.h"

namespace lumtex::ordering {

bool LikeCompBinary(Runtime& runtime, StringView value, StringView pattern) {
    Procedure p(runtime, u"LikeCompBinary", ModuleKind::module, u"basCompareBinary");
    return p.value<bool>([&] { return LikePattern(pattern, LikePattern::byUnit).matches(value); });
}

bool LikeCompText(Runtime& runtime, StringView value, StringView pattern) {
    Procedure p(runtime, u"LikeCompText", ModuleKind::module, u"basComparyText");
    return p.value<bool>([&] { return LikePattern(pattern, LikePattern::folded).matches(value); });
}

} // namespace lumtex::ordering

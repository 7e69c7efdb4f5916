#include "sortfind/sort_keys.h"

#include "platform/case_mapping.h"
#include "platform/variant.h"

#include <algorithm>

namespace lumtex {

String textKey(StringView text) {
    String key(text);
    std::transform(key.begin(), key.end(), key.begin(), [](char16_t unit) { return lowerCase(unit); });
    return key;
}

Double numberKey(const Runtime& runtime, StringView text, cSortType type) {
    if (type == cSortDate) {
        const auto date = runtime.dateFromText(text);
        return date ? date->days : Variant(text).toDate().days;
    }
    const auto number = runtime.numberFromText(text);
    return number ? *number : Variant(text).toDouble();
}

String pivotText(Double key, cSortType type) {
    return type == cSortDate ? textFromDate(Date{key}) : textFromNumber(key);
}

Double pivotFromText(StringView text, cSortType type) {
    const Variant pivot(text);
    return type == cSortDate ? pivot.toDate().days : pivot.toDouble();
}

} // namespace lumtex

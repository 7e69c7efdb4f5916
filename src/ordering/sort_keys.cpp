#include "ordering/sort_keys.h"

#include "values/case_mapping.h"
#include "values/locale.h"

#include <algorithm>

namespace lumtex::ordering {

String textKey(StringView text) {
    String key(text);
    std::transform(key.begin(), key.end(), key.begin(), [](char16_t unit) { return lowerCase(unit); });
    return key;
}

Double numberKey(StringView text, cSortType type) {
    return type == cSortDate ? dateFrom(text).days : numberFrom(text);
}

String pivotText(Double key, cSortType type) {
    return type == cSortDate ? currentLocale().textOf(Date{key}) : currentLocale().textOf(key);
}

} // namespace lumtex::ordering

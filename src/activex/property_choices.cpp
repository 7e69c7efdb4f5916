/// The enumerations behind properties.
#include "activex/property_choices.h"

#include "values/variant.h"

#include <algorithm>

namespace lumtex::win32 {

namespace {

const automation::Member* ifPlain(const automation::Member* member) {
    return member != nullptr && !member->isMethod() && member->count == 0 ? member : nullptr;
}

} // namespace

const automation::Member* plainProperty(Long number) {
    return ifPlain(automation::findMember(automation::listViewClass(), number));
}

const automation::Member* plainProperty(StringView name) {
    return ifPlain(automation::findMember(automation::listViewClass(), name));
}

const automation::Enumeration* choicesOf(const automation::Member& property) {
    if (property.type.code != automation::TypeCode::enumeration)
        return nullptr;
    const auto* const found = std::find_if(
        automation::enumerationTable.begin(),
        automation::enumerationTable.end(),
        [&](const automation::Enumeration& enumeration) { return enumeration.name == property.type.name; });
    return found != automation::enumerationTable.end() ? found : nullptr;
}

String choiceText(const automation::Enumerator& choice) {
    return textFromNumber(static_cast<Double>(choice.number)) + u" - " + String(choice.name);
}

} // namespace lumtex::win32

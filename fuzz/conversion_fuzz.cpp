/// Conversions between values and texts: each gives a value or one of the three failures, and what was turned
/// into text and back is what it was.
#include "fuzz_input.h"
#include "values/date_text.h"

#include <cmath>

using namespace lumtex;

namespace {

template <class Conversion>
bool converts(Conversion&& conversion) {
    try {
        conversion();
        return true;
    } catch (const RuntimeError& error) {
        const Long number = error.number();
        fuzz::require(number == ErrorNumber::overflow || number == ErrorNumber::typeMismatch ||
                      number == ErrorNumber::invalidUseOfNull || number == ErrorNumber::objectVariableNotSet);
        return false;
    }
}

void convertEveryWay(const Variant& value) {
    converts([&] { value.toLong(); });
    converts([&] { value.toInteger(); });
    converts([&] { value.toByte(); });
    converts([&] { value.toSingle(); });
    converts([&] { value.toBoolean(); });
    converts([&] { value.toDate(); });
    converts([&] { value.toColor(); });
    converts([&] { value.toObject(); });
    converts([&] { value.toPicture(); });
    converts([&] { value.toFont(); });
    converts([&] { value.toText(); });
    const bool isNumber = converts([&] { value.toDouble(); });
    // A text that says it is a number is one, though it may be too large for a narrower type.
    fuzz::require(!value.isString() || !value.isNumeric() || isNumber);
}

void comeBack(Double number) {
    if (!std::isfinite(number))
        return;
    const String text = Variant(number).toText();
    const Double back = Variant(text).toDouble();
    fuzz::require(Variant(back).toText() == text);
    fuzz::require(std::abs(back - number) <= std::abs(number) * 1e-14);
}

void comeBackAsDate(Double days) {
    if (!isDateInRange(days))
        return;
    const String text = Variant(Date{days}).toText();
    fuzz::require(converts([&] { fuzz::require(Variant(Variant(text).toDate()).toText() == text); }));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const String letters(data, data + size);
    convertEveryWay(Variant(letters));
    fuzz::Input input(data, size);
    for (int i = 0; i < 8 && !input.atEnd(); ++i)
        convertEveryWay(input.value());
    fuzz::Input numbers(data, size);
    comeBack(numbers.raw<Double>());
    comeBackAsDate(numbers.raw<Double>());
    comeBackAsDate(static_cast<Double>(numbers.raw<Long>()) / 86400);
    return 0;
}

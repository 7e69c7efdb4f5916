#include "worlds/win32/win32_locale.h"

#include "values/date_text.h"
#include "values/runtime_error.h"
#include "worlds/win32/com_error.h"
#include "worlds/win32/variant_bridge.h"

#include <utility>

namespace lumtex::win32 {

namespace {

/// What one of the system's routines writes; `write` gets the place for the text.
template <class Write>
String written(Write&& write) {
    BSTR text = nullptr;
    demand(write(&text));
    // Freed also where there is no memory for the copy.
    OwnedVARIANT owner;
    V_VT(&owner.get()) = VT_BSTR;
    V_BSTR(&owner.get()) = text;
    return String(viewBSTR(text));
}

/// The system knows one letter before an exponent, the language two. None where there is no other one.
std::optional<String> withSystemsExponent(StringView text) {
    const std::size_t letter = text.find_first_of(u"Dd");
    if (letter == StringView::npos || letter == 0)
        return std::nullopt;
    String other(text);
    other[letter] = u'E';
    return other;
}

HRESULT readDouble(StringView text, LCID locale, Double& number) {
    String copy(text);
    return VarR8FromStr(wide(copy.data()), locale, 0, &number);
}

} // namespace

NumberFromText Win32Locale::readNumber(StringView text) const {
    Double number = 0;
    HRESULT result = readDouble(text, locale_, number);
    if (result == DISP_E_TYPEMISMATCH) {
        if (const auto other = withSystemsExponent(text))
            result = readDouble(*other, locale_, number);
    }
    if (SUCCEEDED(result))
        return {NumberFromText::number, number};
    return {result == DISP_E_OVERFLOW ? NumberFromText::tooLarge : NumberFromText::notANumber, 0};
}

std::optional<Date> Win32Locale::readDate(StringView text) const {
    String copy(text);
    Date date;
    if (FAILED(VarDateFromStr(wide(copy.data()), locale_, 0, &date.days)))
        return std::nullopt;
    return date;
}

String Win32Locale::textOf(LongLong value) const {
    return written([&](BSTR* text) { return VarBstrFromI8(value.value, locale_, 0, text); });
}

String Win32Locale::textOf(UnsignedLongLong value) const {
    return written([&](BSTR* text) { return VarBstrFromUI8(value.value, locale_, 0, text); });
}

String Win32Locale::textOf(Single value) const {
    return written([&](BSTR* text) { return VarBstrFromR4(value, locale_, 0, text); });
}

String Win32Locale::textOf(Double value) const {
    return written([&](BSTR* text) { return VarBstrFromR8(value, locale_, 0, text); });
}

String Win32Locale::textOf(Currency value) const {
    CY amount;
    amount.int64 = value.tenThousandths;
    return written([&](BSTR* text) { return VarBstrFromCy(amount, locale_, 0, text); });
}

String Win32Locale::textOf(const Decimal& value) const {
    DECIMAL number = toDECIMAL(value);
    return written([&](BSTR* text) { return VarBstrFromDec(&number, locale_, 0, text); });
}

String Win32Locale::textOf(Date value) const {
    return textOf(value, 0);
}

String Win32Locale::textOf(Date value, unsigned long part) const {
    if (!isDateInRange(value.days))
        throw RuntimeError(ErrorNumber::overflow);
    return written([&](BSTR* text) { return VarBstrFromDate(value.days, locale_, part, text); });
}

String Win32Locale::dateText(Date date) const {
    return textOf(date, VAR_DATEVALUEONLY);
}

String Win32Locale::timeText(Date date) const {
    return textOf(date, VAR_TIMEVALUEONLY);
}

const Locale& win32UsersLocale() {
    static const Win32Locale locale(LOCALE_USER_DEFAULT);
    return locale;
}

words::Language languageOf(LANGID language) {
    return PRIMARYLANGID(language) == LANG_GERMAN ? words::Language::german : words::Language::english;
}

} // namespace lumtex::win32

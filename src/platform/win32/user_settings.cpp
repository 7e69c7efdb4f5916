/// Clock, and texts of numbers and dates in the user's form.
#include "platform/runtime_error.h"
#include "platform/win32/com_error.h"
#include "platform/win32/variant_bridge.h"
#include "platform/win32/win32_runtime.h"

namespace lumtex {

namespace {

String dateForm(Date date, unsigned long part) {
    BSTR text = nullptr;
    demand(VarBstrFromDate(date.days, LOCALE_USER_DEFAULT, part, &text));
    const String copy(viewBSTR(text));
    SysFreeString(text);
    return copy;
}

} // namespace

Date Win32Runtime::now() const {
    SYSTEMTIME local{};
    GetLocalTime(&local);
    Date now;
    if (SystemTimeToVariantTime(&local, &now.days) == FALSE)
        throw RuntimeError(invalidProcedureCall);
    return now;
}

String Win32Runtime::dateText(Date date) const {
    return dateForm(date, VAR_DATEVALUEONLY);
}

String Win32Runtime::timeText(Date date) const {
    return dateForm(date, VAR_TIMEVALUEONLY);
}

std::optional<Double> Win32Runtime::numberFromText(StringView text) const {
    String copy(text);
    Double number = 0;
    if (SUCCEEDED(VarR8FromStr(wide(copy.data()), LOCALE_USER_DEFAULT, 0, &number)))
        return number;
    // The system does not know "&H1F" or "1D3", which mean the same under all settings. A point is left to
    // it.
    return text.find(u'.') == StringView::npos ? lumtex::numberFromText(text) : std::nullopt;
}

std::optional<Date> Win32Runtime::dateFromText(StringView text) const {
    String copy(text);
    Date date;
    if (FAILED(VarDateFromStr(wide(copy.data()), LOCALE_USER_DEFAULT, 0, &date.days)))
        return std::nullopt;
    return date;
}

} // namespace lumtex

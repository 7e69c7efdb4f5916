/// The clock.
#include "values/runtime_error.h"
#include "worlds/win32/win32_runtime.h"

namespace lumtex {

Date Win32Runtime::now() const {
    SYSTEMTIME local{};
    GetLocalTime(&local);
    Date now;
    if (SystemTimeToVariantTime(&local, &now.days) == FALSE)
        throw RuntimeError(invalidProcedureCall);
    return now;
}

} // namespace lumtex

/// \file
/// The border that no exception crosses.
#pragma once

#include "worlds/win32/com_error.h"

#include <new>

namespace lumtex::win32 {

/// DISP_E_... for a refused argument or an unknown member, otherwise the HRESULT made from the error number.
HRESULT automationResult(const RuntimeError& error) noexcept;

/// Leaves the text of a failure where the caller finds it.
void tellErrorInfo(const RuntimeError& error, const GUID& interfaceId) noexcept;

/// Runs `body`, which gives an HRESULT.
template <class Body>
HRESULT guarded(Body&& body) noexcept {
    try {
        return body();
    } catch (const RuntimeError& error) {
        return automationResult(error);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::exception&) {
        return E_UNEXPECTED;
    }
}

} // namespace lumtex::win32

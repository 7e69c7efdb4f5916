#include "guards/failure_of.h"

#include "values/text.h"

#include <new>
#include <stdexcept>

namespace lumtex {

RuntimeError failureFrom(const std::exception& caught) {
    if (const auto* error = dynamic_cast<const RuntimeError*>(&caught))
        return *error;
    if (dynamic_cast<const std::bad_alloc*>(&caught) != nullptr ||
        dynamic_cast<const std::length_error*>(&caught) != nullptr)
        return RuntimeError(ErrorNumber::outOfMemory);
    throw;
}

RuntimeError failureOfHandler(const std::exception& caught) {
    try {
        return failureFrom(caught);
    } catch (const std::exception& foreign) {
        try {
            return RuntimeError(ErrorNumber::automationError, fromUtf8(foreign.what()));
        } catch (const std::exception&) {
            return RuntimeError(
                ErrorNumber::automationError); // without its own text, where there is no memory for it
        }
    }
}

} // namespace lumtex

#include "services/failure_of.h"

#include <new>
#include <stdexcept>

namespace lumtex {

RuntimeError failureFrom(const std::exception& caught) {
    if (const auto* error = dynamic_cast<const RuntimeError*>(&caught))
        return *error;
    if (dynamic_cast<const std::bad_alloc*>(&caught) != nullptr ||
        dynamic_cast<const std::length_error*>(&caught) != nullptr)
        return RuntimeError(outOfMemory);
    throw;
}

} // namespace lumtex

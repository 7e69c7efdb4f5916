#include "services/procedure.h"

#include "services/ignoring_errors.h"

namespace lumtex {

void Procedure::report(const RuntimeError& error) noexcept {
    if (silentError())
        return;
    ignoringErrors([&] {
        reportError(runtime_,
                    {.number = error.number(),
                     .description = error.description(),
                     .procedure = String(name_),
                     .line = 0,
                     .moduleKind = moduleKind_,
                     .moduleName = String(moduleName_)});
    });
}

} // namespace lumtex

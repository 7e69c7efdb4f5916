#include "guards/procedure.h"

#include "guards/error.h"

namespace lumtex {

void Procedure::report(const RuntimeError& error) noexcept {
    if (silentError() || (life_ != nullptr && life_->hasEnded()))
        return;
    reportError(runtime_,
                {.number = error.number(),
                 .description = error.description(),
                 .procedure = name_,
                 .line = 0,
                 .moduleKind = moduleKind_,
                 .moduleName = moduleName_});
}

void Procedure::reportCaught(const std::exception& caught) {
    report(failureFrom(caught));
}

} // namespace lumtex

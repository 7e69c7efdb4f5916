/// \file
/// How a statement of a pass fails; for the files of the pass alone.
#pragma once

#include "guards/error.h"
#include "render/paint_pass.h"

namespace lumtex {

template <class Statement>
void PaintPass::statement(Statement body) {
    const bool silent = silentError();
    const bool succeeded = procedure.step(body);
    if (!succeeded && !silent)
        throw PassEnds{};
}

} // namespace lumtex

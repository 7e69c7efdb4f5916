#include "persistence/content_cells.h"

namespace lumtex {

std::optional<CellStyle> ContentCells::plainStyle() const {
    const FontRef font = list_.DefaultItemFont();
    if (!font)
        return std::nullopt;
    CellStyle style;
    style.ForeColor = black;
    style.AllowEdit = list_.AllowEdit();
    style.font = font->spec;
    return style;
}

} // namespace lumtex

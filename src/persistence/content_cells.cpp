#include "persistence/content_cells.h"

namespace lumtex {

std::optional<CellStyle> ContentCells::plainStyle() const {
    const FontRef font = core_.properties.DefaultItemFont;
    if (!font)
        return std::nullopt;
    CellStyle style;
    style.ForeColor = black;
    style.AllowEdit = core_.properties.AllowEdit;
    style.font = font->spec;
    return style;
}

} // namespace lumtex

/// Cutting the pieces of the hover bar from a strip.
#include "render/painting.h"

namespace lumtex {

namespace {

struct Piece {
    Long sourceX; // pixels
    Long width;
};

/// In the order of `imgCol`: left cap, two stamps, right cap.
constexpr std::array<Piece, 4> pieces{{{0, 6}, {6, 1}, {7, 1}, {8, 8}}};
constexpr Long stripHeight = 3;
constexpr OLE_COLOR boardColor = white;

} // namespace

void Painting::SplitSkin() {
    Procedure p = procedure(u"SplitSkin");
    const PictureRef source = properties_.Skin ? properties_.Skin.get() : artwork_.imgDefault;
    std::unique_ptr<Surface> pSkin;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        p.step([&] {
            pSkin = core_.world().createSurface(pieces[i].width, stripHeight);
            pSkin->letBackColor(boardColor);
        });
        if (!pSkin)
            continue;
        // What the strip does not cover, or all where it cannot be painted, stays the board's background.
        p.step([&] {
            const auto width = static_cast<Single>(pieces[i].width);
            pSkin->paintPicture(*source,
                                {0, 0, width, stripHeight},
                                {static_cast<Single>(pieces[i].sourceX), 0, width, stripHeight});
        });
        p.step([&] { artwork_.imgCol[i] = std::make_shared<PixelArt>(pSkin->image()); });
    }
}

} // namespace lumtex

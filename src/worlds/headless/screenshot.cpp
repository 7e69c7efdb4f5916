/// What a user would see of a window.
#include "worlds/headless/desktop.h"

#include <algorithm>

namespace lumtex::headless {

namespace {

/// Places in 64 bits, since they are sums of numbers that may be anywhere in 32.
struct Clip {
    std::int64_t left;
    std::int64_t top;
    std::int64_t right;
    std::int64_t bottom;

    bool isEmpty() const { return left >= right || top >= bottom; }
};

/// Copies the part of `source`, whose corner lies at (`x`, `y`) of `target`, that `clip` lets through.
void lay(Bitmap& target, const Bitmap& source, std::int64_t x, std::int64_t y, const Clip& clip) {
    const Long columns = static_cast<Long>(clip.right - clip.left);
    for (std::int64_t row = clip.top; row < clip.bottom; ++row) {
        const std::uint32_t* from = source.pixels.data() + (row - y) * source.width + (clip.left - x);
        std::copy_n(from, columns, target.pixels.data() + row * target.width + clip.left);
    }
}

void compose(Bitmap& target, const Pane& pane, std::int64_t x, std::int64_t y, const Clip& outer) {
    const std::int64_t width = std::int64_t{pane.area().Right} - pane.area().Left;
    const std::int64_t height = std::int64_t{pane.area().Bottom} - pane.area().Top;
    const Clip clip{std::max(outer.left, x),
                    std::max(outer.top, y),
                    std::min(outer.right, x + width),
                    std::min(outer.bottom, y + height)};
    if (clip.isEmpty())
        return;
    lay(target, pane.picture(), x, y, clip);
    for (const Pane* child : pane.children()) {
        if (child->isVisible())
            compose(target, *child, x + child->area().Left, y + child->area().Top, clip);
    }
}

} // namespace

Bitmap Desktop::screenshot(const Window& window) const {
    Bitmap picture(static_cast<Long>(window.Width()), static_cast<Long>(window.Height()));
    compose(picture, paneOf(window.hWnd()), 0, 0, {0, 0, picture.width, picture.height});
    return picture;
}

} // namespace lumtex::headless

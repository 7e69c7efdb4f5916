/// Copying and dropping the values that own something.
#include "values/variant.h"

namespace lumtex {

void Variant::copyHeld(const Variant& other) {
    other.visit([&]<class T>(const T& value) {
        if constexpr (!isPlainType<T>)
            hold<T>(value);
    });
}

void Variant::moveHeld(Variant& other) noexcept {
    other.visit([&]<class T>(const T& /*value*/) {
        if constexpr (!isPlainType<T>)
            hold<T>(std::move(other.held<T>()));
    });
}

void Variant::dropHeld() noexcept {
    visit([&]<class T>(const T& /*value*/) { held<T>().~T(); });
}

void Variant::replaceBy(Variant fresh) noexcept {
    // Dropping an object may run code of the host that looks at this very Variant: by then it has its new
    // value.
    const Variant old(std::move(*this));
    if (!isPlain())
        dropHeld();
    if (fresh.isPlain())
        copyPlain(fresh);
    else
        moveHeld(fresh);
}

} // namespace lumtex

/// Copying and dropping the values that own something.
#include "values/variant.h"

namespace lumtex {

// Most of what is held is a text, which goes a way without a table of kinds.

void Variant::copyHeld(const Variant& other) {
    if (other.isString())
        return hold<String>(other.held<String>());
    other.visit([&]<class T>(const T& value) {
        if constexpr (!isPlainType<T>)
            hold<T>(value);
    });
}

void Variant::moveHeld(Variant& other) noexcept {
    if (other.isString())
        return hold<String>(std::move(other.held<String>()));
    other.visit([&]<class T>(const T& /*value*/) {
        if constexpr (!isPlainType<T>)
            hold<T>(std::move(other.held<T>()));
    });
}

void Variant::dropHeld() noexcept {
    if (isString())
        return held<String>().~String();
    visit([&]<class T>(const T& /*value*/) { held<T>().~T(); });
}

void Variant::replaceBy(Variant fresh) noexcept {
    if (isString() && fresh.isString()) {
        held<String>() = std::move(fresh.held<String>());
        return;
    }
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

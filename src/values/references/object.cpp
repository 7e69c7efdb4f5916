#include "values/references/object.h"

#include "values/variant.h"

namespace lumtex {

Variant Object::get(StringView name) {
    return get(name, {});
}
Variant Object::call(StringView name) {
    return call(name, {});
}

} // namespace lumtex

#include "guards/application_object.h"

#include "values/runtime_error.h"
#include "values/text.h"

namespace lumtex {

Variant ApplicationObject::get(StringView name, std::span<Variant> arguments) {
    if (!arguments.empty())
        throw RuntimeError(ErrorNumber::wrongNumberOfArguments);
    if (sameName(name, u"EXEName"))
        return component_.exeName;
    if (sameName(name, u"Path"))
        return component_.folder;
    if (sameName(name, u"Major"))
        return component_.major;
    if (sameName(name, u"Minor"))
        return component_.minor;
    if (sameName(name, u"Revision"))
        return component_.revision;
    throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
}

void ApplicationObject::put(StringView /*name*/, const Variant& /*value*/) {
    throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
}

Variant ApplicationObject::call(StringView name, std::span<Variant> arguments) {
    return get(name, arguments);
}

} // namespace lumtex

/// \file
/// A host's object, made of functions.
#pragma once

#include "values/references/object.h"
#include "values/runtime_error.h"
#include "values/text.h"
#include "values/variant.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace lumtex::testing {

/// Knows the properties and methods that a test gives it, and notes what is done with them. Anything else
/// fails with 438, as late binding does.
class TestObject final : public Object {
  public:
    std::map<String, Variant> properties;
    std::map<String, std::function<Variant(std::span<Variant>)>> methods;
    std::vector<std::string> log;
    std::function<void()> onPut;

    using Object::call;
    using Object::get;

    Variant get(StringView name, std::span<Variant> /*arguments*/) override {
        const auto found = properties.find(String(name));
        if (found == properties.end())
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        return found->second;
    }

    void put(StringView name, const Variant& value) override {
        const auto found = properties.find(String(name));
        if (found == properties.end())
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        found->second = value;
        log.push_back(toUtf8(name) + "=" + toUtf8(value.toText()));
        if (onPut)
            onPut();
    }

    Variant call(StringView name, std::span<Variant> arguments) override {
        const auto found = methods.find(String(name));
        if (found == methods.end())
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        std::string line = toUtf8(name);
        for (const Variant& argument : arguments)
            line += " " + toUtf8(argument.toText());
        log.push_back(line);
        return found->second(arguments);
    }

    /// A control as a form would hold it: shown, moved, of the given height in twips.
    static std::shared_ptr<TestObject> control(Single heightInTwips) {
        auto object = std::make_shared<TestObject>();
        object->properties[u"Visible"] = false;
        object->properties[u"Height"] = heightInTwips;
        object->methods[u"Move"] = [](std::span<Variant>) { return Variant(); };
        return object;
    }
};

} // namespace lumtex::testing

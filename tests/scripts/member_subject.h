/// \file
/// A list of the component and a list of the core, used alike.
#pragma once

#include "activex/component.h"
#include "automation/call_by_name.h"

#include <string>
#include <vector>

namespace lumtex::testing {

/// Objects by what they are. Other values with their kind, or, in a language that knows one kind of number
/// alone, without it.
std::string shown(const Variant& value, bool withKind);

/// One side of the comparison: an object that can be used by names.
class Subject {
  public:
    Subject() = default;
    Subject(const Subject&) = delete;
    Subject& operator=(const Subject&) = delete;
    virtual ~Subject() = default;
    virtual Variant get(StringView name, std::vector<Variant> arguments) = 0;
    virtual void let(StringView name, std::vector<Variant> arguments, const Variant& value) = 0;
    virtual void call(StringView name, std::vector<Variant> arguments) = 0;
};

/// Makes a list hold three columns and three rows, whatever it held.
void fill(Subject& list);

/// What a use of a member may have changed in a list, as text.
std::string stateOf(Subject& list);

/// The core, with nothing of the component around it.
class CoreSubject final : public Subject {
  public:
    explicit CoreSubject(automation::CallByName byName) : byName_(byName) {}

    Variant get(StringView name, std::vector<Variant> arguments) override {
        const automation::Member& member = *automation::findMember(byName_.description(), name);
        return member.isMethod() ? byName_.call(member, arguments) : byName_.get(member, arguments);
    }
    void let(StringView name, std::vector<Variant> arguments, const Variant& value) override {
        byName_.let(name, arguments, value);
    }
    void call(StringView name, std::vector<Variant> arguments) override { byName_.call(name, arguments); }

  private:
    automation::CallByName byName_;
};

/// The component, late-bound.
class ComponentSubject final : public Subject {
  public:
    explicit ComponentSubject(win32::ComRef<IDispatch> object) : object_(std::move(object)) {}

    Variant get(StringView name, std::vector<Variant> arguments) override {
        return invoke(object_.get(), win32::wide(String(name)), DISPATCH_PROPERTYGET, arguments).value;
    }
    void let(StringView name, std::vector<Variant> arguments, const Variant& value) override {
        arguments.push_back(value);
        invoke(object_.get(), win32::wide(String(name)), DISPATCH_PROPERTYPUT, arguments);
    }
    void call(StringView name, std::vector<Variant> arguments) override {
        invoke(object_.get(), win32::wide(String(name)), DISPATCH_METHOD, arguments);
    }

  private:
    win32::ComRef<IDispatch> object_;
};

} // namespace lumtex::testing

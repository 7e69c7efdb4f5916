/// \file
/// Late binding: an object of the host, reached by member names at run time.
#pragma once

#include "values/types.h"

#include <memory>
#include <span>

namespace lumtex {

class Variant;

/// Wraps an automation object, a toolkit object, or a class of a test. Names compare without regard to case.
/// An unknown member throws RuntimeError 438; a failing one throws what the object reports.
///
/// An empty name is the default member: the value that the object stands for, or the element of a collection
/// that the arguments name.
class Object {
  public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object() = default;

    /// Reads a property, with arguments if it has parameters.
    virtual Variant get(StringView name, std::span<Variant> arguments) = 0;
    /// Assigns a property.
    virtual void put(StringView name, const Variant& value) = 0;
    /// Calls a method; by-reference arguments are written back.
    virtual Variant call(StringView name, std::span<Variant> arguments) = 0;

    Variant get(StringView name);
    Variant call(StringView name);
};

using ObjectRef = std::shared_ptr<Object>;

} // namespace lumtex

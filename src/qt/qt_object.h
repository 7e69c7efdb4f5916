/// \file
/// An object of Qt as the list knows objects: by the names of members.
#pragma once

#include "values/references/object.h"

#include <QMetaProperty>
#include <QObject>
#include <QPointer>

namespace lumtex::qt {

/// Reads and assigns the object's properties, and calls what its meta-object can call, names compared without
/// regard to case. Once the object is gone every member is unknown.
class QtObject final : public Object {
  public:
    explicit QtObject(QObject* object) : object_(object) {}

    using Object::call;
    using Object::get;
    Variant get(StringView name, std::span<Variant> arguments) override;
    void put(StringView name, const Variant& value) override;
    Variant call(StringView name, std::span<Variant> arguments) override;

    QObject* object() const { return object_; }

  private:
    /// Throws RuntimeError 438 if there is no such property.
    QMetaProperty propertyOf(StringView name) const;

    QPointer<QObject> object_;
};

} // namespace lumtex::qt

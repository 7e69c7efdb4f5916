/// \file
/// All signals of an object, whatever they are.
#pragma once

#include <QMetaMethod>
#include <QObject>
#include <QVariantList>
#include <functional>
#include <vector>

namespace lumtex::gallery {

/// Hears of each signal with the values of its arguments, references read and left as they are. Belongs to
/// the object that it listens to.
class EventTap final : public QObject {
  public:
    using Hear = std::function<void(const QMetaMethod& signal, const QVariantList& arguments)>;
    using Wanted = std::function<bool(const QMetaMethod& signal)>;

    EventTap(QObject& object, const Wanted& wanted, Hear hear);

    /// Called by Qt for connections that are made by number.
    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override;

  private:
    std::vector<QMetaMethod> signals_;
    Hear hear_;
};

} // namespace lumtex::gallery

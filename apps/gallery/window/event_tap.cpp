#include "event_tap.h"

namespace lumtex::gallery {

EventTap::EventTap(QObject& object, const Wanted& wanted, Hear hear)
    : QObject(&object), hear_(std::move(hear)) {
    const QMetaObject& meta = *object.metaObject();
    const int firstOwn = QObject::staticMetaObject.methodCount();
    for (int i = 0; i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() != QMetaMethod::Signal || !wanted(method))
            continue;
        QMetaObject::connect(
            &object, i, this, firstOwn + static_cast<int>(signals_.size()), Qt::DirectConnection);
        signals_.push_back(method);
    }
}

namespace {

/// The type of a referred value has no entry of its own among the types that Qt knows.
QMetaType typeOf(const QMetaMethod& signal, int parameter) {
    QByteArray name = signal.parameterTypes().at(parameter);
    if (name.endsWith('&'))
        name.chop(1);
    const QMetaType named = QMetaType::fromName(name);
    return named.isValid() ? named : signal.parameterMetaType(parameter);
}

} // namespace

int EventTap::qt_metacall(QMetaObject::Call call, int id, void** arguments) {
    const int number = QObject::qt_metacall(call, id, arguments);
    if (number < 0 || call != QMetaObject::InvokeMetaMethod || number >= static_cast<int>(signals_.size()))
        return number;
    const QMetaMethod signal = signals_[static_cast<std::size_t>(number)];
    QVariantList values;
    for (int i = 0; i < signal.parameterCount(); ++i) {
        const void* value = arguments[i + 1]; // the first is the result's
        const QMetaType type = typeOf(signal, i);
        // A variant is not packed into another.
        values.append(type == QMetaType::fromType<QVariant>() ? *static_cast<const QVariant*>(value)
                                                              : QVariant(type, value));
    }
    // What hears may end the object, and this with it.
    const Hear hear = hear_;
    hear(signal, values);
    return -1;
}

} // namespace lumtex::gallery

#include "qt/qt_object.h"

#include "qt/qt_values.h"
#include "values/runtime_error.h"
#include "worlds/qt/qt_text.h"

#include <QMetaMethod>
#include <array>

namespace lumtex::qt {

namespace {

/// As many arguments as the meta-object passes.
constexpr std::size_t mostArguments = 10;

bool isCalled(const QByteArray& own, StringView name) {
    return toQString(name).compare(QString::fromUtf8(own), Qt::CaseInsensitive) == 0;
}

[[noreturn]] void refuse() {
    throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
}

} // namespace

QMetaProperty QtObject::propertyOf(StringView name) const {
    if (object_ == nullptr)
        refuse();
    const QMetaObject* meta = object_->metaObject();
    for (int i = meta->propertyCount() - 1; i >= 0; --i)
        if (isCalled(meta->property(i).name(), name))
            return meta->property(i);
    refuse();
}

Variant QtObject::get(StringView name, std::span<Variant> arguments) {
    if (!arguments.empty())
        return call(name, arguments);
    return fromQVariant(propertyOf(name).read(object_));
}

void QtObject::put(StringView name, const Variant& value) {
    if (!propertyOf(name).write(object_, toQVariant(value)))
        throw RuntimeError(ErrorNumber::typeMismatch);
}

Variant QtObject::call(StringView name, std::span<Variant> arguments) {
    if (object_ == nullptr || arguments.size() > mostArguments)
        refuse();
    const QMetaObject* meta = object_->metaObject();
    for (int i = meta->methodCount() - 1; i >= 0; --i) {
        const QMetaMethod method = meta->method(i);
        if (static_cast<std::size_t>(method.parameterCount()) != arguments.size() ||
            !isCalled(method.name(), name))
            continue;
        std::array<QVariant, mostArguments> values;
        std::array<QGenericArgument, mostArguments> passed;
        for (std::size_t k = 0; k < arguments.size(); ++k) {
            values[k] = toQVariant(arguments[k]);
            const QMetaType type = method.parameterMetaType(static_cast<int>(k));
            if (values[k].metaType() != type && !values[k].convert(type))
                throw RuntimeError(ErrorNumber::typeMismatch);
            passed[k] = QGenericArgument(type.name(), values[k].constData());
        }
        QVariant result(method.returnMetaType().id() == QMetaType::Void ? QVariant()
                                                                        : QVariant(method.returnMetaType()));
        const QGenericReturnArgument answer =
            result.isValid() ? QGenericReturnArgument(method.returnMetaType().name(), result.data())
                             : QGenericReturnArgument();
        if (!method.invoke(object_,
                           Qt::DirectConnection,
                           answer,
                           passed[0],
                           passed[1],
                           passed[2],
                           passed[3],
                           passed[4],
                           passed[5],
                           passed[6],
                           passed[7],
                           passed[8],
                           passed[9]))
            refuse();
        return fromQVariant(result);
    }
    refuse();
}

} // namespace lumtex::qt

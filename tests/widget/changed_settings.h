/// \file
/// The settings of the widget as its meta-object has them, and other values for each.
#pragma once

#include "qt/lumtex_list_view.h"

#include <QColor>
#include <QFont>
#include <QMetaProperty>
#include <QPixmap>
#include <string>
#include <vector>

namespace lumtex::testing {

/// The names of all settings.
inline std::vector<std::string> settings() {
    std::vector<std::string> names;
    const QMetaObject& meta = LumtexListView::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        if (meta.property(i).isResettable() && meta.property(i).isWritable())
            names.emplace_back(meta.property(i).name());
    return names;
}

/// A value that the property has not.
inline QVariant anotherThan(const QMetaProperty& property, const QVariant& value) {
    switch (property.typeId()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::QColor:
        return QColor(1, 2, 3);
    case QMetaType::QFont: {
        QFont font(QStringLiteral("DejaVu Serif"), 17);
        font.setBold(true);
        return font;
    }
    case QMetaType::QPixmap: {
        QPixmap picture(3, 2);
        picture.fill(Qt::red);
        return picture;
    }
    case QMetaType::QString:
        return value.toString() + QStringLiteral("x");
    default:
        break;
    }
    if (property.isEnumType())
        return property.enumerator().value(value.toInt() == property.enumerator().value(0) ? 1 : 0);
    QVariant other = value.toInt() + 1;
    other.convert(property.metaType());
    return other;
}

/// Pictures compare by their sizes.
inline QVariant comparable(const QVariant& value) {
    if (value.typeId() == QMetaType::QPixmap)
        return value.value<QPixmap>().size();
    if (value.typeId() == QMetaType::QFont)
        return value.value<QFont>().toString();
    return value.metaType().flags().testFlag(QMetaType::IsEnumeration) ? QVariant(value.toInt()) : value;
}

} // namespace lumtex::testing

/// \file
/// Values of ours as values of Qt, and back.
#pragma once

#include "values/variant.h"

#include <QVariant>

namespace lumtex::qt {

/// Texts, numbers, dates, colours (QColor, kept as a Long), fonts, pictures (QPixmap, QImage), objects
/// (QObject*), of these widgets as a WidgetObject and models as a ModelRecordset. What is invalid becomes
/// Empty; anything else, such as a list, is Unsupported.
Variant fromQVariant(const QVariant& value);
/// A picture becomes a QPixmap, a font a QFont, an object of Qt its pointer, any other object nothing.
QVariant toQVariant(const Variant& value);

OLE_COLOR fromQColor(const QColor& color);

/// The object of Qt behind a reference, for what a drag carries its QMimeData; null if there is none.
QObject* toQObject(const ObjectRef& object);

/// Takes over what a receiver of a signal left in a reference.
void takeBack(const QVariant& value, Variant& place);

} // namespace lumtex::qt

#include "qt/qt_values.h"

#include "qt/model_recordset.h"
#include "qt/qt_object.h"
#include "worlds/qt/carried_data.h"
#include "worlds/qt/qt_picture.h"
#include "worlds/qt/qt_text.h"
#include "worlds/qt/widget_object.h"

#include <QAbstractItemModel>
#include <QColor>
#include <QDateTime>
#include <QFont>
#include <QPixmap>
#include <QWidget>
#include <cmath>
#include <utility>

namespace lumtex::qt {

namespace {

constexpr Double millisecondsPerDay = 24.0 * 60 * 60 * 1000;
const QDate firstDay(1899, 12, 30); ///< of a Date

// The time of a day counts forwards also in days before the first one, whose numbers are negative.

Date fromMoment(const QDateTime& moment) {
    const auto day = static_cast<Double>(firstDay.daysTo(moment.date()));
    const Double time = moment.time().msecsSinceStartOfDay() / millisecondsPerDay;
    return {day < 0 ? day - time : day + time};
}

QDateTime toMoment(Date date) {
    const Double day = std::trunc(date.days);
    const auto milliseconds = static_cast<int>(std::lround(std::abs(date.days - day) * millisecondsPerDay));
    return {firstDay.addDays(static_cast<qint64>(day)), QTime::fromMSecsSinceStartOfDay(milliseconds)};
}

FontRef fromQFont(const QFont& font) {
    return std::make_shared<Font>(FontSpec{.Name = fromQString(font.family()),
                                           .Size = static_cast<Single>(font.pointSizeF()),
                                           .Bold = font.bold(),
                                           .Italic = font.italic(),
                                           .Underline = font.underline(),
                                           .Strikethrough = font.strikeOut()});
}

QFont toQFont(const FontSpec& spec) {
    QFont font(qt::toQString(spec.Name));
    if (spec.Size > 0)
        font.setPointSizeF(spec.Size);
    font.setBold(spec.Bold);
    font.setItalic(spec.Italic);
    font.setUnderline(spec.Underline);
    font.setStrikeOut(spec.Strikethrough);
    return font;
}

PictureRef fromQImage(const QImage& image) {
    if (image.isNull())
        return nullptr;
    return std::make_shared<BitmapPicture>(bitmapOf(image));
}

/// A widget may lie over a cell, and a model be imported; what else they have is reached by name as of any
/// object.
ObjectRef fromQObject(QObject* object) {
    if (object == nullptr)
        return nullptr;
    if (auto* model = qobject_cast<QAbstractItemModel*>(object))
        return std::make_shared<ModelRecordset>(*model);
    auto named = std::make_shared<QtObject>(object);
    if (auto* widget = qobject_cast<QWidget*>(object))
        return std::make_shared<WidgetObject>(*widget, std::move(named));
    return named;
}

struct ToQVariant {
    QVariant operator()(std::monostate) const { return {}; }
    QVariant operator()(Null) const { return QVariant::fromValue(nullptr); }
    QVariant operator()(Missing) const { return {}; }
    QVariant operator()(Unsupported) const { return {}; }
    QVariant operator()(bool value) const { return value; }
    QVariant operator()(Byte value) const { return QVariant::fromValue(value); }
    QVariant operator()(Integer value) const { return QVariant::fromValue(value); }
    QVariant operator()(Long value) const { return QVariant::fromValue(int{value}); }
    QVariant operator()(Single value) const { return value; }
    QVariant operator()(Double value) const { return value; }
    QVariant operator()(LongLong value) const { return QVariant::fromValue(qlonglong{value.value}); }
    QVariant operator()(UnsignedLongLong value) const { return QVariant::fromValue(qulonglong{value.value}); }
    QVariant operator()(Currency value) const { return Variant(value).toDouble(); }
    QVariant operator()(const Decimal& value) const { return Variant(value).toDouble(); }
    QVariant operator()(Date value) const { return toMoment(value); }
    QVariant operator()(const String& value) const { return qt::toQString(value); }
    QVariant operator()(const ObjectRef& value) const { return QVariant::fromValue(toQObject(value)); }
    QVariant operator()(const PictureRef& value) const {
        return value ? QPixmap::fromImage(imageOf(value->bitmap())) : QPixmap();
    }
    QVariant operator()(const FontRef& value) const { return value ? toQFont(value->spec) : QFont(); }
};

} // namespace

Variant fromQVariant(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::Nullptr:
        return Null{};
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::UChar:
        return value.value<Byte>();
    case QMetaType::Short:
        return value.value<Integer>();
    case QMetaType::Int:
    case QMetaType::SChar:
    case QMetaType::Char:
    case QMetaType::UShort:
        return Long{value.toInt()};
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return LongLong{value.toLongLong()};
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return UnsignedLongLong{value.toULongLong()};
    case QMetaType::Float:
        return value.toFloat();
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QString:
    case QMetaType::QChar:
    case QMetaType::QByteArray:
        return fromQString(value.toString());
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return fromMoment(value.toDateTime());
    case QMetaType::QTime:
        return Date{value.toTime().msecsSinceStartOfDay() / millisecondsPerDay};
    case QMetaType::QColor:
        return fromQColor(value.value<QColor>());
    case QMetaType::QFont:
        return fromQFont(value.value<QFont>());
    case QMetaType::QPixmap:
        return fromQImage(value.value<QPixmap>().toImage());
    case QMetaType::QImage:
        return fromQImage(value.value<QImage>());
    default:
        break;
    }
    if (value.metaType().flags().testFlag(QMetaType::IsEnumeration))
        return Long{value.toInt()};
    if (value.canConvert<QObject*>()) {
        return fromQObject(value.value<QObject*>());
    }
    return Unsupported{};
}

QVariant toQVariant(const Variant& value) {
    return value.visit(ToQVariant{});
}

OLE_COLOR fromQColor(const QColor& color) {
    return static_cast<OLE_COLOR>(color.red()) | static_cast<OLE_COLOR>(color.green()) << 8U |
           static_cast<OLE_COLOR>(color.blue()) << 16U;
}

QObject* toQObject(const ObjectRef& object) {
    if (const auto* own = dynamic_cast<const QtObject*>(object.get()))
        return own->object();
    if (const auto* widget = dynamic_cast<const WidgetObject*>(object.get()))
        return widget->widget();
    if (const auto* records = dynamic_cast<const ModelRecordset*>(object.get()))
        return records->model();
    if (const auto* carried = dynamic_cast<const CarriedData*>(object.get()))
        return carried->mimeData();
    return nullptr;
}

void takeBack(const QVariant& value, Variant& place) {
    place = fromQVariant(value);
}

} // namespace lumtex::qt

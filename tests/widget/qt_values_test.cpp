/// Values there and back.
#include "qt/qt_values.h"
#include "values/runtime_error.h"
#include "worlds/qt/qt_text.h"

#include <QColor>
#include <QDateTime>
#include <QFont>
#include <memory>

#include <gtest/gtest.h>

namespace lumtex::testing {

namespace {

TEST(QtValues, AreTheSameAfterAWayThereAndBack) {
    const QDateTime moment(QDate(2026, 3, 1), QTime(13, 45, 10, 250));
    for (const QVariant& value : {QVariant(),
                                  QVariant(true),
                                  QVariant::fromValue<unsigned char>(200),
                                  QVariant::fromValue<short>(-3),
                                  QVariant(-70000),
                                  QVariant::fromValue<qlonglong>(Q_INT64_C(-1) << 40),
                                  QVariant::fromValue<qulonglong>(Q_UINT64_C(1) << 63),
                                  QVariant(1.5F),
                                  QVariant(1.0 / 3),
                                  QVariant(moment),
                                  QVariant(QDateTime(QDate(1899, 12, 30), QTime(6, 0))),
                                  QVariant(QDateTime(QDate(1850, 1, 1), QTime(18, 0))),
                                  QVariant(QStringLiteral("Größe \u4e2d"))}) {
        const QVariant back = qt::toQVariant(qt::fromQVariant(value));
        EXPECT_EQ(back, value) << value.typeName();
        EXPECT_EQ(back.typeId(), value.typeId());
    }
}

TEST(QtValues, NarrowIntegersArriveAsWiderOnes) {
    EXPECT_EQ(qt::fromQVariant(QVariant::fromValue<unsigned short>(65535)).toLong(), 65535);
    EXPECT_EQ(qt::fromQVariant(QVariant::fromValue<signed char>(-5)).toLong(), -5);
    EXPECT_EQ(qt::fromQVariant(QVariant(4000000000U)).toDouble(), 4000000000.0);
}

TEST(QtValues, ADayAndATimeAreDates) {
    EXPECT_EQ(qt::fromQVariant(QDate(1900, 1, 1)).toDate().days, 2);
    EXPECT_EQ(qt::fromQVariant(QTime(12, 0)).toDate().days, 0.5);
}

TEST(QtValues, AColourIsANumberWithRedFirst) {
    EXPECT_EQ(qt::fromQVariant(QColor(0x12, 0x34, 0x56)).toColor(), 0x563412U);
}

TEST(QtValues, AnEnumerationIsItsNumber) {
    EXPECT_EQ(qt::fromQVariant(QVariant::fromValue(Qt::AlignRight)).toLong(), 2);
}

TEST(QtValues, AnObjectIsFoundAgainUntilItIsGone) {
    auto object = std::make_unique<QObject>();
    const Variant held = qt::fromQVariant(QVariant::fromValue(object.get()));
    EXPECT_EQ(qt::toQVariant(held).value<QObject*>(), object.get());
    object.reset();
    EXPECT_EQ(qt::toQVariant(held).value<QObject*>(), nullptr);
}

TEST(QtValues, WhatNoTypeOfOursHoldsIsUnsupported) {
    EXPECT_THROW(qt::fromQVariant(QVariantList{1, 2}).toLong(), RuntimeError);
    EXPECT_FALSE(qt::toQVariant(qt::fromQVariant(QVariantList{1, 2})).isValid());
}

} // namespace
} // namespace lumtex::testing

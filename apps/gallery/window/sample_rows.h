/// \file
/// Rows that look like data: the same at each start, and as many as are wanted.
#pragma once

#include <QDate>
#include <QString>

namespace lumtex::gallery {

struct SampleRow {
    QString name;
    QString city;
    double amount;
    QDate date;
};

/// `number` counts from 1.
SampleRow sampleRow(int number);

} // namespace lumtex::gallery

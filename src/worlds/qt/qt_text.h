/// \file
/// Texts of ours as texts of Qt, and back: both are UTF-16.
#pragma once

#include "values/types.h"

#include <QString>

namespace lumtex::qt {

inline QString toQString(StringView text) {
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

inline String fromQString(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

} // namespace lumtex::qt

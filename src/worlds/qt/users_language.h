/// \file
/// Which of the product's languages the user of a desktop of Qt reads.
#pragma once

#include "words/language.h"

#include <QLocale>
#include <QStringList>

namespace lumtex::qt {

/// The first of `wanted` that the product speaks, or English; these are names of locales, the dearest first.
/// Inline, for the shared library hides what is not the widget.
inline words::Language languageOf(const QStringList& wanted) {
    for (const QString& name : wanted) {
        const QLocale::Language language = QLocale(name).language();
        if (language == QLocale::German)
            return words::Language::german;
        if (language == QLocale::English)
            break;
    }
    return words::Language::english;
}

inline words::Language usersLanguage() {
    return languageOf(QLocale::system().uiLanguages());
}

} // namespace lumtex::qt

/// \file
/// What the product says by itself, in each language: help for members, headings, and what screen readers
/// hear.
///
/// One header holds all words of a language. Texts that hosts rely on (those of reports and of the two boxes
/// of a scroll bar's range, the descriptions of error numbers) are the same for everybody and stand where
/// they are used.
#pragma once

#include "words/english.h"
#include "words/language.h"

#include <algorithm>

namespace lumtex::words {

/// The same thing said in all languages.
class Phrase {
  public:
    /// Lives as long as the program.
    StringView in(Language language) const;

  private:
    constexpr explicit Phrase(std::size_t place) : place_(place) {}
    friend constexpr Phrase phrase(StringView scope, StringView name);

    std::size_t place_;
};

/// A key that no catalogue has stops the compiler, or throws where the key is made at run time.
constexpr Phrase phrase(StringView scope, StringView name) {
    const Entry key{scope, name, {}};
    const auto* const found = std::lower_bound(
        englishWords.begin(), englishWords.end(), key, [](const Entry& one, const Entry& other) {
            return one.isBefore(other);
        });
    if (found == englishWords.end() || !found->hasKeyOf(key))
        throw "no catalogue has this key";
    return Phrase(static_cast<std::size_t>(found - englishWords.begin()));
}

} // namespace lumtex::words

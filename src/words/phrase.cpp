#include "words/phrase.h"

#include "words/german.h"

namespace lumtex::words {

namespace {

template <class Catalogue>
constexpr bool hasTheKeysOfEnglish(const Catalogue& other) {
    return std::equal(englishWords.begin(),
                      englishWords.end(),
                      other.begin(),
                      other.end(),
                      [](const Entry& here, const Entry& there) { return here.hasKeyOf(there); });
}

static_assert(std::is_sorted(englishWords.begin(),
                             englishWords.end(),
                             [](const Entry& one, const Entry& other) { return one.isBefore(other); }),
              "keys are found by halving");
static_assert(hasTheKeysOfEnglish(germanWords), "a place in one catalogue is that in all");

} // namespace

StringView Phrase::in(Language language) const {
    switch (language) {
    case Language::german:
        return germanWords[place_].text;
    case Language::english:
        break;
    }
    return englishWords[place_].text;
}

} // namespace lumtex::words

#include "sample_rows.h"

#include <array>

namespace lumtex::gallery {

namespace {

constexpr std::array firstNames{u"Ada",
                                u"Bruno",
                                u"Chiara",
                                u"Dmitri",
                                u"Élise",
                                u"Farid",
                                u"Greta",
                                u"Hugo",
                                u"Ines",
                                u"Jonas",
                                u"Katja",
                                u"Liam"};
constexpr std::array lastNames{u"Almeida",
                               u"Berg",
                               u"Cohen",
                               u"Dubois",
                               u"Eriksen",
                               u"Fischer",
                               u"García",
                               u"Hoffmann",
                               u"Ivanov",
                               u"Jansen",
                               u"Kowalski"};
constexpr std::array cities{u"Lisbon",
                            u"Oslo",
                            u"Quito",
                            u"Kyoto",
                            u"Zürich",
                            u"Cairo",
                            u"Lima",
                            u"Porto",
                            u"Tunis",
                            u"Vienna",
                            u"Nairobi",
                            u"Riga",
                            u"Seoul"};

/// Numbers without order that are the same each time.
constexpr unsigned scattered(unsigned number, unsigned salt) {
    unsigned mixed = number * 2654435761U + salt * 40503U;
    mixed ^= mixed >> 15U;
    mixed *= 2246822519U;
    return mixed ^ (mixed >> 13U);
}

template <class Texts>
QString oneOf(const Texts& texts, unsigned number) {
    return QString::fromUtf16(texts.at(number % texts.size()));
}

} // namespace

SampleRow sampleRow(int number) {
    constexpr unsigned mostCents = 1'000'000;
    constexpr unsigned daysOfTenYears = 3652;
    const auto n = static_cast<unsigned>(number);
    return {oneOf(firstNames, scattered(n, 1)) + u' ' + oneOf(lastNames, scattered(n, 2)),
            oneOf(cities, scattered(n, 3)),
            scattered(n, 4) % mostCents / 100.0,
            QDate(2016, 1, 1).addDays(scattered(n, 5) % daysOfTenYears)};
}

} // namespace lumtex::gallery

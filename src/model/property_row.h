/// \file
/// What a row of the property table says.
#pragma once

#include "records/properties.h"
#include "words/phrase.h"

#include <cstddef>
#include <type_traits>

namespace lumtex {

/// Under what property windows of designers list a property.
enum class Group : Byte {
    appearance,
    behaviour,
    columns,
    scrollBars, ///< and the wheel
    data,       ///< what the user may do to the content, and what is dragged in and out
};

/// What the catalogues of words call it.
constexpr StringView groupKey(Group group) {
    switch (group) {
    case Group::appearance:
        return u"appearance";
    case Group::behaviour:
        return u"behaviour";
    case Group::columns:
        return u"columns";
    case Group::scrollBars:
        return u"scrollBars";
    case Group::data:
        break;
    }
    return u"data";
}

/// The heading of the group.
constexpr words::Phrase groupName(Group group) {
    return words::phrase(u"group", groupKey(group));
}

/// What follows once the value of a property is stored and the host was told.
enum class After : Byte {
    store,             ///< nothing
    checkForRedraw,    ///< a repaint where `AutoRedraw` or design mode asks for it
    redraw,            ///< a repaint, whatever `AutoRedraw` says
    toScrollBars,      ///< the ten scroll colours go to the bars, then as `checkForRedraw`
    own,               ///< the setter is one of its own, and repaints nothing
    ownCheckForRedraw, ///< one of its own, which repaints as `checkForRedraw`
    ownRedraw,         ///< one of its own, which repaints as `redraw`
};

/// The value that the property has in a new list, and for which the bag keeps nothing. The fields of
/// `Properties` themselves start at zero.
struct Start {
    enum class Kind : Byte {
        number,
        shortNumber, ///< an Integer in the bag, though the property is a Long
        containersFont,
        sixteenPixels, ///< in twips of the list's screen
        jumpLines,     ///< depends on the program that the list runs in
        noPicture,
    };

    Kind kind = Kind::number;
    Double value = 0;      ///< 0 and 1 for a Boolean
    bool inNewList = true; ///< False: the property stays at zero in a new list

    constexpr Start(Kind known) : kind(known), inNewList(known != Kind::noPicture) {}
    template <class Number>
    requires std::is_arithmetic_v<Number> || std::is_enum_v<Number>
    constexpr Start(Number number) : value(static_cast<Double>(number)) {}
};

template <class Get, class Let, class Field>
struct PropertyRow {
    StringView name;
    Long number; ///< the dispatch number; it never changes once a version has been given out
    Group group;
    Get get; ///< null for a property that the bag alone reaches
    Let let;
    Field Properties::*field;
    After after;
    Start start;
    words::Phrase help;
};

/// What assigning the property repaints.
constexpr bool repaints(After after) {
    return after == After::redraw || after == After::ownRedraw;
}
constexpr bool checksForRedraw(After after) {
    return after == After::checkForRedraw || after == After::toScrollBars ||
           after == After::ownCheckForRedraw;
}

template <class Get, class Let, class Field>
PropertyRow(StringView, Long, Group, Get, Let, Field Properties::*, After, Start, words::Phrase)
    -> PropertyRow<Get, Let, Field>;

namespace property_table {

constexpr words::Phrase helpFor(StringView name) {
    return words::phrase(u"lmListView", name);
}

template <auto get, auto let, auto field>
constexpr auto row(StringView name, Long number, Group group, After after, Start start) {
    return PropertyRow{name, number, group, get, let, field, after, start, helpFor(name)};
}
template <auto field>
constexpr auto bagOnly(StringView name, Group group, After after, Start start) {
    return PropertyRow{name, 0, group, nullptr, nullptr, field, after, start, helpFor(name)};
}
constexpr Start shortNumber(int number) {
    Start start(number);
    start.kind = Start::Kind::shortNumber;
    return start;
}
template <class Number>
constexpr Start onlyInBag(Number number) {
    Start start(number);
    start.inNewList = false;
    return start;
}

} // namespace property_table
} // namespace lumtex

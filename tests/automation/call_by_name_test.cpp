#include "automation/call_by_name.h"
#include "automation/found_record.h"
#include "error_number.h"
#include "list_fixture.h"
#include "variant_printing.h"

namespace lumtex::testing {

namespace {

class CallingByName : public ListFixture {
  protected:
    template <class... Values>
    static std::vector<Variant> with(Values... values) {
        return {Variant(values)...};
    }

    automation::CallByName byName{list};
};

TEST_F(CallingByName, ReadsAssignsAndCallsWhateverTheCaseOfTheName) {
    auto column = with(u"Name");
    byName.call(u"columnsADD", column);
    auto row = with(Long{-1}, u";", u"Ada");
    byName.call(u"RowsAdd", row);
    auto cell = with(Long{1}, Long{1});
    EXPECT_EQ(byName.get(u"itemtext", cell), Variant(u"Ada"));
    byName.let(u"ITEMTEXT", cell, u"Grace");
    EXPECT_EQ(list.ItemText(1, 1), u"Grace");
    byName.let(u"GridLines", {}, true);
    EXPECT_TRUE(list.GridLines());
    EXPECT_EQ(byName.get(u"RowsCount"), Variant(Long{1}));
}

TEST_F(CallingByName, ArgumentsThatAreLeftOutTakeTheirDefaults) {
    auto column = with(u"Name");
    byName.call(u"ColumnsAdd", column);
    EXPECT_EQ(list.ColumnWidth(1), 1000);
    auto some = with(u"Other", Missing{}, Missing{}, Missing{}, Missing{}, Long{450});
    byName.call(u"ColumnsAdd", some);
    EXPECT_EQ(list.ColumnWidth(2), 450);
    EXPECT_TRUE(some[1].isMissing());
    byName.call(u"RowsAdd");
    EXPECT_EQ(list.ItemText(1, 1), u"");
    EXPECT_EQ(byName.call(u"ItemsCheckedCount"), Variant(Long{0}));
}

TEST_F(CallingByName, WhatTheControlWritesComesBackInByReferenceArguments) {
    addColumns({50});
    auto row = with(Long{99});
    byName.call(u"RowsAdd", row);
    EXPECT_EQ(row[0], Variant(Long{0}));
    auto removed = with(u"1");
    byName.call(u"RowsRemove", removed);
    EXPECT_EQ(removed[0], Variant(Long{1}));
    list.RowsAdd(Long{-1}, u",", u"x");
    auto search = with(u"x", Long{cFindStart}, Long{cFindBinary}, u"", u"");
    byName.call(u"FindItem", search);
    EXPECT_EQ(search[3], Variant(u"*"));
    EXPECT_EQ(search[4], Variant(u"*"));
}

TEST_F(CallingByName, ValuesAreConvertedToTheTypesOfTheInterface) {
    addColumns({50});
    auto first = with(Long{1});
    byName.let(u"ColumnWidth", first, u"12.5");
    EXPECT_EQ(list.ColumnWidth(1), 12.5F);
    byName.let(u"ColumnAlignment", first, 2.5);
    EXPECT_EQ(list.ColumnAlignment(1), cColumnRight);
    byName.let(u"ColumnItemIconH", first, Long{24});
    EXPECT_EQ(inside.columns()[0]->ItemIconH, -1);
    EXPECT_EQ(byName.get(u"ColumnItemIconH", first), Variant(true));
    EXPECT_EQ(errorNumberOf([&] { byName.let(u"ColumnWidth", first, u"wide"); }), ErrorNumber::typeMismatch);
    EXPECT_EQ(errorNumberOf([&] { byName.let(u"OLEDragMode", {}, 3e9); }), ErrorNumber::overflow);
    EXPECT_EQ(list.ColumnWidth(1), 12.5F);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(CallingByName, AMemberIsUsedOnlyAsWhatItIs) {
    EXPECT_EQ(errorNumberOf([&] { byName.get(u"NoSuchMember"); }), ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(errorNumberOf([&] { byName.call(u"RowsCount"); }), ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(errorNumberOf([&] { byName.get(u"Redraw"); }), ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(errorNumberOf([&] { byName.let(u"RowsCount", {}, Long{1}); }),
              ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(errorNumberOf([&] { byName.let(u"Skin", {}, PictureRef{}); }),
              ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(errorNumberOf([&] { byName.set(u"GridLines", {}, true); }),
              ErrorNumber::objectDoesNotSupportMember);
}

TEST_F(CallingByName, TheNumberOfArgumentsIsChecked) {
    auto one = with(Long{1});
    auto three = with(Long{1}, Long{1}, Long{1});
    EXPECT_EQ(errorNumberOf([&] { byName.get(u"ItemText", one); }), ErrorNumber::argumentNotOptional);
    EXPECT_EQ(errorNumberOf([&] { byName.let(u"ItemText", one, u"x"); }), ErrorNumber::argumentNotOptional);
    EXPECT_EQ(errorNumberOf([&] { byName.get(u"ItemText", three); }), ErrorNumber::wrongNumberOfArguments);
    EXPECT_EQ(errorNumberOf([&] { byName.call(u"Redraw", one); }), ErrorNumber::wrongNumberOfArguments);
}

TEST_F(CallingByName, FailuresOfTheControlAreReportedThereAndNotThrown) {
    auto nowhere = with(Long{7}, Long{1});
    EXPECT_EQ(byName.get(u"ItemText", nowhere), Variant(u""));
    EXPECT_EQ(lastReport(), "9 ItemText");
}

TEST_F(CallingByName, ReferencesAreSetAndNothingTakesThemAway) {
    const FontRef font = std::make_shared<Font>(FontSpec{.Name = u"Verdana", .Size = 20});
    byName.set(u"DefaultItemFont", {}, font);
    EXPECT_EQ(list.DefaultItemFont()->spec.Size, 20);
    byName.set(u"DefaultItemFont", {}, FontRef{});
    EXPECT_EQ(byName.get(u"DefaultItemFont"), Variant(FontRef{}));
    EXPECT_EQ(errorNumberOf([&] { byName.set(u"Skin", {}, font); }), ErrorNumber::typeMismatch);
}

TEST_F(CallingByName, AFoundCellIsAnObjectWithTheFieldsOfTheRecord) {
    addColumns({50, 50});
    addRows(3, u"a,b");
    list.letItemText(2, 2, u"needle");
    auto search = with(u"need*", Long{cFindStart}, Long{cFindBinary}, u"");
    const ObjectRef found = byName.call(u"FindItem", search).toObject();
    EXPECT_EQ(search[3], Variant(u"*")) << "an empty list is rewritten at the caller's";
    EXPECT_EQ(found->get(u"findsuccessful"), Variant(true));
    EXPECT_EQ(found->get(u"FindRow"), Variant(Long{2}));
    EXPECT_EQ(found->get(u"FindColumn"), Variant(Long{2}));
    EXPECT_EQ(errorNumberOf([&] { found->get(u"FindCell"); }), ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(errorNumberOf([&] { found->put(u"FindRow", Long{1}); }),
              ErrorNumber::objectDoesNotSupportMember);
}

TEST_F(CallingByName, AListOfArgumentsMayBeAsLongAsTheCallerLikes) {
    addColumns({50, 50, 50});
    auto columns = with(Long{1}, u"3");
    byName.call(u"AutoColumnSize", columns);
    EXPECT_EQ(list.ColumnWidth(1), 150);
    EXPECT_EQ(list.ColumnWidth(2), 750);
    EXPECT_EQ(list.ColumnWidth(3), 150);
    byName.call(u"AutoColumnSize");
    EXPECT_EQ(list.ColumnWidth(2), 150);
}

TEST_F(CallingByName, AListLongerThanAnyMembersParametersReturnsToTheCallerToo) {
    addColumns({50, 50});
    std::vector<Variant> columns(40, Variant(u"1"));
    columns.back() = u"the second column is not named";
    const std::vector<Variant> before = columns;
    byName.call(u"AutoColumnSize", columns);
    EXPECT_EQ(columns, before);
    EXPECT_EQ(list.ColumnWidth(1), 150);
    EXPECT_EQ(list.ColumnWidth(2), 750);
}

TEST_F(CallingByName, ArgumentsAreTheCallersAgainAfterACall) {
    const String longText(40, u'x');
    auto row = with(Missing{}, u";", longText);
    addColumns({50});
    byName.call(u"RowsAdd", row);
    EXPECT_EQ(row, with(Missing{}, u";", longText)) << "what was left out stays so";
    auto text = with(longText);
    EXPECT_EQ(byName.call(u"WrongIndex", text), Variant(true));
    EXPECT_EQ(text, with(longText));
}

TEST_F(CallingByName, ArgumentsAreTheCallersAgainAfterARefusal) {
    const String longText(40, u'x');
    const ObjectRef object = automation::makeFoundRecord({});
    auto column = with(u"Name", Missing{}, Missing{}, Missing{}, longText);
    EXPECT_EQ(errorNumberOf([&] { byName.call(u"ColumnsAdd", column); }), ErrorNumber::typeMismatch);
    EXPECT_EQ(column, with(u"Name", Missing{}, Missing{}, Missing{}, longText));
    auto search = with(Missing{}, Long{cFindStart}, object, longText);
    EXPECT_EQ(errorNumberOf([&] { byName.call(u"FindItem", search); }), ErrorNumber::argumentNotOptional);
    EXPECT_EQ(search, with(Missing{}, Long{cFindStart}, object, longText));
}

TEST_F(CallingByName, ArgumentsOfTheCallsOwnServeWhereTheyLie) {
    addColumns({50});
    const automation::ClassDescription& lists = automation::listViewClass();
    automation::ArgumentList row;
    for (const Variant& value : with(Long{99}, u";", Missing{}))
        row.values().push_back(value);
    byName.call(*automation::findMember(lists, u"RowsAdd"), row);
    EXPECT_EQ(row.values()[0], Variant(Long{0})) << "the place that the row took";
    EXPECT_TRUE(row.values()[2].isMissing()) << "what was left out stays so";

    automation::ArgumentList cell;
    for (const Variant& value : with(Long{1}, Long{1}, u"Ada"))
        cell.values().push_back(value);
    byName.let(*automation::findMember(lists, u"ItemText"), cell);
    EXPECT_EQ(list.ItemText(1, 1), u"Ada");
    cell.values().pop_back();
    EXPECT_EQ(byName.get(*automation::findMember(lists, u"ItemText"), cell), Variant(u"Ada"));
}

TEST_F(CallingByName, ArgumentsOfTheCallsOwnAreRefusedLikeAnyOthers) {
    const automation::ClassDescription& lists = automation::listViewClass();
    automation::ArgumentList search;
    for (const Variant& value : with(Missing{}, Long{cFindStart}, Long{cFindBinary}, Missing{}, Missing{}))
        search.values().push_back(value);
    const automation::Member& find = *automation::findMember(lists, u"FindItem");
    EXPECT_EQ(errorNumberOf([&] { byName.call(find, search); }), ErrorNumber::argumentNotOptional);
    search.values().resize(2);
    EXPECT_EQ(errorNumberOf([&] { byName.call(find, search); }), ErrorNumber::argumentNotOptional);
    EXPECT_EQ(errorNumberOf([&] { byName.get(find, search); }), ErrorNumber::objectDoesNotSupportMember);

    automation::ArgumentList value;
    value.values().push_back(true);
    EXPECT_EQ(errorNumberOf([&] { byName.let(*automation::findMember(lists, u"Skin"), value); }),
              ErrorNumber::objectDoesNotSupportMember);
    EXPECT_EQ(errorNumberOf([&] { byName.set(*automation::findMember(lists, u"GridLines"), value); }),
              ErrorNumber::objectDoesNotSupportMember);
}

TEST_F(CallingByName, MembersAreFoundByTheirNumbersToo) {
    EXPECT_EQ(automation::findMember(automation::listViewClass(), Long{5})->name, u"RowsAdd");
    EXPECT_EQ(automation::findMember(automation::listViewClass(), Long{-12345}), nullptr);
    EXPECT_EQ(automation::findMember(automation::listViewClass(), u"rowsadd")->number, 5);
}

} // namespace
} // namespace lumtex::testing

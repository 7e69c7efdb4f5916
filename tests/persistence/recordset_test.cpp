/// Filling the list from a recordset.
#include "recordset_fixture.h"

namespace lumtex::testing {
namespace {

class Recordset : public RecordsetFixture {};

TEST_F(Recordset, ThreeFieldsAndTwoRecordsGiveThreeColumnsAndTwoRowsWithNewIndexOne) {
    fillBefore();
    list.setRecordset(make({u"a", u"b", u"c"}, {{u"1", u"2", u"3"}, {u"4", u"5", u"6"}}));
    EXPECT_EQ(content(), "a|b|c\n1|2|3\n4|5|6");
    EXPECT_EQ(list.NewIndex(), 1);
    EXPECT_EQ(reports(), "");
}

// Wanted: a value that holds a comma spreads over the next columns; nothing is escaped.
TEST_F(Recordset, AValueWithACommaTakesTwoColumnsAndTheSecondFieldIsLost) {
    list.setRecordset(make({u"one", u"two"}, {{u"a,b", u"lost"}}));
    EXPECT_EQ(content(), "one|two\na|b");
}

TEST_F(Recordset, ANullFieldAppendsNothingButTheComma) {
    list.setRecordset(make({u"a", u"b", u"c"}, {{u"1", Null{}, u"3"}, {Null{}, Null{}, Null{}}}));
    EXPECT_EQ(content(), "a|b|c\n1||3\n||");
    EXPECT_EQ(reports(), "");
}

TEST_F(Recordset, ReadsBackAsTheObjectThatWasAssignedAlsoWhenNothingWasLoaded) {
    EXPECT_EQ(list.Recordset(), nullptr);
    const auto loaded = make({u"a"}, {{u"1"}});
    list.setRecordset(loaded);
    EXPECT_EQ(list.Recordset(), loaded);
    const auto empty = make({u"a"}, {});
    list.setRecordset(empty);
    EXPECT_EQ(list.Recordset(), empty);
    EXPECT_EQ(content(), "a\n1");
}

TEST_F(Recordset, IsNoSettingThatIsSaved) {
    list.setRecordset(make({u"a"}, {{u"1"}}));
    MemoryPropertyBag bag;
    list.UserControl_WriteProperties(bag);
    for (const auto& entry : bag.entries())
        EXPECT_NE(entry.name, u"Recordset");
}

TEST_F(Recordset, WithACountNotAboveZeroChangesNothing) {
    const std::vector<Variant> counts = {
        Long{0}, Long{-1}, Long{-7}, u"0", u"-1", 0.0, false, true, Variant(), Null{}};
    fillBefore();
    for (const Variant& count : counts) {
        host.changed.clear();
        const auto recordset = make({u"a"}, {{u"1"}});
        recordset->countSaid = count;
        EXPECT_EQ(paintsOf([&] { list.setRecordset(recordset); }), 0);
        EXPECT_EQ(content(), "old|\nx|y");
        EXPECT_EQ(recordset->log, std::vector<std::string>{"RecordCount"});
        EXPECT_EQ(host.changed, std::vector<String>());
    }
    EXPECT_EQ(reports(), "");
}

TEST_F(Recordset, WithACountAboveZeroLoadsAllThereIsWhateverTheNumber) {
    for (const Variant& count : {Variant(Long{1}), Variant(u"1"), Variant(0.25), Variant(Long{99})}) {
        const auto recordset = make({u"a"}, {{u"1"}, {u"2"}, {u"3"}});
        recordset->countSaid = count;
        list.setRecordset(recordset);
        EXPECT_EQ(content(), "a\n1\n2\n3");
    }
    EXPECT_EQ(reports(), "");
}

TEST_F(Recordset, MakesPlainColumns) {
    list.setRecordset(make({u"Käse, \"alt\""}, {{u"1"}}));
    EXPECT_EQ(list.ColumnText(1), u"Käse, \"alt\"");
    EXPECT_EQ(list.ColumnIcon(1), nullptr);
    EXPECT_EQ(list.ColumnIconHover(1), nullptr);
    EXPECT_EQ(list.ColumnIconDown(1), nullptr);
    EXPECT_EQ(list.ColumnAlignment(1), cColumnLeft);
    EXPECT_EQ(list.ColumnWidth(1), 1000);
    EXPECT_FALSE(list.ColumnAllowSorting(1));
    EXPECT_EQ(list.ColumnForeColor(1), 0U);
    EXPECT_EQ(list.ColumnForeColorHover(1), 0U);
    EXPECT_EQ(list.ColumnForeColorDown(1), 0U);
    EXPECT_EQ(list.ColumnKey(1), u"");
    EXPECT_EQ(list.ColumnTag(1), u"");
}

TEST_F(Recordset, IsAskedInThisOrder) {
    const auto recordset = make({u"a", u"b"}, {{u"1", u"2"}, {u"3", u"4"}});
    list.setRecordset(recordset);
    const std::vector<std::string> record = {
        "fields", "Count", "fields", "fields(0)", "Value(0)", "fields", "fields(1)", "Value(1)"};
    std::vector<std::string> expected = {"RecordCount",
                                         "fields",
                                         "Count",
                                         "fields",
                                         "fields(0)",
                                         "Name(0)",
                                         "fields",
                                         "fields(1)",
                                         "Name(1)",
                                         "MoveFirst"};
    for (int i = 0; i < 2; ++i) {
        expected.insert(expected.end(), record.begin(), record.end());
        expected.insert(expected.end(), {"MoveNext", "EOF"});
    }
    EXPECT_EQ(recordset->log, expected);
}

TEST_F(Recordset, OffersItsRecordsWithoutNamesWhereItCan) {
    const auto recordset = std::make_shared<DirectTestRecordset>(std::vector<String>{u"a", u"b"},
                                                                 Records{{u"1", Null{}}, {u"x,y", 2.5}});
    list.setRecordset(recordset);
    EXPECT_EQ(content(), "a|b\n1|\nx|y");
    const std::vector<std::string> rest(recordset->log.begin() + 10, recordset->log.end());
    EXPECT_EQ(rest,
              (std::vector<std::string>{"direct Count",
                                        "direct Value",
                                        "direct Value",
                                        "direct MoveNext",
                                        "direct EOF",
                                        "direct Count",
                                        "direct Value",
                                        "direct Value",
                                        "direct MoveNext",
                                        "direct EOF"}));
}

// Wanted: the end is asked for after the move alone, so that the first record is always taken.
TEST_F(Recordset, TakesItsFirstRecordEvenAtTheEnd) {
    const auto recordset = make({u"a"}, {{u"1"}, {u"2"}});
    recordset->endSaid = true;
    list.setRecordset(recordset);
    EXPECT_EQ(content(), "a\n1");
    EXPECT_EQ(reports(), "");
}

TEST_F(Recordset, TurnsPaintingAndScrollingOffThroughTheirSettersAndBack) {
    const auto recordset = make({u"a"}, {{u"1"}, {u"2"}});
    std::vector<bool> seen;
    int paintsBefore = 0;
    int paintsDuring = 0;
    recordset->onCall = [&](const std::string& call, int) {
        if (call == "RecordCount")
            paintsBefore = window().presented();
        if (call == "EOF") {
            seen.insert(seen.end(), {list.AutoRedraw(), list.AutoCheckScroll()});
            paintsDuring = window().presented() - paintsBefore;
        }
    };
    for (const bool redraws : {true, false}) {
        for (const bool checks : {true, false}) {
            list.letAutoRedraw(redraws);
            list.letAutoCheckScroll(checks);
            host.changed.clear();
            seen.clear();
            const int paints = paintsOf([&] { list.setRecordset(recordset); });
            EXPECT_EQ(seen, (std::vector<bool>{false, false, false, false}));
            EXPECT_EQ(paintsDuring, 0);
            EXPECT_EQ(list.AutoRedraw(), redraws);
            EXPECT_EQ(list.AutoCheckScroll(), checks);
            EXPECT_EQ(
                host.changed,
                (std::vector<String>{u"AutoRedraw", u"AutoCheckScroll", u"AutoRedraw", u"AutoCheckScroll"}));
            EXPECT_EQ(paints, redraws ? 2 : 1) << "the setter's own, and one that always follows";
        }
    }
}

TEST_F(Recordset, ChecksTheScrollBarsAtTheEndWhateverAutoCheckScrollSays) {
    Records records;
    for (int i = 0; i < 100; ++i)
        records.push_back({u"x"});
    list.letAutoCheckScroll(false);
    list.letAutoRedraw(false);
    list.setRecordset(make({u"a"}, records));
    EXPECT_EQ(inside.vertical().Tag, u"True");
}

TEST_F(Recordset, GivesValuesTheirTextForms) {
    list.setRecordset(make(
        {u"a", u"b", u"c", u"d"},
        {{true, 2.5, Long{-7}, Date{45000}}, {u"\"quoted\"", u"Ω \U0001F600", Variant(), u" tab\tline\n"}}));
    EXPECT_EQ(content(),
              "a|b|c|d\nTrue|2.5|-7|" + toUtf8(Variant(Date{45000}).toText()) +
                  "\n\"quoted\"|Ω \U0001F600|| tab\tline\n");
    EXPECT_EQ(reports(), "");
}

TEST_F(Recordset, IsWalkedByTheCounterThatTheListsOtherLoopsShare) {
    const auto records = make({u"a", u"b", u"c"}, {{u"1", u"2", u"3"}, {u"4", u"5", u"6"}});
    records->onCall = [&](const std::string& call, int times) {
        if (call == "Value(0)" && times == 2)
            list.CheckScroll(); // walks the three columns
    };
    list.setRecordset(records);
    EXPECT_EQ(content(), "a|b|c\n1|2|3\n4||");
}

TEST_F(Recordset, ThatIsSetWhileItLoadsStillLoadsToItsEnd) {
    const auto inner = make({u"i"}, {{u"9"}});
    const auto outer = make({u"a"}, {{u"1"}, {u"2"}, {u"3"}});
    outer->onCall = [&](const std::string& call, int times) {
        if (call == "MoveNext" && times == 2)
            list.setRecordset(inner);
    };
    list.setRecordset(outer);
    EXPECT_EQ(content(), "i\n9\n3");
    EXPECT_EQ(list.Recordset(), inner);
    EXPECT_TRUE(list.AutoRedraw());
    EXPECT_TRUE(list.AutoCheckScroll());
}

TEST_F(Recordset, WhoseHostClearsTheListLeavesItUsable) {
    const auto recordset = make({u"a"}, {{u"1"}, {u"2"}, {u"3"}});
    recordset->onCall = [&](const std::string& call, int times) {
        if (call == "MoveNext" && times == 1) {
            list.RowsClear();
            list.ColumnsClear();
        }
        if (call == "MoveNext" && times == 2)
            list.ColumnsAdd(u"new");
    };
    list.setRecordset(recordset);
    EXPECT_EQ(content(), "new\n3");
    EXPECT_EQ(reports(), "");
}

TEST_F(Recordset, LivesAsLongAsItLoads) {
    auto recordset = make({u"a"}, {{u"1"}, {u"2"}});
    const std::weak_ptr<TestRecordset> watched = recordset;
    recordset->onCall = [&](const std::string& call, int) {
        if (call == "MoveFirst")
            list.setRecordset(make({u"b"}, {}));
    };
    list.setRecordset(std::move(recordset));
    EXPECT_EQ(content(), "a\n1\n2");
    EXPECT_TRUE(watched.expired());
}

TEST_F(Recordset, MayHave300Fields) {
    std::vector<String> names;
    std::vector<Variant> record;
    for (Long i = 0; i < 300; ++i) {
        names.push_back(u"f" + Variant(i).toText());
        record.emplace_back(i);
    }
    list.setRecordset(make(names, {record, record}));
    EXPECT_EQ(list.ColumnsCount(), 300);
    EXPECT_EQ(list.RowsCount(), 2);
    EXPECT_EQ(list.ColumnText(300), u"f299");
    EXPECT_EQ(list.ItemText(2, 300), u"299");
    EXPECT_EQ(reports(), "");
}

} // namespace
} // namespace lumtex::testing

/// What a failing member of a recordset costs: one report and one statement.
#include "recordset_fixture.h"

namespace lumtex::testing {
namespace {

class RecordsetFailure : public RecordsetFixture {
  protected:
    void SetUp() override {
        recordset->onCall = [this](const std::string& call, int times) {
            if (call == failing && (times == time || time == always))
                throw RuntimeError(3000, u"The engine says no");
        };
    }
    ~RecordsetFailure() override { Error().letSilentError(false); }

    /// Loads a table of two columns and three rows of which one call fails, and returns the content.
    std::string load(const std::string& call, int when) {
        failing = call;
        time = when;
        list.setRecordset(recordset);
        EXPECT_TRUE(list.AutoRedraw());
        EXPECT_TRUE(list.AutoCheckScroll());
        return content();
    }

    static constexpr int always = 0;
    std::string failing;
    int time = always;
    std::shared_ptr<TestRecordset> recordset = make({u"a", u"b"}, {{u"1", u"2"}, {u"3", u"4"}, {u"5", u"6"}});
};

TEST_F(RecordsetFailure, OfTheCountStopsTheImport) {
    fillBefore();
    fillBefore();
    const std::string before = content();
    EXPECT_EQ(load("RecordCount", always), before);
    EXPECT_EQ(reports(), "3000 Recordset");
}

TEST_F(RecordsetFailure, OfACountThatIsNoNumberStopsTheImport) {
    recordset->countSaid = u"many";
    fillBefore();
    const std::string before = content();
    EXPECT_EQ(load("", always), before);
    EXPECT_EQ(reports(), "13 Recordset");
}

TEST_F(RecordsetFailure, OfTheFieldCountLeavesNoColumnsAndHenceNoRows) {
    EXPECT_EQ(load("Count", 1), "");
    EXPECT_EQ(reports(), "3000 Recordset");
    EXPECT_EQ(list.RowsCount(), 0);
}

TEST_F(RecordsetFailure, OfTheFieldCountAtARecordLeavesItsRowEmpty) {
    EXPECT_EQ(load("Count", 3), "a|b\n1|2\n|\n5|6");
    EXPECT_EQ(reports(), "3000 Recordset; 5 Recordset") << "there is no comma to cut off";
}

TEST_F(RecordsetFailure, OfANameLeavesItsColumnOut) {
    EXPECT_EQ(load("Name(0)", always), "b\n1\n3\n5") << "values go by place";
    EXPECT_EQ(reports(), "3000 Recordset");
}

TEST_F(RecordsetFailure, OfAFieldWhileColumnsAreMadeLeavesItsColumnOut) {
    EXPECT_EQ(load("fields(1)", 1), "a\n1\n3\n5");
    EXPECT_EQ(reports(), "3000 Recordset");
}

TEST_F(RecordsetFailure, OfAValueLeavesItsCommaOutToo) {
    EXPECT_EQ(load("Value(0)", 2), "a|b\n1|2\n4|\n5|6");
    EXPECT_EQ(reports(), "3000 Recordset");
}

TEST_F(RecordsetFailure, OfTheLastValueTakesTheCommaBeforeIt) {
    EXPECT_EQ(load("Value(1)", 2), "a|b\n1|2\n3|\n5|6");
    EXPECT_EQ(reports(), "3000 Recordset");
}

TEST_F(RecordsetFailure, OfAllValuesOfARecordLeavesItsRowEmpty) {
    recordset->records[1] = {ObjectRef(recordset), Missing{}};
    EXPECT_EQ(load("", always), "a|b\n1|2\n|\n5|6");
    EXPECT_EQ(reports(), "13 Recordset; 13 Recordset; 5 Recordset");
    recordset->records.clear(); // it holds itself
}

TEST_F(RecordsetFailure, OfTheFirstMoveTakesTheRecordsFromWhereTheCursorStands) {
    static_cast<void>(recordset->call(u"MoveFirst"));
    static_cast<void>(recordset->call(u"MoveNext"));
    EXPECT_EQ(load("MoveFirst", always), "a|b\n3|4\n5|6");
    EXPECT_EQ(reports(), "3000 Recordset");
}

TEST_F(RecordsetFailure, OfAMoveTakesItsRecordAgain) {
    EXPECT_EQ(load("MoveNext", 2), "a|b\n1|2\n3|4\n3|4\n5|6");
    EXPECT_EQ(reports(), "3000 Recordset");
}

TEST_F(RecordsetFailure, OfEveryMoveEndsTheLoadAtTheSecond) {
    EXPECT_EQ(load("MoveNext", always), "a|b\n1|2\n1|2");
    EXPECT_EQ(reports(), "3000 Recordset; 3000 Recordset");
    EXPECT_EQ(recordset->log.back(), "EOF");
}

TEST_F(RecordsetFailure, OfEverySecondMoveEndsNothing) {
    recordset->onCall = [](const std::string& call, int times) {
        if (call == "MoveNext" && times % 2 == 1)
            throw RuntimeError(3000);
    };
    list.setRecordset(recordset);
    EXPECT_EQ(content(), "a|b\n1|2\n1|2\n3|4\n3|4\n5|6\n5|6");
}

TEST_F(RecordsetFailure, OfTheTestForTheEndEndsTheLoad) {
    EXPECT_EQ(load("EOF", always), "a|b\n1|2");
    EXPECT_EQ(reports(), "3000 Recordset");
}

TEST_F(RecordsetFailure, OfAnEndThatIsNoTruthValueEndsTheLoad) {
    for (const Variant& end : {Variant(Null{}), Variant(u"perhaps"), Variant(ObjectRef())}) {
        recordset->endSaid = end;
        EXPECT_EQ(load("", always), "a|b\n1|2");
    }
    EXPECT_EQ(reports(), "94 Recordset; 13 Recordset; 13 Recordset");
}

TEST_F(RecordsetFailure, InSilenceIsNotTold) {
    Error().letSilentError(true);
    EXPECT_EQ(load("Value(0)", always), "a|b\n2|\n4|\n6|");
    EXPECT_EQ(reports(), "");
}

TEST_F(RecordsetFailure, OfNoFieldsAtAllIsThatNothingCanBeCut) {
    const auto bare = make({}, {{}, {}});
    list.setRecordset(bare);
    EXPECT_EQ(content(), "");
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(reports(), "5 Recordset; 5 Recordset");
}

TEST_F(RecordsetFailure, OfAFieldCountBelowZeroIsThatOfNoFields) {
    recordset->fieldCountSaid = Long{-3};
    EXPECT_EQ(load("", always), "");
    EXPECT_EQ(reports(), "5 Recordset; 5 Recordset; 5 Recordset");
}

TEST_F(RecordsetFailure, OfAFieldCountTooLargeCostsAReportForEachFieldThatIsMissing) {
    recordset->fieldCountSaid = Long{3};
    recordset->records.resize(1);
    EXPECT_EQ(load("", always), "a|b\n1|2");
    EXPECT_EQ(reports(), "3265 Recordset; 3265 Recordset");
}

TEST_F(RecordsetFailure, OfARecordThatEndsEarly) {
    recordset->onCall = [this](const std::string& call, int times) {
        if (call == "MoveNext" && times == 1)
            recordset->records.resize(1); // others deleted the rest
    };
    EXPECT_EQ(load("", always), "a|b\n1|2");
    EXPECT_EQ(reports(), "");
}

TEST_F(RecordsetFailure, OfAnObjectWithoutAnyMemberChangesNothing) {
    fillBefore();
    class Stranger final : public Object {
      public:
        Variant get(StringView, std::span<Variant>) override {
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        }
        void put(StringView, const Variant&) override {
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        }
        Variant call(StringView, std::span<Variant>) override {
            throw RuntimeError(ErrorNumber::objectDoesNotSupportMember);
        }
    };
    const std::string before = content();
    list.setRecordset(std::make_shared<Stranger>());
    EXPECT_EQ(content(), before);
    EXPECT_EQ(reports(), "438 Recordset");
}

TEST_F(RecordsetFailure, OfNothingIsThatThereIsNoObject) {
    fillBefore();
    const std::string before = content();
    EXPECT_NE(before, "");
    list.setRecordset(nullptr);
    EXPECT_EQ(list.Recordset(), nullptr);
    EXPECT_EQ(content(), before);
    EXPECT_EQ(reports(), "91 Recordset");
}

TEST_F(RecordsetFailure, OfThePaintingAtTheEndIsNotTheRecordsets) {
    EXPECT_EQ(load("", always), "a|b\n1|2\n3|4\n5|6");
    EXPECT_EQ(events.log, std::vector<std::string>());
}

} // namespace
} // namespace lumtex::testing

#include "guards/error.h"
#include "list_fixture.h"

namespace lumtex::testing {

/// "row column" of a hit as the result has it, or "none".
std::string shown(const FindResults& found) {
    if (!found.FindSuccessful)
        return found == FindResults{} ? "none" : "not empty";
    return std::to_string(found.FindRow) + " " + std::to_string(found.FindColumn);
}

class Finding : public ListFixture {
  protected:
    /// Four rows of three columns: a1 b1 c1 ... a4 b4 c4.
    void SetUp() override {
        addColumns({50, 50, 50});
        for (const char16_t* texts : {u"a1,b1,c1", u"a2,b2,c2", u"a3,b3,c3", u"a4,b4,c4"})
            list.RowsAdd(Long{-1}, u",", StringView(texts));
    }
    std::string find(StringView pattern, StringView columns = u"*", StringView rows = u"*") {
        return shown(list.FindItem(pattern, cFindStart, cFindBinary, columns, rows));
    }
    std::string next(StringView pattern, StringView columns = u"*", StringView rows = u"*") {
        return shown(list.FindItem(pattern, cFindContinue, cFindBinary, columns, rows));
    }
};

TEST_F(Finding, APatternWithoutWildcardsMustMatchTheWholeText) {
    EXPECT_EQ(find(u"b3"), "3 2");
    EXPECT_EQ(find(u"b"), "none");
    EXPECT_EQ(find(u"3"), "none");
    EXPECT_EQ(find(u""), "none");
    list.letItemText(2, 3, u"");
    EXPECT_EQ(find(u""), "2 3");
}

TEST_F(Finding, BinaryTellsCaseApartAndTextDoesNot) {
    EXPECT_EQ(shown(list.FindItem(u"B3", cFindStart, cFindBinary)), "none");
    EXPECT_EQ(shown(list.FindItem(u"B3", cFindStart, cFindText)), "3 2");
}

TEST_F(Finding, AnUnknownCompareNeverMatches) {
    EXPECT_EQ(shown(list.FindItem(u"*", cFindStart, static_cast<cFindCompare>(2))), "none");
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Finding, AnEmptySpecificationBecomesAnAsteriskAtTheCaller) {
    String columns;
    String rows;
    EXPECT_EQ(shown(list.FindItem(u"c4", cFindStart, cFindBinary, columns, rows)), "4 3");
    EXPECT_EQ(columns, u"*");
    EXPECT_EQ(rows, u"*");
}

TEST_F(Finding, ARangeToTheLastColumnLeavesOutTheFirst) {
    EXPECT_EQ(find(u"a1", u"2-*"), "none");
    EXPECT_EQ(find(u"b1", u"2-*"), "1 1");
    EXPECT_EQ(find(u"c1", u"2-*"), "1 2");
}

// Wanted: a range from a number to itself is left out.
TEST_F(Finding, RangesDownwardsOrToThemselvesGiveNothing) {
    for (const char16_t* rows : {u"4-2", u"2-2"}) {
        EXPECT_EQ(find(u"*", u"*", rows), "none");
        EXPECT_EQ(lastReport(), "5 FindItem") << "nothing is left to cut the comma from";
        EXPECT_EQ(find(u"?1", u"*", String(rows) + u",1"), "1 1");
    }
    EXPECT_EQ(reportCount(), 2U);
}

TEST_F(Finding, TheLastColumnAndTheLastRowStillCount) {
    EXPECT_EQ(find(u"c4", u"3,", u"4,"), "1 1");
    EXPECT_EQ(find(u"c4", u"1-3", u"2-4"), "3 3");
    EXPECT_EQ(find(u"c4", u"1,2-3,4-5,2-4", u"4,5,"), "1 3") << "what goes past the end is left out";
    EXPECT_EQ(find(u"b2"), "2 2");
    EXPECT_EQ(next(u"c2"), "2 3") << "it goes on in the last column";
    EXPECT_EQ(find(u"c3"), "3 3");
    EXPECT_EQ(next(u"b2"), "2 2") << "and behind it in the first";
}

TEST_F(Finding, AnswersArePlacesInTheLists) {
    EXPECT_EQ(find(u"c1", u"1,3"), "1 2");
    EXPECT_EQ(find(u"a1", u"1,3"), "1 1");
    EXPECT_EQ(find(u"b1", u"1,3"), "none");
    EXPECT_EQ(find(u"a4", u"*", u"2,4"), "2 1");
    EXPECT_EQ(find(u"a2", u"*", u"4,2,2"), "2 1");
}

// Wanted: the cut that takes the comma off a list takes the last digit off a lone number.
TEST_F(Finding, ALoneNumberLosesItsLastDigit) {
    EXPECT_EQ(find(u"*", u"3"), "none");
    EXPECT_EQ(find(u"c1", u"3,"), "1 1");
    EXPECT_EQ(reportCount(), 0U);
    addRows(8, u"x,y,z");
    EXPECT_EQ(find(u"?1", u"*", u"12"), "1 1") << "row 1 alone";
    EXPECT_EQ(find(u"?2", u"*", u"12"), "none");
    EXPECT_EQ(find(u"y", u"*", u"12,"), "1 2") << "row 12 alone";
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Finding, ALoneTextThatIsNoNumberEndsWithoutAWord) {
    list.FindItem(u"*", cFindStart, cFindBinary, u"1,", u"2,");
    const std::string before = inside.findLists();
    EXPECT_EQ(find(u"*", u"x"), "none");
    EXPECT_EQ(find(u"*", u"1,", u"two"), "none");
    EXPECT_EQ(reportCount(), 0U);
    EXPECT_EQ(inside.findLists(), before);
}

TEST_F(Finding, ALoneNumberAboveTheLimitIsReportedAsNothingToCut) {
    EXPECT_EQ(find(u"*", u"4"), "none");
    EXPECT_EQ(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "5 FindItem");
    EXPECT_EQ(find(u"*", u"4"), "none");
    EXPECT_EQ(reportCount(), 1U) << "the notation was read once";
}

TEST_F(Finding, ALoneNumberThatTheCutSpoilsIsATypeMismatch) {
    addRows(30, u"x,y,z");
    EXPECT_EQ(find(u"*", u"*", u"&H1"), "none");
    EXPECT_EQ(lastReport(), "13 FindItem");
    EXPECT_EQ(reportCount(), 1U);
}

// Wanted: a number below 1 stays in the list, and fails when its cell is read.
TEST_F(Finding, ARowBelowOneIsReportedByTheAccessorAndEndsTheSearch) {
    EXPECT_EQ(find(u"a2", u"*", u"0,2"), "none");
    EXPECT_EQ(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "9 ItemText");
    EXPECT_EQ(find(u"a1", u"*", u"1,0"), "1 1") << "a hit before it is found";
    EXPECT_EQ(find(u"<itemtag>x", u"0,1", u"*"), "none");
    EXPECT_EQ(lastReport(), "9 ItemTag");
    EXPECT_EQ(reportCount(), 2U);
}

TEST_F(Finding, ARangeFromFarBelowEndsAtItsFirstCell) {
    Error().letSilentError(true);
    EXPECT_EQ(find(u"a1", u"*", u"&H80000000-4"), "none");
    EXPECT_EQ(find(u"a1", u"3-*,&H80000000-4", u"1,"), "none");
    Error().letSilentError(false);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Finding, AContinuedSearchGoesOnBehindTheHit) {
    EXPECT_EQ(find(u"?2"), "2 1");
    EXPECT_EQ(next(u"?2"), "2 2");
    EXPECT_EQ(shown(list.FindItem(u"?2")), "2 3") << "continuing is the default";
}

TEST_F(Finding, AContinuedSearchGoesOnInTheLastRow) {
    EXPECT_EQ(find(u"c3"), "3 3");
    EXPECT_EQ(next(u"a4"), "4 1");
    EXPECT_TRUE(says(inside.find(), "row=3"));
    EXPECT_EQ(next(u"b?"), "4 2") << "not one further up";
    EXPECT_EQ(next(u"b?"), "none") << "the place is still the last row, behind its second column";
}

// Wanted: each row starts at the stored column, so that a continued search leaves out those before it.
TEST_F(Finding, AContinuedSearchMissesTheColumnsBeforeItsPlace) {
    EXPECT_EQ(find(u"b1"), "1 2");
    EXPECT_EQ(next(u"b3"), "none");
    EXPECT_EQ(next(u"c3"), "3 3");
}

// Wanted: the last column is told by its place in the list, and the stored row goes up by one from
// where the search began, not from the hit.
TEST_F(Finding, AHitInTheLastColumnGoesOnOneRowBelowTheStart) {
    EXPECT_EQ(find(u"c1"), "1 3");
    EXPECT_EQ(next(u"?2"), "2 1") << "the next row";
    EXPECT_EQ(find(u"c3"), "3 3");
    EXPECT_TRUE(says(inside.find(), "row=1"));
    EXPECT_EQ(next(u"a?"), "2 1") << "rows are seen again";
}

// Wanted: the place stays, and no search begins again at the top by itself.
TEST_F(Finding, WithoutAHitThePlaceStays) {
    EXPECT_EQ(find(u"a3"), "3 1");
    EXPECT_EQ(next(u"a1"), "none");
    EXPECT_EQ(next(u"b1"), "none");
    EXPECT_EQ(next(u"b3"), "3 2");
}

TEST_F(Finding, APlacePastTheListStartsAgainAtItsTop) {
    EXPECT_EQ(find(u"b4"), "4 2");
    list.RowsRemove(Long{4});
    EXPECT_EQ(next(u"c?"), "1 3") << "the row of the place is gone, its column is not";
}

// Wanted: what was read once is kept while the text stays the same, whatever became of the list.
TEST_F(Finding, AColumnPlacePastTheColumnsThatAreLeftStartsAgainAtTheFirst) {
    EXPECT_EQ(find(u"b1"), "1 2");
    list.ColumnsClear();
    addColumns({50});
    EXPECT_EQ(next(u"a1"), "1 1") << "rows keep their cells";
}

TEST_F(Finding, ANewRowIsSeenOnceAnotherSpecificationWasInBetween) {
    EXPECT_EQ(find(u"a4"), "4 1");
    list.RowsAdd(Long{-1}, u",", u"a5,b5,c5");
    EXPECT_EQ(find(u"a5"), "none");
    EXPECT_EQ(find(u"a5", u"*", u"1-*"), "5 1");
    EXPECT_EQ(find(u"a5"), "5 1");
    EXPECT_EQ(reportCount(), 0U);
    list.RowsRemove(Long{5});
    EXPECT_EQ(find(u"a5"), "none");
    EXPECT_EQ(lastReport(), "9 ItemText") << "the row that went is still asked for";
}

TEST_F(Finding, AnEmptyListIsReportedAndItsNotationKept) {
    list.RowsClear();
    EXPECT_EQ(find(u"a1"), "none");
    EXPECT_EQ(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "5 FindItem");
    list.RowsAdd(Long{-1}, u",", u"a1,b1,c1");
    EXPECT_EQ(find(u"a1"), "none");
    EXPECT_EQ(find(u"a1", u"*", u"1,"), "1 1");
    EXPECT_EQ(reportCount(), 1U);
}

TEST_F(Finding, TheMarkerInAnyCaseSwitchesToTags) {
    list.letItemTag(2, 2, u"apple");
    list.letItemTag(3, 1, Long{42});
    EXPECT_EQ(find(u"<ITEMTAG>a*"), "2 2");
    EXPECT_EQ(find(u"<itemTag>4#"), "3 1");
    EXPECT_EQ(find(u"<itemtag>"), "1 1") << "an empty pattern matches a cell without a tag";
    EXPECT_EQ(find(u"<itemtag"), "none");
    EXPECT_EQ(shown(list.FindItem(u"<itemtag>APP*", cFindStart, cFindText)), "2 2");
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(Finding, ATagWithoutATextFormIsReportedAndPassedOver) {
    list.letItemTag(1, 2, Null{});
    list.letItemTag(1, 3, u"x");
    EXPECT_EQ(find(u"<itemtag>x"), "1 3");
    EXPECT_EQ(reportCount(), 1U);
    EXPECT_EQ(lastReport(), "94 FindItem");
}

TEST_F(Finding, AFaultyPatternIsReportedForEachCell) {
    EXPECT_EQ(find(u"a["), "none");
    EXPECT_EQ(reportCount(), 12U);
    EXPECT_EQ(lastReport(), "93 LikeCompBinary");
    EXPECT_EQ(shown(list.FindItem(u"[", cFindStart, cFindText, u"1,", u"*")), "none");
    EXPECT_EQ(reportCount(), 16U);
    EXPECT_EQ(lastReport(), "93 LikeCompText");
}

TEST_F(Finding, RowsThatAHostRemovesDuringAReportAreNotTouched) {
    desktop.runtime().whileBoxIsOpen = [this] {
        if (list.RowsCount() > 0)
            list.RowsRemove(Long{1});
    };
    EXPECT_EQ(find(u"["), "none");
    EXPECT_LE(reportCount(), 12U);
}

} // namespace lumtex::testing

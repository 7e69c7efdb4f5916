#include "list_fixture.h"

namespace lumtex::testing {

class ColumnFitting : public ListFixture {
  protected:
    /// Pixels, of a column from 1.
    int width(Long column) { return static_cast<int>(list.ColumnWidth(column)) / 15; }
    int headerWidth(StringView text) { return static_cast<int>(surface().textWidth(text)); }
    void columns(int count) {
        for (int i = 0; i < count; ++i)
            addColumns({77});
    }
    /// The numbers of the columns that were fitted, each behind a blank; texts are empty.
    std::string fitted() {
        std::string numbers;
        for (Long column = 1; column <= list.ColumnsCount(); ++column)
            numbers += width(column) == 10 ? " " + std::to_string(column) : "";
        return numbers;
    }
};

TEST_F(ColumnFitting, WithoutArgumentsAllColumnsAreFitted) {
    columns(3);
    list.AutoColumnSize();
    EXPECT_EQ(fitted(), " 1 2 3");
}

TEST_F(ColumnFitting, WithoutColumnsNothingHappens) {
    EXPECT_EQ(paintsOf([&] { list.AutoColumnSize({1}); }), 0);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(ColumnFitting, TwoDoesNotFitColumnTwelve) {
    columns(12);
    list.AutoColumnSize({2});
    EXPECT_EQ(fitted(), " 2");
}

// Wanted: the number is looked for as a text, so that 12 fits column 2 too.
TEST_F(ColumnFitting, TwelveFitsColumnTwoToo) {
    columns(12);
    list.AutoColumnSize({12});
    EXPECT_EQ(fitted(), " 2 12");
    columns(1);
    list.letColumnWidth(2, 77 * 15);
    list.letColumnWidth(12, 77 * 15);
    list.AutoColumnSize({u"11"});
    EXPECT_EQ(fitted(), " 1 11");
}

TEST_F(ColumnFitting, ArgumentsWithoutATextFormAreLeftOut) {
    columns(2);
    list.AutoColumnSize({Variant(ObjectRef()), 2, Missing{}});
    EXPECT_EQ(fitted(), " 2");
    EXPECT_EQ(reportCount(), 0U);
    list.letColumnWidth(2, 77 * 15);
    list.AutoColumnSize({Null{}});
    EXPECT_EQ(fitted(), "") << "a comma alone names no column";
}

TEST_F(ColumnFitting, AnEmptyListFollowsItsHeader) {
    list.ColumnsAdd(u"A header of some length");
    list.AutoColumnSize();
    EXPECT_EQ(width(1), headerWidth(u"A header of some length") + 10);
    EXPECT_EQ(reportCount(), 0U);
    addRows(1, u"a much longer text than the header has, by far");
    list.RowsClear();
    list.AutoColumnSize();
    EXPECT_EQ(width(1), headerWidth(u"A header of some length") + 10);
    EXPECT_EQ(reportCount(), 0U);
}

TEST_F(ColumnFitting, TheWidestPaintedCellCounts) {
    columns(1);
    addRows(3, u"x");
    inside.rows()[1].items[0].letTextWidth(120);
    list.AutoColumnSize();
    EXPECT_EQ(width(1), 130);
}

TEST_F(ColumnFitting, RowsThatWereNeverPaintedCountAsNothing) {
    columns(1);
    list.letAutoRedraw(false);
    addRows(1, u"a text that no paint has measured");
    list.AutoColumnSize();
    EXPECT_EQ(width(1), 10);
}

// Wanted: the header wins already where its text is less than the margin narrower.
TEST_F(ColumnFitting, AHeaderLittleNarrowerThanTheCellsWins) {
    list.ColumnsAdd(u"Header");
    addRows(1, u"x");
    const int header = headerWidth(u"Header");
    inside.rows()[0].items[0].letTextWidth(static_cast<Single>(header + 9));
    list.AutoColumnSize();
    EXPECT_EQ(width(1), header + 10);
    inside.rows()[0].items[0].letTextWidth(static_cast<Single>(header + 10));
    list.AutoColumnSize();
    EXPECT_EQ(width(1), header + 20);
}

// Wanted: the places of the columns behind and the scroll bars stay as they are.
TEST_F(ColumnFitting, LeftOfTheColumnsBehindAndTheBarsStay) {
    addColumns({200, 200});
    const Single left = list.ColumnLeft(2);
    const Long most = inside.horizontal().Max();
    EXPECT_EQ(paintsOf([&] { list.AutoColumnSize(); }), 1);
    EXPECT_EQ(list.ColumnLeft(2), left);
    EXPECT_EQ(inside.horizontal().Max(), most);
}

TEST_F(ColumnFitting, RepaintsWithoutAutoRedraw) {
    columns(1);
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] { list.AutoColumnSize({5}); }), 1);
}

} // namespace lumtex::testing

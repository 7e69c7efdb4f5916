/// A default font of nothing: each statement that reads an attribute of it fails by itself.
#include "painted_list.h"
#include "report_catcher.h"

namespace lumtex::testing {
namespace {

class MissingFont : public PaintedList {
  protected:
    MissingFont() {
        desktop.runtime().factories[String(ReportCatcher::programId)] = [this] { return reports; };
        addColumns({60, 60});
        addRows(1, u"a,b");
    }

    /// So many failed reads in a procedure, as the handler was told of them.
    static String failedReads(int count, StringView procedure) {
        String lines;
        for (int i = 0; i < count; ++i)
            lines += u"91 " + String(procedure) + u": " +
                     errorDescription(numberOf(ErrorNumber::objectVariableNotSet)) + u"\n";
        return lines;
    }

    std::shared_ptr<ReportCatcher> reports = std::make_shared<ReportCatcher>();
};

TEST_F(MissingFont, OfTheHeadersFailsSixTimesInTheirHeightWhichKeepsItsLastFont) {
    const Long before = inside.ColumnHeight();
    list.setDefaultColumnFont(nullptr);
    EXPECT_EQ(inside.ColumnHeight(), before);
    EXPECT_EQ(reports->reports(), failedReads(6, u"ColumnHeight"));
}

TEST_F(MissingFont, OfTheHeadersEndsThePassWithTheEvent) {
    list.setDefaultColumnFont(nullptr);
    Error().letSilentError(true);
    const auto drawnLines = repaint();
    ASSERT_EQ(events.log.size(), 1U);
    EXPECT_EQ(events.log[0],
              "ListViewError eSub=Redraw eNumber=91 eDescription=" +
                  toUtf8(errorDescription(numberOf(ErrorNumber::objectVariableNotSet))));
    EXPECT_TRUE(says(inside.painting(), "held=no"));
    EXPECT_EQ(drawnLines, (std::vector<std::string>{"Cls", "BackColor FFFFFF"}));
}

TEST_F(MissingFont, OfTheHeadersIsNotReadWhileTheyAreHidden) {
    list.setDefaultColumnFont(nullptr);
    list.letHideColumnHeaders(true);
    repaint();
    EXPECT_TRUE(reports->calls.empty());
    EXPECT_TRUE(events.log.empty());
}

TEST_F(MissingFont, OfTheCellsEndsThePassAtTheFirstRowsHeight) {
    list.setDefaultItemFont(nullptr);
    repaint();
    EXPECT_EQ(reports->reports(), failedReads(1, u"Redraw"));
    EXPECT_TRUE(says(inside.painting(), "held=yes"));
}

TEST_F(MissingFont, OfTheCellsUnderTheSilentFlagLeavesTheRowsTheFontOfTheirLastCell) {
    list.setDefaultItemFont(nullptr);
    list.letRowsDynamic(true);
    list.letItemFontSize(1, 2, 30);
    Error().letSilentError(true);
    repaint();
    Error().letSilentError(false);
    EXPECT_TRUE(says(inside.painting(), "held=no"));
    drawn().setFont({.Name = u"Verdana", .Size = 30});
    EXPECT_EQ(inside.rows()[0].Height, drawn().textHeight(u"A"));
}

TEST_F(MissingFont, OfTheCellsFailsOnceInTheDesignersView) {
    list.setDefaultItemFont(nullptr);
    host.userMode = false;
    EXPECT_EQ(repaint(),
              (std::vector<std::string>{"Cls", "BackColor FFFFFF", "ForeColor 0", "Print 3,3 lmListView1"}));
    EXPECT_EQ(reports->reports(), failedReads(1, u"Redraw"));
}

TEST_F(MissingFont, LeavesTheFieldsOfEachNewCellAtZeroAndFailsForEachOfThem) {
    list.setDefaultItemFont(nullptr);
    list.letDefaultItemForeColor(0x123456);
    reports->calls.clear();
    list.RowsAdd(Long{-1}, u",", u"c,d");
    EXPECT_EQ(reports->reports(), failedReads(12, u"EmptyItem"));
    for (const Long column : {1, 2}) {
        EXPECT_EQ(list.ItemFontName(2, column), u"");
        EXPECT_EQ(list.ItemFontSize(2, column), 0.0F);
        EXPECT_EQ(list.ItemForeColor(2, column), 0x123456U);
    }
    EXPECT_EQ(list.ItemText(2, 2), u"d");
    reports->calls.clear();
    list.ColumnsAdd(u"");
    EXPECT_EQ(reports->reports(), failedReads(12, u"EmptyItem"));
    EXPECT_EQ(list.ItemFontName(1, 1), u"Verdana");
    EXPECT_EQ(list.ItemFontName(1, 3), u"");
}

TEST_F(MissingFont, ThatTheHostSetsAtAReportIsTakenFromThereOn) {
    list.setDefaultItemFont(nullptr);
    reports->onRaiseError = [&](std::span<Variant> /*arguments*/) {
        if (reports->calls.size() == 3)
            list.setDefaultItemFont(std::make_shared<Font>(FontSpec{.Name = u"Courier", .Size = 7}));
    };
    list.RowsAdd(Long{-1}, u",", u"c,d");
    EXPECT_EQ(reports->reports(), failedReads(3, u"EmptyItem"));
    EXPECT_EQ(list.ItemFontName(2, 1), u"Courier");
    EXPECT_EQ(list.ItemFontSize(2, 2), 7.0F);
}

TEST_F(MissingFont, ThatTheHostAnswersByTakingRowsAwayEndsTheWalkOverThem) {
    addRows(3, u"a,b");
    list.setDefaultItemFont(nullptr);
    reports->onRaiseError = [&](std::span<Variant> /*arguments*/) { list.RowsClear(); };
    list.ColumnsAdd(u"");
    EXPECT_EQ(list.RowsCount(), 0);
    EXPECT_EQ(list.ColumnsCount(), 3);
}

} // namespace
} // namespace lumtex::testing

/// A report is host code: a box stays open while timers and programs run. Nothing that reports is harmed by
/// it.
#include "hostcode/member_uses.h"
#include "hostcode/odd_moments.h"
#include "scratch_folder.h"

namespace lumtex::testing {

class ReportWalk : public OddMoments {
  protected:
    ReportWalk() { Error().letSilentError(false); }

    /// Runs `action` with `code` while the first box is open. Says whether there was one.
    bool reports(const NamedCode& named, const std::function<void()>& action) {
        home.clearBoxes();
        const auto code = once(named.code);
        home.whileBoxIsOpen([&, code] {
            Error().letSilentError(true);
            code();
            Error().letSilentError(false);
        });
        action();
        home.whileBoxIsOpen({});
        return !home.boxes().empty();
    }
    void quietly(const std::function<void()>& action) {
        Error().letSilentError(true);
        action();
        Error().letSilentError(false);
    }

    ScratchFolder folder;
    CallValues values{folder.path.string()};
};

TEST_F(ReportWalk, NoMemberIsHarmedByWhatRunsDuringItsReport) {
    int reporting = 0;
    for (const MemberUse& each : memberUses()) {
        SCOPED_TRACE(nameOf(each));
        withSomeCodes([&](const NamedCode& named) {
            quietly([&] { makeList(); });
            const bool reported = reports(
                named, [&] { use(*list, each, values.bad(*each.member), values.valueFor(*each.member)); });
            reporting += reported ? 1 : 0;
            quietly([&] { expectServes(); });
            return reported;
        });
    }
    // Every accessor of a row, a column or a cell reports a place that is not there.
    EXPECT_GT(reporting, 400);
}

TEST_F(ReportWalk, NoPaintIsHarmedByWhatRunsDuringItsReport) {
    for (const NamedCode& named : codes()) {
        SCOPED_TRACE(std::string("the host ") + named.name);
        quietly([&] {
            makeList();
            list->letAutoRedraw(false);
            for (Long row = 1; row <= rows; ++row) {
                list->letItemBackColor(row, 2, u"no colour");
                list->letItemForeColorSelect(row, 1, u"no colour");
                list->letItemBackColorSelect(row, 1, u"no colour");
            }
        });
        EXPECT_TRUE(reports(named, [&] { list->Redraw(); }));
        quietly([&] { expectServes(); });
    }
}

TEST_F(ReportWalk, NoSortIsHarmedByWhatRunsDuringItsReport) {
    for (const NamedCode& named : codes()) {
        for (const cSortType type : {cSortNumeric, cSortDate}) {
            SCOPED_TRACE(std::string("the host ") + named.name);
            quietly([&] { makeList(); });
            EXPECT_TRUE(reports(named, [&] { list->Sort(1, cAscending, type); }));
            quietly([&] { expectServes(); });
        }
    }
}

TEST_F(ReportWalk, NoRowIsAddedToAPlaceThatAReportTookAway) {
    for (const NamedCode& named : codes()) {
        SCOPED_TRACE(std::string("the host ") + named.name);
        quietly([&] { makeList(); });
        Variant place = u"no place";
        EXPECT_TRUE(reports(named, [&] { list->RowsAdd(place, u",", u"new"); }));
        quietly([&] { expectServes(); });
    }
}

} // namespace lumtex::testing

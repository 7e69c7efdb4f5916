/// Random presses, moves, keys, wheel turns and ticks on a list that its host changes as well. Nothing may
/// crash or hang, and what must hold between two inputs holds.
#include "guards/error.h"
#include "list_fixture.h"

#include <chrono>
#include <random>

namespace lumtex::testing {

namespace {

/// Which changes a host makes, and when.
struct Habits {
    const char* name;
    bool changesBetween; ///< between two inputs
    bool changesInside;  ///< in event handlers and yields
};

void PrintTo(const Habits& habits, std::ostream* stream) {
    *stream << habits.name;
}

class Monkey : public ListFixture, public ::testing::WithParamInterface<std::tuple<Habits, unsigned>> {
  protected:
    static constexpr int inputs = 10'000;
    static constexpr Long width = 160;
    static constexpr Long height = 100;

    Monkey() {
        // A paint that failed paints on while failures are silent, and keeps the control from painting where
        // they are not; both are wanted, and the seeds take turns.
        Error().letSilentError(std::get<1>(GetParam()) % 2 != 0);
        list.UserControl_ReadProperties(MemoryPropertyBag{});
        list.window().place(100, 100, width, height);
        list.letAllowEdit(true);
        addColumns({50, 40, 30});
        for (int row = 0; row < 12; ++row)
            addRow();
    }

    ~Monkey() override { Error().letSilentError(false); }

    Long number(Long from, Long to) { return std::uniform_int_distribution<Long>(from, to)(random); }
    bool chance(int percent) { return number(1, 100) <= percent; }
    const Habits& habits() const { return std::get<0>(GetParam()); }

    void addRow() {
        list.RowsAdd(number(-1, list.RowsCount()), u",", u"one,22,x");
        list.letItemAllowEdit(number(1, std::max(list.RowsCount(), 1)), number(1, 3), true);
    }

    // The user

    Point somewhere() {
        return desktop.onDesktop(list.window(),
                                 static_cast<Single>(number(-30, width + 30)),
                                 static_cast<Single>(number(-30, height + 30)));
    }

    void input() {
        switch (number(0, 11)) {
        case 0:
        case 1:
        case 2:
            desktop.move(somewhere());
            break;
        case 3:
            desktop.press(button());
            break;
        case 4:
            desktop.release(button());
            break;
        case 5:
            desktop.move(somewhere());
            desktop.click();
            break;
        case 6:
            desktop.doubleClick();
            break;
        case 7:
            desktop.key(key());
            break;
        case 8:
            chance(50) ? desktop.keyDown(key()) : desktop.keyUp(key());
            break;
        case 9:
            desktop.wheel(number(-3, 3) * 60);
            break;
        case 10:
            desktop.type(u"ab1");
            break;
        default:
            desktop.advance(std::chrono::milliseconds(number(1, 120)));
        }
    }

    MouseButton button() { return chance(85) ? leftButton : rightButton; }
    Integer key() {
        static constexpr Integer known[] = {keys::up,
                                            keys::down,
                                            keys::shift,
                                            keys::control,
                                            keys::enter,
                                            keys::escape,
                                            keys::home,
                                            keys::space,
                                            keys::tab};
        return known[number(0, static_cast<Long>(std::size(known)) - 1)];
    }

    // The host

    void change() {
        const Long row = number(0, list.RowsCount() + 1);
        const Long column = number(0, list.ColumnsCount() + 1);
        switch (number(0, 22)) {
        case 0:
        case 1:
        case 2:
            if (list.RowsCount() < 30)
                addRow();
            break;
        case 3:
            list.RowsRemove(row);
            break;
        case 4:
            if (chance(10))
                list.RowsClear();
            break;
        case 5:
            if (list.ColumnsCount() < 5)
                list.ColumnsAdd(u"More", nullptr, nullptr, nullptr, cColumnLeft, 600, true);
            break;
        case 6:
            // Counts and cells of rows stay square only where columns go after their rows.
            if (chance(10)) {
                list.RowsClear();
                list.ColumnsClear();
                addColumns({50, 40, 30});
            }
            break;
        case 7:
            list.Sort(column, chance(50) ? cAscending : cDescending, static_cast<cSortType>(number(0, 2)));
            break;
        case 8:
            list.letItemChecked(row, column, chance(50));
            break;
        case 9:
            list.letRowEnabled(row, chance(80));
            break;
        case 10:
            list.letListIndex(row);
            break;
        case 11:
            list.letTopIndex(row);
            break;
        case 12:
            list.letMultiSelect(chance(50));
            break;
        case 13:
            list.letColumnWidth(column, static_cast<Single>(number(0, 1500)));
            break;
        case 14:
            list.letHideColumnHeaders(chance(30));
            break;
        case 15:
            list.letRowsDynamic(chance(50));
            break;
        case 16:
            list.letColorStyle(static_cast<cColorStyle>(number(0, 3)));
            break;
        case 17:
            list.letGridLines(chance(50));
            break;
        case 18:
            list.letWheelFunction(static_cast<cWheelFunction>(number(0, 2)));
            break;
        case 19:
            list.SetEdit(row, column);
            break;
        case 20:
            list.RowsSelectedRemove();
            break;
        case 21:
            list.letFixColumns(chance(30));
            break;
        default:
            list.Redraw();
        }
    }

    /// The host changes the list in every second event, and in some yields; never deeper than one change.
    void letTheHostInside() {
        for (const char* event : {"Click",
                                  "DblClick",
                                  "ItemCheck",
                                  "ItemChecked",
                                  "MouseUp",
                                  "MouseMove",
                                  "MouseDown",
                                  "ColumnClick",
                                  "Scroll",
                                  "KeyDown",
                                  "KeyPress",
                                  "KeyUp",
                                  "ErrorWrongIndex",
                                  "SortDone",
                                  "ItemClick",
                                  "ItemDblClick",
                                  "ItemDown",
                                  "ItemUp",
                                  "ItemChanged"})
            events.on(event, [this] { changeInside(); });
    }
    void changeInside() {
        if (insideChange || chance(50))
            return;
        insideChange = true;
        change();
        insideChange = false;
    }

    // What must hold

    void check() {
        ASSERT_EQ(desktop.yieldDepth(), 0);
        ASSERT_EQ(inside.rows().empty(), !inside.ArrDim(Long{0}));
        for (const auto* bar : {static_cast<const bars::ScrollBar*>(&inside.vertical()),
                                static_cast<const bars::ScrollBar*>(&inside.horizontal())}) {
            ASSERT_LE(bar->Min(), bar->Max());
        }
        ASSERT_GE(inside.vertical().Value(), -1);
        ASSERT_GE(list.RowSelectedCount(), 0);
        for (const RowRecord& row : inside.rows())
            ASSERT_TRUE(list.RowsCount() == 0 ||
                        row.items.count() >= static_cast<std::size_t>(list.ColumnsCount()));
        // A host inside a removal can make the counts untrue; that is its own doing.
        if (!habits().changesInside)
            checkCounts();
    }

    void checkCounts() {
        for (Long column = 1; column <= list.ColumnsCount(); ++column) {
            Long checked = 0;
            for (const RowRecord& row : inside.rows())
                checked +=
                    list.RowsCount() > 0 && row.items[static_cast<std::size_t>(column) - 1].Checked() ? 1 : 0;
            ASSERT_EQ(list.ItemsCheckedCount(column), checked) << "column " << column;
        }
    }

    std::mt19937 random{std::get<1>(GetParam())};
    bool insideChange = false;
};

TEST_P(Monkey, FindsNothingToBreak) {
    if (habits().changesInside)
        letTheHostInside();
    for (int i = 0; i < inputs; ++i) {
        if (habits().changesInside && chance(10))
            desktop.onYield([this] { changeInside(); });
        input();
        if (habits().changesBetween && chance(30))
            change();
        desktop.runtime().boxes.clear();
        events.log.clear();
        check();
        if (HasFatalFailure()) {
            FAIL() << "input " << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Hosts,
                         Monkey,
                         ::testing::Combine(::testing::Values(Habits{"Quiet", false, false},
                                                              Habits{"Busy", true, false},
                                                              Habits{"Wild", true, true}),
                                            ::testing::Range(1U, 5U)));

} // namespace
} // namespace lumtex::testing

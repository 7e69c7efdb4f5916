/// Thousands of public calls on a real list and on a naive one, compared whole after each.
#include "automation/call_by_name.h"
#include "automation/member_table.h"
#include "list_fixture.h"
#include "naive_list.h"
#include "values/text.h"
#include "variant_printing.h"

#include <random>

namespace lumtex::testing {

namespace {

class RandomOperations : public ListFixture, public ::testing::WithParamInterface<unsigned> {
  protected:
    RandomOperations() {
        list.UserControl_ReadProperties(MemoryPropertyBag{});
        list.letAutoCheckScroll(false);
        // The odd seeds paint after each call, the even ones are quick.
        list.letAutoRedraw(GetParam() % 2 != 0);
        naive.itemFont = list.DefaultItemFont()->spec;
        // A list that was read starts cleared, not new.
        naive.rowsClear();
        naive.columnsClear();
    }

    Long number(Long from, Long to) { return std::uniform_int_distribution<Long>(from, to)(random); }
    bool chance(int percent) { return number(1, 100) <= percent; }

    template <class T>
    T oneOf(std::initializer_list<T> values) {
        return *(values.begin() + number(0, static_cast<Long>(values.size()) - 1));
    }

    String text() {
        switch (number(0, 5)) {
        case 0:
            return {};
        case 1:
            return String(static_cast<std::size_t>(number(10, 40)), u'\u20AC');
        case 2:
            return String(u"a\0b", 3);
        case 3:
            return String(1, static_cast<char16_t>(0xD800)); // half a pair
        default:
            return String(static_cast<std::size_t>(number(1, 20)),
                          static_cast<char16_t>(u'a' + number(0, 25)));
        }
    }

    /// Mostly within `count`, in all the shapes that an index may have.
    Variant index(Long count) {
        const Long place = number(-1, count + 2);
        switch (number(0, 11)) {
        case 0:
            return static_cast<Double>(place) + oneOf({0.5, 0.4, -0.5});
        case 1:
            return textFromNumber(static_cast<Double>(place));
        case 2:
            return static_cast<Single>(place);
        case 3:
            return static_cast<Integer>(place);
        case 4:
            return oneOf<Variant>({Null{}, Variant{}, u"", u"x", true, 1e10, -1e10, Missing{}, ObjectRef{}});
        case 5:
            return oneOf({std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()});
        default:
            return place;
        }
    }

    Variant valueFor(const automation::Member& member) {
        switch (member.type.code) {
        case automation::TypeCode::boolean:
            return chance(50);
        case automation::TypeCode::enumeration:
            return oneOf<Long>({0, 1, 2, 99, -7});
        case automation::TypeCode::single:
            return static_cast<Single>(number(0, 400)) / 4;
        case automation::TypeCode::string:
            return text();
        case automation::TypeCode::color:
            return number(0, 0xFFFFFF);
        case automation::TypeCode::picture:
            return oneOf<PictureRef>({nullptr, pictures[0], pictures[1]});
        default:
            break;
        }
        // A cell's Variant: a colour, or its absence; a tag takes anything.
        if (member.name == u"ItemTag" && chance(50))
            return oneOf<Variant>({Null{}, Variant{}, 2.5, text(), Date{45000.5}});
        return chance(30) ? Variant(u"def") : Variant(number(0, 0xFFFFFF));
    }

    const automation::Member& assignable(std::span<const automation::Member> members) {
        while (true) {
            const automation::Member& member =
                members[static_cast<std::size_t>(number(0, static_cast<Long>(members.size()) - 1))];
            // Objects have pages of their own; they take windows along.
            if (member.let != nullptr && member.type.code != automation::TypeCode::object)
                return member;
        }
    }

    void assign(const automation::Member& member, std::vector<Variant> arguments, const Variant& value) {
        if (member.isReference())
            byName.set(member.name, arguments, value);
        else
            byName.let(member.name, arguments, value);
    }

    /// Does one call on both; gives what it was and the reports expected of it.
    std::pair<std::string, Reports> operate() {
        const Long rows = static_cast<Long>(naive.rows.size());
        const Long columns = static_cast<Long>(naive.columns.size());
        const Long choice = number(0, 99);
        if (choice < 12 && rows < 9)
            return addRow(rows);
        if (choice < 16 && columns < 4)
            return addColumn();
        if (choice < 22)
            return removeRow(rows);
        if (choice < 24) {
            byName.call(u"RowsSelectedRemove");
            return {"RowsSelectedRemove", naive.rowsSelectedRemove()};
        }
        if (choice == 24 && chance(30)) {
            byName.call(u"RowsClear");
            naive.rowsClear();
            return {"RowsClear", {}};
        }
        if (choice == 25 && chance(30)) {
            byName.call(u"ColumnsClear");
            naive.columnsClear();
            return {"ColumnsClear", {}};
        }
        if (choice < 28) {
            std::vector<Variant> arguments{index(columns)};
            if (arguments[0].isMissing())
                arguments[0] = Long{1};
            byName.call(u"ColumnsRemove", arguments);
            return {"ColumnsRemove", {}};
        }
        if (choice < 36)
            return moveIndex(rows);
        if (choice < 40)
            return changeDefaults();
        if (choice < 52)
            return assignIn(Where::column, automation::columnMembers(), rows, columns);
        if (choice < 64)
            return assignIn(Where::row, automation::rowMembers(), rows, columns);
        return assignIn(Where::cell, automation::itemMembers(), rows, columns);
    }

    enum class Where { column, row, cell };

    std::pair<std::string, Reports>
    assignIn(Where where, std::span<const automation::Member> members, Long rows, Long columns) {
        const automation::Member& member = assignable(members);
        const String name(member.name);
        const Variant value = valueFor(member);
        std::vector<Variant> at{index(where == Where::column ? columns : rows)};
        if (where == Where::cell)
            at.push_back(index(columns));
        for (Variant& argument : at)
            if (argument.isMissing())
                argument = Long{1};
        assign(member, at, value);
        const std::string what = toUtf8(name);
        switch (where) {
        case Where::column:
            return {what, naive.letColumn(name, at[0], value)};
        case Where::row:
            return {what, naive.letRow(name, at[0], value)};
        case Where::cell:
            break;
        }
        return {what, naive.letCell(name, at[0], at[1], value)};
    }

    std::pair<std::string, Reports> addRow(Long rows) {
        std::vector<String> pieces(static_cast<std::size_t>(number(1, 5)));
        String joined;
        for (String& piece : pieces) {
            piece = text();
            joined += joined.empty() && &piece == pieces.data() ? piece : u"," + piece;
        }
        std::vector<Variant> arguments{index(rows), u",", joined};
        if (arguments[0].isMissing())
            arguments[0] = Long{-1};
        Variant place = arguments[0];
        byName.call(u"RowsAdd", arguments);
        const Reports reports = naive.rowsAdd(place, pieces);
        if (naive.columnsCount() > 0) {
            EXPECT_EQ(arguments[0].toDouble(), place.toDouble()) << "the place that comes back";
        }
        return {"RowsAdd", reports};
    }

    std::pair<std::string, Reports> addColumn() {
        Fields fields{{u"ColumnText", text()},
                      {u"ColumnIcon", oneOf<PictureRef>({nullptr, pictures[0]})},
                      {u"ColumnAlignment", number(0, 2)},
                      {u"ColumnWidth", static_cast<Single>(number(0, 2000))},
                      {u"ColumnAllowSorting", chance(50)},
                      {u"ColumnForeColor", number(0, 0xFFFFFF)},
                      {u"ColumnKey", text()},
                      {u"ColumnTag", text()},
                      {u"ColumnForeColorHover", number(0, 0xFFFFFF)}};
        std::vector<Variant> arguments{fields[u"ColumnText"],
                                       fields[u"ColumnIcon"],
                                       Missing{},
                                       Missing{},
                                       fields[u"ColumnAlignment"],
                                       fields[u"ColumnWidth"],
                                       fields[u"ColumnAllowSorting"],
                                       fields[u"ColumnForeColor"],
                                       fields[u"ColumnKey"],
                                       fields[u"ColumnTag"],
                                       fields[u"ColumnForeColorHover"]};
        byName.call(u"ColumnsAdd", arguments);
        naive.columnsAdd(fields);
        return {"ColumnsAdd", {}};
    }

    std::pair<std::string, Reports> removeRow(Long rows) {
        std::vector<Variant> arguments{index(rows)};
        if (arguments[0].isMissing())
            arguments[0] = Long{1};
        Variant place = arguments[0];
        byName.call(u"RowsRemove", arguments);
        const Reports reports = naive.rowsRemove(place);
        EXPECT_EQ(arguments[0], place) << "the place that comes back";
        return {"RowsRemove", reports};
    }

    std::pair<std::string, Reports> moveIndex(Long rows) {
        const Long wanted = chance(5) ? std::numeric_limits<Long>::min() : number(-2, rows + 1);
        const bool countsFromOne = chance(50);
        bool refused = false;
        events.log.clear();
        byName.let(countsFromOne ? u"RowIndex" : u"ListIndex", {}, wanted);
        const Reports reports =
            countsFromOne ? naive.letRowIndex(wanted, refused) : naive.letListIndex(wanted, refused);
        EXPECT_EQ(events.log.size(), refused ? 1U : 0U) << wanted;
        return {countsFromOne ? "RowIndex" : "ListIndex", reports};
    }

    std::pair<std::string, Reports> changeDefaults() {
        switch (number(0, 4)) {
        case 0:
            naive.multiSelect = chance(50);
            byName.let(u"MultiSelect", {}, naive.multiSelect);
            break;
        case 1:
            naive.itemColor = static_cast<OLE_COLOR>(number(0, 0xFFFFFF));
            byName.let(u"DefaultItemForeColor", {}, naive.itemColor);
            break;
        case 2:
            naive.itemFont.Size = static_cast<Single>(number(6, 20));
            naive.itemFont.Bold = chance(50);
            byName.set(u"DefaultItemFont", {}, std::make_shared<Font>(naive.itemFont));
            break;
        case 3:
            naive.iconH = chance(50);
            naive.iconW = chance(50);
            byName.let(u"IconH", {}, Long{naive.iconH ? 16 : 0});
            byName.let(u"IconW", {}, Long{naive.iconW ? 16 : 0});
            break;
        default:
            naive.textPosition = static_cast<cTextPosition>(number(0, 2));
            byName.let(u"TextPositionDefault", {}, Long{naive.textPosition});
        }
        return {"defaults", {}};
    }

    /// The numbers of the reports, those of painting left out: without checks of the bars the view may stand
    /// behind the last row, and what a paint says of that has tests of its own.
    std::vector<Long> reported() {
        std::vector<Long> numbers;
        for (const auto& box : std::exchange(desktop.runtime().boxes, {})) {
            constexpr StringView label = u"Error no.: ";
            if (box.text.find(u"/Redraw\r") == String::npos)
                numbers.push_back(
                    Variant(box.text.substr(label.size(), box.text.find(u'\r') - label.size())).toLong());
        }
        return numbers;
    }

    void compareFields(std::span<const automation::Member> members,
                       std::vector<Variant> at,
                       const Fields& expected) {
        for (const automation::Member& member : members) {
            const auto field = expected.find(String(member.name));
            if (field != expected.end()) {
                ASSERT_EQ(member.get(&list, at, nullptr), field->second) << toUtf8(member.name);
            }
        }
    }

    void compareAll() {
        ASSERT_EQ(list.RowsCount(), naive.rowsCount());
        ASSERT_EQ(list.ColumnsCount(), naive.columnsCount());
        ASSERT_EQ(list.NewIndex(), naive.newIndex);
        ASSERT_EQ(list.ListIndex(), naive.rowsCount() >= 1 ? naive.listIndex : -1);
        ASSERT_EQ(list.RowSelectedCount(), naive.selectedCount());
        ASSERT_EQ(inside.rows().size(), naive.rows.size());
        ASSERT_EQ(inside.columns().size(), naive.columns.size());
        for (Long column = 0; column <= naive.columnsCount(); ++column)
            ASSERT_EQ(list.ItemsCheckedCount(column), naive.checkedCount(column));
        for (std::size_t column = 0; column < naive.columns.size(); ++column)
            compareFields(
                automation::columnMembers(), {static_cast<Long>(column) + 1}, naive.columns[column].fields);
        for (std::size_t row = 0; row < naive.rows.size(); ++row) {
            const Long number = static_cast<Long>(row) + 1;
            compareFields(automation::rowMembers(), {number}, naive.rows[row].fields);
            ASSERT_EQ(inside.rows()[row].items.count(), naive.rows[row].cells.size());
            for (std::size_t cell = 0; cell < naive.rows[row].cells.size(); ++cell)
                compareFields(automation::itemMembers(),
                              {number, static_cast<Long>(cell) + 1},
                              naive.rows[row].cells[cell]);
        }
    }

    std::mt19937 random{GetParam()};
    NaiveList naive;
    automation::CallByName byName{list};
    std::array<PictureRef, 2> pictures{std::make_shared<BitmapPicture>(Bitmap(3, 3)),
                                       std::make_shared<BitmapPicture>(Bitmap(5, 5))};
};

TEST_P(RandomOperations, LeaveTheSameListAsANaiveOne) {
    const int operations = GetParam() % 2 != 0 ? 250 : 1000;
    for (int operation = 0; operation < operations; ++operation) {
        const auto [what, reports] = operate();
        ASSERT_EQ(reported(), reports) << what << ", operation " << operation;
        compareAll();
        if (HasFatalFailure()) {
            FAIL() << "after " << what << ", operation " << operation;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomOperations, ::testing::Range(1U, 9U));

} // namespace
} // namespace lumtex::testing

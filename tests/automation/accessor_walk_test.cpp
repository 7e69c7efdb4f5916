/// Every accessor of columns, rows and cells, and every property, walked from the table of members.
#include "automation/call_by_name.h"
#include "automation/member_table.h"
#include "error_number.h"
#include "list_fixture.h"
#include "test_object.h"
#include "test_recordset.h"
#include "values/text.h"
#include "variant_printing.h"

#include <limits>

namespace lumtex::testing {

namespace {

PictureRef picture() {
    return std::make_shared<BitmapPicture>(Bitmap(2, 2));
}

/// A value that no new list holds, and what a get gives for it afterwards.
struct Sample {
    Variant assigned;
    Variant read;
};

Sample sampleFor(const automation::Member& member) {
    switch (member.type.code) {
    case automation::TypeCode::boolean:
        return {true, true};
    case automation::TypeCode::integer:
        return {Integer{2}, Integer{2}};
    case automation::TypeCode::longInteger:
        return {Long{3}, Long{3}};
    case automation::TypeCode::enumeration:
        return {Long{2}, Long{2}};
    case automation::TypeCode::single:
        return {37.5F, 37.5F};
    case automation::TypeCode::string:
        return {u"sample", u"sample"};
    case automation::TypeCode::variant:
        return {Long{0x123456}, Long{0x123456}};
    case automation::TypeCode::color:
        return {Long{0x123456}, Long{0x123456}};
    case automation::TypeCode::picture: {
        const PictureRef shared = picture();
        return {shared, shared};
    }
    case automation::TypeCode::object: {
        const ObjectRef shared = std::make_shared<TestObject>();
        return {shared, shared};
    }
    default:
        ADD_FAILURE() << "no sample for " << toUtf8(member.name);
        return {};
    }
}

Variant zeroOf(automation::TypeCode type) {
    switch (type) {
    case automation::TypeCode::boolean:
        return false;
    case automation::TypeCode::integer:
        return Integer{0};
    case automation::TypeCode::longInteger:
    case automation::TypeCode::enumeration:
    case automation::TypeCode::color:
        return Long{0};
    case automation::TypeCode::single:
        return 0.0F;
    case automation::TypeCode::string:
        return u"";
    case automation::TypeCode::picture:
        return PictureRef{};
    case automation::TypeCode::font:
        return FontRef{};
    case automation::TypeCode::object:
        return ObjectRef{};
    default:
        return {};
    }
}

enum class Group { control, columns, rows, cells };

struct Accessor {
    Group group;
    const automation::Member* member;
};

void PrintTo(const Accessor& accessor, std::ostream* stream) {
    *stream << toUtf8(accessor.member->name);
}

std::vector<Accessor> accessors(const std::function<bool(const Accessor&)>& taken = [](const auto&) {
    return true;
}) {
    std::vector<Accessor> all;
    const auto take = [&](Group group, std::span<const automation::Member> members) {
        for (const automation::Member& member : members)
            if (!member.isMethod() && taken({group, &member}))
                all.push_back({group, &member});
    };
    take(Group::columns, automation::columnMembers());
    take(Group::rows, automation::rowMembers());
    take(Group::cells, automation::itemMembers());
    return all;
}

std::vector<Accessor> properties() {
    std::vector<Accessor> all;
    for (const automation::Member& member : automation::propertyMembers())
        all.push_back({Group::control, &member});
    return all;
}

std::string nameOf(const ::testing::TestParamInfo<Accessor>& info) {
    return toUtf8(info.param.member->name);
}

class EachAccessor : public ListFixture, public ::testing::WithParamInterface<Accessor> {
  protected:
    const automation::Member& member() const { return *GetParam().member; }
    Group group() const { return GetParam().group; }
    bool assignable() const { return member().let != nullptr; }

    void fill() {
        addColumns({50, 60});
        addRows(3, u"a,b");
        // What is True on a new list and read back as True would prove nothing.
        list.letRowEnabled(2, false);
        list.letColumnAdjustItemIcons(2, false);
        list.letColumnItemIconH(2, false);
        list.letColumnItemIconW(2, false);
    }

    /// Row 2 and column 2 take part; `index` goes where the member looks first.
    std::vector<Variant> at(const Variant& index) const {
        if (group() == Group::cells)
            return {index, Long{2}};
        return {index};
    }

    Variant get(std::vector<Variant> arguments) { return byName.get(member().name, arguments); }
    void assign(std::vector<Variant> arguments, const Variant& value) {
        if (member().isReference())
            byName.set(member().name, arguments, value);
        else
            byName.let(member().name, arguments, value);
    }

    /// Reads, and assigns where that can be done, and expects a report of `error` from each.
    void expectFailures(ErrorNumber error, const std::vector<Variant>& arguments) {
        const std::string report = std::to_string(numberOf(error)) + " " + toUtf8(member().name);
        std::size_t reports = reportCount();
        EXPECT_EQ(get(arguments), zeroOf(member().type.code));
        ASSERT_EQ(reportCount(), reports + 1);
        EXPECT_EQ(lastReport(), report);
        if (!assignable())
            return;
        events.log.clear();
        reports = reportCount();
        assign(arguments, sampleFor(member()).assigned);
        if (member().name == u"ItemObject") {
            // This one tells the host of a failure instead of reporting it.
            ASSERT_EQ(events.log.size(), 1U);
            EXPECT_EQ(events.log[0].find("ListViewError"), 0U);
            return;
        }
        ASSERT_GT(reportCount(), reports);
        EXPECT_EQ(lastReport().substr(0, lastReport().find(' ')), std::to_string(numberOf(error)));
    }

    automation::CallByName byName{list};
};

class EachAssignableOne : public EachAccessor {};
class EachReadOnlyOne : public EachAccessor {};
class EachCellAccessor : public EachAccessor {};

TEST_P(EachAssignableOne, ReadsWhatWasAssigned) {
    fill();
    list.letAutoRedraw(false);
    const Sample sample = sampleFor(member());
    const Variant ofTheFirst = get(at(Long{1}));
    EXPECT_FALSE(get(at(Long{2})) == sample.read) << "the sample proves nothing";
    assign(at(Long{2}), sample.assigned);
    EXPECT_EQ(get(at(Long{2})), sample.read);
    EXPECT_EQ(get(at(u"2")), sample.read) << "a numeric text is an index too";
    EXPECT_EQ(get(at(Single{2.4F})), sample.read) << "an index is rounded";
    EXPECT_EQ(get(at(1.5)), ofTheFirst) << "a half, less 1, is rounded to even";
    EXPECT_EQ(get(at(Long{1})), ofTheFirst) << "the neighbour is left alone";
    EXPECT_EQ(reportCount(), 0U);
}

TEST_P(EachAssignableOne, RepaintsAsTheTableSays) {
    fill();
    const Sample sample = sampleFor(member());
    const bool repaints = member().repaint == automation::Repaint::asAutoRedraw;
    EXPECT_EQ(paintsOf([&] { assign(at(Long{2}), sample.assigned); }), repaints ? 1 : 0);
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] { assign(at(Long{1}), sample.assigned); }), 0);
    EXPECT_EQ(get(at(Long{1})), sample.read);
}

TEST_P(EachAssignableOne, RepaintsAtDesignTimeWhateverAutoRedrawSays) {
    fill();
    list.letAutoRedraw(false);
    host.userMode = false;
    const bool repaints = member().repaint == automation::Repaint::asAutoRedraw;
    EXPECT_EQ(paintsOf([&] { assign(at(Long{2}), sampleFor(member()).assigned); }), repaints ? 1 : 0);
}

TEST_P(EachReadOnlyOne, IsASingleAndTakesNoAssignment) {
    fill();
    EXPECT_NE(get(at(Long{2})).as<Single>(), nullptr);
    EXPECT_EQ(errorNumberOf([&] { assign(at(Long{2}), Long{7}); }), ErrorNumber::objectDoesNotSupportMember);
}

TEST_P(EachAccessor, FailsAtAnIndexOutsideTheArray) {
    fill();
    for (const Variant& index : {Variant(Long{0}),
                                 Variant(Long{-1}),
                                 Variant(Long{4}),
                                 Variant(std::numeric_limits<Long>::max()),
                                 Variant(u"99")})
        expectFailures(ErrorNumber::subscriptOutOfRange, at(index));
}

TEST_P(EachAccessor, FailsAtAnIndexThatIsNoNumber) {
    fill();
    for (const Variant& index : {Variant(u"x"), Variant(u""), Variant(ObjectRef{})})
        expectFailures(ErrorNumber::typeMismatch, at(index));
    expectFailures(ErrorNumber::invalidUseOfNull, at(Null{}));
    expectFailures(ErrorNumber::overflow, at(1e10));
    expectFailures(ErrorNumber::subscriptOutOfRange, at(Variant{}));
}

TEST_P(EachAccessor, OverflowsAtTheLowestNumber) {
    fill();
    expectFailures(ErrorNumber::overflow, at(std::numeric_limits<Long>::min()));
}

TEST_P(EachAccessor, OnAClearedListMeetsTheBlankElement) {
    fill();
    list.RowsClear();
    list.ColumnsClear();
    if (group() == Group::cells) {
        // The row is there, its cells are not: the look-up in the collection fails.
        EXPECT_EQ(get({Long{1}, Long{1}}), zeroOf(member().type.code));
        EXPECT_EQ(reportCount(), 1U);
        EXPECT_EQ(lastReport(), "9 " + toUtf8(member().name));
        return;
    }
    EXPECT_EQ(get({Long{1}}), zeroOf(member().type.code));
    EXPECT_EQ(reportCount(), 0U);
}

TEST_P(EachAccessor, OnAListThatNeverHadAnythingFails) {
    expectFailures(ErrorNumber::subscriptOutOfRange, at(Long{1}));
}

TEST_P(EachCellAccessor, TakesNoTextAsColumn) {
    fill();
    for (const Variant& column : {Variant(u"1"), Variant(u"x"), Variant(u"")})
        expectFailures(ErrorNumber::invalidProcedureCall, {Long{1}, column});
    for (const Variant& column : {Variant(Long{0}), Variant(Long{3}), Variant(Long{-1})})
        expectFailures(ErrorNumber::subscriptOutOfRange, {Long{1}, column});
}

class EachProperty : public ListFixture, public ::testing::WithParamInterface<Accessor> {
  protected:
    const automation::Member& member() const { return *GetParam().member; }

    /// Another value than the one of a new list.
    Variant other() {
        if (member().type.code == automation::TypeCode::boolean)
            return !byName.get(member().name).toBoolean();
        if (member().type.code == automation::TypeCode::object)
            return ObjectRef(std::make_shared<TestRecordset>(std::vector<String>{u"a"},
                                                             std::vector<std::vector<Variant>>{{u"1"}}));
        if (member().type.code == automation::TypeCode::font)
            return std::make_shared<Font>(FontSpec{.Name = u"Verdana", .Size = 20});
        return sampleFor(member()).assigned;
    }
    void assign(const Variant& value) {
        if (member().isReference())
            byName.set(member().name, {}, value);
        else
            byName.let(member().name, {}, value);
    }

    automation::CallByName byName{list};
};

TEST_P(EachProperty, ReadsWhatWasAssigned) {
    const Variant value = other();
    EXPECT_FALSE(byName.get(member().name) == value);
    assign(value);
    if (member().type.code == automation::TypeCode::font) {
        EXPECT_EQ(byName.get(member().name).toFont()->spec, value.toFont()->spec);
    } else {
        EXPECT_EQ(byName.get(member().name), value);
    }
    EXPECT_EQ(reportCount(), 0U);
}

TEST_P(EachProperty, RepaintsAsTheTableSays) {
    list.letAutoRedraw(false);
    EXPECT_EQ(paintsOf([&] { assign(other()); }), member().repaint == automation::Repaint::always ? 1 : 0);
    list.letAutoRedraw(true);
    // A load turns painting off, so that turning it on again paints once more.
    const int paints = member().name == u"Recordset"                    ? 2
                       : member().repaint == automation::Repaint::never ? 0
                                                                        : 1;
    if (member().name != u"AutoRedraw") {
        EXPECT_EQ(paintsOf([&] { assign(other()); }), paints);
    }
}

INSTANTIATE_TEST_SUITE_P(Table, EachAccessor, ::testing::ValuesIn(accessors()), nameOf);
INSTANTIATE_TEST_SUITE_P(Table,
                         EachAssignableOne,
                         ::testing::ValuesIn(accessors([](const Accessor& each) {
                             return each.member->let != nullptr;
                         })),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Table,
                         EachReadOnlyOne,
                         ::testing::ValuesIn(accessors([](const Accessor& each) {
                             return each.member->let == nullptr;
                         })),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Table,
                         EachCellAccessor,
                         ::testing::ValuesIn(accessors([](const Accessor& each) {
                             return each.group == Group::cells;
                         })),
                         nameOf);
INSTANTIATE_TEST_SUITE_P(Table, EachProperty, ::testing::ValuesIn(properties()), nameOf);

} // namespace
} // namespace lumtex::testing

/// What programs see that know the widget by its meta-object alone: all of the interface table, and each
/// setting assigned, told of and reset.
#include "automation/class_table.h"
#include "automation/enumeration_table.h"
#include "automation/event_table.h"
#include "changed_settings.h"
#include "model/property_table.h"
#include "widget_fixture.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>
#include <set>

namespace lumtex::testing {

namespace {

using automation::Member;
using automation::TypeCode;

const QMetaObject& meta() {
    return LumtexListView::staticMetaObject;
}

/// Parameter counts with which a function of that name can be called.
std::set<int> countsOf(const std::string& name, QMetaMethod::MethodType type) {
    std::set<int> counts;
    for (int i = meta().methodOffset(); i < meta().methodCount(); ++i) {
        const QMetaMethod method = meta().method(i);
        if (method.methodType() == type && method.name() == name.c_str())
            counts.insert(method.parameterCount());
    }
    return counts;
}

class MetaMember : public ::testing::TestWithParam<const Member*> {};

TEST_P(MetaMember, IsInTheMetaObject) {
    const Member& member = *GetParam();
    const std::string name = toUtf8(member.name);
    const auto parameters = static_cast<int>(member.count);
    if (member.isMethod()) {
        const auto required = std::ranges::count_if(
            member.parameters(), [](const automation::Parameter& one) { return !one.optional(); });
        const std::set<int> counts = countsOf(name, QMetaMethod::Method);
        EXPECT_TRUE(counts.contains(parameters));
        EXPECT_TRUE(counts.contains(static_cast<int>(required)));
        return;
    }
    if (parameters > 0) {
        EXPECT_EQ(countsOf(name, QMetaMethod::Method).contains(parameters), member.get != nullptr);
        EXPECT_EQ(countsOf("set" + name, QMetaMethod::Method).contains(parameters + 1),
                  member.let != nullptr);
        return;
    }
    const int index = meta().indexOfProperty(name.c_str());
    ASSERT_GE(index, meta().propertyOffset());
    const QMetaProperty property = meta().property(index);
    EXPECT_EQ(property.isReadable(), member.get != nullptr);
    EXPECT_EQ(property.isWritable(), member.let != nullptr);
    EXPECT_EQ(property.isResettable(), property.hasNotifySignal());
    EXPECT_EQ(property.isEnumType(), member.type.code == TypeCode::enumeration);
}

std::vector<const Member*> allMembers() {
    std::vector<const Member*> members;
    for (const Member& member : automation::listViewClass().members)
        members.push_back(&member);
    return members;
}

std::string nameOf(const ::testing::TestParamInfo<const Member*>& info) {
    return toUtf8(info.param->name);
}

INSTANTIATE_TEST_SUITE_P(Members, MetaMember, ::testing::ValuesIn(allMembers()), nameOf);

TEST(MetaObject, EachEventIsASignalWithItsArguments) {
    for (const automation::EventDescription& event : automation::eventTable)
        EXPECT_TRUE(countsOf(toUtf8(event.name), QMetaMethod::Signal).contains(static_cast<int>(event.count)))
            << toUtf8(event.name);
}

TEST(MetaObject, EachEnumerationOfAPropertyHasItsNames) {
    int compared = 0;
    for (const automation::Enumeration& enumeration : automation::enumerationTable) {
        const int index = meta().indexOfEnumerator(toUtf8(enumeration.name).c_str());
        if (index < 0)
            continue;
        const QMetaEnum names = meta().enumerator(index);
        ASSERT_EQ(names.keyCount(), static_cast<int>(enumeration.count));
        for (const automation::Enumerator& enumerator : enumeration.enumerators()) {
            EXPECT_EQ(names.keyToValue(toUtf8(enumerator.name).c_str()), enumerator.number);
            ++compared;
        }
    }
    EXPECT_GT(compared, 20);
}

TEST(MetaObject, EachPropertyOfTheBagIsASettingThatCanBeTakenBackAndTellsOfItself) {
    forEachProperty<readingOrder>([](const auto& row) {
        const std::string name = toUtf8(row.name);
        const int index = meta().indexOfProperty(name.c_str());
        ASSERT_GE(index, meta().propertyOffset()) << name;
        const QMetaProperty property = meta().property(index);
        EXPECT_TRUE(property.isReadable() && property.isWritable() && property.isStored()) << name;
        EXPECT_TRUE(property.isResettable() && property.hasNotifySignal()) << name;
    });
}

// Settings

class MetaSetting : public WidgetTest, public ::testing::WithParamInterface<std::string> {};

TEST_P(MetaSetting, IsAssignedToldOfAndReset) {
    const QMetaProperty property = meta().property(meta().indexOfProperty(GetParam().c_str()));
    const QVariant first = property.read(widget.get());
    const QVariant other = anotherThan(property, first);
    ASSERT_NE(comparable(other), comparable(first));

    QSignalSpy told(widget.get(), property.notifySignal());
    ASSERT_TRUE(property.write(widget.get(), other));
    EXPECT_EQ(comparable(property.read(widget.get())), comparable(other));
    EXPECT_GE(told.count(), 1);

    ASSERT_TRUE(property.reset(widget.get()));
    EXPECT_EQ(comparable(property.read(widget.get())), comparable(first));
    EXPECT_EQ(boxes, std::vector<std::string>());
}

std::string nameOfSetting(const ::testing::TestParamInfo<std::string>& setting) {
    return setting.param;
}

INSTANTIATE_TEST_SUITE_P(Settings, MetaSetting, ::testing::ValuesIn(settings()), nameOfSetting);

} // namespace
} // namespace lumtex::testing

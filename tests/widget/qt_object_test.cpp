/// Objects of Qt as cells and handlers know objects.
#include "qt/qt_object.h"
#include "values/runtime_error.h"
#include "values/variant.h"

#include <QLabel>
#include <QProgressBar>
#include <array>
#include <functional>
#include <memory>

#include <gtest/gtest.h>

namespace lumtex::testing {

namespace {

Long failureOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(QtObject, ReadsAndAssignsPropertiesInAnyCase) {
    QProgressBar bar;
    qt::QtObject object(&bar);
    object.put(u"MAXIMUM", Variant(Long{200}));
    object.put(u"Value", Variant(Long{50}));
    EXPECT_EQ(bar.value(), 50);
    EXPECT_EQ(object.get(u"value").toLong(), 50);
    EXPECT_EQ(object.get(u"text").toText(), u"25%");
}

TEST(QtObject, CallsWhatCanBeCalled) {
    QLabel label;
    qt::QtObject object(&label);
    std::array<Variant, 1> text{Variant(String(u"hello"))};
    object.call(u"settext", text);
    EXPECT_EQ(label.text(), QStringLiteral("hello"));
    std::array<Variant, 1> number{Variant(Long{7})};
    object.call(u"setNum", number);
    EXPECT_EQ(label.text(), QStringLiteral("7"));
}

TEST(QtObject, ConvertsArgumentsOrSaysThatItCannot) {
    QProgressBar bar;
    qt::QtObject object(&bar);
    std::array<Variant, 1> text{Variant(String(u"33"))};
    object.call(u"setValue", text);
    EXPECT_EQ(bar.value(), 33);
    text[0] = Variant(String(u"many"));
    EXPECT_EQ(failureOf([&] { object.call(u"setValue", text); }), numberOf(ErrorNumber::typeMismatch));
    EXPECT_EQ(failureOf([&] { object.put(u"value", Variant(String(u"many"))); }),
              numberOf(ErrorNumber::typeMismatch));
    EXPECT_EQ(bar.value(), 33);
}

TEST(QtObject, KnowsNoOtherMembers) {
    QProgressBar bar;
    qt::QtObject object(&bar);
    EXPECT_EQ(failureOf([&] { object.get(u"Nothing"); }), numberOf(ErrorNumber::objectDoesNotSupportMember));
    EXPECT_EQ(failureOf([&] { object.call(u"Nothing", std::span<Variant>()); }),
              numberOf(ErrorNumber::objectDoesNotSupportMember));
    std::array<Variant, 11> many;
    EXPECT_EQ(failureOf([&] { object.call(u"setValue", many); }),
              numberOf(ErrorNumber::objectDoesNotSupportMember));
}

TEST(QtObject, KnowsNoMemberOnceItsObjectIsGone) {
    auto bar = std::make_unique<QProgressBar>();
    qt::QtObject object(bar.get());
    bar.reset();
    EXPECT_EQ(object.object(), nullptr);
    EXPECT_EQ(failureOf([&] { object.get(u"value"); }), numberOf(ErrorNumber::objectDoesNotSupportMember));
    EXPECT_EQ(failureOf([&] { object.call(u"reset", std::span<Variant>()); }),
              numberOf(ErrorNumber::objectDoesNotSupportMember));
}

} // namespace
} // namespace lumtex::testing

/// Widgets of the program over cells of a list.
#include "list_fixture.h"
#include "values/runtime_error.h"
#include "values/variant.h"
#include "world_fixture.h"
#include "worlds/qt/widget_object.h"

#include <QPushButton>

namespace lumtex::testing {

namespace {

class QtWidgetObject : public QtWorldTest {
  protected:
    QtWidgetObject() {
        container->resize(400, 300);
        window->letVisible(false);
        list = std::make_unique<lmListView>(world, host, events);
        list->UserControl_InitProperties();
        list->window().place(0, 0, 300, 120);
        list->ColumnsAdd(u"City", nullptr, nullptr, nullptr, cColumnLeft, 1500);
        list->ColumnsAdd(u"Rating", nullptr, nullptr, nullptr, cColumnLeft, 1500);
        for (int row = 0; row < 12; ++row)
            list->RowsAdd(-1, u",", u"Lisbon,1");
        settle();
    }

    static void settle() {
        for (int pass = 0; pass < 3; ++pass)
            QCoreApplication::processEvents();
    }
    qt::ScreenWidget* listScreen() { return static_cast<qt::QtWindow&>(list->window()).screen(); }
    void embed(Long row) {
        list->setItemObject(row, 2, std::make_shared<qt::WidgetObject>(*button));
        settle();
    }

    TestHost host;
    RecordingEvents events;
    QPointer<QPushButton> button = new QPushButton(QStringLiteral("Rate"), container.get());
    std::unique_ptr<lmListView> list;
};

TEST_F(QtWidgetObject, StandsOverItsCell) {
    button->resize(20, 10);
    embed(2);
    EXPECT_EQ(button->parentWidget(), listScreen());
    EXPECT_TRUE(button->isVisible());
    EXPECT_EQ(button->x(), 101) << "behind the border";
    EXPECT_EQ(button->width(), 99);
    EXPECT_EQ(button->height(), 10) << "heights stay";
    EXPECT_TRUE(events.log.empty()) << events.log.front();
}

TEST_F(QtWidgetObject, IsHiddenWithItsRow) {
    embed(1);
    EXPECT_TRUE(button->isVisible());
    list->letTopIndex(5);
    settle();
    EXPECT_TRUE(button->isHidden());
    list->letTopIndex(0);
    settle();
    EXPECT_TRUE(button->isVisible());
}

TEST_F(QtWidgetObject, ABarCoversIt) {
    button->resize(20, 10);
    list->window().place(0, 0, 150, 120);
    embed(2);
    ASSERT_LT(button->x(), 150);
    ASSERT_GT(button->x() + button->width(), 150);
    const QRegion mask = button->mask();
    const auto shows = [&](int x) { return mask.contains(QPoint(x - button->x(), 5)); };
    EXPECT_TRUE(shows(131));
    EXPECT_FALSE(shows(132)) << "the bar begins here";
    EXPECT_FALSE(shows(148));
    EXPECT_FALSE(shows(150)) << "outside the list";
    list->window().place(0, 0, 300, 400);
    settle();
    EXPECT_TRUE(button->mask().isEmpty());
}

TEST_F(QtWidgetObject, MayGoAtAnyTime) {
    embed(2);
    delete button;
    list->Redraw();
    settle();
    const ObjectRef object = list->ItemObject(2, 2);
    ASSERT_NE(object, nullptr);
    EXPECT_FALSE(object->get(u"Visible").toBoolean());
    EXPECT_EQ(object->get(u"hWnd").toLong(), 0);
    EXPECT_EQ(object->get(u"Width").toSingle(), 0);
    object->put(u"Visible", true);
    object->put(u"Left", Variant(Long{15}));
    object->call(u"ZOrder");
    object->call(u"SetFocus");
    EXPECT_THROW(object->get(u"Caption"), RuntimeError);
    EXPECT_TRUE(events.log.empty());
}

TEST_F(QtWidgetObject, GoesBackToWhereItWasWhenTheListGoes) {
    embed(2);
    list.reset();
    settle();
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->parentWidget(), container.get());
    EXPECT_TRUE(button->isHidden());
    EXPECT_TRUE(button->mask().isEmpty());
}

TEST_F(QtWidgetObject, GoesWithTheListIfItWasNowhere) {
    delete button;
    button = new QPushButton;
    embed(2);
    list.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(button, nullptr);
}

TEST_F(QtWidgetObject, ItsOwnEventMayEndTheList) {
    embed(2);
    QObject::connect(button, &QPushButton::clicked, [&] { list.reset(); });
    button->click();
    EXPECT_EQ(list, nullptr);
    settle();
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->parentWidget(), container.get());
}

TEST_F(QtWidgetObject, TheWidgetAroundMayEndFirst) {
    embed(2);
    container.reset();
    EXPECT_EQ(button, nullptr);
    list->Redraw();
    settle();
    EXPECT_EQ(list->ItemObject(2, 2)->get(u"hWnd").toLong(), 0);
    list.reset();
    container = std::make_unique<QWidget>();
    container->show();
}

TEST_F(QtWidgetObject, LengthsAreTwips) {
    qt::WidgetObject object(*button);
    object.put(u"left", Variant(Long{150}));
    object.put(u"TOP", Variant(Long{300}));
    object.put(u"Width", Variant(Long{1500}));
    object.put(u"Height", Variant(Long{450}));
    EXPECT_EQ(button->geometry(), QRect(10, 20, 100, 30));
    std::array<Variant, 2> place{Variant(Long{15}), Variant(Long{30})};
    object.call(u"Move", place);
    EXPECT_EQ(button->geometry(), QRect(1, 2, 100, 30));
    EXPECT_EQ(object.get(u"Left").toSingle(), 15);
    EXPECT_EQ(object.get(u"Height").toSingle(), 450);
    EXPECT_THROW(object.put(u"Width", Variant(String(u"wide"))), RuntimeError);
}

TEST_F(QtWidgetObject, WhatItDoesNotKnowIsThatOfTheOthers) {
    class Named final : public Object {
      public:
        Variant get(StringView name, std::span<Variant>) override { return String(name); }
        void put(StringView name, const Variant&) override { assigned = name; }
        Variant call(StringView name, std::span<Variant>) override { return String(name); }
        String assigned;
    };
    const auto others = std::make_shared<Named>();
    qt::WidgetObject object(*button, others);
    EXPECT_EQ(object.get(u"Caption").toText(), u"Caption");
    object.put(u"Caption", Variant(Long{1}));
    EXPECT_EQ(others->assigned, u"Caption");
    EXPECT_EQ(object.call(u"Reset").toText(), u"Reset");
    qt::WidgetObject alone(*button);
    EXPECT_THROW(alone.get(u"Caption"), RuntimeError);
    EXPECT_THROW(alone.put(u"Caption", Variant(Long{1})), RuntimeError);
    EXPECT_THROW(alone.call(u"Reset"), RuntimeError);
}

TEST_F(QtWidgetObject, HasANumberOfItsOwnAsLongAsItLives) {
    auto object = std::make_unique<qt::WidgetObject>(*button);
    const Long handle = object->get(u"hWnd").toLong();
    EXPECT_EQ(qt::WidgetObject::find(handle), button);
    object.reset();
    EXPECT_EQ(qt::WidgetObject::find(handle), nullptr);
}

TEST_F(QtWidgetObject, AWidgetAroundTheListIsNotTakenIn) {
    qt::WidgetObject around(*container);
    EXPECT_FALSE(list->window().adopt(around.get(u"hWnd").toLong()));
    qt::WidgetObject own(*listScreen());
    EXPECT_FALSE(list->window().adopt(own.get(u"hWnd").toLong()));
}

TEST_F(QtWidgetObject, KeysThatItLeavesGoPastTheList) {
    embed(2);
    button->setFocusPolicy(Qt::StrongFocus);
    list->ItemObject(2, 2)->call(u"SetFocus");
    events.log.clear();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent key(type, Qt::Key_F5, Qt::NoModifier);
        QCoreApplication::sendEvent(button, &key);
        EXPECT_FALSE(key.isAccepted());
    }
    EXPECT_TRUE(events.log.empty());
}

TEST_F(QtWidgetObject, KeysAndFocusAreItsOwn) {
    embed(2);
    button->setFocusPolicy(Qt::StrongFocus);
    list->ItemObject(2, 2)->call(u"SetFocus");
    settle();
    EXPECT_TRUE(button->hasFocus());
    list->ItemObject(2, 2)->put(u"Enabled", false);
    EXPECT_FALSE(button->isEnabled());
}

} // namespace
} // namespace lumtex::testing

/// The widget as programs use it.
#include "hostcode/calling_things.h"
#include "model/list_view.h"
#include "widget_fixture.h"
#include "worlds/qt/user_hands.h"

#include <QMetaMethod>
#include <QMetaObject>
#include <QMetaProperty>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QVBoxLayout>

namespace lumtex::testing {

namespace {

using Widget = WidgetTest;

TEST_F(Widget, IsFilledAndReadByItsMetaObjectAlone) {
    std::unique_ptr<QObject> made(
        LumtexListView::staticMetaObject.newInstance(Q_ARG(QWidget*, static_cast<QWidget*>(nullptr))));
    ASSERT_NE(made, nullptr);
    QObject* const list = made.get();
    ASSERT_TRUE(QMetaObject::invokeMethod(list, "ColumnsAdd", Q_ARG(QVariant, QStringLiteral("City"))));
    ASSERT_TRUE(QMetaObject::invokeMethod(list,
                                          "RowsAdd",
                                          Q_ARG(QVariant, -1),
                                          Q_ARG(QString, QStringLiteral(",")),
                                          Q_ARG(QString, QStringLiteral("Oslo"))));
    ASSERT_TRUE(QMetaObject::invokeMethod(list,
                                          "setItemText",
                                          Q_ARG(QVariant, 1),
                                          Q_ARG(QVariant, 1),
                                          Q_ARG(QString, QStringLiteral("Quito"))));
    QString text;
    ASSERT_TRUE(QMetaObject::invokeMethod(
        list, "ItemText", Q_RETURN_ARG(QString, text), Q_ARG(QVariant, 1), Q_ARG(QVariant, 1)));
    EXPECT_EQ(text, QStringLiteral("Quito"));
    EXPECT_EQ(list->property("RowsCount").toInt(), 1);
    QVariantMap found;
    ASSERT_TRUE(QMetaObject::invokeMethod(
        list, "FindItem", Q_RETURN_ARG(QVariantMap, found), Q_ARG(QString, QStringLiteral("Qui*"))));
    EXPECT_TRUE(found.value(QStringLiteral("FindSuccessful")).toBool());
    EXPECT_EQ(found.value(QStringLiteral("FindRow")).toInt(), 1);
    EXPECT_EQ(found.value(QStringLiteral("FindColumn")).toInt(), 1);
}

TEST_F(Widget, IsAsLargeAsItsLayoutMakesIt) {
    QWidget form;
    auto* layout = new QVBoxLayout(&form);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget.get());
    form.resize(321, 123);
    form.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(widget->size(), QSize(321, 123));
    EXPECT_EQ(widget->list().window().Width(), 321);
    EXPECT_EQ(widget->list().window().Height(), 123);
    widget->setParent(nullptr);
}

TEST_F(Widget, LetsNothingRunInItsYieldsWhileQtPlacesWidgets) {
    fill(*widget);
    widget->show();
    QCoreApplication::processEvents();
    bool ran = false;
    const auto post = [&] {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [&] { ran = true; }, Qt::QueuedConnection);
    };
    post();
    widget->resize(233, 144);
    EXPECT_EQ(widget->list().window().Width(), 233);
    EXPECT_FALSE(ran);
    widget->Redraw();
    EXPECT_TRUE(ran) << "a yield that the program asked for lets events through";
}

TEST_F(Widget, TakesWhatAReceiverLeavesInAReference) {
    fill(*widget);
    widget->setStyle(LumtexListView::cCheckBoxes);
    widget->setColumnCheckBoxes(1, true);
    widget->resize(300, 200);
    widget->show();
    QCoreApplication::processEvents();
    int asked = 0;
    QObject::connect(widget.get(), &LumtexListView::ErrorWrongIndex, [&](QVariant& index) {
        EXPECT_EQ(index.toInt(), 77);
        ++asked;
    });
    widget->setListIndex(77);
    EXPECT_EQ(asked, 1);

    QObject::connect(widget.get(), &LumtexListView::KeyDown, [](short& keyCode, short& /*shift*/) {
        if (keyCode == keys::down)
            keyCode = keys::up;
    });
    widget->setListIndex(1);
    widget->activateWindow();
    widget->setFocus();
    UserHands hands(*widget, [] { QCoreApplication::processEvents(); });
    hands.keyDown(keys::down);
    hands.keyUp(keys::down);
    EXPECT_EQ(widget->ListIndex(), 0);
}

TEST_F(Widget, ReportsAnArgumentThatCannotBeConverted) {
    fill(*widget);
    widget->setItemText(QVariantList{1, 2}, 1, QStringLiteral("never"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(widget->ItemText(1, 1), QStringLiteral("a1"));
    EXPECT_EQ(widget->ItemText(QVariantList{1}, 1), QString());
    EXPECT_EQ(boxes.size(), 2U);
}

TEST_F(Widget, ReportsAWrongRowAndYieldsTheTypesZero) {
    fill(*widget);
    EXPECT_EQ(widget->ItemText(99, 1), QString());
    EXPECT_FALSE(widget->RowSelected(99));
    EXPECT_EQ(boxes.size(), 2U);
}

TEST_F(Widget, KeepsQuietAboutFailuresWhereTheProgramWishesSo) {
    fill(*widget);
    ASSERT_FALSE(LumtexListView::SilentError());
    widget->setProperty("SilentError", true);
    EXPECT_EQ(widget->ItemText(99, 1), QString());
    EXPECT_EQ(boxes, std::vector<std::string>());
    LumtexListView::setSilentError(false);
    EXPECT_EQ(widget->ItemText(99, 1), QString());
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(Widget, MayBeDestroyedInItsOwnSignal) {
    fill(*widget);
    QPointer<LumtexListView> watched(widget.get());
    int after = 0;
    QObject::connect(widget.get(), &LumtexListView::Click, [&] { widget.reset(); });
    QObject::connect(widget.get(), &LumtexListView::SortDone, [&] { ++after; });
    widget->setClickOnIndexChange(true);
    watched->setListIndex(1);
    EXPECT_EQ(watched, nullptr);
    EXPECT_EQ(after, 0);
}

TEST_F(Widget, MayBeDestroyedInASignalOfThePress) {
    fill(*widget);
    widget->resize(300, 200);
    widget->show();
    QCoreApplication::processEvents();
    QPointer<LumtexListView> watched(widget.get());
    QWidget program;
    program.resize(400, 300);
    widget->setParent(&program);
    program.show();
    QCoreApplication::processEvents();
    QObject::connect(widget.get(), &LumtexListView::MouseDown, [&] { widget.reset(); });
    UserHands hands(program, [] { QCoreApplication::processEvents(); });
    hands.move({20, 40}, 0);
    hands.press(leftButton, 0);
    hands.release(leftButton, 0);
    EXPECT_EQ(watched, nullptr);
}

TEST_F(Widget, GoesWithTheWidgetAroundItWhileItSorts) {
    auto program = std::make_unique<QWidget>();
    LumtexListView* list = makeWidget(program.get()).release();
    const QPointer<LumtexListView> watched(list);
    fill(*list);
    QObject::connect(list, &LumtexListView::SortDone, [&] { program.reset(); });
    list->Sort(1, LumtexListView::cDescending);
    EXPECT_EQ(watched, nullptr);
}

TEST_F(Widget, KeepsItsSettingsInADesigner) {
    widget->setBackColor(QColor(10, 20, 30));
    widget->setGridLines(true);
    fill(*widget);
    widget->setDesignView(true);
    EXPECT_TRUE(widget->designView());
    EXPECT_EQ(widget->BackColor(), QColor(10, 20, 30));
    EXPECT_TRUE(widget->GridLines());
    EXPECT_EQ(widget->RowsCount(), 0);
    widget->setDesignView(false);
    EXPECT_FALSE(widget->designView());
    EXPECT_EQ(widget->BackColor(), QColor(10, 20, 30));
}

TEST_F(Widget, MayBeDestroyedWhileItGoesOverToADesigner) {
    widget->setBackColor(QColor(10, 20, 30));
    const QPointer<LumtexListView> watched(widget.get());
    QObject::connect(widget.get(), &LumtexListView::BackColorChanged, [&] { widget.reset(); });
    watched->setDesignView(true);
    EXPECT_EQ(watched, nullptr);
}

TEST_F(Widget, MayComeBackFromADesignerWhileItGoesThere) {
    widget->setGridLines(true);
    QObject::connect(
        widget.get(), &LumtexListView::HideSelectionChanged, [this] { widget->setDesignView(false); });
    widget->setDesignView(true);
    EXPECT_FALSE(widget->designView());
    EXPECT_TRUE(widget->GridLines());
    widget->disconnect();
}

/// All that its meta-object lets a host read or call without arguments.
int callAll(QObject& widget) {
    int calls = 0;
    const QMetaObject& meta = LumtexListView::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i, ++calls)
        meta.property(i).read(&widget);
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() != QMetaMethod::Method || method.parameterCount() != 0 ||
            method.name() == "About")
            continue;
        EXPECT_TRUE(method.invoke(&widget, Qt::DirectConnection));
        ++calls;
    }
    return calls;
}

TEST_F(Widget, MayBeCalledByWhatItLetsGoOfAsItEnds) {
    fill(*widget);
    Releases releases;
    int calls = 0;
    LumtexListView* const ending = widget.get();
    releases.code = [&] {
        calls = callAll(*ending);
        ending->RowsAdd(-1, QStringLiteral(","), QStringLiteral("a3,b3"));
        ending->setDesignView(true);
    };
    widget->list().letItemTag(1, 1, ObjectRef(std::make_shared<CallingObject>(releases)));
    widget.reset();
    EXPECT_EQ(releases.alive, 0);
    EXPECT_GT(calls, 80);
}

TEST_F(Widget, GivesZeroToWhatItLetsGoOfAsItEnds) {
    fill(*widget);
    widget->setGridLines(true);
    Releases releases;
    bool seen = true;
    LumtexListView* const ending = widget.get();
    releases.code = [&] { seen = ending->GridLines(); };
    widget->list().letItemTag(1, 1, ObjectRef(std::make_shared<CallingObject>(releases)));
    widget.reset();
    EXPECT_FALSE(seen);
}

TEST_F(Widget, MayBeDestroyedByWhatItLetsGoOfForADesigner) {
    fill(*widget);
    Releases releases;
    releases.code = [&] { widget.reset(); };
    widget->list().letItemTag(1, 1, ObjectRef(std::make_shared<CallingObject>(releases)));
    widget.get()->setDesignView(true);
    EXPECT_EQ(widget, nullptr);
}

TEST_F(Widget, KeepsAFontAndAPicture) {
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPointSizeF(11.25);
    font.setItalic(true);
    widget->setDefaultItemFont(font);
    EXPECT_EQ(widget->DefaultItemFont().family(), QStringLiteral("DejaVu Serif"));
    EXPECT_EQ(widget->DefaultItemFont().pointSizeF(), 11.25);
    EXPECT_TRUE(widget->DefaultItemFont().italic());

    fill(*widget);
    QImage image(5, 4, QImage::Format_ARGB32);
    image.fill(QColor(9, 8, 7));
    widget->setItemIcon(1, 1, QPixmap::fromImage(image));
    const QImage kept = widget->ItemIcon(1, 1).toImage();
    EXPECT_EQ(kept.size(), QSize(5, 4));
    EXPECT_EQ(kept.pixelColor(2, 2), QColor(9, 8, 7));
    EXPECT_TRUE(widget->ItemIcon(2, 1).isNull());
}

TEST_F(Widget, LeavesItsOwnFocusToWhatShowsTheList) {
    widget->show();
    widget->activateWindow();
    QCoreApplication::processEvents();
    widget->setFocus();
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_NE(QApplication::focusWidget(), widget.get());
    EXPECT_TRUE(widget->isAncestorOf(QApplication::focusWidget()));
}

} // namespace
} // namespace lumtex::testing

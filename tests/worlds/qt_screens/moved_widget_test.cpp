/// The widget is moved from one screen to another that is twice as dense.
#include "recording_events.h"
#include "widget/signal_relay.h"
#include "widget/widget_fixture.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>
#include <cstdlib>

namespace lumtex::testing {
namespace {

/// Screens in memory have no density of their own. Qt takes the one that they are given here, where one was
/// given for all of them at the start.
const int factors = setenv("QT_SCREEN_SCALE_FACTORS", "2;2", 1);

class MovedWidget : public WidgetTest {
  protected:
    static void SetUpTestSuite() {
        ASSERT_EQ(factors, 0);
        screen(0)->setProperty("_q_scaleFactor", 1.0);
        screen(1)->setProperty("_q_scaleFactor", 2.0);
    }
    MovedWidget() {
        widget->setParent(&around);
        around.resize(300, 120);
        widget->setGeometry(around.rect());
    }
    ~MovedWidget() override { widget->setParent(nullptr); }

    static void fillWithMuch(LumtexListView& list) {
        for (const char* column : {"City", "Country", "People"})
            list.ColumnsAdd(QString::fromLatin1(column), {}, {}, {}, LumtexListView::cColumnLeft, 2000);
        list.setMultiSelect(true);
        list.setGridLines(true);
        list.setAllowEdit(true);
        for (int row = 1; row <= 12; ++row)
            list.RowsAdd(-1, QStringLiteral(","), QStringLiteral("Lisbon,Portugal,%1").arg(row));
        list.setTopIndex(2);
        list.setListIndex(4);
        list.setRowSelected(4, true);
    }
    static QScreen* screen(int index) { return QGuiApplication::screens().at(index); }
    static void show(QWidget& window, int index) {
        window.show();
        window.windowHandle()->setScreen(screen(index));
        QCoreApplication::processEvents();
    }
    void showOn(int index) {
        show(around, index);
        widget->show();
        QCoreApplication::processEvents();
        fillWithMuch(*widget);
        QCoreApplication::processEvents();
    }
    void moveTo(int index) {
        around.windowHandle()->setScreen(screen(index));
        QCoreApplication::processEvents();
    }
    QImage picture() { return widget->grab().toImage(); }
    /// What a list shows that stands on that screen from the start.
    QImage pictureOfOneThatBeganOn(int index) {
        QWidget other;
        other.resize(300, 120);
        show(other, index);
        const std::unique_ptr<LumtexListView> list = makeWidget(&other);
        list->setGeometry(other.rect());
        list->show();
        QCoreApplication::processEvents();
        fillWithMuch(*list);
        QCoreApplication::processEvents();
        return list->grab().toImage();
    }
    std::string state() const {
        QString text = QStringLiteral("rows=%1 columns=%2 width=%3 top=%4 index=%5 selected=")
                           .arg(widget->RowsCount())
                           .arg(widget->ColumnsCount())
                           .arg(widget->ColumnWidth(1))
                           .arg(widget->TopIndex())
                           .arg(widget->ListIndex());
        for (int row = 1; row <= widget->RowsCount(); ++row)
            if (widget->RowSelected(row))
                text += QString::number(row) + QLatin1Char(' ');
        return text.toStdString();
    }

    QWidget around;
};

TEST_F(MovedWidget, IsAsCrispAsAListThatBeganOnTheScreenWhereItIs) {
    showOn(0);
    const QImage usual = picture();
    EXPECT_EQ(usual.size(), QSize(300, 120));
    moveTo(1);
    const QImage dense = picture();
    EXPECT_EQ(dense.size(), QSize(600, 240));
    EXPECT_EQ(dense, pictureOfOneThatBeganOn(1));
    moveTo(0);
    EXPECT_EQ(picture(), usual);
}

TEST_F(MovedWidget, KeepsWhatItHasAndTellsNobody) {
    showOn(0);
    const std::string before = state();
    RecordingEvents events;
    const SignalRelay relay(*widget, events);
    moveTo(1);
    EXPECT_EQ(state(), before);
    moveTo(0);
    EXPECT_EQ(state(), before);
    EXPECT_EQ(events.log, std::vector<std::string>());
    EXPECT_EQ(boxes, std::vector<std::string>());
    widget->disconnect();
}

TEST_F(MovedWidget, IsAsDenseAsTheScreenThatItIsFirstShownOn) {
    showOn(1);
    EXPECT_EQ(picture(), pictureOfOneThatBeganOn(1));
}

TEST_F(MovedWidget, TakesItsEditorAlong) {
    showOn(0);
    widget->SetEdit(5, 1);
    auto* editor = widget->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    ASSERT_TRUE(editor->isVisible());
    moveTo(1);
    EXPECT_TRUE(editor->isVisible());
    const QRect after = editor->geometry();
    widget->StopEdit();
    widget->SetEdit(5, 1);
    const QRect anew = editor->geometry();
    EXPECT_LE((after.topLeft() - anew.topLeft()).manhattanLength(), 1);
    EXPECT_LE(std::abs(after.width() - anew.width()), 1);
    EXPECT_LE(std::abs(after.height() - anew.height()), 1);
}

} // namespace
} // namespace lumtex::testing

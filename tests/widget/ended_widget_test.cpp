/// The widget, the one around it, or the whole application ends at an odd moment.
#include "test_fonts.h"
#include "widget_fixture.h"
#include "worlds/qt/user_hands.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QTest>
#include <QTimer>

namespace lumtex::testing {
namespace {

enum class Ended { widget, around, application };

std::string nameOf(Ended ended) {
    return ended == Ended::widget ? "Widget" : ended == Ended::around ? "WidgetAroundIt" : "Application";
}

/// The world of the user, boxes and forms included, but for its fonts.
std::unique_ptr<qt::QtWorld> usersWorld(QWidget& container) {
    return std::make_unique<qt::QtWorld>(&container, nullptr, testFonts());
}

class EndOf : public ::testing::TestWithParam<Ended> {
  protected:
    EndOf() {
        around->setGeometry(0, 0, 400, 300);
        list = new LumtexListView(around.get(), usersWorld);
        list->setGeometry(0, 0, 300, 200);
        list->ColumnsAdd(QStringLiteral("A"));
        for (int row = 0; row < 5; ++row)
            list->RowsAdd(-1, QStringLiteral(","), QStringLiteral("text"));
        list->setOLEDropMode(1);
        around->show();
        around->activateWindow();
        QCoreApplication::processEvents();
        QObject::connect(list, &LumtexListView::Scroll, [this] { ++raised; });
    }

    void end() {
        reached = true;
        switch (GetParam()) {
        case Ended::widget:
            delete list.data();
            break;
        case Ended::around:
            around.reset();
            break;
        case Ended::application:
            QCoreApplication::exit(7);
            break;
        }
    }
    void post(std::function<void()> code) {
        QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(code), Qt::QueuedConnection);
    }
    /// Runs `scene`, in which `end` is called, in the loop of the application.
    void play(std::function<void()> scene) {
        bool returned = false;
        post([&] {
            scene();
            EXPECT_TRUE(reached);
            returned = true;
            post([] { QCoreApplication::exit(3); });
        });
        const int result = QCoreApplication::exec();
        EXPECT_TRUE(reached);
        EXPECT_TRUE(returned) << "the call did not come back";
        EXPECT_EQ(result, GetParam() == Ended::application ? 7 : 3);
        EXPECT_EQ(list.isNull(), GetParam() != Ended::application);
        QCoreApplication::processEvents();
    }
    /// By the user: it stays open over a window whose list has gone.
    static void closeBox() {
        if (QWidget* box = QApplication::activeModalWidget())
            box->close();
    }
    QWidget* screen() const { return list->focusProxy(); }

    std::unique_ptr<QWidget> around = std::make_unique<QWidget>();
    QPointer<LumtexListView> list;
    bool reached = false;
    int raised = 0;
};

TEST_P(EndOf, ComesInAYield) {
    play([this] {
        post([this] { end(); });
        list->RowsRemove(1);
    });
}

TEST_P(EndOf, ComesWhileABoxOfTheListIsOpen) {
    play([this] {
        post([this] {
            end();
            closeBox();
        });
        list->ItemText(99, 1);
    });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_P(EndOf, ComesWhileAFormOfTheListIsOpen) {
    play([this] {
        post([this] { end(); });
        list->About();
    });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_P(EndOf, ComesWhileABoxIsOpenThatANewSizeBrought) {
    LumtexListView::setSilentError(true);
    list->setItemBackColor(1, 1, QStringLiteral("no colour"));
    LumtexListView::setSilentError(false);
    QTimer closing; // each paint brings one
    QObject::connect(&closing, &QTimer::timeout, closeBox);
    play([&] {
        QTimer::singleShot(50, [&] {
            end();
            closing.start(5);
        });
        list->resize(280, 180);
        while (QApplication::activeModalWidget() == nullptr && !reached)
            QTest::qWait(1);
        QTest::qWait(100);
    });
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_P(EndOf, ComesInAYieldInsideABox) {
    play([this] {
        post([this] {
            post([this] { end(); });
            list->RowsRemove(1);
            closeBox();
        });
        list->ItemText(99, 1);
    });
}

TEST_P(EndOf, ComesWhileABoxIsOpenThatAPressBrought) {
    QObject::connect(list, &LumtexListView::MouseDown, [this] { list->ItemText(99, 1); });
    play([this] {
        UserHands hands(*around, [] { QCoreApplication::processEvents(); });
        hands.move({20, 40}, 0);
        QTest::qWait(20); // the list looks where the mouse is by a timer
        post([this] {
            end();
            closeBox();
        });
        hands.press(leftButton, 0);
    });
}

TEST_P(EndOf, ComesAsTheBoxOfAPressTakesThePointerAway) {
    QObject::connect(list, &LumtexListView::MouseDown, [this] { list->ItemText(99, 1); });
    QObject::connect(list, &LumtexListView::MouseMove, [this](const short& button) {
        if (button != 0 && !reached)
            end();
    });
    play([this] {
        UserHands hands(*around, [] { QCoreApplication::processEvents(); });
        hands.move({20, 40}, 0);
        QTest::qWait(20); // the list looks where the mouse is by a timer
        QTimer::singleShot(100, [] { closeBox(); });
        hands.press(leftButton, 0);
    });
}

TEST_P(EndOf, ComesAsADragIsOverIt) {
    QObject::connect(list, &LumtexListView::OLEDragOver, [this] { end(); });
    play([this] {
        QMimeData carried;
        carried.setText(QStringLiteral("Oslo"));
        QDragEnterEvent event({20, 40}, Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(screen(), &event);
    });
}

TEST_P(EndOf, ComesAsSomethingIsDropped) {
    QObject::connect(list, &LumtexListView::OLEDragDrop, [this] { end(); });
    play([this] {
        QMimeData carried;
        carried.setText(QStringLiteral("Oslo"));
        QDragEnterEvent event({20, 40}, Qt::CopyAction, &carried, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(screen(), &event);
        QDropEvent drop({20, 40}, Qt::CopyAction, &carried, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(screen(), &drop);
    });
}

TEST_P(EndOf, ComesAsARowIsDragged) {
    list->setAllowItemMoving(true);
    QObject::connect(list, &LumtexListView::MouseMove, [this](const short& button) {
        if (button != 0 && !reached)
            end();
    });
    play([this] {
        UserHands hands(*around, [] { QCoreApplication::processEvents(); });
        hands.move({20, 40}, 0);
        QTest::qWait(20); // the list looks where the mouse is by a timer
        hands.press(leftButton, 0);
        hands.move({20, 60}, 0);
    });
}

std::string nameOfEnd(const ::testing::TestParamInfo<Ended>& info) {
    return nameOf(info.param);
}

INSTANTIATE_TEST_SUITE_P(Of,
                         EndOf,
                         ::testing::Values(Ended::widget, Ended::around, Ended::application),
                         nameOfEnd);

} // namespace
} // namespace lumtex::testing

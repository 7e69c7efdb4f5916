/// Presses that reach a list together with the move that leads to them.
#include "list_fixture.h"
#include "widget_fixture.h"
#include "worlds/qt/qt_window.h"

#include <QMouseEvent>
#include <QPointingDevice>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>

namespace lumtex::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Rows of 20 pixels, whose second one has its middle at 30, 55.
class QtEarlyPresses : public ::testing::Test {
  protected:
    QtEarlyPresses() {
        program.setGeometry(0, 0, 400, 300);
        program.show();
        list.UserControl_ReadProperties(MemoryPropertyBag{});
        list.letBorderVisible(false);
        list.letRowsDynamic(false);
        list.letRowHeight(300);
        list.window().place(0, 0, 300, 200);
        list.ColumnsAdd(u"a", nullptr, nullptr, nullptr, cColumnLeft, 900);
        for (int row = 0; row < 5; ++row)
            list.RowsAdd(Long{-1}, u",", u"x");
        QCoreApplication::processEvents();
        events.log.clear();
    }
    ~QtEarlyPresses() override { QCoreApplication::processEvents(); }

    QWidget& screen() { return *static_cast<qt::QtWindow&>(list.window()).screen(); }
    void post(QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons) {
        QCoreApplication::postEvent(&screen(), new QMouseEvent(type, at, at, button, buttons, {}));
    }

    const QPointF at{30, 55};
    QWidget program;
    std::vector<std::string> boxes;
    QuietWorld world{program, boxes};
    TestHost host;
    RecordingEvents events;
    lmListView list{world, host, events};
};

TEST_F(QtEarlyPresses, OneThatQtSplitsFindsItsCell) {
    QTest::mousePress(program.windowHandle(), Qt::LeftButton, {}, at.toPoint());
    EXPECT_THAT(events.log,
                ElementsAre("MouseMove Button=0 Shift=0 X=30 Y=55",
                            "ItemDown Row=2 Column=1",
                            "MouseDown Button=1 Shift=0 X=30 Y=55"));
    EXPECT_THAT(boxes, IsEmpty());
    QTest::mouseRelease(program.windowHandle(), Qt::LeftButton, {}, at.toPoint());
}

TEST_F(QtEarlyPresses, AWholeClickThatWaitsBehindItsMoveFindsItsCell) {
    post(QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
    post(QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
    post(QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
    QCoreApplication::processEvents();
    EXPECT_THAT(events.log,
                ElementsAre("MouseMove Button=0 Shift=0 X=30 Y=55",
                            "ItemDown Row=2 Column=1",
                            "MouseDown Button=1 Shift=0 X=30 Y=55",
                            "MouseMove Button=0 Shift=0 X=30 Y=55",
                            "MouseUp Button=1 Shift=0 X=30 Y=55",
                            "ItemUp Row=2 Column=1",
                            "ItemClick Row=2 Column=1",
                            "Click"));
    EXPECT_THAT(boxes, IsEmpty());
    EXPECT_EQ(list.RowIndex(), 2);
}

TEST_F(QtEarlyPresses, AFingerFindsItsCell) {
    static QPointingDevice* const finger = QTest::createTouchDevice();
    const QPoint fifthRow(30, 115); // too far from other presses to be the second of a double click
    QTest::touchEvent(program.windowHandle(), finger).press(0, fifthRow);
    QTest::touchEvent(program.windowHandle(), finger).release(0, fifthRow);
    QCoreApplication::processEvents();
    EXPECT_THAT(events.log, ::testing::Contains("ItemDown Row=5 Column=1"));
    EXPECT_THAT(events.log, ::testing::Contains("ItemClick Row=5 Column=1"));
    EXPECT_THAT(boxes, IsEmpty());
}

TEST_F(QtEarlyPresses, APenFindsItsCellAlsoWhereItsMoveWasLongBefore) {
    const QPointingDevice pen(QStringLiteral("pen"),
                              1,
                              QInputDevice::DeviceType::Stylus,
                              QPointingDevice::PointerType::Pen,
                              QInputDevice::Capability::Position,
                              1,
                              1);
    QMouseEvent move(QEvent::MouseMove, at, at, at, Qt::NoButton, Qt::NoButton, {}, &pen);
    QCoreApplication::sendEvent(&screen(), &move);
    QCoreApplication::sendPostedEvents();
    QMouseEvent press(QEvent::MouseButtonPress, at, at, at, Qt::LeftButton, Qt::LeftButton, {}, &pen);
    QCoreApplication::sendEvent(&screen(), &press);
    EXPECT_THAT(events.log, ::testing::Contains("ItemDown Row=2 Column=1"));
    EXPECT_THAT(boxes, IsEmpty());
    QMouseEvent release(QEvent::MouseButtonRelease, at, at, at, Qt::LeftButton, Qt::NoButton, {}, &pen);
    QCoreApplication::sendEvent(&screen(), &release);
}

} // namespace
} // namespace lumtex::testing

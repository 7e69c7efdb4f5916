/// What the user sees of a window beside its pixels: the pointer's shape and tips.
#include "platform/tip_platform.h"
#include "world_fixture.h"

#include <QHelpEvent>
#include <QToolTip>

namespace lumtex::testing {

namespace {

using QtPointerAndTips = QtWorldTest;

TEST_F(QtPointerAndTips, APictureIsThePointerWhereTheWindowAsksForIt) {
    NotingControl inner;
    const std::unique_ptr<Window> part = world.createWindow(window.get(), inner);
    part->place(50, 40, 20, 10);
    part->letVisible(true);
    Bitmap shape(16, 16, 0xFFFF0000U);
    part->setMouseIcon(std::make_shared<BitmapPicture>(shape, PictureKind::icon));
    hands.move({65, 65}, 0);
    EXPECT_EQ(screen().cursor().shape(), Qt::ArrowCursor) << "not asked for yet";
    part->letMousePointer(CursorShape::custom);
    EXPECT_EQ(screen().cursor().shape(), Qt::BitmapCursor) << "while the pointer rests";
    EXPECT_EQ(screen().cursor().pixmap().width(), 16);
    hands.move({20, 30}, 0);
    EXPECT_EQ(screen().cursor().shape(), Qt::ArrowCursor) << "the window around";
    hands.move({65, 65}, 0);
    EXPECT_EQ(screen().cursor().shape(), Qt::BitmapCursor);
    part->letMousePointer(CursorShape::standard);
    EXPECT_EQ(screen().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(QtPointerAndTips, ATipComesUpWhereItsWindowIs) {
    const std::unique_ptr<TipWindow> tips = world.tips().createTipWindow(window->hWnd());
    ASSERT_NE(tips, nullptr);
    const auto ask = [&](QPoint at) {
        QHelpEvent event(QEvent::ToolTip, at, screen().mapToGlobal(at));
        QCoreApplication::sendEvent(&screen(), &event);
    };
    ask({5, 5});
    EXPECT_TRUE(QToolTip::text().isEmpty());
    tips->add({.owner = window->hWnd(), .id = window->hWnd(), .text = u"Cities"});
    ask({5, 5});
    EXPECT_EQ(QToolTip::text(), QStringLiteral("Cities"));
    QToolTip::hideText();
}

TEST_F(QtPointerAndTips, AWindowMayEndAsItsHidingTakesItsFocus) {
    class Ending final : public UserControl {
      public:
        std::unique_ptr<Window>* window = nullptr;
        void UserControl_LostFocus() override { window->reset(); }
    };
    Ending ending;
    std::unique_ptr<Window> other = world.createWindow(nullptr, ending);
    ending.window = &other;
    other->place(220, 20, 50, 50);
    other->setFocus();
    other->letVisible(false);
    EXPECT_EQ(other, nullptr) << "hiding passes on the focus, and its handler ended the window";
}

} // namespace
} // namespace lumtex::testing

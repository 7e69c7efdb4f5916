#include "world_fixture.h"
#include "worlds/qt/key_codes.h"

#include <QInputMethodEvent>
#include <QWheelEvent>

namespace lumtex::testing {

namespace {

using QtInput = QtWorldTest;
using Words = std::vector<std::string>;

void turn(QWidget& widget, int rotation, Qt::ScrollPhase phase) {
    QWheelEvent event(
        QPointF(5, 5), QPointF(15, 25), QPoint(), QPoint(0, rotation), Qt::NoButton, {}, phase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

TEST_F(QtInput, SmallTurnsOfATouchpadAddUpToANotch) {
    for (int i = 0; i < 7; ++i)
        turn(screen(), -40, Qt::ScrollUpdate);
    EXPECT_EQ(control.heard, (Words{"wheel -120", "wheel -120"}));
}

TEST_F(QtInput, AWheelIsToldAsItTurns) {
    turn(screen(), -40, Qt::NoScrollPhase);
    turn(screen(), 240, Qt::NoScrollPhase);
    EXPECT_EQ(control.heard, (Words{"wheel -40", "wheel 240"}));
}

TEST_F(QtInput, APressTakesTheFocusBeforeItIsTold) {
    hands.move({15, 27}, 0);
    hands.press(leftButton, 0);
    hands.release(leftButton, 0);
    EXPECT_EQ(control.heard, (Words{"focus", "down 5 7", "up", "click"}));
}

TEST_F(QtInput, ATimerThatLooksForTheMouseTicksBeforeAPress) {
    hands.move({15, 27}, 0);
    std::unique_ptr<Timer> looking;
    looking = world.createTimer([&] {
        control.heard.emplace_back("tick");
        looking->letEnabled(false);
    });
    looking->letInterval(10);
    looking->letEnabled(true);
    hands.press(leftButton, 0);
    EXPECT_EQ(control.heard, (Words{"tick", "focus", "down 5 7"}));
}

TEST_F(QtInput, AHandlerOfTheKeyThatYieldsLetsItsCharacterThrough) {
    window->setFocus();
    control.onKeyDown = [&] {
        world.runtime().queue().DoEvents();
        control.heard.push_back("yielded");
    };
    hands.type(u"a");
    EXPECT_EQ(control.heard, (Words{"focus", "key 65", "character 97", "yielded"}));
}

TEST_F(QtInput, AnInputMethodEntersCharactersWithoutKeys) {
    window->setFocus();
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("\u6f22"));
    QCoreApplication::sendEvent(&screen(), &event);
    EXPECT_EQ(control.heard, (Words{"focus", "character 28450"}));
}

TEST_F(QtInput, DisabledWindowsHearNothing) {
    window->letEnabled(false);
    hands.move({15, 27}, 0);
    hands.press(leftButton, 0);
    hands.release(leftButton, 0);
    EXPECT_EQ(control.heard, Words{});
}

struct KeyCase {
    const char* name;
    int key;
    Qt::KeyboardModifiers modifiers;
    QString text;
    Integer code;
    String characters;
};

class QtKey : public ::testing::TestWithParam<KeyCase> {};

TEST_P(QtKey, HasTheNumberThatHostsKnow) {
    const KeyCase& one = GetParam();
    const QKeyEvent event(QEvent::KeyPress, one.key, one.modifiers, one.text);
    EXPECT_EQ(qt::keyCodeOf(event), one.code);
    EXPECT_EQ(qt::charactersOf(event), one.characters);
}

INSTANTIATE_TEST_SUITE_P(
    Qt,
    QtKey,
    ::testing::Values(KeyCase{"letter", Qt::Key_A, {}, "a", 65, u"a"},
                      KeyCase{"shiftedDigit", Qt::Key_Exclam, Qt::ShiftModifier, "!", 49, u"!"},
                      KeyCase{"keypadDigit", Qt::Key_7, Qt::KeypadModifier, "7", 103, u"7"},
                      KeyCase{"keypadMinus", Qt::Key_Minus, Qt::KeypadModifier, "-", 109, u"-"},
                      KeyCase{"functionKey", Qt::Key_F5, {}, "", 116, u""},
                      KeyCase{"deleteEntersNothing", Qt::Key_Delete, {}, "\x7f", 46, u""},
                      KeyCase{"altIsForMenus", Qt::Key_F, Qt::AltModifier, "f", 70, u""},
                      KeyCase{"control", Qt::Key_A, Qt::ControlModifier, "\x01", 65, u"\x01"},
                      KeyCase{"keypadEnter", Qt::Key_Enter, Qt::KeypadModifier, "\r", 13, u"\r"},
                      KeyCase{
                          "aCharacterWithoutKey", Qt::Key_Eacute, {}, QString(QChar(0xE9)), 231, u"\u00e9"},
                      KeyCase{"aKeyThatHostsDoNotKnow", Qt::Key_LaunchMail, {}, "", 0, u""}),
    [](const auto& one) { return std::string(one.param.name); });

TEST(QtShift, APressOfShiftCountsForItselfAndItsReleaseNoMore) {
    EXPECT_EQ(qt::shiftOf(QKeyEvent(QEvent::KeyPress, Qt::Key_Shift, Qt::ControlModifier)), 3);
    EXPECT_EQ(qt::shiftOf(QKeyEvent(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier)), 0);
}

} // namespace
} // namespace lumtex::testing

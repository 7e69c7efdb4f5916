/// A list among the widgets of a form: who has the focus, and for whom keys are.
#include "model/list_view.h"
#include "widget_fixture.h"
#include "worlds/qt/user_hands.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace lumtex::testing {
namespace {

/// A dialog with a field, the list, another field and a button that accepts.
class ListInADialog : public WidgetTest {
  protected:
    ListInADialog() {
        auto* layout = new QVBoxLayout(&dialog);
        layout->addWidget(&before);
        layout->addWidget(widget.get());
        layout->addWidget(&after);
        layout->addWidget(&accepting);
        accepting.setDefault(true);
        QObject::connect(&accepting, &QPushButton::clicked, &dialog, &QDialog::accept);
        fill(*widget);
        widget->setAllowEdit(true);
        widget->setItemAllowEdit(1, 1, true);
        QObject::connect(widget.get(), &LumtexListView::KeyDown, [this](short& code, short& /*shift*/) {
            heard.push_back("down " + std::to_string(code));
        });
        QObject::connect(widget.get(), &LumtexListView::KeyPress, [this](short& code) {
            heard.push_back("press " + std::to_string(code));
        });
        dialog.show();
        dialog.activateWindow();
        QCoreApplication::processEvents();
        before.setFocus();
    }
    ~ListInADialog() override { widget->setParent(nullptr); }

    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QCoreApplication::processEvents();
    }
    bool listHasFocus() const { return widget->isAncestorOf(QApplication::focusWidget()); }
    QLineEdit* editor() const { return qobject_cast<QLineEdit*>(QApplication::focusWidget()); }
    void edit() {
        widget->setFocus();
        widget->SetEdit(1, 1);
        QCoreApplication::processEvents();
        ASSERT_NE(editor(), nullptr);
        ASSERT_TRUE(listHasFocus());
        heard.clear();
    }

    QDialog dialog;
    QLineEdit before;
    QLineEdit after;
    QPushButton accepting;
    std::vector<std::string> heard;
};

TEST_F(ListInADialog, TabComesInAndGoesOn) {
    key(Qt::Key_Tab);
    EXPECT_TRUE(listHasFocus());
    key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &after);
    EXPECT_EQ(heard, std::vector<std::string>()) << "a Tab is no key of the list's";
}

TEST_F(ListInADialog, ShiftTabComesInAndGoesBack) {
    after.setFocus();
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(listHasFocus());
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &before);
}

TEST_F(ListInADialog, TabDoesNotStopAtAListThatIsDisabled) {
    widget->setEnabled(false);
    key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &after);
    key(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), &before);
}

TEST_F(ListInADialog, EscapeIsToldToTheListAndThenClosesTheDialog) {
    widget->setFocus();
    key(Qt::Key_Escape);
    EXPECT_EQ(heard, (std::vector<std::string>{"down 27", "press 27"}));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

TEST_F(ListInADialog, EnterIsToldToTheListAndThenPressesTheDefaultButton) {
    widget->setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(heard, (std::vector<std::string>{"down 13", "press 13"}));
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(ListInADialog, EnterInTheEditorTakesTheTextOverAndLeavesTheDialogOpen) {
    edit();
    QTest::keyClicks(editor(), QStringLiteral("new"));
    key(Qt::Key_Return);
    EXPECT_EQ(widget->ItemText(1, 1), QStringLiteral("new"));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(heard, std::vector<std::string>());
}

TEST_F(ListInADialog, EscapeInTheEditorMeansNothingToListAndDialog) {
    edit();
    QTest::keyClicks(editor(), QStringLiteral("new"));
    key(Qt::Key_Escape);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("new"));
    EXPECT_EQ(widget->ItemText(1, 1), QStringLiteral("a1"));
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(ListInADialog, TabInTheEditorLeavesTheList) {
    edit();
    QTest::keyClicks(editor(), QStringLiteral("new"));
    key(Qt::Key_Tab);
    EXPECT_FALSE(listHasFocus());
    EXPECT_EQ(widget->ItemText(1, 1), QStringLiteral("a1"));
    EXPECT_TRUE(dialog.isVisible());
}

} // namespace
} // namespace lumtex::testing

#include "program_user.h"
#include "programs.h"
#include "scratch_folder.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class TaskListExample : public ::testing::Test {
  protected:
    void use(const std::function<void(LumtexListView&)>& body) const {
        EXPECT_EQ(useProgram(task_list,
                             {(folder.path / "tasks.content").string()},
                             [&](QWidget& window) { body(dynamic_cast<LumtexListView&>(window)); }),
                  0);
    }
    /// Into the editor that is open.
    static void type(const char* text) {
        auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(field, nullptr);
        field->setText(text);
    }
    static void enter(const char* text) {
        type(text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
    static void add(LumtexListView& list, const char* task) {
        pressKey(list, Qt::Key_Insert);
        enter(task);
    }

    ScratchFolder folder;
};

TEST_F(TaskListExample, KeepsTasksMarksAndTextsForTheNextRun) {
    use([](LumtexListView& list) {
        EXPECT_EQ(rowsOf(list), "Press here twice to edit | \n");
        add(list, "Water the ferns");
        add(list, "Return, and thank for, the books");
        pressKey(list, Qt::Key_F2);
        enter("Return the books");
        clickCell(list, 1, 1);
        pressKey(list, Qt::Key_Delete);
        EXPECT_EQ(rowsOf(list), "Water the ferns | \nReturn the books | \n");
        clickCell(list, 2, 2);
        clickCell(list, 2, 2); // the second press edits
        enter("Friday");
        clickBox(list, 1);
    });
    use([](LumtexListView& list) {
        EXPECT_EQ(rowsOf(list), "Water the ferns | \nReturn the books | Friday\n");
        EXPECT_TRUE(list.ItemChecked(1, 1));
        EXPECT_TRUE(list.ItemFontStrikethrough(1, 1));
        EXPECT_FALSE(list.ItemChecked(2, 1));
        EXPECT_TRUE(list.ItemAllowEdit(2, 2));
        add(list, "Tune the viola");
        expectPicture(list, "task_list");
    });
}

TEST_F(TaskListExample, KeepsWhatWasAddedThoughItsEditorNeverEnded) {
    use([](LumtexListView& list) {
        pressKey(list, Qt::Key_Insert);
        type("Half a");
    });
    use([](LumtexListView& list) {
        EXPECT_EQ(rowsOf(list), "Press here twice to edit | \nNew task | \n");
        clickBox(list, 2);
        EXPECT_TRUE(list.ItemChecked(2, 1));
        clickBox(list, 2);
    });
    use([](LumtexListView& list) {
        EXPECT_FALSE(list.ItemChecked(2, 1));
        EXPECT_FALSE(list.ItemFontStrikethrough(2, 1));
    });
}

} // namespace
} // namespace lumtex::testing

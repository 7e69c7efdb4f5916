#include "cells_page.h"
#include "content_page.h"
#include "database_page.h"
#include "events_page.h"
#include "folder_page.h"
#include "gallery_window.h"
#include "many_rows_page.h"
#include "moving_page.h"
#include "schemes_page.h"
#include "scratch_folder.h"
#include "settings.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace lumtex::gallery {

void PrintTo(const Page& page, std::ostream* out) {
    *out << page.title().toStdString();
}

} // namespace lumtex::gallery

namespace lumtex::testing {
namespace {

using namespace gallery;
using namespace Qt::StringLiterals;

/// What fails is told, and stops no test.
class GalleryWindowTest : public ::testing::Test {
  protected:
    GalleryWindowTest() { LumtexListView::setSilentError(true); }
    ~GalleryWindowTest() override { LumtexListView::setSilentError(false); }

    static void showAlone(QWidget& window) {
        window.resize(900, 600);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    /// Fills the page as the window does.
    template <class Shown>
    void showFilled(Shown& page) {
        showAlone(page);
        page.fill();
        QCoreApplication::processEvents();
    }

    template <class Editor>
    static Editor& editor(PropertyPanel& panel, const char* setting) {
        auto* found = panel.findChild<Editor*>(QString::fromLatin1(setting));
        EXPECT_NE(found, nullptr) << setting;
        return *found;
    }

    static std::vector<Page*> allPages(const QString& folder) {
        return {new SchemesPage,
                new CellsPage,
                new FolderPage(folder),
                new ManyRowsPage,
                new DatabasePage({}, {}),
                new ContentPage,
                new MovingPage,
                new EventsPage};
    }

    ScratchFolder folder_;
    QString folder() const { return QString::fromStdString(folder_.path.string()); }
    void write(const char* name) const { std::ofstream(folder_.path / name) << "text"; }
};

TEST_F(GalleryWindowTest, EachPageIsFilledAsItIsFirstShown) {
    write("a file");
    GalleryWindow window(allPages(folder()));
    showAlone(window);
    for (Page* page : window.pages()) {
        SCOPED_TRACE(page->title().toStdString());
        EXPECT_TRUE(page == window.page() || page->list().RowsCount() == 0);
        window.turnTo(*page);
        for (int waited = 0; page->list().RowsCount() == 0 && waited < 100; ++waited)
            QTest::qWait(10);
        EXPECT_GT(page->list().RowsCount(), 0);
        page->stop();
    }
}

TEST_F(GalleryWindowTest, KeysAloneReachEverythingOnEachPage) {
    GalleryWindow window(allPages(folder()));
    showAlone(window);
    for (Page* page : window.pages()) {
        SCOPED_TRACE(page->title().toStdString());
        window.turnTo(*page);
        page->stop();
        QCoreApplication::processEvents();
        QList<QWidget*> unreached;
        for (QWidget* widget : page->findChildren<QWidget*>()) {
            const bool isOfList = qobject_cast<LumtexListView*>(widget->parentWidget()) != nullptr;
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                !isOfList && widget->focusProxy() == nullptr)
                unreached.append(widget);
        }
        page->list().setFocus();
        constexpr int mostSteps = 300;
        for (int step = 0; step < mostSteps && !unreached.isEmpty(); ++step) {
            for (QWidget* at = QApplication::focusWidget(); at != nullptr; at = at->parentWidget())
                unreached.removeAll(at);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        for (const QWidget* widget : unreached)
            ADD_FAILURE() << widget->metaObject()->className() << " "
                          << widget->accessibleName().toStdString();
    }
}

TEST_F(GalleryWindowTest, ThePanelHasAnEditorForEachSetting) {
    PropertyPanel panel;
    LumtexListView list;
    panel.display(list);
    for (const QMetaProperty& setting : allSettings()) {
        EXPECT_NE(panel.findChild<QWidget*>(QString::fromLatin1(setting.name())), nullptr) << setting.name();
        EXPECT_FALSE(helpOf(setting).isEmpty()) << setting.name();
        EXPECT_TRUE(isNewValue(list, setting)) << setting.name();
    }
    EXPECT_GT(allSettings().size(), 60U);
}

TEST_F(GalleryWindowTest, WhatIsChosenInThePanelIsAssigned) {
    PropertyPanel panel;
    LumtexListView list;
    panel.display(list);
    editor<QCheckBox>(panel, "GridLines").setChecked(true);
    EXPECT_TRUE(list.GridLines());
    auto& styles = editor<QComboBox>(panel, "ColorStyle");
    styles.setCurrentIndex(styles.findText(u"cXPOlive"_s));
    EXPECT_EQ(list.ColorStyle(), LumtexListView::cXPOlive);
    editor<QDoubleSpinBox>(panel, "RowHeight").setValue(450);
    EXPECT_EQ(list.RowHeight(), 450);
    editor<QSpinBox>(panel, "WheelScrollLines").setValue(5);
    EXPECT_EQ(list.WheelScrollLines(), 5);
}

TEST_F(GalleryWindowTest, ThePanelFollowsTheList) {
    PropertyPanel panel;
    LumtexListView list;
    panel.display(list);
    list.setGridLines(true);
    EXPECT_TRUE(editor<QCheckBox>(panel, "GridLines").isChecked());
    list.setColorStyle(LumtexListView::cXPSilver);
    EXPECT_EQ(editor<QComboBox>(panel, "ScrollColorStyle").currentText(), u"cXPScrollSilver"_s);
    // A list that is gone changes nothing, and is not asked.
    {
        LumtexListView other;
        panel.display(other);
    }
    editor<QCheckBox>(panel, "GridLines").toggle();
    EXPECT_TRUE(list.GridLines());
}

TEST_F(GalleryWindowTest, NumbersHaveTheUnitsOfTheReference) {
    PropertyPanel panel;
    EXPECT_EQ(editor<QDoubleSpinBox>(panel, "RowHeight").suffix(), u" twips"_s);
    EXPECT_EQ(editor<QDoubleSpinBox>(panel, "IconW").suffix(), u" px"_s);
    EXPECT_EQ(editor<QSpinBox>(panel, "WheelScrollLines").suffix(), u" rows"_s);
    EXPECT_EQ(editor<QSpinBox>(panel, "OLEDragMode").suffix(), QString());
}

TEST_F(GalleryWindowTest, TheSettingsBecomeCodeInTwoLanguages) {
    LumtexListView list;
    EXPECT_EQ(settingsAsCpp(list), QString());
    EXPECT_EQ(settingsAsVbScript(list), QString());
    list.setBackColor(QColor(1, 2, 3));
    list.setColorStyle(LumtexListView::cCustom);
    list.setGridLines(true);
    list.setRowHeight(300.5F);
    list.setFullRowSelect(false);
    EXPECT_EQ(settingsAsCpp(list),
              "list.setBackColor(QColor(0x010203));\n"
              "list.setColorStyle(LumtexListView::cCustom);\n"
              "list.setFullRowSelect(false);\n"
              "list.setGridLines(true);\n"
              "list.setRowHeight(300.5);\n"_L1);
    EXPECT_EQ(settingsAsVbScript(list),
              "list.BackColor = RGB(1, 2, 3)\n"
              "list.ColorStyle = 99 ' cCustom\n"
              "list.FullRowSelect = False\n"
              "list.GridLines = True\n"
              "list.RowHeight = 300.5\n"_L1);
}

TEST_F(GalleryWindowTest, FontsAndPicturesBecomeCodeToo) {
    LumtexListView list;
    QFont font(u"DejaVu Sans"_s);
    font.setPointSizeF(12);
    font.setBold(true);
    list.setDefaultItemFont(font);
    QPixmap picture(4, 4);
    picture.fill(Qt::red);
    list.setSkin(picture);
    EXPECT_EQ(settingsAsVbScript(list),
              "Set font = CreateObject(\"StdFont\")\nfont.Name = \"DejaVu Sans\"\nfont.Size = 12\n"
              "font.Bold = True\nfont.Italic = False\nfont.Underline = False\nfont.Strikethrough = False\n"
              "Set list.DefaultItemFont = font\n' Skin has a picture that is in no file\n"_L1);
    for (const QMetaProperty& setting : allSettings()) {
        if (setting.name() == "Skin"_L1)
            setPictureFile(list, setting, u"/a \"b\".png"_s);
    }
    EXPECT_TRUE(settingsAsVbScript(list).endsWith("Set list.Skin = LoadPicture(\"/a \"\"b\"\".png\")\n"_L1));
    EXPECT_TRUE(settingsAsCpp(list).endsWith("list.setSkin(QPixmap(\"/a \\\"b\\\".png\"));\n"_L1));
    EXPECT_TRUE(settingsAsCpp(list).contains("font.setPointSizeF(12);"_L1));
}

TEST_F(GalleryWindowTest, ShortcutsCopyTheSettingsOfTheListInFront) {
    GalleryWindow window({new MovingPage, new EventsPage});
    showAlone(window);
    window.turnTo(*window.pages()[1]);
    QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), settingsAsCpp(window.page()->list()));
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains("setMultiSelect(true)"_L1));
    QTest::keyClick(&window, Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(window.page(), window.pages()[0]);
}

TEST_F(GalleryWindowTest, TheListWithTheFocusIsTheOneOfThePanel) {
    SchemesPage page;
    showFilled(page);
    LumtexListView& first = page.list();
    int told = 0;
    QObject::connect(&page, &Page::listChosen, [&] { ++told; });
    LumtexListView* last = page.findChildren<LumtexListView*>().last();
    last->setFocus();
    EXPECT_EQ(&page.list(), last);
    EXPECT_NE(&page.list(), &first);
    EXPECT_EQ(told, 1);
}

TEST_F(GalleryWindowTest, AFolderIsBrowsedAndItsFilesRenamed) {
    write("b & c.txt");
    std::filesystem::create_directory(folder_.path / "sub");
    FolderPage page(folder());
    showFilled(page);
    ASSERT_EQ(page.list().RowsCount(), 2);
    EXPECT_EQ(page.list().ItemText(1, 1), u"sub"_s);
    EXPECT_EQ(page.list().ItemText(2, 1), u"b && c.txt"_s);

    page.list().setListIndex(1);
    page.list().setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F2);
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(field, nullptr);
    field->setText(u"d.txt"_s);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(std::filesystem::exists(folder_.path / "d.txt")) << page.status().text().toStdString();
    EXPECT_EQ(page.list().ItemText(2, 1), u"d.txt"_s);

    page.list().setListIndex(0);
    page.list().setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(page.list().RowsCount(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    EXPECT_EQ(page.list().RowsCount(), 2);
    EXPECT_EQ(page.list().ListIndex(), 0);
}

TEST_F(GalleryWindowTest, ADoubleClickOpensAFolderWithoutAReportAndLeavesNoEditor) {
    std::filesystem::create_directories(folder_.path / "a" / "b");
    FolderPage page(folder());
    showFilled(page);
    LumtexListView& list = page.list();
    LumtexListView::setSilentError(false);
    QStringList boxes;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            boxes << box->text();
            box->close();
        }
    });
    watch.start(20);
    constexpr int rest = 60; // milliseconds, longer than the list takes to look where the mouse is
    const QPoint firstRow = list.mapTo(list.window(), QPoint(100, 32));
    const auto doubleClick = [&] {
        QTest::mouseMove(page.windowHandle(), firstRow - QPoint(1, 1));
        QTest::mouseMove(page.windowHandle(), firstRow);
        QTest::qWait(rest);
        QTest::mouseDClick(page.windowHandle(), Qt::LeftButton, {}, firstRow);
        QTest::qWait(rest);
    };
    const auto editorIsOpen = [&] {
        const auto fields = list.findChildren<QLineEdit*>();
        return std::any_of(fields.begin(), fields.end(), [](QLineEdit* field) { return field->isVisible(); });
    };
    doubleClick();
    ASSERT_EQ(list.RowsCount(), 1);
    EXPECT_EQ(list.ItemText(1, 1), u"b"_s);
    EXPECT_FALSE(editorIsOpen());
    doubleClick();
    EXPECT_EQ(list.RowsCount(), 0) << "it is empty";
    EXPECT_FALSE(editorIsOpen());
    EXPECT_EQ(boxes.join(u"; "_s).toStdString(), "");
}

TEST_F(GalleryWindowTest, ANameThatIsTakenIsRefusedAndTheOldOneStays) {
    write("one");
    write("two");
    FolderPage page(folder());
    showFilled(page);
    Q_EMIT page.list().ItemChanged(1, 1, u"two"_s);
    EXPECT_EQ(page.status().text(), u"one cannot be called so."_s);
    EXPECT_EQ(page.list().ItemText(1, 1), u"one"_s);
    EXPECT_TRUE(std::filesystem::exists(folder_.path / "one"));
    page.open(folder() + "/none");
    EXPECT_EQ(page.list().RowsCount(), 2);
}

TEST_F(GalleryWindowTest, ManyRowsComeBitByBitAndAreFoundRowByRow) {
    ManyRowsPage page;
    showAlone(page);
    page.load(3000);
    EXPECT_TRUE(page.isBusy());
    while (page.isBusy())
        QCoreApplication::processEvents();
    EXPECT_EQ(page.list().RowsCount(), 3000);
    EXPECT_TRUE(page.list().AutoRedraw());
    EXPECT_EQ(page.list().ItemText(3000, 1), u"3000"_s);

    // Upwards, then at the top again.
    std::vector<int> hits;
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(page.find(u"299"_s));
        hits.push_back(page.list().ListIndex() + 1);
        EXPECT_TRUE(hits[static_cast<std::size_t>(i)] > (i == 0 ? 0 : hits[static_cast<std::size_t>(i) - 1]));
    }
    page.list().setListIndex(2999);
    ASSERT_TRUE(page.find(u"299"_s));
    EXPECT_EQ(page.list().ListIndex() + 1, hits[0]);
    EXPECT_FALSE(page.find(u"no such text"_s));
    // What the pattern language takes for itself is looked for as it is.
    EXPECT_FALSE(page.find(u"*"_s));
    EXPECT_FALSE(page.find(u"[0-9]"_s));
}

TEST_F(GalleryWindowTest, HeadersSortEachColumnByItsType) {
    ManyRowsPage page;
    showAlone(page);
    page.load(300);
    while (page.isBusy())
        QCoreApplication::processEvents();
    const auto isSorted = [&](int column, auto less) {
        for (int row = 2; row <= page.list().RowsCount(); ++row) {
            if (less(page.list().ItemText(row, column), page.list().ItemText(row - 1, column)))
                return false;
        }
        return true;
    };
    const auto byNumber = [](const QString& a, const QString& b) { return a.toDouble() < b.toDouble(); };
    const auto downwards = [](const QString& a, const QString& b) { return b < a; };
    int amount = 4;
    Q_EMIT page.list().ColumnClick(amount);
    EXPECT_TRUE(isSorted(4, byNumber));
    int date = 5;
    Q_EMIT page.list().ColumnClick(date);
    EXPECT_TRUE(isSorted(5, std::less<>()));
    Q_EMIT page.list().ColumnClick(date);
    EXPECT_TRUE(isSorted(5, downwards));
}

TEST_F(GalleryWindowTest, AQuerysRecordsAreShownAndItsFailureIsTold) {
    DatabasePage page(u":memory:"_s, u"values ('Oslo', 1), ('Quito', 2)"_s);
    showFilled(page);
    EXPECT_EQ(page.list().RowsCount(), 2);
    EXPECT_TRUE(page.status().text().startsWith("2 records"_L1)) << page.status().text().toStdString();
    page.setQuery(u":memory:"_s, u"select nonsense"_s);
    page.run();
    EXPECT_TRUE(page.status().text().contains("nonsense"_L1)) << page.status().text().toStdString();
    EXPECT_EQ(page.list().RowsCount(), 0);
}

TEST_F(GalleryWindowTest, ALargeResultIsStoppedOnItsWay) {
    DatabasePage page(
        u":memory:"_s,
        u"with recursive n(x) as (select 1 union all select x + 1 from n where x < 900000) select x from n"_s);
    showAlone(page);
    QMetaObject::invokeMethod(
        &page, [&] { page.stop(); }, Qt::QueuedConnection);
    page.run();
    EXPECT_TRUE(page.status().text().endsWith("stopped on the way"_L1)) << page.status().text().toStdString();
    EXPECT_GT(page.list().RowsCount(), 0);
    EXPECT_LT(page.list().RowsCount(), 900'000);
}

TEST_F(GalleryWindowTest, ContentIsComparedCellByCell) {
    ContentPage page;
    showFilled(page);
    page.save();
    EXPECT_TRUE(page.status().text().startsWith("Saved: "_L1)) << page.status().text().toStdString();
    page.load();
    EXPECT_EQ(page.loaded().RowsCount(), page.saved().RowsCount());
    EXPECT_EQ(page.compare(), 0);
    page.saved().setItemText(2, 1, u"another"_s);
    page.saved().setItemFontBold(3, 2, true);
    EXPECT_EQ(page.compare(), 2);
    EXPECT_EQ(page.loaded().ItemBackColor(2, 1).toInt(), 0xA8D9FF);
    EXPECT_EQ(page.loaded().ItemBackColor(4, 1).toString(), u"def"_s);
    page.saved().RowsAdd();
    EXPECT_EQ(page.compare(), 5);
}

TEST_F(GalleryWindowTest, RowsAreMovedWhereThePageSaysSo) {
    MovingPage page;
    showFilled(page);
    EXPECT_TRUE(page.list().AllowItemMoving());
    page.findChild<QCheckBox*>()->click();
    EXPECT_FALSE(page.list().AllowItemMoving());
}

TEST_F(GalleryWindowTest, TheLogShowsEventsWithTheirArgumentsAndCanBeFiltered) {
    EventsPage page;
    showFilled(page);
    page.list().setClickOnIndexChange(true);
    page.list().setListIndex(3);
    bool cancel = false;
    Q_EMIT page.list().ItemCheck(2, 1, true, cancel);
    Q_EMIT page.list().ListViewError(u"A"_s, 5, u"what"_s);
    ASSERT_EQ(page.log().RowsCount(), 3);
    EXPECT_EQ(page.log().ItemText(3, 2), u"Click"_s);
    EXPECT_EQ(page.log().ItemText(2, 3), u"Row=2, Column=1, NewValue=true, Cancel=false"_s);
    EXPECT_EQ(page.log().ItemText(1, 3), u"eSub=\"A\", eNumber=5, eDescription=\"what\""_s);
    page.filter(u"check error"_s);
    ASSERT_EQ(page.log().RowsCount(), 2);
    EXPECT_EQ(page.log().ItemText(2, 2), u"ItemCheck"_s);
    Q_EMIT page.list().SortDone();
    EXPECT_EQ(page.log().RowsCount(), 2);
    page.filter({});
    EXPECT_EQ(page.log().RowsCount(), 4);
}

TEST_F(GalleryWindowTest, WidgetsStandInTheirCells) {
    CellsPage page;
    showFilled(page);
    page.list().Redraw();
    auto* button = qobject_cast<QPushButton*>(page.list().ItemObject(1, 5));
    ASSERT_NE(button, nullptr);
    EXPECT_TRUE(button->isVisible());
    EXPECT_TRUE(page.list().rect().contains(button->mapTo(&page.list(), QPoint(1, 1))));
}

} // namespace
} // namespace lumtex::testing

/// The gallery on a real display, used with a real mouse and keyboard; a picture of the screen after each
/// step is left in out/desktop.
#include "content_page.h"
#include "events_page.h"
#include "folders.h"
#include "gallery_window.h"
#include "many_rows_page.h"
#include "own_display.h"
#include "real_hands.h"
#include "schemes_page.h"

#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

using namespace gallery;
using namespace Qt::StringLiterals;

class GalleryStory : public ::testing::Test {
  protected:
    static constexpr int screenWidth = 1280;
    static constexpr int screenHeight = 800;

    GalleryStory() {
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        setenv("DISPLAY", display_.name().c_str(), 1);
        unsetenv("WAYLAND_DISPLAY");
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
        application_ = std::make_unique<QApplication>(count_, words_);
        hands_ = std::make_unique<RealHands>(display_.name());
    }

    /// The screen as it is now, in a file of this name with its number in front.
    void picture(const std::string& step) {
        ++steps_;
        const std::string number = (steps_ < 10 ? "0" : "") + std::to_string(steps_);
        const std::string file = folder_ + "/" + number + "-" + step + ".png";
        const QPixmap screen =
            QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, screenWidth, screenHeight);
        EXPECT_TRUE(screen.save(QString::fromStdString(file))) << file;
        // Something is on it, and not the same as before.
        EXPECT_NE(screen.toImage(), before_) << step;
        before_ = screen.toImage();
    }

    /// The middle of a cell in a list that shows rows of one height from the first on, both from 1.
    static QPoint cell(const LumtexListView& list, int row, int column, int fromLeft = 30) {
        const int x = static_cast<int>(list.ColumnLeft(column)) / 15 + fromLeft;
        const int rowHeight = static_cast<int>(list.RowHeight()) / 15;
        return list.mapToGlobal(
            QPoint(x, headerHeight + rowHeight * (row - list.TopIndex()) - rowHeight / 2));
    }

    static QPoint header(const LumtexListView& list, int column, int fromLeft = 30) {
        return list.mapToGlobal(
            QPoint(static_cast<int>(list.ColumnLeft(column)) / 15 + fromLeft, headerHeight / 2));
    }

    RealHands& hands() { return *hands_; }

  private:
    static constexpr int headerHeight = 22; // pixels

    OwnDisplay display_{screenWidth, screenHeight};
    int count_ = 1;
    char name_[16] = "gallery_story";
    char* words_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> application_;
    std::unique_ptr<RealHands> hands_;
    std::string folder_ = sourceFolder() + "/out/desktop";
    QImage before_;
    int steps_ = 0;
};

TEST_F(GalleryStory, IsLivedThroughWithMouseAndKeys) {
    auto* schemes = new SchemesPage;
    auto* many = new ManyRowsPage;
    auto* content = new ContentPage;
    auto* events = new EventsPage;
    GalleryWindow window({schemes, many, content, events});
    window.move(0, 0);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    picture("open");

    LumtexListView& list = schemes->list();
    hands().click(cell(list, 3, 1));
    hands().move(cell(list, 5, 1));
    EXPECT_EQ(list.ListIndex(), 2);
    hands().click(cell(list, 5, 1));
    EXPECT_EQ(list.ListIndex(), 4);
    EXPECT_TRUE(list.RowSelected(5));
    picture("select");
    hands().key("Down");
    hands().key("Down");
    EXPECT_EQ(list.ListIndex(), 7); // the sixth row is disabled
    picture("keys");

    window.turnTo(*events);
    QTest::qWait(100);
    LumtexListView& checks = events->list();
    hands().click(cell(checks, 4, 1, 11));
    EXPECT_TRUE(checks.ItemChecked(4, 1));
    picture("check");

    hands().click(cell(checks, 2, 2));
    hands().doubleClick(cell(checks, 2, 2));
    ASSERT_NE(qobject_cast<QLineEdit*>(QApplication::focusWidget()), nullptr);
    hands().key("End");
    hands().type("bergen1");
    picture("edit");
    hands().key("Return");
    EXPECT_TRUE(checks.ItemText(2, 2).endsWith("bergen1"_L1)) << checks.ItemText(2, 2).toStdString();
    picture("edited");

    const float width = checks.ColumnWidth(1);
    const int edge = static_cast<int>(width) / 15;
    hands().drag(header(checks, 1, edge - 1), header(checks, 1, edge + 60));
    EXPECT_NEAR(checks.ColumnWidth(1), width + 60 * 15, 45);
    picture("resize");

    const QString first = checks.ItemText(1, 1);
    hands().click(header(checks, 2));
    EXPECT_EQ(checks.SortColumnIndex(), 2);
    EXPECT_NE(checks.ItemText(1, 1), first);
    for (int row = 2; row <= checks.RowsCount(); ++row)
        EXPECT_GE(QString::compare(checks.ItemText(row - 1, 2), checks.ItemText(row, 2), Qt::CaseInsensitive),
                  0)
            << row;
    picture("sort");

    window.turnTo(*many);
    many->load(20'000);
    while (many->isBusy())
        QTest::qWait(10);
    LumtexListView& rows = many->list();
    picture("load");
    const QPoint bar = rows.mapToGlobal(QPoint(rows.width() - 9, 0));
    hands().drag(bar + QPoint(0, 22), bar + QPoint(0, rows.height() / 2));
    EXPECT_GT(rows.TopIndex(), 5000);
    EXPECT_LT(rows.TopIndex(), 15'000);
    picture("thumb");

    const int top = rows.TopIndex();
    hands().move(rows.mapToGlobal(QPoint(100, rows.height() / 2)));
    hands().wheel(3);
    EXPECT_EQ(rows.TopIndex(), top + 9);
    hands().wheel(-1);
    EXPECT_EQ(rows.TopIndex(), top + 6);
    picture("wheel");

    auto* sought = many->findChild<QLineEdit*>(u"sought"_s);
    ASSERT_NE(sought, nullptr);
    hands().click(sought->mapToGlobal(sought->rect().center()));
    hands().type("lisbon");
    hands().key("Return");
    QTest::qWait(200);
    EXPECT_EQ(rows.ItemText(rows.ListIndex() + 1, 3), u"Lisbon"_s);
    EXPECT_LE(rows.TopIndex(), rows.ListIndex());
    EXPECT_LT(rows.ListIndex(), rows.TopIndex() + 40);
    picture("find");
}

} // namespace
} // namespace lumtex::testing

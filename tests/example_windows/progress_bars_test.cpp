#include "program_user.h"
#include "programs.h"

#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

QProgressBar* barIn(const LumtexListView& list, int row) {
    return qobject_cast<QProgressBar*>(list.ItemObject(row, 2));
}

TEST(ProgressBarsExample, ShowWidgetsInTheirCellsUntilTheirWorkEnds) {
    const int status = useProgram(progress_bars, {}, [](QWidget& window) {
        auto& list = dynamic_cast<LumtexListView&>(window);
        auto* clock = list.findChild<QTimer*>({}, Qt::FindDirectChildrenOnly);
        ASSERT_NE(clock, nullptr);
        clock->stop(); // a picture of a moment
        ASSERT_EQ(list.RowsCount(), 4);
        const std::array values{12, 47, 80, 33};
        for (int row = 1; row <= 4; ++row) {
            QProgressBar* bar = barIn(list, row);
            ASSERT_NE(bar, nullptr);
            bar->setValue(values.at(static_cast<std::size_t>(row) - 1));
            const QPoint place = bar->mapTo(&list, QPoint(0, 0));
            EXPECT_TRUE(bar->isVisible());
            EXPECT_EQ((place.y() - 22) / 26, row - 1) << place.y();
            EXPECT_GE(place.x(), 170);
        }
        expectPicture(window, "progress_bars");

        auto* cancel = qobject_cast<QPushButton*>(list.ItemObject(1, 3));
        ASSERT_NE(cancel, nullptr);
        QTest::mouseClick(cancel, Qt::LeftButton);
        EXPECT_EQ(list.ItemObject(1, 2), nullptr);
        EXPECT_EQ(list.ItemObject(1, 3), nullptr);
        EXPECT_EQ(list.ItemText(1, 2), "atlas.pdf cancelled");

        clock->start(0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return list.findChildren<QProgressBar*>().isEmpty(); }, 60'000));
        EXPECT_EQ(rowsOf(list),
                  "atlas.pdf | atlas.pdf cancelled | \n"
                  "clouds.png | clouds.png complete | \n"
                  "fugue.ogg | fugue.ogg complete | \n"
                  "letters.zip | letters.zip complete | \n");
    });
    EXPECT_EQ(status, 0);
}

} // namespace
} // namespace lumtex::testing

#include "program_user.h"
#include "programs.h"
#include "scratch_folder.h"

#include <QTest>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class LogViewerExample : public ::testing::Test {
  protected:
    static std::string lines(int first, int last) {
        std::string text;
        for (int line = first; line <= last; ++line)
            text += "12:00:00 INFO line " + std::to_string(line) + '\n';
        return text;
    }
    void append(const std::string& text) const {
        std::ofstream(folder.path / "service.log", std::ios::app | std::ios::binary) << text;
    }
    void use(const std::function<void(LumtexListView&)>& body) const {
        EXPECT_EQ(useProgram(log_viewer,
                             {(folder.path / "service.log").string()},
                             [&](QWidget& window) { body(dynamic_cast<LumtexListView&>(window)); }),
                  0);
    }
    /// Waits for as many rows, longer than any machine needs.
    static void await(const LumtexListView& list, int rows) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return list.RowsCount() == rows; }, 240'000)) << list.RowsCount();
    }
    static void awaitText(const LumtexListView& list, int row, const char* text) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return list.ItemText(row, 2) == text; }, 60'000))
            << list.ItemText(row, 2).toStdString();
    }
    static int rowsInView(const LumtexListView& list) { return (list.height() - 22) / 18; }

    ScratchFolder folder;
};

TEST_F(LogViewerExample, StaysAtTheEndWhileTheFileGrows) {
    append(lines(1, 100));
    use([this](LumtexListView& list) {
        await(list, 100);
        EXPECT_EQ(list.TopIndex(), 100 - rowsInView(list));
        append(lines(101, 150) + "12:00:01 ERROR disk is full\n");
        await(list, 151);
        EXPECT_EQ(list.TopIndex(), 151 - rowsInView(list));
        EXPECT_EQ(list.ItemText(150, 2), "12:00:00 INFO line 150");
        EXPECT_EQ(list.ItemText(151, 1), "151");
        EXPECT_EQ(list.ItemForeColor(151, 2), QColor(0xB00020));
        EXPECT_EQ(list.ItemForeColor(150, 2), QColor(Qt::black));
        expectPicture(list, "log_viewer");
    });
}

TEST_F(LogViewerExample, KeepsItsPlaceWhereTheReaderIsNotAtTheEnd) {
    append(lines(1, 100));
    use([this](LumtexListView& list) {
        await(list, 100);
        list.setTopIndex(20);
        append(lines(101, 200));
        await(list, 200);
        EXPECT_EQ(list.TopIndex(), 20);
    });
}

TEST_F(LogViewerExample, LetsALineGrowThatHasNoEndYet) {
    append("first\nsec");
    use([this](LumtexListView& list) {
        await(list, 2);
        EXPECT_EQ(list.ItemText(2, 2), "sec");
        append("ond & ");
        awaitText(list, 2, "second && ");
        append("last\r\nthird");
        await(list, 3);
        EXPECT_EQ(rowsOf(list), "1 | first\n2 | second && last\n3 | third\n");
    });
}

TEST_F(LogViewerExample, BeginsAnewWhereTheFileWasCutShort) {
    append(lines(1, 50) + "without an end");
    use([this](LumtexListView& list) {
        await(list, 51);
        list.setTopIndex(3);
        folder.write("service.log", "anew\n");
        await(list, 1);
        EXPECT_EQ(rowsOf(list), "1 | anew\n");
        EXPECT_EQ(list.TopIndex(), 0);
    });
}

TEST_F(LogViewerExample, WaitsForAFileThatIsNotThereYet) {
    use([this](LumtexListView& list) {
        EXPECT_TRUE(list.windowTitle().startsWith("Waiting for ")) << list.windowTitle().toStdString();
        append("there\n");
        await(list, 1);
    });
}

TEST_F(LogViewerExample, TakesAMillionLinesAndGoesOnFollowing) {
    constexpr int million = 1'000'000;
    append(lines(1, million));
    use([this](LumtexListView& list) {
        await(list, million);
        EXPECT_EQ(list.TopIndex(), million - rowsInView(list));
        append("one more\n");
        await(list, million + 1);
        EXPECT_EQ(list.TopIndex(), million + 1 - rowsInView(list));
        EXPECT_EQ(list.ItemText(123'456, 2), "12:00:00 INFO line 123456");
        EXPECT_EQ(list.ItemText(million + 1, 2), "one more");
    });
}

TEST_F(LogViewerExample, AsksForAFile) {
    EXPECT_EQ(useProgram(log_viewer, {}, [](QWidget&) {}), 1);
}

} // namespace
} // namespace lumtex::testing

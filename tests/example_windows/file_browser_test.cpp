#include "program_user.h"
#include "programs.h"
#include "scratch_folder.h"

#include <QDateTime>
#include <QFile>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

class FileBrowserExample : public ::testing::Test {
  protected:
    FileBrowserExample() {
        for (const char* name : {"zoo", "attic"})
            std::filesystem::create_directory(folder.path / name);
        write("attic/lamp.txt", 7, 4);
        write("large.bin", 300, 2);
        write("b & c.txt", 20, 3);
        write("a, b.txt", 1000, 1);
        date("attic", 6);
        date("zoo", 5);
    }

    void write(const std::string& name, std::size_t bytes, int hour) const {
        folder.write(name, std::string(bytes, 'x'));
        date(name, hour);
    }
    /// Of a folder Qt sets no date.
    void date(const std::string& name, int hour) const {
        const QDateTime when(QDate(2026, 3, 1), QTime(hour, 30), Qt::UTC);
        const auto seconds = std::chrono::seconds(when.toSecsSinceEpoch());
        std::filesystem::last_write_time(
            folder.path / name, std::chrono::file_clock::from_sys(std::chrono::sys_seconds(seconds)));
    }
    void use(const std::function<void(LumtexListView&)>& body) const {
        EXPECT_EQ(useProgram(file_browser,
                             {folder.path.string()},
                             [&](QWidget& window) { body(dynamic_cast<LumtexListView&>(window)); }),
                  0);
    }
    static std::string namesOf(const LumtexListView& list) {
        std::string names;
        for (int row = 1; row <= list.RowsCount(); ++row)
            names += list.ItemText(row, 1).toStdString() + "; ";
        return names;
    }

    /// Without the two folders in front, whose sizes are a matter of the file system.
    static std::string filesOf(const LumtexListView& list) {
        const std::string names = namesOf(list);
        const std::size_t folders = std::string_view("attic; zoo; ").size();
        EXPECT_TRUE(names.starts_with("attic; zoo; ") || names.starts_with("zoo; attic; ")) << names;
        return names.substr(folders);
    }

    ScratchFolder folder;
};

TEST_F(FileBrowserExample, ShowsAFolderWithSizesAndDates) {
    use([](LumtexListView& list) {
        EXPECT_EQ(rowsOf(list),
                  "attic |  | 2026-03-01 06:30\n"
                  "zoo |  | 2026-03-01 05:30\n"
                  "a, b.txt | 1000 | 2026-03-01 01:30\n"
                  "b && c.txt | 20 | 2026-03-01 03:30\n"
                  "large.bin | 300 | 2026-03-01 02:30\n");
        EXPECT_FALSE(list.ItemIcon(1, 1).isNull());
        clickCell(list, 4, 1);
        expectPicture(list, "file_browser");
    });
}

TEST_F(FileBrowserExample, SortsByItsHeadersAndKeepsFoldersInFront) {
    use([](LumtexListView& list) {
        clickHeader(list, 2);
        EXPECT_EQ(filesOf(list), "b && c.txt; large.bin; a, b.txt; ");
        clickHeader(list, 2);
        EXPECT_EQ(filesOf(list), "a, b.txt; large.bin; b && c.txt; ");
        clickHeader(list, 3);
        EXPECT_EQ(namesOf(list), "zoo; attic; a, b.txt; large.bin; b && c.txt; ");
    });
}

TEST_F(FileBrowserExample, OpensAFolderAndComesBackToIt) {
    use([this](LumtexListView& list) {
        doubleClickCell(list, 2, 1);
        EXPECT_EQ(namesOf(list), "");
        EXPECT_EQ(list.windowTitle().toStdString(), (folder.path / "zoo").string());
        pressKey(list, Qt::Key_Backspace);
        EXPECT_EQ(list.RowsCount(), 5);
        EXPECT_EQ(list.ListIndex(), 1);
        EXPECT_TRUE(list.RowSelected(2));

        pressKey(list, Qt::Key_Up);
        pressKey(list, Qt::Key_Return);
        EXPECT_EQ(namesOf(list), "lamp.txt; ");
    });
}

} // namespace
} // namespace lumtex::testing

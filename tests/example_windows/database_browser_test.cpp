#include "program_user.h"
#include "programs.h"
#include "scratch_folder.h"

#include <QSplitter>
#include <QSqlDatabase>
#include <QSqlQuery>

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

/// The lists of the window, the one of tables first.
QList<LumtexListView*> listsIn(QWidget& window) {
    auto& splitter = dynamic_cast<QSplitter&>(window);
    return {qobject_cast<LumtexListView*>(splitter.widget(0)),
            qobject_cast<LumtexListView*>(splitter.widget(1))};
}

std::string headersOf(const LumtexListView& list) {
    std::string text;
    for (int column = 1; column <= list.ColumnsCount(); ++column)
        text += list.ColumnText(column).toStdString() + "; ";
    return text;
}

TEST(DatabaseBrowserExample, ShowsTablesAndTheirRecords) {
    const int status = useProgram(database_browser, {}, [](QWidget& window) {
        LumtexListView& tables = *listsIn(window)[0];
        LumtexListView& records = *listsIn(window)[1];
        EXPECT_EQ(rowsOf(tables), "composers\nworks\nbefore 1900\n");
        EXPECT_EQ(headersOf(records), "name; born; ");
        EXPECT_EQ(rowsOf(records),
                  "Bach, Johann Sebastian | 1685\nClara Schumann | 1819\nEthel Smyth | 1858\n");
        clickCell(tables, 3, 1);
        EXPECT_EQ(headersOf(records), "title; year; ");
        EXPECT_EQ(rowsOf(records), "Piano Concerto | 1835\n");
        clickCell(tables, 2, 1);
        EXPECT_EQ(window.windowTitle(), "works: 2 records");
        expectPicture(window, "database_browser");
    });
    EXPECT_EQ(status, 0);
}

TEST(DatabaseBrowserExample, ReadsAFileAndTellsWhatTheDatabaseRefuses) {
    const ScratchFolder folder;
    const std::string file = (folder.path / "birds.db").string();
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "writer");
        database.setDatabaseName(QString::fromStdString(file));
        ASSERT_TRUE(database.open());
        for (const char* statement : {"CREATE TABLE birds (name, weight REAL)",
                                      "INSERT INTO birds VALUES ('wren', 9.5), ('swift', NULL)",
                                      "CREATE TABLE empty (name)",
                                      "CREATE VIEW gone AS SELECT * FROM nowhere"})
            EXPECT_TRUE(QSqlQuery(database).exec(statement)) << statement;
    }
    QSqlDatabase::removeDatabase("writer");
    const int status = useProgram(database_browser, {file}, [](QWidget& window) {
        LumtexListView& tables = *listsIn(window)[0];
        LumtexListView& records = *listsIn(window)[1];
        ASSERT_EQ(rowsOf(tables), "birds\nempty\ngone\n");
        EXPECT_EQ(rowsOf(records), "wren | 9.5\nswift | \n");
        clickCell(tables, 2, 1);
        EXPECT_EQ(rowsOf(records), "");
        EXPECT_EQ(window.windowTitle(), "empty: 0 records");
        clickCell(tables, 3, 1);
        EXPECT_EQ(window.windowTitle(), "no such table: main.nowhere");
    });
    EXPECT_EQ(status, 0);
}

TEST(DatabaseBrowserExample, MakesNoFileThatIsNotThere) {
    const ScratchFolder folder;
    const std::string file = (folder.path / "none.db").string();
    EXPECT_EQ(useProgram(database_browser, {file}, [](QWidget&) {}), 1);
    EXPECT_FALSE(std::filesystem::exists(file));
}

} // namespace
} // namespace lumtex::testing

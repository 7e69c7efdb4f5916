// A browser of a database: the left list has its tables, the right one the records of the table that was
// pressed.
//
//   database_browser [FILE]
//
// FILE is a database of SQLite; without one a small one in memory is shown. Records come through `Recordset`,
// which takes any model of Qt.
#include "qt/lumtex_list_view.h"

#include <QApplication>
#include <QFileInfo>
#include <QSplitter>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlQueryModel>
#include <iostream>

namespace {

constexpr int twipsPerPixel = 15;

class DatabaseBrowser : public QSplitter {
  public:
    explicit DatabaseBrowser(const QSqlDatabase& database)
        : database_(database), tables_(new LumtexListView), records_(new LumtexListView) {
        resize(640, 240);
        addWidget(tables_);
        addWidget(records_);
        setSizes({150, 490});
        for (LumtexListView* list : {tables_, records_})
            list->setRowsDynamic(false); // rows of one height, and a scroll bar only where they need it
        tables_->ColumnsAdd("Table", {}, {}, {}, LumtexListView::cColumnLeft, 140 * twipsPerPixel);
        for (const QString& table : database_.tables() + database_.tables(QSql::Views))
            tables_->RowsAdd(-1, "\n", table);
        connect(tables_, &LumtexListView::ItemClick, this, [this](int row, int) {
            showTable(tables_->ItemText(row, 1));
        });
        if (tables_->RowsCount() > 0)
            showTable(tables_->ItemText(1, 1));
    }

  private:
    void showTable(const QString& table) {
        records_->setAutoRedraw(false);
        records_->RowsClear(); // before the columns: these would leave the rows there
        records_->ColumnsClear();
        QSqlQueryModel model;
        QString quoted = table;
        model.setQuery("SELECT * FROM \"" + quoted.replace('"', "\"\"") + '"', database_);
        if (model.lastError().isValid()) {
            setWindowTitle(model.lastError().databaseText());
        } else {
            records_->setRecordset(&model); // fields become columns, records rows, once
            mendCommas(model);
            setWindowTitle(QString("%1: %2 records").arg(table).arg(records_->RowsCount()));
        }
        records_->setAutoRedraw(true);
        fitColumns();
    }

    /// A comma in a value spreads it over the next columns. Such records are written anew, cell by cell.
    void mendCommas(const QSqlQueryModel& model) {
        for (int row = 0; row < model.rowCount(); ++row) {
            bool hasComma = false;
            for (int column = 0; column < model.columnCount(); ++column)
                hasComma = hasComma || model.index(row, column).data().toString().contains(',');
            for (int column = 0; hasComma && column < model.columnCount(); ++column)
                records_->setItemText(row + 1, column + 1, model.index(row, column).data().toString());
        }
    }

    /// The width that fits is measured where a column was painted, and a little tight.
    void fitColumns() {
        records_->AutoColumnSize();
        for (int column = 1; column <= records_->ColumnsCount(); ++column)
            records_->setColumnWidth(column, records_->ColumnWidth(column) + 16 * twipsPerPixel);
        records_->CheckScroll();
    }

    QSqlDatabase database_;
    LumtexListView* tables_;
    LumtexListView* records_;
};

/// What is shown without a file.
void fillSample(const QSqlDatabase& database) {
    for (const char* statement : {
             "CREATE TABLE composers (name, born INTEGER)",
             "INSERT INTO composers VALUES ('Bach, Johann Sebastian', 1685), ('Clara Schumann', 1819), "
             "('Ethel Smyth', 1858)",
             "CREATE TABLE works (title, composer, year INTEGER)",
             "INSERT INTO works VALUES ('The Wreckers', 'Ethel Smyth', 1904), "
             "('Piano Concerto', 'Clara Schumann', 1835)",
             "CREATE VIEW \"before 1900\" AS SELECT title, year FROM works WHERE year < 1900",
         })
        QSqlQuery(database).exec(statement);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE");
    const QString file = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString(":memory:");
    // SQLite would make a file that is not there.
    if (argc > 1 && !QFileInfo::exists(file)) {
        std::cerr << "There is no file " << argv[1] << '\n';
        return 1;
    }
    database.setDatabaseName(file);
    if (!database.open()) {
        std::cerr << database.lastError().text().toStdString() << '\n';
        return 1;
    }
    if (argc == 1)
        fillSample(database);
    DatabaseBrowser browser(database);
    browser.show();
    return QApplication::exec();
}

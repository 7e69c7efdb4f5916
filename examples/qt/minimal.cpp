// The smallest program with a list: columns, rows, and a click that is heard.
#include "qt/lumtex_list_view.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    LumtexListView list;
    list.setWindowTitle("Rivers");
    list.resize(360, 160);

    // Columns come first: a list without columns takes no rows. Widths are twips, 15 to a pixel.
    list.ColumnsAdd("River", {}, {}, {}, LumtexListView::cColumnLeft, 2400);
    list.ColumnsAdd("Flows into", {}, {}, {}, LumtexListView::cColumnLeft, 2700);
    // -1 is the place behind the last row. A comma separates the cells.
    for (const char* row : {"Danube,Black Sea", "Tagus,Atlantic Ocean", "Volga,Caspian Sea"})
        list.RowsAdd(-1, ",", row);

    // Rows and columns count from 1, here as in every call.
    QObject::connect(&list, &LumtexListView::ItemClick, [&list](int row, int) {
        list.setWindowTitle(list.ItemText(row, 1) + " flows into the " + list.ItemText(row, 2));
    });
    list.show();
    return QApplication::exec();
}

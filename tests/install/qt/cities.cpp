/// The first program of the README, as it is built with the installed library.
// [readme
#include "qt/lumtex_list_view.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    LumtexListView list;
    list.ColumnsAdd("City", {}, {}, {}, LumtexListView::cColumnLeft, 2400); // twips: 15 a pixel
    list.ColumnsAdd("Country", {}, {}, {}, LumtexListView::cColumnLeft, 2400);
    for (const char* row : {"Lisbon,Portugal", "Oslo,Norway", "Quito,Ecuador"})
        list.RowsAdd(-1, ",", row);
    QObject::connect(&list, &LumtexListView::ItemClick, [&](int row, int column) {
        list.setWindowTitle(list.ItemText(row, column));
    });
    list.show();
    return application.exec();
}
// readme]

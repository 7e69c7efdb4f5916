/// \file
/// Somebody's program: uses the widget by its header alone. Its status says what failed.
#include "qt/lumtex_list_view.h"

#include <QApplication>
#include <QMetaProperty>
#include <QPixmap>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    LumtexListView list;
    list.ColumnsAdd("City");
    for (const char* row : {"Quito", "Lisbon", "Oslo"})
        list.RowsAdd(-1, ",", row);
    int sorted = 0;
    QObject::connect(&list, &LumtexListView::SortDone, [&] { ++sorted; });
    list.Sort(1, LumtexListView::cAscending);
    if (sorted != 1 || list.ItemText(1, 1) != "Lisbon" || list.property("RowsCount").toInt() != 3)
        return 2;
    int told = 0;
    QObject::connect(&list, &LumtexListView::BackColorChanged, [&] { ++told; });
    list.setBackColor(Qt::yellow);
    list.resize(200, 120);
    list.show();
    QCoreApplication::processEvents();
    const QImage picture = list.grab().toImage();
    if (told != 1 || picture.pixelColor(100, 110) != QColor(Qt::yellow))
        return 3;
    // Found by its base and by name, as plugins and bindings do.
    auto* found = qobject_cast<LumtexListView*>(static_cast<QObject*>(&list));
    if (found == nullptr || dynamic_cast<lumtex::qt::ListWidget*>(static_cast<QWidget*>(&list)) == nullptr)
        return 4;
    return 0;
}

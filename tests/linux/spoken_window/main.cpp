/// A program with a list of cities in its window, for others to ask. Ends with its standard input.
#include "qt/lumtex_list_view.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QVBoxLayout>

#include <unistd.h>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, &QApplication::quit);

    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* list = new LumtexListView;
    list->setObjectName(QStringLiteral("cities"));
    list->setRowsDynamic(false);
    list->setRowHeight(300);
    list->setStyle(LumtexListView::cCheckBoxes);
    list->ColumnsAdd(QStringLiteral("City"), {}, {}, {}, LumtexListView::cColumnLeft, 1500, true);
    list->ColumnsAdd(QStringLiteral("Since"), {}, {}, {}, LumtexListView::cColumnLeft, 900, true);
    list->ColumnsAdd(QStringLiteral("Country"), {}, {}, {}, LumtexListView::cColumnLeft, 1800);
    list->setColumnCheckBoxes(2, true);
    for (const char* row : {"Lisbon,1143,Portugal", "Oslo,1048,Norway", "Quito,1534,Ecuador"})
        list->RowsAdd(-1, QStringLiteral(","), QString::fromLatin1(row));
    list->setItemAllowEdit(2, 3, true);
    // A row more for each check mark.
    QObject::connect(list, qOverload<int, int, bool>(&LumtexListView::ItemChecked), list, [list] {
        list->RowsAdd(-1, QStringLiteral(","), QStringLiteral("Porto,868,Portugal"));
    });
    layout->addWidget(list);
    window.resize(300, 200);
    window.show();
    window.activateWindow(); // nobody manages windows on the display of the test
    list->CheckScroll();
    list->Redraw();
    return QApplication::exec();
}

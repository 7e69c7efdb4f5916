// A browser of folders: icons, headers that sort, keys, and a place to come back to.
//
//   file_browser [FOLDER]
//
// Enter or a double click opens a folder or a file, Backspace goes up.
#include "qt/lumtex_list_view.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QStyle>
#include <QUrl>
#include <algorithm>

namespace {

enum Columns { nameColumn = 1, sizeColumn, changedColumn };

constexpr int twipsPerPixel = 15;
constexpr int rowPixels = 20;
constexpr short backspaceKey = 8;
constexpr short enterKey = 13;
constexpr QChar separator(0x1F); // stands in no name

class FileBrowser : public LumtexListView {
  public:
    explicit FileBrowser(const QString& folder) {
        resize(560, 300);
        setRowsDynamic(false); // rows of one height
        setRowHeight(rowPixels * twipsPerPixel);
        ColumnsAdd("Name", {}, {}, {}, cColumnLeft, 280 * twipsPerPixel);
        ColumnsAdd("Size", {}, {}, {}, cColumnRight, 100 * twipsPerPixel);
        ColumnsAdd("Changed", {}, {}, {}, cColumnLeft, 150 * twipsPerPixel);
        connect(this, &LumtexListView::ColumnClick, this, [this](int& column) { sortBy(column); });
        // Queued: after this signal the list looks whether the cell may be edited, so its row must still be
        // there.
        connect(
            this,
            &LumtexListView::ItemDblClick,
            this,
            [this](int row, int) { openRow(row); },
            Qt::QueuedConnection);
        connect(this, &LumtexListView::KeyDown, this, [this](short& key, short&) {
            if (key == backspaceKey)
                openParent();
            else if (key == enterKey)
                openRow(ListIndex() + 1); // ListIndex counts from 0
        });
        open(folder);
    }

  private:
    void open(const QString& folder) {
        folder_ = QDir(folder);
        setWindowTitle(QDir::toNativeSeparators(folder_.absolutePath()));
        setAutoRedraw(false); // nothing is painted on the way
        setAutoCheckScroll(false);
        RowsClear();
        for (const QFileInfo& file :
             folder_.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot, order_ | QDir::DirsFirst))
            add(file);
        setListIndex(-1); // it keeps its number when the rows go
        setTopIndex(0);
        setAutoCheckScroll(true);
        CheckScroll();
        setAutoRedraw(true);
    }

    void add(const QFileInfo& file) {
        const QString size = file.isDir() ? QString() : QString::number(file.size());
        const QString changed = file.lastModified().toString("yyyy-MM-dd hh:mm");
        // One & marks the letter behind it in a text, two of them stand for one.
        const QString shownName = file.fileName().replace('&', "&&");
        RowsAdd(-1, separator, shownName + separator + size + separator + changed);
        const int row = NewIndex() + 1;
        setItemTag(row, nameColumn, file.fileName()); // the name itself
        setItemIcon(row, nameColumn, iconOf(file));
        setItemAlignment(row, sizeColumn, cItemRight); // a column aligns its header alone
    }

    QPixmap iconOf(const QFileInfo& file) const {
        const auto which = file.isDir() ? QStyle::SP_DirIcon : QStyle::SP_FileIcon;
        return style()->standardIcon(which).pixmap(QSize(16, 16), 1.0);
    }

    /// A second click on a header turns the order. The list could sort too, but not keep folders in front.
    void sortBy(int column) {
        const QDir::SortFlags wanted = column == sizeColumn      ? QDir::Size | QDir::Reversed
                                       : column == changedColumn ? QDir::Time | QDir::Reversed
                                                                 : QDir::Name | QDir::IgnoreCase;
        order_ = order_ == wanted ? wanted ^ QDir::Reversed : wanted;
        open(folder_.path());
    }

    void openRow(int row) {
        if (row < 1 || row > RowsCount())
            return;
        const QString path = folder_.filePath(ItemTag(row, nameColumn).toString());
        if (QFileInfo(path).isDir())
            open(path);
        else
            QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    }

    void openParent() {
        const QString from = QDir(folder_.absolutePath()).dirName();
        open(folder_.absoluteFilePath(".."));
        for (int row = 1; row <= RowsCount(); ++row)
            if (ItemTag(row, nameColumn).toString() == from)
                goTo(row);
    }

    /// Selecting scrolls to the row; ListIndex is where the keys go on.
    void goTo(int row) {
        setListIndex(row - 1);
        setRowSelected(row, true);
    }

    QDir folder_;
    QDir::SortFlags order_ = QDir::Name | QDir::IgnoreCase;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    FileBrowser browser(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::homePath());
    browser.show();
    return QApplication::exec();
}

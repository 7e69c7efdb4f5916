#include "folder_page.h"

#include "icon_pixmaps.h"
#include "list_texts.h"

#include <QDateTime>
#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QPushButton>
#include <QUrl>
#include <array>

namespace lumtex::gallery {

using namespace Qt::StringLiterals;

namespace {

enum Columns { nameColumn = 1, sizeColumn, typeColumn, changedColumn };

/// By column.
constexpr std::array sortTypes{LumtexListView::cSortText,
                               LumtexListView::cSortNumeric,
                               LumtexListView::cSortText,
                               LumtexListView::cSortDate};

QString typeOf(const QFileInfo& file) {
    if (file.isDir())
        return u"Folder"_s;
    return file.suffix().isEmpty() ? u"File"_s : file.suffix().toUpper() + " file"_L1;
}

QStringList textsOf(const QFileInfo& file) {
    return {file.fileName(),
            file.isDir() ? QString() : QString::number(file.size()),
            typeOf(file),
            file.lastModified().toString(u"yyyy-MM-dd hh:mm:ss"_s)};
}

} // namespace

FolderPage::FolderPage(const QString& folder)
    : Page(u"A folder"_s,
           u"Enter or a double click opens, Backspace goes up, F2 renames in place. A header sorts by its "
           u"column: names "
           "as text, sizes as numbers, changes as dates."_s),
      folder_(folder) {
    auto* up = new QPushButton(u"&Up"_s);
    connect(up, &QPushButton::clicked, this, &FolderPage::openParent);
    connect(path_, &QLineEdit::returnPressed, this, [this] { open(path_->text()); });
    path_->setAccessibleName(u"Folder"_s);
    auto* line = new QHBoxLayout;
    line->addWidget(up);
    line->addWidget(path_, 1);
    rows().addLayout(line);
    LumtexListView* list = addList();
    rows().addWidget(list, 1);
    rows().addWidget(status_);

    addColumn(*list, u"Name"_s, 300);
    addColumn(*list, u"Size"_s, 90, LumtexListView::cColumnRight);
    addColumn(*list, u"Type"_s, 110);
    addColumn(*list, u"Changed"_s, 150);
    connect(list, &LumtexListView::ColumnClick, this, [this](int& column) {
        if (column >= nameColumn && column <= changedColumn)
            sortByHeader(this->list(), column, sortTypes.at(static_cast<std::size_t>(column) - 1));
    });
    // Queued: behind this signal the list asks the row that was pressed whether it may be edited.
    connect(
        list,
        &LumtexListView::ItemDblClick,
        this,
        [this](int row, int) { openRow(row); },
        Qt::QueuedConnection);
    connect(list, &LumtexListView::KeyDown, this, [this](short& keyCode, short&) { keyPressed(keyCode); });
    connect(list, &LumtexListView::ItemChanged, this, [this](int row, int, const QString& text) {
        rename(row, text);
    });
}

void FolderPage::fill() {
    read();
}

void FolderPage::open(const QString& folder) {
    const QDir wanted(folder);
    if (!wanted.exists()) {
        status_->setText(u"There is no folder %1."_s.arg(folder));
        return;
    }
    folder_ = wanted;
    read();
}

void FolderPage::read() {
    folder_.makeAbsolute();
    folder_.refresh();
    path_->setText(QDir::toNativeSeparators(folder_.path()));
    const PaintOnce once(list());
    list().RowsClear();
    const QFileInfoList files = folder_.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot,
                                                      QDir::DirsFirst | QDir::Name | QDir::LocaleAware);
    for (const QFileInfo& file : files) {
        addRow(list(), textsOf(file));
        const int row = list().NewIndex() + 1;
        list().setItemIcon(row, nameColumn, file.isDir() ? folderPixmap() : documentPixmap());
        list().setItemTag(row, nameColumn, file.fileName());
    }
    status_->setText(folder_.isReadable() ? u"%1 entries"_s.arg(files.size())
                                          : u"This folder cannot be read."_s);
}

QString FolderPage::nameIn(int row) const {
    return list().ItemTag(row, nameColumn).toString();
}

void FolderPage::openRow(int row) {
    const QFileInfo file(folder_.filePath(nameIn(row)));
    if (file.isDir())
        open(file.filePath());
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file.filePath())))
        status_->setText(u"No program opens %1."_s.arg(file.fileName()));
}

void FolderPage::openParent() {
    const QString from = folder_.dirName();
    if (!folder_.cdUp())
        return;
    read();
    for (int row = 1; row <= list().RowsCount(); ++row) {
        if (nameIn(row) == from)
            goToRow(list(), row);
    }
}

void FolderPage::keyPressed(short& keyCode) {
    const int row = list().ListIndex() + 1;
    if (keyCode == 8) // Backspace
        openParent();
    else if (keyCode == 13 && row > 0) // Enter
        openRow(row);
    else if (keyCode == 113 && row > 0) // F2, and nothing else: a double click would open the editor, too
        list().SetEdit(row, nameColumn);
}

void FolderPage::rename(int row, const QString& text) {
    const QString from = nameIn(row);
    const QString to = unescaped(text);
    if (from.isEmpty() || to == from)
        return;
    const bool renamed =
        !to.isEmpty() && !to.contains(u'/') && !folder_.exists(to) && folder_.rename(from, to);
    status_->setText(renamed ? u"%1 is called %2 now."_s.arg(from, to)
                             : u"%1 cannot be called so."_s.arg(from));
    list().setItemTag(row, nameColumn, renamed ? to : from);
    list().setItemText(row, nameColumn, escaped(renamed ? to : from));
}

} // namespace lumtex::gallery

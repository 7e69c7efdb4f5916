// A list of tasks with check boxes, which are edited in place and are there again in the next run.
//
//   task_list [FILE]
//
// Insert adds a task, F2 or a second press edits it until Enter, Delete removes it. Each change is saved at
// once.
#include "qt/lumtex_list_view.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace {

enum Columns { taskColumn = 1, dueColumn };

constexpr int twipsPerPixel = 15;
constexpr short insertKey = 45;
constexpr short deleteKey = 46;
constexpr short f2Key = 113;

class TaskList : public LumtexListView {
  public:
    explicit TaskList(QString file) : file_(std::move(file)) {
        setWindowTitle("Tasks");
        resize(420, 200);
        setStyle(cCheckBoxes);
        setAllowEdit(true);
        setRowsDynamic(false);
        setRowHeight(22 * twipsPerPixel);
        ColumnsAdd("Task", {}, {}, {}, cColumnLeft, 280 * twipsPerPixel);
        ColumnsAdd("Due", {}, {}, {}, cColumnLeft, 110 * twipsPerPixel);
        setColumnCheckBoxes(taskColumn, true);
        // A content file holds cells with their looks, and no columns: those are here already.
        if (QFile::exists(file_))
            load();
        else
            addTask("Press here twice to edit", "");
        // One of the names is also a property of cells.
        connect(this,
                qOverload<int, int, bool>(&LumtexListView::ItemChecked),
                this,
                [this](int row, int, bool done) {
                    showDone(row, done);
                    save();
                });
        connect(this, &LumtexListView::ItemChanged, this, [this] { save(); });
        connect(this, &LumtexListView::KeyDown, this, [this](short& key, short&) { pressed(key); });
    }

  private:
    void pressed(short key) {
        const int row = ListIndex() + 1; // 0 where there is none
        if (key == insertKey) {
            addTask("New task", "");
            setListIndex(RowsCount() - 1);
            setRowSelected(RowsCount(), true); // scrolls to it
            save();
            SetEdit(RowsCount(), taskColumn);
        } else if (key == f2Key && row >= 1 && row <= RowsCount()) {
            SetEdit(row, taskColumn);
        } else if (key == deleteKey && row >= 1 && row <= RowsCount()) {
            RowsRemove(row);
            setListIndex(-1); // it would keep its number, which another row has now
            save();
        }
    }

    void addTask(const QString& task, const QString& due) {
        RowsAdd(-1, "|", task + '|' + due);
        for (const int column : {taskColumn, dueColumn})
            setItemAllowEdit(RowsCount(), column, true);
    }

    void showDone(int row, bool done) {
        setItemFontStrikethrough(row, taskColumn, done);
        for (const int column : {taskColumn, dueColumn})
            setItemForeColor(row, column, done ? QColor(0x909090) : QColor(Qt::black));
    }

    void save() { ContentSave(file_, true); }

    /// The marks of boxes are not in the file, but what is done is struck out there.
    void load() {
        ContentInput(file_, true);
        for (int row = 1; row <= RowsCount(); ++row)
            setItemChecked(row, taskColumn, ItemFontStrikethrough(row, taskColumn));
    }

    QString file_;
};

QString usualFile() {
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    folder.mkpath(".");
    return folder.filePath("tasks.content");
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    TaskList tasks(argc > 1 ? QString::fromLocal8Bit(argv[1]) : usualFile());
    tasks.show();
    return QApplication::exec();
}

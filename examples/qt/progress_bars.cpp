// Widgets of the program in cells: progress bars and buttons, which move, hide and go with their rows.
#include "qt/lumtex_list_view.h"

#include <QApplication>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <vector>

namespace {

enum Columns { fileColumn = 1, progressColumn, actionColumn };

constexpr int twipsPerPixel = 15;
constexpr int rowPixels = 26;
constexpr int millisecondsAStep = 50;

class Downloads : public LumtexListView {
  public:
    Downloads() {
        setWindowTitle("Downloads");
        resize(480, 180);
        setRowsDynamic(false);
        setRowHeight(rowPixels * twipsPerPixel); // room for a button
        setGridLines(true);
        setGridLineColor(QColor(0xE0E0E0));
        ColumnsAdd("File", {}, {}, {}, cColumnLeft, 170 * twipsPerPixel);
        ColumnsAdd("Progress", {}, {}, {}, cColumnLeft, 190 * twipsPerPixel);
        ColumnsAdd("", {}, {}, {}, cColumnLeft, 90 * twipsPerPixel);
        add("atlas.pdf", 1);
        add("clouds.png", 3);
        add("fugue.ogg", 5);
        add("letters.zip", 2);
        connect(&clock_, &QTimer::timeout, this, &Downloads::step);
        clock_.start(millisecondsAStep);
    }

  private:
    struct Download {
        QString file;
        int speed; // hundredths a step
        QProgressBar* bar;
    };

    void add(const QString& file, int speed) {
        RowsAdd(-1, "|", file + "||");
        // The list shows the widgets over their cells. They stay the program's: it makes and deletes them.
        auto* bar = new QProgressBar(this);
        auto* cancel = new QPushButton("Cancel", this);
        setItemObject(RowsCount(), progressColumn, bar);
        setItemObject(RowsCount(), actionColumn, cancel);
        downloads_.push_back({file, speed, bar});
        connect(cancel, &QPushButton::clicked, this, [this, bar, file] { end(bar, file + " cancelled"); });
    }

    void step() {
        const std::vector<Download> all = downloads_; // `end` takes some out
        for (const auto& [file, speed, bar] : all) {
            bar->setValue(bar->value() + std::min(speed, bar->maximum() - bar->value()));
            if (bar->value() == bar->maximum())
                end(bar, file + " complete");
        }
    }

    /// The cells get a text again where the widgets were.
    void end(QProgressBar* bar, const QString& outcome) {
        for (int row = 1; row <= RowsCount(); ++row) {
            if (ItemObject(row, progressColumn) != bar)
                continue;
            QObject* cancel = ItemObject(row, actionColumn);
            setItemObject(row, progressColumn, nullptr);
            setItemObject(row, actionColumn, nullptr);
            setItemText(row, progressColumn, outcome);
            setItemForeColor(row, progressColumn, QColor(0x606060));
            std::erase_if(downloads_, [bar](const Download& download) { return download.bar == bar; });
            bar->deleteLater();
            cancel->deleteLater(); // it may be telling of its click now
        }
    }

    std::vector<Download> downloads_;
    QTimer clock_{this};
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    Downloads downloads;
    downloads.show();
    return QApplication::exec();
}

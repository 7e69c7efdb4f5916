// A viewer of log files that follows a file while it grows, a million lines of it or more.
//
//   log_viewer FILE
//
// The view stays at the end as long as it is there, and keeps its place once you scroll up. A last line
// without an end is shown and grows; a file that was cut short, as logs are when they begin anew, is read
// from its start.
#include "qt/lumtex_list_view.h"

#include <QApplication>
#include <QFile>
#include <QScopedValueRollback>
#include <QTimer>
#include <iostream>

namespace {

constexpr int twipsPerPixel = 15;
constexpr int rowPixels = 18;
constexpr int headerPixels = 22;
constexpr int textColumn = 2;
constexpr qint64 bytesAtOnce = 1 << 18; // few enough that the window answers between two reads
constexpr int millisecondsBetweenLooks = 200;
constexpr QChar separator(0x1F); // stands in no line

class LogViewer : public LumtexListView {
  public:
    explicit LogViewer(const QString& path) : file_(path) {
        resize(640, 320);
        setRowsDynamic(false); // rows of one height, so that their number alone says what is in view
        setRowHeight(rowPixels * twipsPerPixel);
        ColumnsAdd("Line", {}, {}, {}, cColumnRight, 70 * twipsPerPixel);
        ColumnsAdd("Text", {}, {}, {}, cColumnLeft, 550 * twipsPerPixel);
        setAutoCheckScroll(false); // once for each batch is enough
        connect(&clock_, &QTimer::timeout, this, &LogViewer::follow);
        clock_.start(0);
    }

  private:
    /// Reads what came since the last look. The next look comes at once while there is more to read.
    void follow() {
        // The list lets events through now and then, and the clock is among them.
        if (isReading_)
            return;
        const QScopedValueRollback<bool> reading(isReading_, true);
        if (!file_.isOpen() && !file_.open(QIODevice::ReadOnly)) {
            setWindowTitle("Waiting for " + file_.fileName());
            clock_.start(millisecondsBetweenLooks);
            return;
        }
        const qint64 size = file_.size();
        const bool wasCutShort = size < file_.pos();
        if (wasCutShort || size > file_.pos())
            takeIn(wasCutShort);
        clock_.start(file_.pos() < size ? 0 : millisecondsBetweenLooks);
    }

    void takeIn(bool fromTheStart) {
        const bool follows = fromTheStart || isAtEnd();
        setAutoRedraw(false);
        if (fromTheStart) {
            RowsClear();
            file_.seek(0);
            open_.clear();
        }
        addLines(file_.read(bytesAtOnce));
        CheckScroll(); // the bar reaches as far as the rows now
        if (follows)
            setTopIndex(RowsCount() - rowsInView());
        setAutoRedraw(true); // paints
        setWindowTitle(QString("%1: %2 lines").arg(file_.fileName()).arg(RowsCount()));
    }

    /// The last line may have no end yet. It has a row all the same, which the next batch writes anew.
    void addLines(const QByteArray& bytes) {
        for (qsizetype begin = 0; begin < bytes.size();) {
            const qsizetype end = bytes.indexOf('\n', begin);
            const bool goesOn = !open_.isEmpty();
            open_ += bytes.mid(begin, end < 0 ? -1 : end - begin);
            showLine(shown(open_), goesOn);
            if (end < 0)
                return;
            open_.clear();
            begin = end + 1;
        }
    }

    void showLine(const QString& text, bool isOpen) {
        if (isOpen) {
            setItemText(RowsCount(), textColumn, text);
        } else {
            RowsAdd(-1, separator, QString::number(RowsCount() + 1) + separator + text);
            setItemAlignment(RowsCount(), 1, cItemRight);
        }
        if (text.contains("ERROR"))
            setItemForeColor(RowsCount(), textColumn, QColor(0xB00020));
    }

    /// One & marks the letter behind it in a text, two of them stand for one.
    static QString shown(const QByteArray& line) {
        return QString::fromUtf8(line).remove('\r').replace('\t', ' ').replace('&', "&&");
    }

    int rowsInView() const { return (height() - headerPixels) / rowPixels; }
    bool isAtEnd() const { return TopIndex() + rowsInView() >= RowsCount(); }

    QFile file_;
    QByteArray open_; // what was read of a line without an end
    QTimer clock_;
    bool isReading_ = false;
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: log_viewer FILE\n";
        return 1;
    }
    LogViewer viewer(QString::fromLocal8Bit(argv[1]));
    viewer.show();
    return QApplication::exec();
}

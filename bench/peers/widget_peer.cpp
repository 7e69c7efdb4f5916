/// The list as a widget of Qt, for what it costs to paint: on Qt's offscreen platform, which paints in
/// software.
#include "peer.h"
#include "qt/lumtex_list_view.h"

#include <QApplication>

namespace lumtex::bench {
namespace {

class WidgetPeer final : public Peer {
  public:
    WidgetPeer() {
        list_.setAutoRedraw(false);
        list_.setAutoCheckScroll(false);
        for (const int width : columnWidths)
            list_.ColumnsAdd(QStringLiteral("Column"),
                             {},
                             {},
                             {},
                             LumtexListView::cColumnLeft,
                             static_cast<float>(width) * 15);
        list_.resize(screenWidth, screenHeight);
    }
    void load(const Table& table) override {
        for (int row = 0; row < table.rows(); ++row)
            append(table, row);
    }
    int count() override { return list_.RowsCount(); }
    std::string text(int row, int column) override {
        return list_.ItemText(row + 1, column + 1).toStdString();
    }
    bool show() override {
        list_.setAutoCheckScroll(true);
        list_.setAutoRedraw(true);
        list_.show();
        QApplication::processEvents();
        return true;
    }
    void scrollTo(int row) override {
        list_.setTopIndex(row);
        QApplication::processEvents();
    }
    int firstSeen() override { return list_.TopIndex(); }
    bool hasInk() override {
        const QImage picture = list_.grab().toImage();
        for (int x = 0; x < 100; ++x) {
            if (picture.pixel(x, 30) != picture.pixel(0, 30))
                return true;
        }
        return false;
    }
    void appendPainted(const Table& table, int row) override {
        append(table, row);
        QApplication::processEvents();
    }

  private:
    /// A copy of its own, as of texts that the host has just read.
    void append(const Table& table, int row) {
        const std::u16string_view texts = table.wideRow(row);
        list_.RowsAdd(
            -1,
            QStringLiteral("|"),
            QString(reinterpret_cast<const QChar*>(texts.data()), static_cast<qsizetype>(texts.size())));
    }

    LumtexListView list_;
};

} // namespace
} // namespace lumtex::bench

int main(int count, char** arguments) {
    using namespace lumtex::bench;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int none = 1;
    const QApplication application(none, arguments);
    return runMeasures(count, arguments, {{"the widget", []() -> std::unique_ptr<Peer> {
                                               return std::make_unique<WidgetPeer>();
                                           }}});
}

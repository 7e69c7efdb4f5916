/// The table of FLTK, which stores nothing: it draws what a vector of the host's holds, on the display that
/// it runs on.
#include "peer.h"

#include <algorithm>
#include <array>
#include <charconv>

#include <FL/Fl.H>
#include <FL/Fl_Double_Window.H>
#include <FL/Fl_Table.H>
#include <FL/fl_draw.H>
#include <FL/x.H>

namespace lumtex::bench {
namespace {

constexpr int rowHeight = 20; // pixels

using Row = std::array<std::string, tableColumns>;

class HostTable final : public Fl_Table {
  public:
    explicit HostTable(const std::vector<Row>& texts)
        : Fl_Table(0, 0, screenWidth, screenHeight), texts_(texts) {
        cols(tableColumns);
        col_header(1);
        for (int column = 0; column < tableColumns; ++column)
            col_width(column, columnWidths[column]);
        end();
    }
    /// Rows that come take the height of the last, which is much faster than to set that of each.
    void fitRows() {
        if (rows() == 0 && !texts_.empty()) {
            rows(1);
            row_height(0, rowHeight);
        }
        rows(static_cast<int>(texts_.size()));
    }

  private:
    void draw_cell(TableContext context, int row, int column, int x, int y, int w, int h) override {
        if (context == CONTEXT_STARTPAGE)
            fl_font(FL_HELVETICA, 13);
        if (context == CONTEXT_COL_HEADER)
            fl_draw_box(FL_THIN_UP_BOX, x, y, w, h, FL_BACKGROUND_COLOR);
        if (context != CONTEXT_CELL)
            return;
        fl_push_clip(x, y, w, h);
        fl_color(FL_WHITE);
        fl_rectf(x, y, w, h);
        fl_color(FL_BLACK);
        const Row& texts = texts_[static_cast<std::size_t>(row)];
        fl_draw(texts[static_cast<std::size_t>(column)].c_str(), x + 2, y, w, h, FL_ALIGN_LEFT);
        fl_pop_clip();
    }

    const std::vector<Row>& texts_;
};

double numberOf(const std::string& text) {
    double value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

class FltkPeer final : public Peer {
  public:
    FltkPeer() : window_(screenWidth, screenHeight), table_(rows_) { window_.end(); }

    void load(const Table& table) override {
        rows_.reserve(static_cast<std::size_t>(table.rows()));
        for (int row = 0; row < table.rows(); ++row)
            rows_.push_back(rowOf(table, row));
        table_.fitRows();
    }
    int count() override { return static_cast<int>(rows_.size()); }
    std::string text(int row, int column) override {
        return rows_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }
    bool sort(TableColumn column) override {
        const auto place = static_cast<std::size_t>(column);
        std::stable_sort(rows_.begin(), rows_.end(), [&](const Row& a, const Row& b) {
            return column == amountColumn ? numberOf(a[place]) < numberOf(b[place]) : a[place] < b[place];
        });
        return true;
    }
    bool insertFirst(const Table& table, int row) override {
        rows_.insert(rows_.begin(), rowOf(table, row));
        return true;
    }
    bool removeFirst() override {
        rows_.erase(rows_.begin());
        return true;
    }
    bool show() override {
        table_.fitRows();
        window_.show();
        // Until the display has shown it once, nothing that is asked for is painted.
        window_.wait_for_expose();
        Fl::check();
        return true;
    }
    void scrollTo(int row) override {
        table_.row_position(row);
        paint();
    }
    int firstSeen() override { return table_.row_position(); }
    bool hasInk() override {
        window_.make_current();
        std::vector<uchar> pixels(static_cast<std::size_t>(screenWidth) * 200 * 3);
        if (fl_read_image(pixels.data(), 0, 0, screenWidth, 200) == nullptr)
            return false;
        return std::any_of(
            pixels.begin() + 3L * screenWidth * 60, pixels.end(), [](uchar unit) { return unit < 64; });
    }
    void appendPainted(const Table& table, int row) override {
        rows_.push_back(rowOf(table, row));
        table_.fitRows();
        paint();
    }

  private:
    static Row rowOf(const Table& table, int row) {
        Row made;
        for (int column = 0; column < tableColumns; ++column)
            made[static_cast<std::size_t>(column)] = table.cell(row, column);
        return made;
    }
    /// The display has drawn when it answers.
    void paint() {
        table_.redraw();
        Fl::flush();
        XSync(fl_display, 0);
    }

    std::vector<Row> rows_;
    Fl_Double_Window window_;
    HostTable table_;
};

} // namespace
} // namespace lumtex::bench

int main(int count, char** arguments) {
    using namespace lumtex::bench;
    return runMeasures(
        count,
        arguments,
        {{"FLTK table", []() -> std::unique_ptr<Peer> { return std::make_unique<FltkPeer>(); }, 1'000'000}});
}

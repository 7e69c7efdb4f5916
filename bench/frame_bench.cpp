/// One frame of the widget while a list of a million rows is scrolled: from the call to the pixels that the
/// screen gets, on Qt's offscreen platform, which paints in software. The peer is a QTableView over a model
/// on vectors, of the same size and with the same rows.
#include "qt/lumtex_list_view.h"
#include "sample_rows.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <memory>
#include <stdexcept>

#include <benchmark/benchmark.h>

namespace {

constexpr int rowCount = 1'000'000;
constexpr int columnCount = 5;
constexpr int pageRows = 39;
constexpr int width = 1280;
constexpr int height = 800;

const std::vector<std::string>& rows() {
    static const std::vector<std::string> made = lumtex::bench::sampleRows(rowCount);
    return made;
}

class SampleModel final : public QAbstractTableModel {
  public:
    SampleModel() {
        for (const std::string& row : rows())
            rows_.push_back(QString::fromStdString(row).split(u'|'));
    }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(rows_.size());
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : ::columnCount;
    }
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override {
        return role == Qt::DisplayRole ? rows_[static_cast<std::size_t>(index.row())].at(index.column())
                                       : QVariant();
    }

  private:
    std::vector<QStringList> rows_;
};

class OwnList {
  public:
    OwnList() {
        list_.setAutoRedraw(false);
        list_.setAutoCheckScroll(false);
        list_.setRowsDynamic(false);
        for (int column = 0; column < columnCount; ++column)
            list_.ColumnsAdd(QString::number(column), {}, {}, {}, LumtexListView::cColumnLeft, 3600);
        for (const std::string& row : rows())
            list_.RowsAdd(-1, QStringLiteral("|"), QString::fromStdString(row));
        list_.resize(width, height);
        list_.setAutoCheckScroll(true);
        list_.setAutoRedraw(true);
        list_.show();
    }
    void scrollTo(int row) { list_.setTopIndex(row); }
    int top() const { return list_.TopIndex(); }

  private:
    LumtexListView list_;
};

class TableView {
  public:
    TableView() {
        view_.setModel(&model_);
        view_.verticalHeader()->setDefaultSectionSize(20);
        view_.resize(width, height);
        view_.show();
    }
    /// Its bar counts rows.
    void scrollTo(int row) { view_.verticalScrollBar()->setValue(row); }
    int top() const { return view_.rowAt(2); }

  private:
    SampleModel model_;
    QTableView view_;
};

/// `state.range(0)` rows further each time, and back at the end.
template <class List>
void frame(benchmark::State& state) {
    static const auto list = std::make_unique<List>();
    QApplication::processEvents();
    int row = 0;
    for (auto _ : state) {
        row = (row + static_cast<int>(state.range(0))) % (rowCount - pageRows * 2);
        list->scrollTo(row);
        QApplication::processEvents();
    }
    if (list->top() != row)
        throw std::runtime_error("the list is not where it was scrolled to");
}

} // namespace

BENCHMARK(frame<OwnList>)->Name("widget")->Arg(1)->Arg(pageRows)->Unit(benchmark::kMillisecond);
BENCHMARK(frame<TableView>)->Name("QTableView")->Arg(1)->Arg(pageRows)->Unit(benchmark::kMillisecond);

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

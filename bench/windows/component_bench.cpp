// What the component costs a host in C++ that calls it early bound, beside the system's own list on the same
// rows.
//
// Prints a table for docs/performance.md: medians of three runs, in milliseconds of the wall clock. With an
// argument it measures the component alone, in those rows of the table whose names contain the argument: for
// profiles. With --results and a kind of data it goes through all once, beside the system's list in both its
// ways, for scripts/bench-peers.
#include "hosted_list.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <exception>
#include <functional>
#include <iterator>
#include <vector>

#include <commctrl.h>
#include <windows.h>

namespace {

using namespace lumtex::bench;

/// What each list can do; times are taken around these calls.
class List {
  public:
    virtual ~List() = default;
    /// Until the next call of `show` nothing is painted.
    virtual void hold() = 0;
    virtual void show() = 0;
    virtual void add(const Row& row) = 0;
    virtual void removeFirst() = 0;
    virtual void select(int row) = 0;
    virtual void removeSelected() = 0;
    /// Makes it the first row that is seen, and paints.
    virtual void scrollTo(int row) = 0;
    virtual void paint() = 0;
    virtual int count() = 0;
};

class Component final : public List {
  public:
    Component(HWND parent, int columns) : list_(parent, columns) {}
    void hold() override { list_.hold(); }
    void show() override { list_.show(); }
    void add(const Row& row) override { list_.add(row); }
    void removeFirst() override {
        VARIANT first = number(1);
        list_->RowsRemove(&first);
    }
    void select(int row) override {
        list_->put_MultiSelect(VARIANT_TRUE);
        list_->put_RowSelected(number(row + 1), VARIANT_TRUE);
    }
    void removeSelected() override { list_->RowsSelectedRemove(); }
    void scrollTo(int row) override {
        list_->put_TopIndex(row);
        paint();
    }
    void paint() override {
        UpdateWindow(list_.container());
        GdiFlush();
    }
    int count() override { return list_.count(); }

  private:
    HostedList list_;
};

// What both kinds of the system's list have in common.

void addColumns(HWND list, int columns) {
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    for (int place = 0; place < columns; ++place) {
        LVCOLUMNW column{};
        column.mask = LVCF_WIDTH | LVCF_TEXT;
        column.cx = widths[place % std::size(widths)];
        column.pszText = const_cast<wchar_t*>(L"Column");
        SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&column));
    }
}

void paintList(HWND list) {
    UpdateWindow(list);
    GdiFlush();
}

void scrollListTo(HWND list, int row) {
    const auto top = static_cast<int>(SendMessageW(list, LVM_GETTOPINDEX, 0, 0));
    RECT one{};
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(top), reinterpret_cast<LPARAM>(&one));
    SendMessageW(list, LVM_SCROLL, 0, static_cast<LPARAM>(row - top) * (one.bottom - one.top));
    paintList(list);
}

/// The system's list, which keeps a copy of each text.
class SystemList final : public List {
  public:
    SystemList(HWND parent, int columns)
        : list_(window(WC_LISTVIEWW, WS_CHILD | LVS_REPORT | LVS_SHOWSELALWAYS, parent)) {
        addColumns(list_, columns);
    }
    ~SystemList() override { DestroyWindow(list_); }
    void hold() override { SendMessageW(list_, WM_SETREDRAW, FALSE, 0); }
    void show() override { SendMessageW(list_, WM_SETREDRAW, TRUE, 0); }
    void add(const Row& row) override {
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = count();
        for (const std::wstring& cell : row.cells) {
            item.pszText = const_cast<wchar_t*>(cell.c_str());
            if (item.iSubItem == 0)
                SendMessageW(list_, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
            else
                SendMessageW(list_,
                             LVM_SETITEMTEXTW,
                             static_cast<WPARAM>(item.iItem),
                             reinterpret_cast<LPARAM>(&item));
            ++item.iSubItem;
        }
    }
    void removeFirst() override { SendMessageW(list_, LVM_DELETEITEM, 0, 0); }
    void select(int row) override {
        LVITEMW item{};
        item.state = item.stateMask = LVIS_SELECTED;
        SendMessageW(list_, LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    }
    void removeSelected() override {
        for (LRESULT row;
             (row = SendMessageW(list_, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)) >= 0;)
            SendMessageW(list_, LVM_DELETEITEM, static_cast<WPARAM>(row), 0);
    }
    void scrollTo(int row) override { scrollListTo(list_, row); }
    void paint() override { paintList(list_); }
    int count() override { return static_cast<int>(SendMessageW(list_, LVM_GETITEMCOUNT, 0, 0)); }

  private:
    HWND list_;
};

/// The system's list over texts that the host keeps, which it asks for as it paints.
class VirtualList final : public List {
  public:
    VirtualList(HWND parent, int columns)
        : list_(window(WC_LISTVIEWW, WS_CHILD | LVS_REPORT | LVS_SHOWSELALWAYS | LVS_OWNERDATA, parent)),
          parent_(parent) {
        SetWindowSubclass(parent, answer, 1, reinterpret_cast<DWORD_PTR>(this));
        addColumns(list_, columns);
    }
    ~VirtualList() override {
        RemoveWindowSubclass(parent_, answer, 1);
        DestroyWindow(list_);
    }
    void hold() override { shown_ = false; }
    void show() override {
        shown_ = true;
        tellCount();
    }
    void add(const Row& row) override {
        rows_.push_back(row.cells);
        if (shown_)
            tellCount();
    }
    void removeFirst() override {
        rows_.erase(rows_.begin());
        tellCount();
    }
    void select(int row) override { selected_.push_back(row); }
    void removeSelected() override {
        std::size_t next = 0;
        int row = 0;
        std::erase_if(rows_, [&](const Cells&) {
            const bool gone = next < selected_.size() && selected_[next] == row;
            next += gone ? 1 : 0;
            ++row;
            return gone;
        });
        selected_.clear();
        tellCount();
    }
    void scrollTo(int row) override { scrollListTo(list_, row); }
    void paint() override { paintList(list_); }
    int count() override { return static_cast<int>(rows_.size()); }

  private:
    void tellCount() {
        SendMessageW(list_, LVM_SETITEMCOUNT, rows_.size(), LVSICF_NOINVALIDATEALL | LVSICF_NOSCROLL);
    }
    static LRESULT CALLBACK
    answer(HWND parent, UINT message, WPARAM first, LPARAM second, UINT_PTR, DWORD_PTR list) {
        const auto* notice = reinterpret_cast<const NMHDR*>(second);
        if (message != WM_NOTIFY || notice->code != LVN_GETDISPINFOW)
            return DefSubclassProc(parent, message, first, second);
        LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(second)->item;
        auto& rows = reinterpret_cast<VirtualList*>(list)->rows_;
        if ((item.mask & LVIF_TEXT) != 0)
            item.pszText =
                rows[static_cast<std::size_t>(item.iItem)][static_cast<std::size_t>(item.iSubItem)].data();
        return 0;
    }

    HWND list_;
    HWND parent_;
    std::vector<Cells> rows_;
    std::vector<int> selected_;
    bool shown_ = false;
};

using Clock = std::chrono::steady_clock;

double timeOf(const std::function<void()>& work) {
    const auto began = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - began).count();
}

struct Measure {
    const char* name;
    int rows; ///< that the list holds before
    double (*run)(List& list, const std::vector<Row>& rows);
    int rowsAfter;
};

constexpr int loaded = 100000;
constexpr int removals = 1000;
constexpr int steps = 100;

const Measure measures[] = {
    {"load 100,000 rows, nothing painted",
     0,
     [](List& list, const std::vector<Row>& rows) {
         return timeOf([&] {
             for (int row = 0; row < loaded; ++row)
                 list.add(rows[static_cast<std::size_t>(row)]);
         });
     },
     loaded},
    {"remove the first of 10,000 rows",
     10000,
     [](List& list, const std::vector<Row>&) { return timeOf([&] { list.removeFirst(); }); },
     9999},
    {"remove 1,000 selected of 25,000 rows",
     25000,
     [](List& list, const std::vector<Row>&) {
         for (int row = 0; row < removals; ++row)
             list.select(row * 25);
         list.scrollTo(0); // selecting scrolls, and a list keeps its top when rows go
         return timeOf([&] { list.removeSelected(); });
     },
     25000 - removals},
    {"scroll by a page and repaint, one of 100",
     25000,
     [](List& list, const std::vector<Row>&) {
         list.show();
         list.scrollTo(0);
         return timeOf([&] {
                    for (int step = 1; step <= steps; ++step)
                        list.scrollTo(step * 39);
                }) /
                steps;
     },
     25000},
    {"1,000 appends, each painted",
     0,
     [](List& list, const std::vector<Row>& rows) {
         list.show();
         return timeOf([&] {
             for (int row = 0; row < removals; ++row) {
                 list.add(rows[static_cast<std::size_t>(row)]);
                 list.paint();
             }
         });
     },
     removals},
};

template <class Kind>
double timeOnce(const Measure& measure, HWND parent, const std::vector<Row>& rows) {
    Kind list(parent, static_cast<int>(rows.front().cells.size()));
    list.hold();
    for (int row = 0; row < measure.rows; ++row)
        list.add(rows[static_cast<std::size_t>(row)]);
    dispatchWhatWaits();
    const double time = measure.run(list, rows);
    must(list.count() == measure.rowsAfter, measure.name);
    return time;
}

template <class Kind>
double medianOf(const Measure& measure, HWND parent, const std::vector<Row>& rows) {
    constexpr int runs = 3;
    std::vector<double> times;
    for (int run = 0; run < runs; ++run)
        times.push_back(timeOnce<Kind>(measure, parent, rows));
    std::sort(times.begin(), times.end());
    return times[runs / 2];
}

void printTable(const char* only, HWND parent, const std::vector<Row>& rows) {
    std::puts("| milliseconds | component | system's list |\n|---|--:|--:|");
    for (const Measure& measure : measures) {
        if (only != nullptr && std::strstr(measure.name, only) == nullptr)
            continue;
        const double own = medianOf<Component>(measure, parent, rows);
        if (only != nullptr)
            std::printf("| %s | %.3g | |\n", measure.name, own);
        else
            std::printf(
                "| %s | %.3g | %.3g |\n", measure.name, own, medianOf<SystemList>(measure, parent, rows));
        std::fflush(stdout);
    }
}

/// One turn of each measure: its name, the rows, the list, milliseconds, and 1 for the right result.
void printResults(HWND parent, const std::vector<Row>& rows) {
    for (const Measure& measure : measures) {
        const auto print = [&](const char* list, double time) {
            std::printf(
                "%s\t%d\t%s\t%.4g\t1\n", measure.name, std::max(measure.rows, measure.rowsAfter), list, time);
            std::fflush(stdout);
        };
        print("the component", timeOnce<Component>(measure, parent, rows));
        print("system's list, storing", timeOnce<SystemList>(measure, parent, rows));
        print("system's list, virtual", timeOnce<VirtualList>(measure, parent, rows));
    }
}

void run(const char* what, const char* data) {
    const INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    startContainers();
    HWND parent = window(L"STATIC", WS_POPUP | WS_CLIPCHILDREN, nullptr);
    const std::vector<Row> rows = rowsOf(loaded, sampleDataNamed(data));
    if (what != nullptr && std::strcmp(what, "--results") == 0)
        printResults(parent, rows);
    else
        printTable(what, parent, rows);
    DestroyWindow(parent);
}

} // namespace

int main(int count, char** arguments) {
    if (FAILED(OleInitialize(nullptr)))
        return 1;
    int status = 0;
    try {
        run(count > 1 ? arguments[1] : nullptr, count > 2 ? arguments[2] : nameOf(SampleData::usual));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        status = 1;
    }
    OleUninitialize();
    return status;
}

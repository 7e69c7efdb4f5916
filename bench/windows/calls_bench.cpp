// What single calls of the component cost a host, early and late bound, and how much of that is the host's
// own: the making and freeing of texts, and a call that does nothing.
//
// Prints medians and the best of the runs in milliseconds of the wall clock. With an argument only the rows
// of the table whose names contain it: for profiles.
#include "hosted_list.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <exception>
#include <vector>

#include <windows.h>

namespace {

using namespace lumtex::bench;
using namespace LumtexListView;

constexpr int loaded = 100000;
constexpr int searches = 10000;

void mustSucceed(HRESULT result, const char* what) {
    must(SUCCEEDED(result), what);
}

/// Members with the parameters of the component's, which give what a caller needs to go on.
struct Silent {
    virtual HRESULT STDMETHODCALLTYPE RowsAdd(VARIANT*, BSTR, BSTR) { return S_OK; }
    virtual HRESULT STDMETHODCALLTYPE get_ItemText(VARIANT, VARIANT, BSTR* result) {
        *result = SysAllocStringLen(L"usual text", 10);
        return S_OK;
    }
    virtual HRESULT STDMETHODCALLTYPE put_ItemText(VARIANT, VARIANT, BSTR) { return S_OK; }
};

/// Known to no compiler as what it is.
Silent* volatile silent = new Silent;

/// What a measure works with. The list holds the rows, unless the measure fills it.
struct Work {
    HostedList& list;
    const std::vector<Row>& rows;
};

template <class Target>
void fill(Target& target, const std::vector<Row>& rows) {
    const Text separator(L"|");
    for (const Row& row : rows) {
        VARIANT atTheEnd = number(-1);
        target.RowsAdd(&atTheEnd, separator, Text(row.whole));
    }
}

template <class Target>
void readAll(Target& target, const std::vector<Row>& rows) {
    for (long row = 1; row <= static_cast<long>(rows.size()); ++row)
        for (long column = 1; column <= columns; ++column) {
            BSTR text = nullptr;
            target.get_ItemText(number(row), number(column), &text);
            must(SysStringLen(text) != 0, "a text is missing");
            SysFreeString(text);
        }
}

template <class Target>
void writeAll(Target& target, const std::vector<Row>& rows) {
    for (long row = 1; row <= static_cast<long>(rows.size()); ++row)
        for (long column = 1; column <= columns; ++column)
            target.put_ItemText(
                number(row),
                number(column),
                Text(rows[static_cast<std::size_t>(row - 1)].cells[static_cast<std::size_t>(column - 1)]));
}

/// A call as scripts make it: the name is looked up each time. `arguments` stand in reverse order.
void late(
    IDispatch& object, const wchar_t* name, WORD kind, std::vector<VARIANT> arguments, VARIANT* result) {
    DISPID id = 0;
    auto* called = const_cast<wchar_t*>(name);
    mustSucceed(object.GetIDsOfNames(IID_NULL, &called, 1, LOCALE_USER_DEFAULT, &id), "no such name");
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    mustSucceed(object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, result, nullptr, nullptr),
                "a late call failed");
}

VARIANT leftOut() {
    VARIANT value;
    value.vt = VT_ERROR;
    value.scode = DISP_E_PARAMNOTFOUND;
    return value;
}

bool finds(_lmListView& list, const wchar_t* pattern) {
    const Text text(pattern);
    const Text all(L"*");
    BSTR what = text;
    BSTR everyColumn = all;
    BSTR everyRow = all;
    cFindBegin begin = cFindStart;
    cFindCompare compare = cFindBinary;
    FindResults found{};
    mustSucceed(list.FindItem(&what, &begin, &compare, &everyColumn, &everyRow, &found), "no search");
    return found.FindSuccessful != VARIANT_FALSE;
}

void sort(_lmListView& list, long column, cSortType type) {
    cSortMode mode = cAscending;
    mustSucceed(list.Sort(&column, &mode, &type), "no sort");
}

struct Measure {
    const char* name;
    bool fills;
    void (*run)(const Work& work);
};

const Measure measures[] = {
    {"load 100,000 rows: the host's own part", false, [](const Work& work) { fill(*silent, work.rows); }},
    {"load 100,000 rows, early bound", true, [](const Work& work) { fill(work.list.list(), work.rows); }},
    {"load 100,000 rows, late bound",
     true,
     [](const Work& work) {
         const Text separator(L"|");
         for (const Row& row : work.rows) {
             const Text text(row.whole);
             late(work.list.list(), L"RowsAdd", DISPATCH_METHOD, {text, separator, leftOut()}, nullptr);
         }
     }},
    {"read 500,000 cells: the host's own part", false, [](const Work& work) { readAll(*silent, work.rows); }},
    {"read 500,000 cells", false, [](const Work& work) { readAll(work.list.list(), work.rows); }},
    {"read 500,000 cells, late bound",
     false,
     [](const Work& work) {
         for (long row = 1; row <= static_cast<long>(work.rows.size()); ++row)
             for (long column = 1; column <= columns; ++column) {
                 VARIANT text;
                 late(work.list.list(),
                      L"ItemText",
                      DISPATCH_PROPERTYGET,
                      {number(column), number(row)},
                      &text);
                 must(text.vt == VT_BSTR, "no text");
                 SysFreeString(text.bstrVal);
             }
     }},
    {"write 500,000 cells: the host's own part",
     false,
     [](const Work& work) { writeAll(*silent, work.rows); }},
    {"write 500,000 cells", false, [](const Work& work) { writeAll(work.list.list(), work.rows); }},
    {"ask 500,000 times for RowsCount, late bound",
     false,
     [](const Work& work) {
         for (int i = 0; i < 5 * loaded; ++i) {
             VARIANT count;
             late(work.list.list(), L"RowsCount", DISPATCH_PROPERTYGET, {}, &count);
             must(count.lVal == loaded, "a wrong count");
         }
     }},
    {"search 10,000 times, found in the first row",
     false,
     [](const Work& work) {
         for (int i = 0; i < searches; ++i)
             must(finds(work.list.list(), L"1"), "nothing found");
     }},
    {"search 500,000 cells for nothing",
     false,
     [](const Work& work) { must(!finds(work.list.list(), L"*QQQ*"), "something found"); }},
    {"sort 100,000 names", false, [](const Work& work) { sort(work.list.list(), 2, cSortText); }},
    {"sort 100,000 numbers", false, [](const Work& work) { sort(work.list.list(), 4, cSortNumeric); }},
    {"sort 100,000 dates", false, [](const Work& work) { sort(work.list.list(), 5, cSortDate); }},
};

double timeOnce(const Measure& measure, HWND parent, const std::vector<Row>& rows) {
    HostedList list(parent);
    if (!measure.fills)
        for (const Row& row : rows)
            list.add(row);
    dispatchWhatWaits();
    const auto began = std::chrono::steady_clock::now();
    measure.run({list, rows});
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - began;
    must(list.count() == loaded, measure.name);
    return time.count();
}

void run(const char* only) {
    startContainers();
    HWND parent = window(L"STATIC", WS_POPUP | WS_CLIPCHILDREN, nullptr);
    const std::vector<Row> rows = rowsOf(loaded);
    std::puts("| milliseconds | median | best |\n|---|--:|--:|");
    for (const Measure& measure : measures) {
        if (only != nullptr && std::strstr(measure.name, only) == nullptr)
            continue;
        constexpr int runs = 5;
        std::vector<double> times;
        for (int turn = 0; turn < runs; ++turn)
            times.push_back(timeOnce(measure, parent, rows));
        std::sort(times.begin(), times.end());
        std::printf("| %s | %.3g | %.3g |\n", measure.name, times[runs / 2], times.front());
        std::fflush(stdout);
    }
    DestroyWindow(parent);
}

} // namespace

int main(int count, char** arguments) {
    if (FAILED(OleInitialize(nullptr)))
        return 1;
    int status = 0;
    try {
        run(count > 1 ? arguments[1] : nullptr);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        status = 1;
    }
    OleUninitialize();
    return status;
}

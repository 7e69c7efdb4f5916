#include "hosted_list.h"

#include <iterator>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace lumtex::bench {

namespace {

constexpr int width = 1280;
constexpr int height = 800;

} // namespace

std::vector<Row> rowsOf(int count, SampleData data) {
    std::vector<Row> rows;
    for (const std::string& text : sampleRows(count, data)) {
        Row row{std::wstring(text.begin(), text.end()), {}};
        std::wistringstream pieces(row.whole);
        for (std::wstring cell; std::getline(pieces, cell, L'|');)
            row.cells.push_back(cell);
        rows.push_back(std::move(row));
    }
    return rows;
}

void must(bool done, const char* what) {
    if (!done)
        throw std::runtime_error(what);
}

VARIANT number(long value) {
    VARIANT result;
    result.vt = VT_I4;
    result.lVal = value;
    return result;
}

HWND window(const wchar_t* className, DWORD style, HWND parent) {
    HWND made = CreateWindowExW(
        0, className, L"", style | WS_VISIBLE, 0, 0, width, height, parent, nullptr, nullptr, nullptr);
    must(made != nullptr, "a window could not be made");
    return made;
}

void startContainers() {
    const auto start = reinterpret_cast<BOOL(WINAPI*)()>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(L"atl.dll"), "AtlAxWinInit")));
    must(start != nullptr && start() != FALSE, "atl.dll is not there");
}

HostedList::HostedList(HWND parent, int columnsWanted)
    : container_(window(L"AtlAxWin", WS_CHILD | WS_CLIPCHILDREN, parent)) {
    using namespace LumtexListView;
    const HMODULE library = LoadLibraryW(L"LumtexListView.ocx");
    must(library != nullptr, "LumtexListView.ocx must lie beside this program");
    const auto getClass = reinterpret_cast<HRESULT(WINAPI*)(REFCLSID, REFIID, void**)>(
        reinterpret_cast<void*>(GetProcAddress(library, "DllGetClassObject")));
    const auto attach = reinterpret_cast<HRESULT(WINAPI*)(IUnknown*, HWND, IUnknown**)>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryW(L"atl.dll"), "AtlAxAttachControl")));
    void* factory = nullptr;
    must(SUCCEEDED(getClass(CLSID_lmListView, IID_IClassFactory, &factory)), "no class factory");
    void* made = nullptr;
    const HRESULT result =
        static_cast<IClassFactory*>(factory)->CreateInstance(nullptr, IID__lmListView, &made);
    static_cast<IClassFactory*>(factory)->Release();
    must(SUCCEEDED(result), "no control");
    list_ = static_cast<_lmListView*>(made);
    must(attach != nullptr && SUCCEEDED(attach(list_, container_, nullptr)),
         "the container takes no control");
    hold();
    list_->put_RowsDynamic(VARIANT_FALSE);
    for (int column = 0; column < columnsWanted; ++column)
        list_->ColumnsAdd(Text(L"Column"),
                          nullptr,
                          nullptr,
                          nullptr,
                          cColumnLeft,
                          static_cast<float>(widths[column % std::size(widths)] * 15),
                          VARIANT_TRUE,
                          0,
                          Text(L""),
                          Text(L""),
                          0,
                          0);
}

HostedList::~HostedList() {
    list_->Release();
    DestroyWindow(container_);
}

void HostedList::hold() {
    list_->put_AutoRedraw(VARIANT_FALSE);
    list_->put_AutoCheckScroll(VARIANT_FALSE);
}

void HostedList::show() {
    list_->put_AutoRedraw(VARIANT_TRUE);
    list_->put_AutoCheckScroll(VARIANT_TRUE);
}

void HostedList::add(const Row& row) {
    VARIANT atTheEnd = number(-1);
    list_->RowsAdd(&atTheEnd, separator_, Text(row.whole));
}

int HostedList::count() const {
    long rows = 0;
    list_->get_RowsCount(&rows);
    return static_cast<int>(rows);
}

void dispatchWhatWaits() {
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE;) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace lumtex::bench

/// \file
/// The component as a host in C++ has it: in a container, called early bound.
#pragma once

#include "LumtexListView.h"
#include "sample_rows.h"

#include <string>
#include <vector>

#include <windows.h>

namespace lumtex::bench {

using Cells = std::vector<std::wstring>;

/// The texts of one row, and all of them in one.
struct Row {
    std::wstring whole; ///< "|" between the texts
    Cells cells;
};

constexpr int columns = 5; ///< of the usual rows

/// Of rows with more columns the first five.
std::vector<Row> rowsOf(int count, SampleData data = SampleData::usual);

/// Throws std::runtime_error.
void must(bool done, const char* what);

/// A text for the length of a call.
class Text {
  public:
    explicit Text(const std::wstring& text)
        : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {}
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;
    ~Text() { SysFreeString(text_); }
    operator BSTR() const { return text_; }
    operator VARIANT() const {
        VARIANT value;
        value.vt = VT_BSTR;
        value.bstrVal = text_;
        return value;
    }

  private:
    BSTR text_;
};

VARIANT number(long value);

/// Of 1280 x 800 pixels.
HWND window(const wchar_t* className, DWORD style, HWND parent);

/// Readies the system's container for controls.
void startContainers();

/// In pixels; further columns begin with the first width again.
constexpr int widths[] = {70, 200, 160, 120, 110};

/// A list that paints nothing until it is told to. The component lies beside the program.
class HostedList {
  public:
    explicit HostedList(HWND parent, int columnsWanted = columns);
    HostedList(const HostedList&) = delete;
    HostedList& operator=(const HostedList&) = delete;
    ~HostedList();

    LumtexListView::_lmListView* operator->() const { return list_; }
    LumtexListView::_lmListView& list() const { return *list_; }
    HWND container() const { return container_; }

    /// Until the next call of `show` nothing is painted.
    void hold();
    void show();
    void add(const Row& row);
    int count() const;

  private:
    HWND container_;
    LumtexListView::_lmListView* list_ = nullptr;
    Text separator_{L"|"};
};

/// Hosts call from their message loops, when nothing else waits there.
void dispatchWhatWaits();

} // namespace lumtex::bench

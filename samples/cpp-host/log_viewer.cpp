// A viewer of log files that follows a file while it grows, a million lines of it or more.
//
//   log_viewer FILE
//
// The view stays at the end as long as it is there, and keeps its place once you scroll up. A last line
// without an end is shown and grows; a file that was cut short, as logs are when they begin anew, is read
// from its start. In this folder, with one compiler or another:
//
// clang-format off
//   x86_64-w64-mingw32-g++ -std=c++17 -mwindows -static -I../../include log_viewer.cpp -o log_viewer.exe -lole32 -loleaut32 -luuid
//   cl /std:c++17 /EHsc /I..\..\include log_viewer.cpp /link /subsystem:windows user32.lib shell32.lib ole32.lib oleaut32.lib uuid.lib
//   clang-cl /std:c++17 /EHsc /I..\..\include log_viewer.cpp /link /subsystem:windows user32.lib shell32.lib ole32.lib oleaut32.lib uuid.lib
// clang-format on
#include "program.h"

#include <algorithm>
#include <memory>

namespace {

using namespace LumtexListView;

constexpr float twipsPerPixel = 15;
constexpr long rowPixels = 18;
constexpr long headerPixels = 22;
constexpr long textColumn = 2;
constexpr DWORD bytesAtOnce = 1 << 18; // few enough that the window answers between two reads
constexpr UINT atOnce = 1;             // milliseconds; the system makes ten of them
constexpr UINT nextLook = 200;
constexpr wchar_t separator = 0x1F; // stands in no line

struct Close {
    void operator()(void* handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, Close>;

/// For reading, while others write it, rename it and delete it. None where there is no such file.
Handle opened(const std::wstring& path) {
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr);
    return Handle(file == INVALID_HANDLE_VALUE ? nullptr : file);
}

long long sizeOf(const Handle& file) {
    LARGE_INTEGER size{};
    GetFileSizeEx(file.get(), &size);
    return size.QuadPart;
}

/// What stands behind the place, as far as it is read at once.
std::string read(const Handle& file, long long place) {
    LARGE_INTEGER from;
    from.QuadPart = place;
    SetFilePointerEx(file.get(), from, nullptr, FILE_BEGIN);
    std::string bytes(bytesAtOnce, '\0');
    DWORD count = 0;
    ReadFile(file.get(), bytes.data(), bytesAtOnce, &count, nullptr);
    bytes.resize(count);
    return bytes;
}

/// Without what a cell would draw as boxes.
std::wstring shown(const std::string& line) {
    std::wstring text = program::shown(program::fromUtf8(line));
    if (!text.empty() && text.back() == L'\r')
        text.pop_back();
    std::replace(text.begin(), text.end(), L'\t', L' ');
    return text;
}

class LogViewer : public program::ListWindow {
  public:
    explicit LogViewer(std::wstring path) : ListWindow(L"Log", 660, 360), path_(std::move(path)) {
        list.letRowsDynamic(false); // rows of one height, so that their number alone says what is in view
        list.letRowHeight(rowPixels * twipsPerPixel);
        list.ColumnsAdd(L"Line", nullptr, nullptr, nullptr, cColumnRight, 70 * twipsPerPixel);
        list.ColumnsAdd(L"Text", nullptr, nullptr, nullptr, cColumnLeft, 550 * twipsPerPixel);
        list.letAutoCheckScroll(false); // once for each batch is enough
        tickEvery(atOnce);
    }

  private:
    /// Reads what came since the last look. The next look comes at once while there is more to read.
    void tick() override {
        const Handle file = opened(path_); // anew: it may have taken the place of another
        if (file == nullptr) {
            letTitle(L"Waiting for " + path_);
            tickEvery(nextLook);
            return;
        }
        const long long size = sizeOf(file);
        const bool wasCutShort = size < place_;
        if (wasCutShort || size > place_)
            takeIn(file, wasCutShort);
        tickEvery(place_ < size ? atOnce : nextLook);
    }

    void takeIn(const Handle& file, bool fromTheStart) {
        const bool follows = fromTheStart || isAtEnd();
        list.letAutoRedraw(false);
        if (fromTheStart) {
            list.RowsClear();
            rows_ = 0;
            place_ = 0;
            open_.clear();
        }
        const std::string bytes = read(file, place_);
        place_ += static_cast<long long>(bytes.size());
        addLines(bytes);
        list.CheckScroll(); // the bar reaches as far as the rows now
        if (follows)
            list.letTopIndex(rows_ - rowsInView());
        list.letAutoRedraw(true); // paints
        letTitle(path_ + L": " + std::to_wstring(rows_) + L" lines");
    }

    /// The last line may have no end yet. It has a row all the same, which the next batch writes anew.
    void addLines(const std::string& bytes) {
        for (std::size_t begin = 0; begin < bytes.size();) {
            const std::size_t end = bytes.find('\n', begin);
            const bool goesOn = !open_.empty();
            open_ += bytes.substr(begin, end - begin);
            showLine(goesOn);
            if (end == std::string::npos)
                return;
            open_.clear();
            begin = end + 1;
        }
    }

    void showLine(bool goesOn) {
        const std::wstring text = shown(open_);
        if (goesOn) {
            list.letItemText(rows_, textColumn, text);
        } else {
            list.RowsAdd(-1, std::wstring(1, separator), std::to_wstring(++rows_) + separator + text);
            list.letItemAlignment(rows_, 1, cItemRight); // a column aligns its header alone
        }
        if (text.find(L"ERROR") != std::wstring::npos)
            list.letItemForeColor(rows_, textColumn, RGB(0xB0, 0x00, 0x20));
    }

    long rowsInView() const { return (height() - headerPixels) / rowPixels; }
    bool isAtEnd() const { return list.TopIndex() + rowsInView() >= rows_; }

    std::wstring path_;
    long rows_ = 0;
    long long place_ = 0; // in bytes
    std::string open_;    // what was read of a line without an end
};

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return program::run("Log", [] {
        const std::vector<std::wstring> words = program::words();
        if (words.size() != 1)
            throw std::runtime_error("usage: log_viewer FILE");
        LogViewer(words[0]).show();
    });
}

// A browser of folders: icons, headers that sort, keys, and a place to come back to.
//
//   file_browser [FOLDER]
//
// Enter or a double click opens a folder or a file, Backspace goes up. In this folder, with one compiler or
// another:
//
// clang-format off
//   x86_64-w64-mingw32-g++ -std=c++17 -mwindows -static -I../../include file_browser.cpp -o file_browser.exe -lole32 -loleaut32 -luuid
//   cl /std:c++17 /EHsc /I..\..\include file_browser.cpp /link /subsystem:windows user32.lib shell32.lib ole32.lib oleaut32.lib uuid.lib
//   clang-cl /std:c++17 /EHsc /I..\..\include file_browser.cpp /link /subsystem:windows user32.lib shell32.lib ole32.lib oleaut32.lib uuid.lib
// clang-format on
#include "program.h"

#include <algorithm>
#include <cwchar>
#include <memory>

namespace {

using namespace LumtexListView;

enum Columns : long { nameColumn = 1, sizeColumn, changedColumn };

constexpr float twipsPerPixel = 15;
constexpr wchar_t separator = 0x1F; // stands in no name

struct File {
    std::wstring name;
    bool isFolder;
    unsigned long long size; // bytes
    unsigned long long changed;
};

/// None where the folder cannot be read.
std::vector<File> filesIn(const std::wstring& folder) {
    std::vector<File> files;
    WIN32_FIND_DATAW found;
    HANDLE handle = FindFirstFileW((folder + L"\\*").c_str(), &found);
    if (handle == INVALID_HANDLE_VALUE)
        return files;
    const std::unique_ptr<void, decltype(&FindClose)> search(handle, FindClose);
    const auto both = [](DWORD high, DWORD low) { return static_cast<unsigned long long>(high) << 32 | low; };
    do {
        const std::wstring name = found.cFileName;
        if (name != L"." && name != L"..")
            files.push_back(
                {name,
                 (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                 both(found.nFileSizeHigh, found.nFileSizeLow),
                 both(found.ftLastWriteTime.dwHighDateTime, found.ftLastWriteTime.dwLowDateTime)});
    } while (FindNextFileW(handle, &found) != FALSE);
    return files;
}

/// In the time of this place.
std::wstring dateOf(const File& file) {
    const FILETIME changed{static_cast<DWORD>(file.changed), static_cast<DWORD>(file.changed >> 32)};
    SYSTEMTIME world;
    SYSTEMTIME here;
    FileTimeToSystemTime(&changed, &world);
    SystemTimeToTzSpecificLocalTime(nullptr, &world, &here);
    wchar_t text[32];
    std::swprintf(
        text, 32, L"%04d-%02d-%02d %02d:%02d", here.wYear, here.wMonth, here.wDay, here.wHour, here.wMinute);
    return text;
}

/// The icon that the system has for all files, or folders.
Ref<IPictureDisp> iconOf(DWORD attributes) {
    SHFILEINFOW info{};
    SHGetFileInfoW(
        L"any", attributes, &info, sizeof(info), SHGFI_ICON | SHGFI_SMALLICON | SHGFI_USEFILEATTRIBUTES);
    PICTDESC description{};
    description.cbSizeofstruct = sizeof(description);
    description.picType = PICTYPE_ICON;
    description.icon.hicon = info.hIcon;
    Ref<IPictureDisp> icon;
    demand(OleCreatePictureIndirect(&description, IID_IPictureDisp, TRUE, icon.anyPlace()), "icon");
    return icon;
}

class FileBrowser : public program::ListWindow {
  public:
    explicit FileBrowser(const std::wstring& folder) : ListWindow(L"Files", 580, 340) {
        list.letRowsDynamic(false); // rows of one height
        list.letRowHeight(20 * twipsPerPixel);
        list.ColumnsAdd(L"Name", nullptr, nullptr, nullptr, cColumnLeft, 280 * twipsPerPixel);
        list.ColumnsAdd(L"Size", nullptr, nullptr, nullptr, cColumnRight, 100 * twipsPerPixel);
        list.ColumnsAdd(L"Changed", nullptr, nullptr, nullptr, cColumnLeft, 150 * twipsPerPixel);
        open(folder);
    }

  private:
    // Each of these changes the rows, and so waits until the list is through with its event.

    void ItemDblClick(long Row, long) override {
        later([this, Row] { openRow(Row); });
    }
    void KeyDown(short& KeyCode, short&) override {
        if (KeyCode == VK_BACK)
            later([this] { openParent(); });
        else if (KeyCode == VK_RETURN)
            later([this] { openRow(list.ListIndex() + 1); }); // ListIndex counts from 0
    }
    /// A second click on a header turns the order. The list could sort too, but not keep folders in front.
    void ColumnClick(long& Column) override {
        later([this, Column] {
            isDescending_ = Column == order_ && !isDescending_;
            order_ = Column;
            open(folder_);
        });
    }

    /// The row of a name is the current one then.
    void open(const std::wstring& folder, const std::wstring& current = {}) {
        folder_ = folder;
        std::vector<File> files = filesIn(folder);
        sort(files);
        list.letAutoRedraw(false); // nothing is painted on the way
        list.letAutoCheckScroll(false);
        list.RowsClear();
        for (const File& file : files)
            add(file);
        list.letListIndex(-1); // it keeps its number when the rows go
        list.letTopIndex(0);
        list.letAutoCheckScroll(true);
        list.CheckScroll();
        list.letAutoRedraw(true);
        for (long row = 1; row <= list.RowsCount(); ++row)
            if (list.ItemTag(row, nameColumn).toText() == current)
                goTo(row);
        letTitle(folder + L": " + std::to_wstring(files.size()) + L" entries");
    }

    void goTo(long row) {
        list.letListIndex(row - 1); // where the keys go on
        list.letRowSelected(row, true);
    }

    void sort(std::vector<File>& files) const {
        std::sort(files.begin(), files.end(), [this](const File& one, const File& other) {
            if (one.isFolder != other.isFolder)
                return one.isFolder;
            const File& first = isDescending_ ? other : one;
            const File& second = isDescending_ ? one : other;
            if (order_ == sizeColumn && first.size != second.size)
                return first.size < second.size;
            if (order_ == changedColumn && first.changed != second.changed)
                return first.changed < second.changed;
            return lstrcmpiW(first.name.c_str(), second.name.c_str()) < 0;
        });
    }

    void add(const File& file) {
        const std::wstring size = file.isFolder ? L"" : std::to_wstring(file.size);
        list.RowsAdd(-1,
                     std::wstring(1, separator),
                     program::shown(file.name) + separator + size + separator + dateOf(file));
        const long row = list.NewIndex() + 1;
        list.letItemTag(row, nameColumn, file.name); // the name itself
        list.setItemIcon(row, nameColumn, file.isFolder ? folderIcon_ : fileIcon_);
        list.letItemAlignment(row, sizeColumn, cItemRight); // a column aligns its header alone
    }

    void openRow(long row) {
        if (row < 1 || row > list.RowsCount())
            return;
        const std::wstring path = folder_ + L'\\' + list.ItemTag(row, nameColumn).toText();
        const DWORD attributes = GetFileAttributesW(path.c_str());
        if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
            open(path);
        else
            ShellExecuteW(nullptr, nullptr, path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    }

    void openParent() {
        const std::size_t end = folder_.rfind(L'\\');
        if (end != std::wstring::npos)
            open(folder_.substr(0, end), folder_.substr(end + 1));
    }

    std::wstring folder_;
    long order_ = nameColumn;
    bool isDescending_ = false;
    Ref<IPictureDisp> folderIcon_ = iconOf(FILE_ATTRIBUTE_DIRECTORY);
    Ref<IPictureDisp> fileIcon_ = iconOf(FILE_ATTRIBUTE_NORMAL);
};

/// Whole, and without a \ at its end.
std::wstring folderAsked() {
    const std::vector<std::wstring> words = program::words();
    wchar_t path[MAX_PATH];
    GetFullPathNameW(words.empty() ? L"." : words[0].c_str(), MAX_PATH, path, nullptr);
    std::wstring folder = path;
    while (!folder.empty() && folder.back() == L'\\')
        folder.pop_back();
    return folder;
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return program::run("Files", [] { FileBrowser(folderAsked()).show(); });
}

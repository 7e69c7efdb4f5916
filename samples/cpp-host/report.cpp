// A report printed into pictures, page by page, without a window.
//
//   report SALES.csv PICTURES
//
// Each line of the table is "region;product;amount", in UTF-8. The pages are PICTURES-1.bmp, PICTURES-2.bmp
// and so on; a printer takes them in the same way, as IViewObject draws into any device context. In this
// folder, with one compiler or another:
//
// clang-format off
//   x86_64-w64-mingw32-g++ -std=c++17 -mwindows -static -I../../include report.cpp -o report.exe -lole32 -loleaut32 -luuid
//   cl /std:c++17 /EHsc /I..\..\include report.cpp /link /subsystem:windows user32.lib shell32.lib gdi32.lib ole32.lib oleaut32.lib uuid.lib
//   clang-cl /std:c++17 /EHsc /I..\..\include report.cpp /link /subsystem:windows user32.lib shell32.lib gdi32.lib ole32.lib oleaut32.lib uuid.lib
// clang-format on
#include "program.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

namespace {

using namespace LumtexListView;

enum Columns : long { regionColumn = 1, productColumn, amountColumn };

constexpr long pageWidth = 794; // pixels: A4 at 96 to the inch
constexpr long pageHeight = 1123;
constexpr long rowHeight = 22;
constexpr float twipsPerPixel = 15;
constexpr std::size_t rowsPerPage = 50;
constexpr OLE_COLOR paperColor = RGB(255, 255, 255);
constexpr OLE_COLOR gridColor = RGB(208, 208, 208);
constexpr OLE_COLOR sumColor = RGB(220, 240, 228);

struct Row {
    std::string region;
    std::string product;
    long amount = 0;
    bool isSum = false;
};

std::vector<Row> readSales(std::istream& file) {
    std::vector<Row> sales;
    for (std::string line; std::getline(file, line);) {
        std::istringstream cells(line);
        Row row;
        std::string amount;
        std::getline(cells, row.region, ';');
        std::getline(cells, row.product, ';');
        std::getline(cells, amount);
        row.amount = std::strtol(amount.c_str(), nullptr, 10);
        sales.push_back(row);
    }
    return sales;
}

/// Region by region, each with its sum, and the sum of all at the end.
std::vector<Row> withSums(const std::vector<Row>& sales) {
    std::map<std::string, std::vector<Row>> regions;
    for (const Row& sale : sales)
        regions[sale.region].push_back(sale);
    std::vector<Row> report;
    long all = 0;
    for (const auto& [region, rows] : regions) {
        long sum = 0;
        for (const Row& row : rows) {
            report.push_back(row);
            sum += row.amount;
        }
        report.push_back({region, "Sum", sum, true});
        all += sum;
    }
    report.push_back({"All regions", "Sum", all, true});
    return report;
}

/// A picture of a page, to be drawn on.
class Page {
  public:
    Page() {
        info_.biSize = sizeof(info_);
        info_.biWidth = pageWidth;
        info_.biHeight = pageHeight;
        info_.biPlanes = 1;
        info_.biBitCount = 32;
        info_.biSizeImage = pageWidth * pageHeight * 4;
        bitmap_ = CreateDIBSection(
            dc_, reinterpret_cast<const BITMAPINFO*>(&info_), DIB_RGB_COLORS, &pixels_, nullptr, 0);
        if (bitmap_ == nullptr)
            throw std::bad_alloc();
        before_ = SelectObject(dc_, bitmap_);
    }
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;
    ~Page() {
        SelectObject(dc_, before_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }

    void draw(const lmListView& list) const {
        Ref<IViewObject> view;
        demand(list.face()->QueryInterface(IID_IViewObject, view.anyPlace()), "IViewObject");
        const RECTL all{0, 0, pageWidth, pageHeight};
        demand(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc_, &all, nullptr, nullptr, 0),
               "Draw");
    }
    void save(const std::filesystem::path& path) const {
        GdiFlush();
        BITMAPFILEHEADER head{};
        head.bfType = 0x4D42; // "BM"
        head.bfOffBits = sizeof(head) + sizeof(info_);
        head.bfSize = head.bfOffBits + info_.biSizeImage;
        std::ofstream file(path, std::ios::binary);
        file.write(reinterpret_cast<const char*>(&head), sizeof(head));
        file.write(reinterpret_cast<const char*>(&info_), sizeof(info_));
        file.write(static_cast<const char*>(pixels_), static_cast<std::streamsize>(info_.biSizeImage));
        if (!file)
            throw std::runtime_error("A page cannot be written.");
    }

  private:
    HDC dc_ = CreateCompatibleDC(nullptr);
    BITMAPINFOHEADER info_{};
    void* pixels_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ before_ = nullptr;
};

void prepare(lmListView& list) {
    constexpr long himetricPerInch = 2540;
    constexpr long pixelsPerInch = 96;
    Ref<IOleObject> object;
    demand(list.face()->QueryInterface(IID_IOleObject, object.anyPlace()), "IOleObject");
    SIZEL size{pageWidth * himetricPerInch / pixelsPerInch, pageHeight * himetricPerInch / pixelsPerInch};
    demand(object->SetExtent(DVASPECT_CONTENT, &size), "SetExtent");
    list.letBackColor(paperColor);
    list.letGridLines(true);
    list.letGridLineColor(gridColor);
    list.letRowsDynamic(false);
    list.letRowHeight(rowHeight * twipsPerPixel);
    list.ColumnsAdd(L"Region", nullptr, nullptr, nullptr, cColumnLeft, 260 * twipsPerPixel);
    list.ColumnsAdd(L"Product", nullptr, nullptr, nullptr, cColumnLeft, 350 * twipsPerPixel);
    list.ColumnsAdd(L"Amount", nullptr, nullptr, nullptr, cColumnRight, 182 * twipsPerPixel);
}

void add(lmListView& list, const Row& row) {
    const std::string cells = row.region + ';' + row.product + ';' + std::to_string(row.amount);
    list.RowsAdd(-1, L";", program::shown(program::fromUtf8(cells)));
    const long number = list.RowsCount();
    list.letItemAlignment(number, amountColumn, cItemRight); // a column aligns its header alone
    for (long column = regionColumn; row.isSum && column <= amountColumn; ++column) {
        list.letItemFontBold(number, column, true);
        list.letItemBackColor(number, column, sumColor);
    }
}

void print(const std::vector<Row>& report, const std::wstring& pictures) {
    Error::make().letSilentError(true); // nobody may be there to close a box
    lmListView list = lmListView::make();
    prepare(list);
    const Page page;
    int pages = 0;
    for (std::size_t first = 0; first < report.size(); first += rowsPerPage) {
        list.letAutoRedraw(false);
        list.RowsClear();
        for (std::size_t i = first; i < first + rowsPerPage && i < report.size(); ++i)
            add(list, report[i]);
        list.letAutoRedraw(true);
        page.draw(list);
        page.save(pictures + L'-' + std::to_wstring(++pages) + L".bmp");
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    return program::run("Report", [] {
        const std::vector<std::wstring> words = program::words();
        if (words.size() != 2)
            throw std::runtime_error("usage: report SALES.csv PICTURES");
        std::ifstream file{std::filesystem::path(words[0])};
        if (!file)
            throw std::runtime_error("There is no such table.");
        print(withSums(readSales(file)), words[1]);
    });
}

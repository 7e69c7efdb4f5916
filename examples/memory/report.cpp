// A report printed into pictures, page by page, on a desktop in memory: no screen is needed.
//
//   report SALES.csv PICTURES
//
// Each line of the table is "region;product;amount". The pages are PICTURES-1.png, PICTURES-2.png and so on.
#include "adapters/pictures/image_file.h"
#include "model/list_view.h"
#include "values/text.h"
#include "worlds/headless/desktop.h"

#include <charconv>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <vector>

using namespace lumtex;

namespace {

enum Columns { regionColumn = 1, productColumn, amountColumn };

constexpr Long pageWidth = 595; // pixels: A4 at 72 to the inch
constexpr Long pageHeight = 842;
constexpr Long rowHeight = 20;
constexpr Long twipsPerPixel = 15;
constexpr std::size_t rowsPerPage = 40;
constexpr Long paperColor = 0xFFFFFF; // 0xBBGGRR
constexpr Long sumColor = 0xE4F0DC;

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
        std::from_chars(amount.data(), amount.data() + amount.size(), row.amount);
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

void prepare(lmListView& list) {
    list.UserControl_ReadProperties(MemoryPropertyBag{}); // no saved settings
    list.window().place(0, 0, pageWidth, pageHeight);
    list.letBackColor(paperColor);
    list.letGridLines(true);
    list.letGridLineColor(0xD0D0D0);
    list.letRowsDynamic(false);
    list.letRowHeight(rowHeight * twipsPerPixel);
    list.ColumnsAdd(u"Region", nullptr, nullptr, nullptr, cColumnLeft, 200 * twipsPerPixel);
    list.ColumnsAdd(u"Product", nullptr, nullptr, nullptr, cColumnLeft, 250 * twipsPerPixel);
    list.ColumnsAdd(u"Amount", nullptr, nullptr, nullptr, cColumnRight, 143 * twipsPerPixel);
}

/// As a cell shows it: one & marks the letter behind it, two of them stand for one.
std::string shown(const std::string& text) {
    std::string result;
    for (const char c : text)
        result.append(c == '&' ? 2 : 1, c);
    return result;
}

void add(lmListView& list, const Row& row) {
    const std::string cells = row.region + ';' + row.product + ';' + std::to_string(row.amount);
    list.RowsAdd(-1, u";", fromUtf8(shown(cells)));
    const Long number = list.RowsCount();
    list.letItemAlignment(number, amountColumn, cItemRight); // a column aligns its header alone
    for (Long column = regionColumn; row.isSum && column <= amountColumn; ++column) {
        list.letItemFontBold(number, column, true);
        list.letItemBackColor(number, column, sumColor);
    }
}

} // namespace

int main(int argc, char** argv) {
    std::ifstream file(argc == 3 ? argv[1] : "");
    if (!file) {
        std::cerr << (argc == 3 ? "There is no such table.\n" : "usage: report SALES.csv PICTURES\n");
        return 1;
    }
    const std::vector<Row> report = withSums(readSales(file));

    headless::Desktop desktop;
    desktop.runtime().boxesTo = &std::cerr; // what fails is told here
    Host host;
    lmListViewEvents events;
    lmListView list(desktop, host, events);
    prepare(list);
    std::size_t pages = 0;
    for (std::size_t first = 0; first < report.size(); first += rowsPerPage) {
        list.letAutoRedraw(false);
        list.RowsClear();
        for (std::size_t i = first; i < std::min(first + rowsPerPage, report.size()); ++i)
            add(list, report[i]);
        list.letAutoRedraw(true);
        const std::string name = argv[2] + ("-" + std::to_string(++pages)) + ".png";
        pictures::savePng(desktop.screenshot(list.window()), name);
    }
    std::cout << "Pages: " << pages << '\n';
}

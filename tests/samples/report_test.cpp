/// The sample in C++ that prints pages into pictures.
#include "samples/told_program.h"

#include <cstring>

namespace lumtex::testing {
namespace {

constexpr std::uint32_t white = 0xFFFFFF; // 0xRRGGBB
constexpr std::uint32_t sumColor = 0xDCF0E4;

/// The pixels of a picture of 32 bits each, the lowest line first.
struct PagePixels {
    LONG width = 0;
    LONG height = 0;
    std::vector<std::uint32_t> colors;

    explicit PagePixels(const std::string& bytes) {
        BITMAPINFOHEADER info{};
        if (bytes.size() < sizeof(BITMAPFILEHEADER) + sizeof(info) || bytes[0] != 'B' || bytes[1] != 'M')
            return;
        std::memcpy(&info, bytes.data() + sizeof(BITMAPFILEHEADER), sizeof(info));
        width = info.biWidth;
        height = info.biHeight;
        const std::size_t start = sizeof(BITMAPFILEHEADER) + sizeof(info);
        colors.resize((bytes.size() - start) / 4);
        std::memcpy(colors.data(), bytes.data() + start, colors.size() * 4);
    }
    /// From the upper left.
    std::uint32_t at(LONG x, LONG y) const {
        const std::size_t place = static_cast<std::size_t>((height - 1 - y) * width + x);
        return place < colors.size() ? colors[place] & 0xFFFFFF : 0;
    }
};

class ReportSample : public ProgramSample {
  protected:
    ReportSample() : ProgramSample("report") {
        copyProgram();
        copyComponent();
    }
    std::wstring words() const {
        return L'"' + (folder.path / "sales.csv").wstring() + L"\" \"" + (folder.path / "page").wstring() +
               L'"';
    }
    PagePixels page(int number) const {
        return PagePixels(folder.contentOf("page-" + std::to_string(number) + ".bmp"));
    }
};

TEST_F(ReportSample, PrintsFiftyRowsAPageWithASumOfEachRegion) {
    std::string sales = "South;Pears & plums;80\n";
    for (int i = 1; i <= 60; ++i)
        sales += "North;Product " + std::to_string(i) + ";" + std::to_string(i) + "\n";
    folder.write("sales.csv", sales);
    const ToldProgram running(program().wstring(), words());
    ASSERT_EQ(running.exitCode(), 0U);

    const PagePixels first = page(1);
    EXPECT_EQ(first.width, 794);
    EXPECT_EQ(first.height, 1123);
    ASSERT_EQ(first.colors.size(), 794U * 1123U);
    EXPECT_EQ(std::ranges::count(first.colors, sumColor), 0) << "60 rows come before the first sum";
    EXPECT_GT(std::ranges::count(first.colors, 0U), 1000) << "letters";
    // 64 rows with the sums: sixty of the north, its sum, one of the south, its sum, all.
    const PagePixels second = page(2);
    ASSERT_EQ(second.colors.size(), first.colors.size());
    const auto rowMiddle = [](LONG row) { return 24 + (row - 1) * 22 + 11; };
    std::string sums;
    for (LONG row = 1; row <= 15; ++row)
        sums += second.at(240, rowMiddle(row)) == sumColor ? 'S'
                : second.at(240, rowMiddle(row)) == white  ? '.'
                                                           : '?';
    EXPECT_EQ(sums, "..........S.SS.");
    EXPECT_EQ(folder.contentOf("page-3.bmp"), "missing");
}

TEST_F(ReportSample, TellsThatATableIsMissing) {
    const ToldProgram running(program().wstring(), words());
    HWND box = running.window(L"#32770");
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(wholeTitle(box), L"Report");
    PostMessageW(box, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(running.exitCode(), 1U);
}

} // namespace
} // namespace lumtex::testing

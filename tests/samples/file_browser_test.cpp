/// The sample in C++ that walks through folders.
#include "samples/told_program.h"

namespace lumtex::testing {
namespace {

// Rows are 20 pixels high, below a header of as many.
constexpr LONG headerMiddle = 10;
constexpr LONG firstRow = 32;
constexpr LONG secondRow = 52;

class FileBrowserSample : public ProgramSample {
  protected:
    FileBrowserSample() : ProgramSample("file_browser") {
        copyProgram();
        copyComponent();
        std::filesystem::create_directories(shown / "zoo");
        std::filesystem::create_directories(shown / "attic");
        folder.write("shown/attic/lamp.txt", "lamp");
        folder.write("shown/b & c.txt", "text");
    }

    std::wstring words() const { return L'"' + shown.wstring() + L'"'; }
    /// What the title says of a folder with so many entries.
    static std::wstring title(const std::filesystem::path& of, int entries) {
        return of.wstring() + L": " + std::to_wstring(entries) + L" entries";
    }

    const std::filesystem::path shown = folder.path / "shown";
};

TEST_F(FileBrowserSample, OpensAFolderByADoubleClickAndComesBackToIt) {
    ProgramInUse used(program(), words(), L"Files");
    EXPECT_EQ(used.title(), title(shown, 3));
    const auto says = [&](const std::filesystem::path& of, int entries) {
        return used.title() == title(of, entries);
    };

    EXPECT_TRUE(
        repeatUntil([&] { used.user.doubleClick(60, secondRow); }, [&] { return says(shown / "zoo", 0); }));
    used.user.press(VK_BACK);
    EXPECT_TRUE(until([&] { return says(shown, 3); }));
    // Where it came from is the current row, so that the one above it is the other folder.
    used.user.press(VK_UP);
    used.user.press(VK_RETURN);
    EXPECT_TRUE(until([&] { return says(shown / "attic", 1); }));
    used.user.press(VK_BACK);
    EXPECT_TRUE(until([&] { return says(shown, 3); }));

    EXPECT_EQ(used.close(), 0U);
}

TEST_F(FileBrowserSample, TurnsTheOrderByASecondClickAndKeepsFoldersInFront) {
    ProgramInUse used(program(), words(), L"Files");
    // In the first order the first row is the folder with an entry.
    EXPECT_TRUE(repeatUntil(
        [&] {
            if (used.title() != title(shown, 3))
                used.user.press(VK_BACK); // out of the folder of the last try
            used.user.click(60, headerMiddle);
            used.user.doubleClick(60, firstRow);
        },
        [&] { return used.title() == title(shown / "zoo", 0); }));
    EXPECT_EQ(used.close(), 0U);
}

TEST_F(FileBrowserSample, ShowsTheIconOfTheSystemsFolders) {
    ProgramInUse used(program(), words(), L"Files");
    // Wine's and Windows' folders are many-coloured; letters have shades between black and white alone.
    EXPECT_TRUE(until([&] {
        for (LONG x = 2; x < 18; ++x) {
            const COLORREF color = used.user.color(x, firstRow);
            if (GetRValue(color) != GetBValue(color))
                return true;
        }
        return false;
    }));
}

} // namespace
} // namespace lumtex::testing

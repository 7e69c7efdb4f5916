#include "picture_check.h"

#include "adapters/pictures/image_file.h"
#include "folders.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <string_view>
#include <system_error>

namespace lumtex::testing {

namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t opaque = 0xFF000000U;
constexpr std::uint32_t marked = 0xFFFF0000U;  // a pixel that differs
constexpr std::uint32_t outside = 0xFF808080U; // beside the pictures
constexpr Long gap = 4;                        // pixels between the pictures

/// "*" stands for any characters, everything else for itself.
bool matches(std::string_view filter, std::string_view name) {
    if (filter.empty())
        return name.empty();
    if (filter.front() == '*')
        return matches(filter.substr(1), name) || (!name.empty() && matches(filter, name.substr(1)));
    return !name.empty() && filter.front() == name.front() && matches(filter.substr(1), name.substr(1));
}

void paste(Bitmap& board, const Bitmap& picture, Long left) {
    for (Long y = 0; y < picture.height; ++y) {
        for (Long x = 0; x < picture.width; ++x)
            board.at(left + x, y) = picture.at(x, y);
    }
}

/// What is equal, pale; what is not, red.
Bitmap difference(const Bitmap& a, const Bitmap& b) {
    Bitmap marks(std::max(a.width, b.width), std::max(a.height, b.height), marked);
    for (Long y = 0; y < std::min(a.height, b.height); ++y) {
        for (Long x = 0; x < std::min(a.width, b.width); ++x) {
            if (a.at(x, y) == b.at(x, y))
                marks.at(x, y) = opaque | (((a.at(x, y) >> 2U) & 0x3F3F3FU) + 0xC0C0C0U);
        }
    }
    return marks;
}

Bitmap sideBySide(const Bitmap& actual, const Bitmap& expected) {
    const Bitmap marks = difference(actual, expected);
    Bitmap board(actual.width + expected.width + marks.width + 2 * gap, marks.height, outside);
    paste(board, actual, 0);
    paste(board, expected, actual.width + gap);
    paste(board, marks, actual.width + expected.width + 2 * gap);
    return board;
}

void save(const Bitmap& bitmap, const fs::path& file) {
    fs::create_directories(file.parent_path());
    pictures::savePng(bitmap, file);
}

std::string placeOf(const SourcePlace& where) {
    return std::string(where.file) + ":" + std::to_string(where.line);
}

/// The place that asked for `name` first.
const std::string& ownerOf(const std::string& name, const std::string& place) {
    static std::map<std::string, std::string> owners;
    return owners.try_emplace(name, place).first->second;
}

} // namespace

PictureFolders usualPictureFolders() {
    const fs::path source = sourceFolder();
    const char* accepted = std::getenv("LUMTEX_ACCEPT_PICTURES");
    return {source / "tests" / "golden", source / "out" / "golden", accepted == nullptr ? "" : accepted};
}

::testing::AssertionResult showsPicture(const std::string& name,
                                        const Bitmap& actual,
                                        const PictureFolders& folders,
                                        SourcePlace where) {
    const fs::path reference = folders.references / (name + ".png");
    const fs::path failure = folders.failures / (name + ".png");
    if (const std::string& owner = ownerOf(name, placeOf(where)); owner != placeOf(where))
        return ::testing::AssertionFailure() << "the picture " << name << " belongs to " << owner;
    if (std::any_of(actual.pixels.begin(), actual.pixels.end(), [](std::uint32_t p) { return p < opaque; }))
        return ::testing::AssertionFailure() << "the picture " << name << " is not opaque";

    if (!folders.accepted.empty() && matches(folders.accepted, name)) {
        save(actual, reference);
        return ::testing::AssertionFailure()
               << "accepted " << reference << "; look at it and run the tests again";
    }
    const std::string advice = "; to accept it: scripts/accept-pictures '" + name + "'";
    std::error_code unreadable;
    if (!fs::is_regular_file(reference, unreadable)) {
        save(actual, failure);
        return ::testing::AssertionFailure()
               << "there is no reference " << reference << "; the picture is in " << failure << advice;
    }
    const PictureRef expected = pictures::loadPicture(reference);
    if (expected->bitmap() == actual) {
        fs::remove(failure, unreadable);
        return ::testing::AssertionSuccess();
    }
    save(sideBySide(actual, expected->bitmap()), failure);
    return ::testing::AssertionFailure() << "the picture differs from " << reference
                                         << "; actual, expected and difference are in " << failure << advice;
}

} // namespace lumtex::testing

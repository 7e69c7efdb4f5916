#include "directory_source.h"

#include "icons.h"
#include "values/text.h"

#include <algorithm>
#include <chrono>
#include <tuple>

namespace lumtex::gallery {

namespace {

namespace fs = std::filesystem;

struct Entry {
    std::string name;
    std::string type;
    std::uintmax_t size = 0;
    Date changed;
    bool isFolder = false;
};

constexpr Double daysToUnixTime = 25569; // from 30 December 1899 to 1 January 1970
constexpr Double secondsPerDay = 86400;

std::string typeOf(const fs::path& path, bool isFolder) {
    if (isFolder)
        return "Folder";
    std::string extension = path.extension().string();
    if (extension.size() < 2)
        return "File";
    extension.erase(0, 1);
    std::transform(extension.begin(), extension.end(), extension.begin(), [](unsigned char c) {
        return static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c);
    });
    return extension + " file";
}

/// Whole minutes, so that the texts stay short.
Date changedAt(const fs::directory_entry& entry) {
    std::error_code failure;
    const auto time = entry.last_write_time(failure);
    if (failure)
        return {};
    const auto system = std::chrono::file_clock::to_sys(time);
    const auto minutes = std::chrono::floor<std::chrono::minutes>(system.time_since_epoch());
    return {daysToUnixTime + static_cast<Double>(minutes.count()) * 60 / secondsPerDay};
}

Entry entryOf(const fs::directory_entry& entry) {
    std::error_code failure;
    Entry result;
    result.name = entry.path().filename().string();
    result.isFolder = entry.is_directory(failure);
    result.type = typeOf(entry.path(), result.isFolder);
    if (!result.isFolder) {
        const std::uintmax_t size = entry.file_size(failure);
        result.size = failure ? 0 : size;
    }
    result.changed = changedAt(entry);
    return result;
}

} // namespace

void readDirectory(const fs::path& folder, ListBuilder& builder) {
    std::vector<Entry> entries;
    std::error_code failure;
    for (fs::directory_iterator it(folder, failure), end; !failure && it != end; it.increment(failure))
        entries.push_back(entryOf(*it));
    if (failure)
        throw Failure("cannot read " + folder.string() + ": " + failure.message());
    std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
        return std::tuple(!a.isFolder, a.name) < std::tuple(!b.isFolder, b.name);
    });
    builder.begin({u"Name", u"Size", u"Type", u"Changed"});
    for (const Entry& entry : entries) {
        String size;
        if (!entry.isFolder)
            size = textFromNumber(static_cast<Double>(entry.size));
        String changed = textFromDate(entry.changed);
        if (changed.size() > 16)
            changed.resize(16); // without the seconds
        builder.add({fromUtf8(entry.name), size, fromUtf8(entry.type), changed},
                    entry.isFolder ? folderIcon() : documentIcon());
    }
    builder.finish();
}

} // namespace lumtex::gallery

#include "guards/current_exe_path.h"

#include <algorithm>

namespace lumtex {

namespace {

constexpr std::size_t bufferSize = 255; // code units, the closing zero among them

} // namespace

String CurrentExePath(const Program& program, const Files& files) {
    const Long own = program.currentProcessId();
    const std::optional<std::vector<ProcessEntry>> processes = program.processes();
    if (!processes)
        return {};
    const auto found = std::find_if(
        processes->begin(), processes->end(), [own](const ProcessEntry& entry) { return entry.id == own; });
    if (found == processes->end())
        return {};
    const StringView fileName = StringView(found->fileName).substr(0, found->fileName.find(u'\0'));
    // Wanted: the entry's file name is completed from the current folder, wherever the program lies.
    String path = files.fullPathName(fileName);
    // One that does not fit leaves the buffer empty.
    return path.size() < bufferSize ? path : String();
}

} // namespace lumtex

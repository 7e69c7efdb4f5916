/// Writing to the files of the machine that the simulated desktop runs on.
#include "platform/headless/headless_runtime.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace lumtex {

namespace {

constexpr Long pathOrFileAccess = 75;

std::filesystem::path nativePath(StringView path) {
    std::string native = toUtf8(path);
    std::replace(
        native.begin(), native.end(), '\\', static_cast<char>(std::filesystem::path::preferred_separator));
    return native;
}

} // namespace

void HeadlessRuntime::appendToFile(StringView path, StringView text) {
    const std::filesystem::path file = nativePath(path);
    std::error_code failure;
    if (file.has_parent_path() && !std::filesystem::is_directory(file.parent_path(), failure))
        throw RuntimeError(pathNotFound);
    std::ofstream stream(file, std::ios::binary | std::ios::app);
    if (!stream)
        throw RuntimeError(pathOrFileAccess);
    stream << toUtf8(text);
    if (!stream.flush())
        throw RuntimeError(deviceError);
}

} // namespace lumtex

#include "helpers/file_exists.h"

namespace lumtex {

namespace {

constexpr Long invalidHandle = -1;

} // namespace

bool FileExists(Files& files, StringView sFile) {
    const Long handle = files.findFirstFile(sFile);
    // Wanted: the search is closed in every case, also the one that found nothing.
    files.findClose(handle);
    return handle != invalidHandle;
}

} // namespace lumtex

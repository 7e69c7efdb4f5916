#include "helpers/file_exists.h"

namespace lumtex {

namespace {

constexpr Long invalidHandle = -1;

} // namespace

bool FileExists(Runtime& runtime, StringView sFile) {
    const Long handle = runtime.findFirstFile(sFile);
    // Wanted: the search is closed in every case, also the one that found nothing.
    runtime.findClose(handle);
    return handle != invalidHandle;
}

} // namespace lumtex

#include "folders.h"

namespace lumtex::testing {

std::string sourceFolder() {
    return LUMTEX_SOURCE_FOLDER;
}

std::string testFolder() {
    return sourceFolder() + "/tests";
}

} // namespace lumtex::testing

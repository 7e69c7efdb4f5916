#include "hostcode/list_home.h"

#include "hostcode/headless_home.h"

namespace lumtex::testing {

std::unique_ptr<ListHome> makeListHome() {
    return std::make_unique<HeadlessHome>();
}

} // namespace lumtex::testing

#include "counted_path.h"

namespace lumtex::bench {

void countedPath(const std::function<void()>& work) {
    work();
}

} // namespace lumtex::bench

#include "values/thread_state.h"

namespace lumtex {

constinit thread_local ThreadState ThreadState::own;

} // namespace lumtex

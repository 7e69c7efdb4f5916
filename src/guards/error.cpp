#include "guards/error.h"

namespace lumtex {

SilentFlag& processSilentFlag() {
    static SilentFlag flag;
    return flag;
}

bool silentError() {
    return processSilentFlag().silent;
}

Error::Error(SilentFlag& flag) : flag_(flag) {
    Class_Initialize();
}

void Error::Class_Initialize() {
    if (flag_.initialised)
        return;
    flag_.silent = false;
    flag_.initialised = true;
}

} // namespace lumtex

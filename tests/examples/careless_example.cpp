/// \file
/// A user's program with what our own warnings refuse: it still builds, for they are no business of its
/// target.
#include "model/list_view.h"

int main(int count, char** arguments) {
    int unused;
    lumtex::Long shadowed = 1;
    { lumtex::Long shadowed = 2; }
    return 0;
}

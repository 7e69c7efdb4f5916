#include "program_user.h"
#include "programs.h"

#include <gtest/gtest.h>

namespace lumtex::testing {
namespace {

TEST(MinimalExample, ShowsItsRowsAndHearsOfAClick) {
    const int status = useProgram(minimal, {}, [](QWidget& window) {
        auto& list = dynamic_cast<LumtexListView&>(window);
        EXPECT_EQ(rowsOf(list), "Danube | Black Sea\nTagus | Atlantic Ocean\nVolga | Caspian Sea\n");
        clickCell(list, 2, 1);
        EXPECT_EQ(window.windowTitle().toStdString(), "Tagus flows into the Atlantic Ocean");
        expectPicture(window, "minimal");
    });
    EXPECT_EQ(status, 0);
}

} // namespace
} // namespace lumtex::testing

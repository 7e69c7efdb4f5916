#include "content/content_reader.h"
#include "error_number.h"
#include "scratch_folder.h"
#include "test_fonts.h"
#include "worlds/headless/desktop.h"

namespace lumtex::testing {
namespace {

/// A file of three numbers: 1, 2 and 3.
class Reading : public ::testing::Test {
  protected:
    Reading() {
        folder.write("list.cnt", {"\1\0\0\0\2\0\0\0\3\0\0\0", 12});
        reader.open(folder.pathTo("list.cnt"));
    }

    headless::Desktop desktop{testFonts()};
    ScratchFolder folder;
    content::ContentReader reader{desktop.runtime()};
};

TEST_F(Reading, GoesOnFromStatementToStatement) {
    EXPECT_EQ(reader.get<Long>(), 1);
    EXPECT_EQ(reader.remaining(), 8);
    reader.skip(4);
    EXPECT_EQ(reader.get<Long>(), 3);
    EXPECT_EQ(reader.remaining(), 0);
}

TEST_F(Reading, OfAClosedFileFindsNothingThoughItWasReadAhead) {
    EXPECT_EQ(reader.get<Long>(), 1);
    reader.close();
    EXPECT_EQ(reader.remaining(), 0);
    EXPECT_EQ(errorNumberOf([&] { reader.get<Long>(); }), 52);
}

TEST_F(Reading, PastTheEndStaysAtTheEnd) {
    reader.skip(10);
    EXPECT_EQ(errorNumberOf([&] { reader.get<Long>(); }), 62);
    EXPECT_EQ(reader.remaining(), 0) << "the two bytes are no number of their own";
    EXPECT_EQ(errorNumberOf([&] { reader.get<Byte>(); }), 62);
}

} // namespace
} // namespace lumtex::testing

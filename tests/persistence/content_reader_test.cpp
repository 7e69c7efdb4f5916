#include "content/content_reader.h"
#include "content_fixture.h"
#include "error_number.h"

namespace lumtex::testing {
namespace {

class Reading : public ListFixture {
  protected:
    Reading() {
        folder.write("list.cnt", ContentBytes().number(1).number(2).number(3));
        reader.open(folder.pathTo("list.cnt"));
    }

    ScratchFolder folder;
    ContentReader reader{desktop.runtime()};
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

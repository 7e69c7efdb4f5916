#include "fake_runtime.h"
#include "ordering/like_comp.h"
#include "values/text.h"

namespace lumtex::ordering {
namespace {

TEST(LikeComp, BinaryTellsCaseApartAndTextDoesNot) {
    FakeRuntime runtime;
    EXPECT_TRUE(LikeCompBinary(runtime, u"apple", u"a*"));
    EXPECT_FALSE(LikeCompBinary(runtime, u"apple", u"A*"));
    EXPECT_TRUE(LikeCompText(runtime, u"apple", u"A*"));
    EXPECT_FALSE(LikeCompText(runtime, u"apple", u"B*"));
}

TEST(LikeComp, AFaultyPatternIsReportedUnderTheModuleAndMatchesNothing) {
    FakeRuntime runtime;
    EXPECT_FALSE(LikeCompBinary(runtime, u"[", u"["));
    EXPECT_FALSE(LikeCompText(runtime, u"[", u"["));
    ASSERT_EQ(runtime.boxes.size(), 2U);
    const std::string binary = toUtf8(runtime.boxes[0].text);
    EXPECT_NE(binary.find("Error no.: 93\r\n"), std::string::npos) << binary;
    EXPECT_NE(binary.find("Module: Modul basCompareBinary\r\n"), std::string::npos) << binary;
    EXPECT_NE(binary.find("/LikeCompBinary\r\n"), std::string::npos) << binary;
    const std::string text = toUtf8(runtime.boxes[1].text);
    EXPECT_NE(text.find("Module: Modul basComparyText\r\n"), std::string::npos) << text;
    EXPECT_NE(text.find("/LikeCompText\r\n"), std::string::npos) << text;
}

} // namespace
} // namespace lumtex::ordering

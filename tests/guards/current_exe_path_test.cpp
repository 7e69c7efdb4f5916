#include "guards/current_exe_path.h"
#include "support/fake_runtime.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

class CurrentExePathTest : public ::testing::Test {
  protected:
    FakeRuntime runtime;
};

TEST_F(CurrentExePathTest, IsTheFileOfTheOwnProcessInTheCurrentFolder) {
    // Wanted: the entry's file name is completed from the current folder, wherever the program lies.
    EXPECT_EQ(CurrentExePath(runtime), u"C:\\Programs\\Host.exe");
    runtime.currentFolder = u"D:";
    EXPECT_EQ(CurrentExePath(runtime), u"D:\\Host.exe");
}

TEST_F(CurrentExePathTest, TheFileNameEndsAtTheFirstZero) {
    runtime.processList = {{77, String(u"Host.exe\0rest", 13)}};
    EXPECT_EQ(CurrentExePath(runtime), u"C:\\Programs\\Host.exe");
}

TEST_F(CurrentExePathTest, IsEmptyWhereProcessesCannotBeListed) {
    runtime.processList = std::nullopt;
    EXPECT_EQ(CurrentExePath(runtime), u"");
}

TEST_F(CurrentExePathTest, IsEmptyWhereTheWalkEndsFirst) {
    runtime.processList = {{4, u"System"}};
    EXPECT_EQ(CurrentExePath(runtime), u"");
    runtime.processList->clear();
    EXPECT_EQ(CurrentExePath(runtime), u"");
}

TEST_F(CurrentExePathTest, APathThatFitsTheBufferIsWholeAndALongerOneEmpty) {
    runtime.currentFolder = String(254 - 9, u'x');
    EXPECT_EQ(CurrentExePath(runtime).size(), 254U) << "the buffer of 255 has a closing zero";
    runtime.currentFolder += u'x';
    EXPECT_EQ(CurrentExePath(runtime), u"");
}

} // namespace
} // namespace lumtex

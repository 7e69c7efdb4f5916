#include "guards/current_exe_path.h"
#include "support/fake_runtime.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

class CurrentExePathTest : public ::testing::Test {
  protected:
    String path() const { return CurrentExePath(program, files); }

    FakeProgram program;
    FakeFiles files;
};

TEST_F(CurrentExePathTest, IsTheFileOfTheOwnProcessInTheCurrentFolder) {
    // Wanted: the entry's file name is completed from the current folder, wherever the program lies.
    EXPECT_EQ(path(), u"C:\\Programs\\Host.exe");
    files.currentFolder = u"D:";
    EXPECT_EQ(path(), u"D:\\Host.exe");
}

TEST_F(CurrentExePathTest, TheFileNameEndsAtTheFirstZero) {
    program.processList = {{77, String(u"Host.exe\0rest", 13)}};
    EXPECT_EQ(path(), u"C:\\Programs\\Host.exe");
}

TEST_F(CurrentExePathTest, IsEmptyWhereProcessesCannotBeListed) {
    program.processList = std::nullopt;
    EXPECT_EQ(path(), u"");
}

TEST_F(CurrentExePathTest, IsEmptyWhereTheWalkEndsFirst) {
    program.processList = {{4, u"System"}};
    EXPECT_EQ(path(), u"");
    program.processList->clear();
    EXPECT_EQ(path(), u"");
}

TEST_F(CurrentExePathTest, APathThatFitsTheBufferIsWholeAndALongerOneEmpty) {
    files.currentFolder = String(254 - 9, u'x');
    EXPECT_EQ(path().size(), 254U) << "the buffer of 255 has a closing zero";
    files.currentFolder += u'x';
    EXPECT_EQ(path(), u"");
}

} // namespace
} // namespace lumtex

#include "guards/error.h"

#include <gtest/gtest.h>

namespace lumtex {
namespace {

TEST(Error, TheProcessStartsWithReports) {
    const SilentFlag flag;
    EXPECT_FALSE(flag.silent);
    EXPECT_FALSE(flag.initialised);
}

TEST(Error, TheFirstObjectSetsTheFlagToFalse) {
    SilentFlag flag{.silent = true, .initialised = false};
    const Error first(flag);
    EXPECT_FALSE(first.SilentError());
    EXPECT_TRUE(flag.initialised);
}

TEST(Error, LaterObjectsLeaveTheFlagAlone) {
    SilentFlag flag;
    {
        Error first(flag);
        first.letSilentError(true);
    }
    const Error second(flag);
    EXPECT_TRUE(second.SilentError());
    EXPECT_TRUE(flag.silent);
}

TEST(Error, AllObjectsReadAndWriteOneFlag) {
    Error first;
    Error second;
    first.letSilentError(true);
    EXPECT_TRUE(second.SilentError());
    EXPECT_TRUE(silentError());
    second.letSilentError(false);
    EXPECT_FALSE(first.SilentError());
    EXPECT_FALSE(silentError());
}

} // namespace
} // namespace lumtex

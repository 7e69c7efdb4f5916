/// The fonts and colours of the software surface, for all tests of this program: whatever has drawn a text
/// keeps the font that it found.
#include "reference_fonts.h"
#include "worlds/win32/same_system_colors.h"

#include <memory>

#include <gtest/gtest.h>

namespace lumtex::testing {

namespace {

class SameLooks final : public ::testing::Environment {
  public:
    void SetUp() override {
        fonts_ = std::make_unique<ReferenceFonts>();
        colors_ = std::make_unique<SameSystemColors>();
    }
    void TearDown() override {
        colors_.reset();
        fonts_.reset();
    }

  private:
    std::unique_ptr<ReferenceFonts> fonts_;
    std::unique_ptr<SameSystemColors> colors_;
};

// The test program owns it from here on.
[[maybe_unused]] const auto* const sameLooks = ::testing::AddGlobalTestEnvironment(new SameLooks);

} // namespace
} // namespace lumtex::testing

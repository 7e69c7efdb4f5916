/// The application that all tests of this program run in. Its screens are in memory, and as the build
/// says.
#include <QApplication>
#include <cstdlib>
#include <memory>

#include <gtest/gtest.h>

namespace lumtex::testing {

namespace {

class Application final : public ::testing::Environment {
  public:
    void SetUp() override {
        setenv("QT_QPA_PLATFORM", LUMTEX_PLATFORM, 1);
        setenv("LC_ALL", "C", 1); // as on the simulated desktop
        setenv("QT_SCALE_FACTOR", LUMTEX_SCREEN_SCALE, 1);
        application_ = std::make_unique<QApplication>(count_, words_);
        QApplication::setQuitOnLastWindowClosed(false);
    }
    void TearDown() override { application_.reset(); }

  private:
    int count_ = 1;
    char name_[16] = "lumtex_test_qt";
    char* words_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> application_;
};

const auto* const application = ::testing::AddGlobalTestEnvironment(new Application);

} // namespace
} // namespace lumtex::testing

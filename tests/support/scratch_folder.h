/// \file
/// A folder of the machine for one test.
#pragma once

#include "values/text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include <gtest/gtest.h>

namespace lumtex::testing {

/// Empty at first, and gone with the object. Named after the test that makes it, and nobody else's: the same
/// test may run twice at once.
class ScratchFolder {
  public:
    ScratchFolder() {} // written out, so that Clang makes constant ones
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() {
        std::error_code failure;
        std::filesystem::remove_all(path, failure);
    }

    String pathTo(const std::string& name) const { return fromUtf8((path / name).string()); }
    /// The bytes of a file; "missing" where there is none.
    std::string contentOf(const std::string& name) const {
        std::ifstream stream(path / name, std::ios::binary);
        return stream ? std::string(std::istreambuf_iterator<char>(stream), {}) : "missing";
    }
    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(path / name, std::ios::binary) << bytes;
    }

    const std::filesystem::path path = make();

  private:
    /// One that did not exist: whoever makes a folder is told whether it was there.
    static std::filesystem::path make() {
        std::random_device random;
        for (;;) {
            std::filesystem::path made =
                std::filesystem::temp_directory_path() / (name() + "_" + std::to_string(random()));
            if (std::filesystem::create_directory(made))
                return made;
        }
    }
    /// Names of parameterised tests hold slashes. What a whole program shares may be made outside a test.
    static std::string name() {
        const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
        if (test == nullptr)
            return "lumtex";
        std::string name = std::string("lumtex_") + test->test_suite_name() + "_" + test->name();
        std::replace(name.begin(), name.end(), '/', '_');
        return name;
    }
};

} // namespace lumtex::testing

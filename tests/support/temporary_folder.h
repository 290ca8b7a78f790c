// A folder for the files of one test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace orbelle::testing {

// Empty and the test's own; taken away with everything in it when the object goes.
class TemporaryFolder {
public:
    TemporaryFolder() {
        const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
        path_ = std::filesystem::path(::testing::TempDir()) /
                (std::string("orbelle-") + test->test_suite_name() + "-" + test->name());
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::filesystem::path operator/(const std::filesystem::path& name) const {
        return path_ / name;
    }

private:
    std::filesystem::path path_;
};

}  // namespace orbelle::testing

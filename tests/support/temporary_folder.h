// A folder of a test's own, gone afterwards.
#pragma once

#include <filesystem>
#include <string>

#include "graphics/path_text.h"
#include "support/system.h"

namespace orbelle::testing {

class TemporaryFolder {
public:
    TemporaryFolder() : path_(MakeTemporaryFolder()) {}
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // The name in UTF-8, as all text.
    std::filesystem::path operator/(const std::string& name) const {
        return path_ / graphics::PathOfUtf8(name);
    }
    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

}  // namespace orbelle::testing

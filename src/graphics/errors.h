// The failures of reading and writing files.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace orbelle::graphics {

// what() is "PATH: what is wrong", fit to be shown to the user.
class FileError : public std::runtime_error {
public:
    FileError(const std::filesystem::path& path, const std::string& problem)
        : std::runtime_error(path.string() + ": " + problem) {}
};

}  // namespace orbelle::graphics

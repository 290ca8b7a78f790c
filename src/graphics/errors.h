// Failures that are told to the user.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

#include "graphics/path_text.h"

namespace orbelle {

// Something could not be done; what() says what is wrong, in words fit to be shown to the user.
// Running out of memory is not among these: it stays std::bad_alloc, and whoever catches both has
// words for it.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

namespace graphics {

// Of reading and writing files. what() is "PATH: what is wrong".
class FileError : public Error {
public:
    FileError(const std::filesystem::path& path, const std::string& problem)
        : Error(Utf8Of(path) + ": " + problem) {}
};

// A picture that can't be decoded or encoded.
class ImageError : public Error {
public:
    using Error::Error;
};

}  // namespace graphics
}  // namespace orbelle

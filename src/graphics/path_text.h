// Names of files as text. Everything that is not a system call has them in UTF-8, whatever the
// system itself keeps them in.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orbelle::graphics {

// Use these two wherever text becomes a path or a path becomes text: path's own constructor and
// string() go by the C locale on Windows. A literal is written u8"name".
//
// Where names are bytes they stay these bytes, also those that are no UTF-8; elsewhere what is
// wrong in the text becomes U+FFFD.
std::filesystem::path PathOfUtf8(std::string_view text);
std::string Utf8Of(const std::filesystem::path& path);

}  // namespace orbelle::graphics

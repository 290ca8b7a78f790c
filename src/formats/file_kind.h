// What kind of file is opened, imported or compared.
#pragma once

#include <filesystem>

namespace orbelle::formats {

enum class FileKind { Document, Icon, Picture };

// By the first bytes; a file that is none of these and is named as a document counts as one that is
// damaged. Throws graphics::FileError when it can't be read.
FileKind KindOfFile(const std::filesystem::path& path);

}  // namespace orbelle::formats

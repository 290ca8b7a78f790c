#include "formats/file_kind.h"

#include <algorithm>
#include <cctype>
#include <string>

#include "formats/icon_reader.h"
#include "formats/volf_reader.h"
#include "graphics/byte_source.h"
#include "graphics/codecs/image_files.h"
#include "graphics/path_text.h"

namespace orbelle::formats {
namespace {

bool IsNamedAsDocument(const std::filesystem::path& path) {
    std::string extension = graphics::Utf8Of(path.extension());
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char c) { return std::tolower(c); });
    return extension == ".volf";
}

}  // namespace

FileKind KindOfFile(const std::filesystem::path& path) {
    const graphics::FileSource file(path);
    FileKind kind = FileKind::Picture;
    if (IsIcon(file))
        kind = FileKind::Icon;
    else if (IsDocument(file) || (IsNamedAsDocument(path) && !graphics::IsPicture(file)))
        kind = FileKind::Document;
    file.RequireWasRead();
    return kind;
}

}  // namespace orbelle::formats

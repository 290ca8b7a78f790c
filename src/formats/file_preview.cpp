#include "formats/file_preview.h"

#include <algorithm>
#include <vector>

#include "document/compositor.h"
#include "filters/shrink_to_size.h"
#include "formats/export_image.h"
#include "formats/icon_reader.h"
#include "formats/volf_reader.h"
#include "graphics/byte_source.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"

namespace orbelle::formats {
namespace {

using graphics::Bitmap;
using graphics::FileError;

namespace fs = std::filesystem;

// By the first bytes, as for opening.
enum class Kind { Document, Icon, Picture };

Kind KindOf(const fs::path& path) {
    const graphics::FileSource file(path);
    Kind kind = Kind::Picture;
    if (IsDocument(file))
        kind = Kind::Document;
    else if (IsIcon(file))
        kind = Kind::Icon;
    file.RequireWasRead();
    return kind;
}

Bitmap PageOf(const fs::path& path) {
    LoadedDocument read = LoadDocument(path, kMaxPreviewPixels);
    if (!read.Damage.empty())
        throw Error(read.Damage);
    return DrawOnBackground(document::Flatten(std::move(read.Document.Master)),
                            read.Document.Background);
}

Bitmap LargestImageOf(const fs::path& path) {
    std::vector<IconEntryImage> images = ReadIconFile(path);
    const auto largest = std::ranges::max_element(images, {}, [](const IconEntryImage& image) {
        return std::int64_t{image.Image.Width()} * image.Image.Height();
    });
    if (largest->Image.IsEmpty())
        throw FileError(path, largest->Problem);
    return std::move(largest->Image);
}

Bitmap PictureOf(const fs::path& path, int side) {
    switch (KindOf(path)) {
        case Kind::Document:
            return PageOf(path);
        case Kind::Icon:
            return LargestImageOf(path);
        case Kind::Picture:
            break;
    }
    return graphics::LoadImageFromFile(path, {kMaxPreviewPixels}, side);
}

}  // namespace

Bitmap PreviewOfFile(const fs::path& path, int side) {
    std::error_code unknown;
    if (const auto bytes = fs::file_size(path, unknown); !unknown && bytes > kMaxPreviewBytes)
        throw FileError(path, "too large for a preview");
    return filters::ShrinkIntoBox(PictureOf(path, side), side, side);
}

}  // namespace orbelle::formats

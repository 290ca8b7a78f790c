#include "formats/file_preview.h"

#include <algorithm>
#include <vector>

#include "document/compositor.h"
#include "filters/shrink_to_size.h"
#include "formats/export_image.h"
#include "formats/file_kind.h"
#include "formats/icon_reader.h"
#include "formats/volf_reader.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"

namespace orbelle::formats {
namespace {

using graphics::Bitmap;
using graphics::FileError;

namespace fs = std::filesystem;

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
    switch (KindOfFile(path)) {
        case FileKind::Document:
            return PageOf(path);
        case FileKind::Icon:
            return LargestImageOf(path);
        case FileKind::Picture:
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

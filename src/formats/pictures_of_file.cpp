#include "formats/pictures_of_file.h"

#include <algorithm>
#include <string>
#include <utility>

#include "document/compositor.h"
#include "formats/export_image.h"
#include "formats/file_kind.h"
#include "formats/icon_reader.h"
#include "formats/volf_reader.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"

namespace orbelle::formats {
namespace {

using graphics::Bitmap;

namespace fs = std::filesystem;

std::vector<Bitmap> PagesOf(const fs::path& path) {
    const LoadedDocument read = LoadDocument(path);
    if (!read.Damage.empty())
        throw Error(read.Damage);
    std::vector<Bitmap> pages;
    const auto add = [&](const document::Page& page) {
        pages.push_back(DrawOnBackground(document::Flatten(page), read.Document.Background));
    };
    for (const document::SizePage& size : read.Document.Sizes)
        add(size.Artwork);
    add(read.Document.Master);
    return pages;
}

std::vector<Bitmap> ImagesOf(const fs::path& path) {
    std::vector<IconEntryImage> entries = ReadIconFile(path);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].IsBad())
            throw graphics::FileError(path,
                                      "image " + std::to_string(i) + ": " + entries[i].Problem);
    }
    std::ranges::stable_sort(entries, std::greater(), &IconEntryImage::Bits);
    std::vector<Bitmap> images;
    for (IconEntryImage& entry : entries) {
        const bool isKnown = std::ranges::any_of(images, [&](const Bitmap& image) {
            return image.Width() == entry.Width && image.Height() == entry.Height;
        });
        if (!isKnown)
            images.push_back(std::move(entry.Image));
    }
    return images;
}

std::vector<Bitmap> Load(const fs::path& path, int svgSide) {
    switch (KindOfFile(path)) {
        case FileKind::Document:
            return PagesOf(path);
        case FileKind::Icon:
            return ImagesOf(path);
        case FileKind::Picture:
            break;
    }
    return {graphics::LoadImageFromFile(path, {}, svgSide)};
}

}  // namespace

std::vector<Bitmap> PicturesOfFile(const fs::path& path, int svgSide) {
    std::vector<Bitmap> pictures = Load(path, svgSide);
    std::ranges::stable_sort(pictures, {}, [](const Bitmap& picture) {
        return std::max(picture.Width(), picture.Height());
    });
    return pictures;
}

}  // namespace orbelle::formats

#include "formats/icon_reader.h"

#include <algorithm>
#include <cstring>

#include "graphics/codecs/image_codecs.h"
#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "graphics/little_endian.h"
#include "graphics/rotate_flip.h"

namespace orbelle::formats {
namespace {

using Bytes = std::span<const std::uint8_t>;
using graphics::ImageError;
using graphics::NumberAt;

constexpr std::size_t kDirectoryBytes = 6;
constexpr std::size_t kEntryBytes = 16;
constexpr std::size_t kImageOffsetInEntry = 12;
constexpr std::size_t kBitmapHeaderBytes = 40;
constexpr int kMaxHiddenBitCount = 8;

Bytes From(Bytes bytes, std::size_t offset) {
    return bytes.subspan(std::min(offset, bytes.size()));
}

// Checks everything but takes no memory for pixels.
IconEntryImage ReadHeader(Bytes picture) {
    IconEntryImage entry;
    entry.Width = NumberAt<std::int32_t>(picture, 4);
    // Colours and mask are counted together.
    entry.Height = NumberAt<std::int32_t>(picture, 8) / 2;
    entry.BitCount = NumberAt<std::int16_t>(picture, 14);
    graphics::CheckDeclaredSize(entry.Width, entry.Height);
    const std::int64_t pixels = std::int64_t{entry.Width} * entry.Height;
    if (pixels > kMaxUnbackedPixels && picture.size() <= kBitmapHeaderBytes)
        throw ImageError("the pixels of a large image are missing");
    return entry;
}

void ReadPixels(Bytes picture, IconEntryImage& entry) {
    const Bytes there = From(picture, kBitmapHeaderBytes);
    entry.Image = graphics::Bitmap(entry.Width, entry.Height);
    const std::size_t whole = std::size_t{4} * entry.Width * entry.Height;
    if (!there.empty())
        std::memcpy(entry.Image.MutablePixels(), there.data(), std::min(whole, there.size()));
    ImageRotateFlip(entry.Image, graphics::RotateFlipType::RotateNoneFlipY);
}

}  // namespace

std::vector<IconEntryImage> DecodeIcon(Bytes bytes) {
    const auto reserved = NumberAt<std::uint16_t>(bytes, 0);
    const auto type = NumberAt<std::int16_t>(bytes, 2);
    const auto count = NumberAt<std::uint16_t>(bytes, 4);
    if (reserved != 0 || type < 0 || type > 1)
        throw ImageError("not a Windows icon");
    if (count == 0)
        throw ImageError("the icon holds no image");

    const auto pictureOf = [bytes](std::size_t entry) {
        const std::size_t place = kDirectoryBytes + entry * kEntryBytes + kImageOffsetInEntry;
        return From(bytes, NumberAt<std::uint32_t>(bytes, place));
    };
    std::vector<IconEntryImage> entries;
    std::int64_t allPixels = 0;
    for (std::size_t i = 0; i < count; ++i) {
        entries.push_back(ReadHeader(pictureOf(i)));
        allPixels += std::int64_t{entries[i].Width} * entries[i].Height;
        if (allPixels > graphics::kMaxBitmapPixels)
            throw ImageError("the images of the icon are too large together");
    }
    for (std::size_t i = 0; i < count; ++i)
        ReadPixels(pictureOf(i), entries[i]);
    return entries;
}

std::vector<IconEntryImage> ReadIconFile(const std::filesystem::path& path) {
    const std::vector<std::uint8_t> bytes = graphics::ReadFile(path);
    try {
        return DecodeIcon(bytes);
    } catch (const ImageError& error) {
        throw graphics::FileError(path, error.what());
    }
}

std::vector<IconEntryImage> OfferedEntries(std::vector<IconEntryImage> entries) {
    std::erase_if(entries,
                  [](const IconEntryImage& entry) { return entry.BitCount <= kMaxHiddenBitCount; });
    return entries;
}

}  // namespace orbelle::formats

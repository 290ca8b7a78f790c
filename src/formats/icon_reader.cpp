#include "formats/icon_reader.h"

#include <array>

#include "graphics/codecs/pixel_budget.h"
#include "graphics/errors.h"
#include "graphics/little_endian.h"

namespace orbelle::formats {
namespace {

using graphics::ByteSource;
using graphics::ImageError;
using graphics::NumberAt;

constexpr std::uint64_t kDirectoryBytes = 6;
constexpr std::uint64_t kEntryBytes = 16;
constexpr std::uint64_t kImageOffsetInEntry = 12;
constexpr std::uint64_t kBitmapHeaderBytes = 40;
constexpr int kMaxHiddenBitCount = 8;
constexpr int kIconType = 1;

// Checks everything but takes no memory for pixels. `place` is that of the picture.
IconEntryImage ReadHeader(const ByteSource& file, std::uint64_t place) {
    std::array<std::uint8_t, kBitmapHeaderBytes> header{};
    file.ReadAt(place, header);
    IconEntryImage entry;
    entry.Width = NumberAt<std::int32_t>(header, 4);
    // Colours and mask are counted together.
    entry.Height = NumberAt<std::int32_t>(header, 8) / 2;
    entry.BitCount = NumberAt<std::int16_t>(header, 14);
    graphics::CheckDeclaredSize(entry.Width, entry.Height);
    const std::int64_t pixels = std::int64_t{entry.Width} * entry.Height;
    if (pixels > kMaxUnbackedPixels && file.Size() <= place + kBitmapHeaderBytes)
        throw ImageError("the pixels of a large image are missing");
    return entry;
}

void ReadPixels(const ByteSource& file, std::uint64_t place, IconEntryImage& entry) {
    entry.Image = graphics::Bitmap(entry.Width, entry.Height);
    const std::size_t rowBytes = std::size_t{4} * static_cast<std::size_t>(entry.Width);
    place += kBitmapHeaderBytes;
    for (int y = entry.Height - 1; y >= 0 && place < file.Size(); --y, place += rowBytes)
        file.ReadAt(place, {reinterpret_cast<std::uint8_t*>(entry.Image.MutableRow(y)), rowBytes});
}

}  // namespace

bool IsIcon(const ByteSource& file) {
    return file.Size() >= kDirectoryBytes && file.NumberAt<std::uint16_t>(0) == 0 &&
           file.NumberAt<std::uint16_t>(2) == kIconType;
}

std::vector<IconEntryImage> DecodeIcon(const ByteSource& file) {
    const auto reserved = file.NumberAt<std::uint16_t>(0);
    const auto type = file.NumberAt<std::int16_t>(2);
    const auto count = file.NumberAt<std::uint16_t>(4);
    if (reserved != 0 || type < 0 || type > kIconType)
        throw ImageError("not a Windows icon");
    if (count == 0)
        throw ImageError("the icon holds no image");

    const auto placeOf = [&](std::uint64_t entry) {
        return std::uint64_t{file.NumberAt<std::uint32_t>(kDirectoryBytes + entry * kEntryBytes +
                                                          kImageOffsetInEntry)};
    };
    std::vector<IconEntryImage> entries;
    std::int64_t allPixels = 0;
    for (std::uint64_t i = 0; i < count; ++i) {
        entries.push_back(ReadHeader(file, placeOf(i)));
        allPixels += std::int64_t{entries[i].Width} * entries[i].Height;
        if (allPixels > graphics::kMaxBitmapPixels)
            throw ImageError("the images of the icon are too large together");
    }
    for (std::uint64_t i = 0; i < count; ++i)
        ReadPixels(file, placeOf(i), entries[i]);
    return entries;
}

std::vector<IconEntryImage> ReadIconFile(const std::filesystem::path& path) {
    const graphics::FileSource file(path);
    try {
        std::vector<IconEntryImage> entries = DecodeIcon(file);
        file.RequireWasRead();
        return entries;
    } catch (const ImageError& error) {
        file.RequireWasRead();
        throw graphics::FileError(path, error.what());
    }
}

std::vector<IconEntryImage> OfferedEntries(std::vector<IconEntryImage> entries) {
    std::erase_if(entries,
                  [](const IconEntryImage& entry) { return entry.BitCount <= kMaxHiddenBitCount; });
    return entries;
}

}  // namespace orbelle::formats

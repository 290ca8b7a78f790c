#include "formats/icon_file.h"

#include <stdexcept>
#include <string>

#include "graphics/codecs/image_files.h"
#include "graphics/errors.h"
#include "graphics/file_io.h"
#include "graphics/little_endian.h"

namespace orbelle::formats {
namespace {

using graphics::Append;
using graphics::Bitmap;
using Bytes = std::vector<std::uint8_t>;

constexpr std::uint16_t kIconType = 1;
constexpr std::uint16_t kPointerType = 2;
constexpr std::uint16_t kPlanes = 1;
constexpr std::uint16_t kBitCount = 32;
constexpr std::size_t kDirectoryBytes = 6;
constexpr std::size_t kEntryBytes = 16;
constexpr std::uint32_t kBitmapHeaderBytes = 40;
constexpr std::uint32_t kUncompressed = 0;
constexpr std::size_t kMaxEntries = 0xFFFF;

bool IsTooLarge(const Bitmap& picture) {
    return picture.Width() > kMaxIconSide || picture.Height() > kMaxIconSide;
}

// One bit a pixel from the left, set where nothing shows; the row is a multiple of 4 bytes.
Bytes MaskRow(const Bitmap& picture, int y) {
    const graphics::Argb* row = picture.Row(y);
    Bytes mask(static_cast<std::size_t>((picture.Width() + 31) / 32 * 4));
    for (int x = 0; x < picture.Width(); ++x) {
        if (graphics::AlphaOf(row[x]) == 0)
            mask[x / 8] |= 0x80 >> x % 8;
    }
    return mask;
}

// A bitmap of twice the height: rows bottom-up, the colours first and then the mask.
Bytes EncodeBitmap(const Bitmap& picture) {
    const auto width = static_cast<std::size_t>(picture.Width());
    const auto height = static_cast<std::size_t>(picture.Height());
    Bytes bytes;
    bytes.reserve(kBitmapHeaderBytes + height * (width * sizeof(graphics::Argb) + width / 8 + 4));
    Append<std::uint32_t>(bytes, kBitmapHeaderBytes);
    Append<std::int32_t>(bytes, picture.Width());
    Append<std::int32_t>(bytes, picture.Height() * 2);
    Append<std::uint16_t>(bytes, kPlanes);
    Append<std::uint16_t>(bytes, kBitCount);
    Append<std::uint32_t>(bytes, kUncompressed);
    // Readers find out the size of the data, the resolution and the palette by themselves.
    bytes.resize(kBitmapHeaderBytes);
    for (int y = picture.Height() - 1; y >= 0; --y) {
        const auto* row = reinterpret_cast<const std::uint8_t*>(picture.Row(y));
        bytes.insert(bytes.end(), row, row + picture.Width() * sizeof(graphics::Argb));
    }
    for (int y = picture.Height() - 1; y >= 0; --y) {
        const Bytes mask = MaskRow(picture, y);
        bytes.insert(bytes.end(), mask.begin(), mask.end());
    }
    return bytes;
}

Bytes EncodePicture(const Bitmap& picture, IconFormat format, graphics::PngPacking packing) {
    return StandsAsPng(picture, format) ? graphics::EncodePng(picture, packing)
                                        : EncodeBitmap(picture);
}

}  // namespace

bool StandsAsPng(const Bitmap& picture, IconFormat format) {
    const bool is256 = picture.Width() == kMaxIconSide || picture.Height() == kMaxIconSide;
    return format == IconFormat::Png || (format == IconFormat::Png256 && is256);
}

Bytes EncodeIcon(std::span<const Bitmap> pictures, IconFormat format, std::span<const Bytes> pngs,
                 std::span<const Hotspot> hotspots, graphics::PngPacking packing) {
    if (pictures.empty() || pictures.size() > kMaxEntries)
        throw std::invalid_argument("an icon holds 1 to 65535 pictures");
    std::vector<Bytes> own(pictures.size());  // of those that have no PNG yet
    std::size_t bytes = kDirectoryBytes + pictures.size() * kEntryBytes;
    const auto dataOf = [&](std::size_t i) -> const Bytes& {
        return i < pngs.size() && !pngs[i].empty() ? pngs[i] : own[i];
    };
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const Bitmap& picture = pictures[i];
        if (picture.IsEmpty() || IsTooLarge(picture))
            throw std::invalid_argument("a picture of an icon has 1 to 256 pixels a side");
        // Entries have 32 bits, also when the picture came without alpha.
        if (dataOf(i).empty())
            own[i] = EncodePicture(CopyBitmap(picture, picture.Width(), picture.Height()), format,
                                   packing);
        bytes += dataOf(i).size();
    }

    Bytes icon;
    icon.reserve(bytes);
    Append<std::uint16_t>(icon, 0);
    Append<std::uint16_t>(icon, hotspots.empty() ? kIconType : kPointerType);
    Append<std::uint16_t>(icon, static_cast<std::uint16_t>(pictures.size()));

    std::size_t place = kDirectoryBytes + pictures.size() * kEntryBytes;
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        const Bitmap& picture = pictures[i];
        // 256 does not fit into its byte and stands as 0.
        Append<std::uint8_t>(icon, static_cast<std::uint8_t>(picture.Width()));
        Append<std::uint8_t>(icon, static_cast<std::uint8_t>(picture.Height()));
        Append<std::uint8_t>(icon, 0);  // no palette
        Append<std::uint8_t>(icon, 0);
        // Of a pointer where it points stands here.
        const bool isIcon = hotspots.empty();
        Append<std::uint16_t>(icon, isIcon ? kPlanes : static_cast<std::uint16_t>(hotspots[i].X));
        Append<std::uint16_t>(icon, isIcon ? kBitCount : static_cast<std::uint16_t>(hotspots[i].Y));
        Append<std::uint32_t>(icon, static_cast<std::uint32_t>(dataOf(i).size()));
        Append<std::uint32_t>(icon, static_cast<std::uint32_t>(place));
        place += dataOf(i).size();
    }
    for (std::size_t i = 0; i < pictures.size(); ++i)
        icon.insert(icon.end(), dataOf(i).begin(), dataOf(i).end());
    return icon;
}

void CombinePngs(std::span<const std::filesystem::path> pictures,
                 const std::filesystem::path& output, IconFormat format,
                 graphics::PngPacking packing) {
    if (pictures.size() > kMaxCombinedPictures)
        throw std::invalid_argument("more than seven pictures for one icon");
    std::vector<Bitmap> loaded;
    for (const std::filesystem::path& path : pictures) {
        if (path.empty())
            continue;
        loaded.push_back(graphics::LoadImageFromFile(path));
        if (IsTooLarge(loaded.back()))
            throw graphics::FileError(path, "larger than 256 x 256 pixels");
    }
    if (!loaded.empty())
        graphics::WriteFile(output, EncodeIcon(loaded, format, {}, {}, packing));
}

}  // namespace orbelle::formats

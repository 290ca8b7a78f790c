#include <algorithm>
#include <vector>

#include "graphics/codecs/dib.h"
#include "graphics/codecs/image_codecs.h"
#include "graphics/little_endian.h"

namespace orbelle::graphics {
namespace {

constexpr std::size_t kFileHeaderBytes = 14;
constexpr unsigned kInfoHeaderBytes = 40;

DibHeader ReadHeader(DibBytes& bytes) {
    DibHeader header = ReadDibHeader(bytes, kFileHeaderBytes);
    header.PixelsAt = bytes.Long(10);
    // Some writers leave the place out.
    if (header.PixelsAt == 0)
        header.PixelsAt = header.PaletteAt + header.PaletteEntries * header.PaletteEntryBytes;
    if (header.PixelsAt < header.PaletteAt || header.PixelsAt > bytes.Size())
        ThrowDamaged("BMP", "the pixels lie outside the file");
    return header;
}

// Pixels that the runs leave out get the first colour of the palette; what runs reach beyond a row
// is dropped.
void ReadRuns(DibBytes& bytes, const DibHeader& header, Argb* pixels) {
    const std::vector<Argb> palette = ReadDibPalette(bytes, header);
    std::fill_n(pixels, header.Width * header.Height, palette[0]);
    const bool nibbles = header.Bits == 4;
    std::int64_t x = 0;
    std::int64_t y = 0;
    // Puts `count` indexes that stand from `first` on, over and over when they are `repeated`.
    const auto put = [&](std::uint64_t first, unsigned count, bool repeated) {
        Argb* row = header.RowIn(pixels, y);
        const std::int64_t room = std::max<std::int64_t>(header.Width - x, 0);
        for (unsigned i = 0; i < std::min<std::int64_t>(count, room); ++i) {
            const unsigned byte = bytes.Byte(first + (repeated ? 0 : nibbles ? i / 2 : i));
            row[x + i] = palette[!nibbles ? byte : i % 2 == 0 ? byte >> 4 : byte & 15];
        }
        x += count;
    };
    std::uint64_t at = header.PixelsAt;
    while (y < header.Height) {
        const unsigned count = bytes.Byte(at);
        const unsigned escape = bytes.Byte(at + 1);
        at += 2;
        if (count > 0) {
            put(at - 1, count, true);
        } else if (escape == 0) {  // end of the row
            x = 0;
            ++y;
        } else if (escape == 1) {  // end of the picture
            return;
        } else if (escape == 2) {  // jump
            x += bytes.Byte(at);
            y += bytes.Byte(at + 1);
            at += 2;
        } else {
            put(at, escape, false);
            const std::size_t length = nibbles ? (escape + 1) / 2 : escape;
            at += length + length % 2;
        }
    }
}

}  // namespace

Bitmap DecodeBmp(const ByteSource& file, PixelBudget& budget) {
    DibBytes bytes(file);
    const DibHeader header = ReadHeader(bytes);
    budget.Take(header.Width, header.Height);
    if (!header.IsRunLengthCoded())
        RequireDibRows(bytes, header);
    Bitmap image(static_cast<int>(header.Width), static_cast<int>(header.Height));
    if (header.IsRunLengthCoded())
        ReadRuns(bytes, header, image.MutablePixels());
    else
        ReadDibRows(bytes, header, image.MutablePixels());
    return image;
}

std::vector<std::uint8_t> EncodeBmp(const Bitmap& image) {
    if (image.IsEmpty())
        return {};
    constexpr std::uint32_t kHeaderBytes = kFileHeaderBytes + kInfoHeaderBytes;
    constexpr std::uint32_t kPixelsPerMetre = 3780;  // 96 dpi
    const std::uint32_t stride = (image.Width() * 3u + 3) / 4 * 4;
    const std::uint32_t pixelBytes = stride * image.Height();
    std::vector<std::uint8_t> bytes = {'B', 'M'};
    bytes.reserve(kHeaderBytes + pixelBytes);
    Append<std::uint32_t>(bytes, kHeaderBytes + pixelBytes);
    Append<std::uint32_t>(bytes, 0);
    Append<std::uint32_t>(bytes, kHeaderBytes);
    Append<std::uint32_t>(bytes, kInfoHeaderBytes);
    Append<std::int32_t>(bytes, image.Width());
    Append<std::int32_t>(bytes, image.Height());
    Append<std::uint16_t>(bytes, 1);   // planes
    Append<std::uint16_t>(bytes, 24);  // bits
    Append<DibCompression>(bytes, DibCompression::None);
    Append<std::uint32_t>(bytes, pixelBytes);
    Append<std::uint32_t>(bytes, kPixelsPerMetre);
    Append<std::uint32_t>(bytes, kPixelsPerMetre);
    Append<std::uint32_t>(bytes, 0);  // palette entries
    Append<std::uint32_t>(bytes, 0);  // of these needed
    bytes.resize(kHeaderBytes + pixelBytes);
    for (int y = 0; y < image.Height(); ++y) {
        const Argb* from = image.Row(y);
        std::uint8_t* to =
            bytes.data() + kHeaderBytes + std::size_t{stride} * (image.Height() - 1 - y);
        for (int x = 0; x < image.Width(); ++x, to += 3) {
            to[0] = static_cast<std::uint8_t>(BlueOf(from[x]));
            to[1] = static_cast<std::uint8_t>(GreenOf(from[x]));
            to[2] = static_cast<std::uint8_t>(RedOf(from[x]));
        }
    }
    return bytes;
}

}  // namespace orbelle::graphics

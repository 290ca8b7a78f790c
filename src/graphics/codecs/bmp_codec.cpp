#include <algorithm>
#include <array>
#include <bit>
#include <cstdlib>
#include <span>
#include <vector>

#include "graphics/codecs/image_codecs.h"
#include "graphics/little_endian.h"

namespace orbelle::graphics {
namespace {

constexpr std::size_t kFileHeaderBytes = 14;
constexpr unsigned kCoreHeaderBytes = 12;
constexpr unsigned kInfoHeaderBytes = 40;
constexpr unsigned kOs2HeaderBytes = 64;

enum class BmpCompression : std::uint32_t {
    None = 0,
    Rle8 = 1,
    Rle4 = 2,
    Masks = 3,
    MasksWithAlpha = 6,
};

// The file by absolute places, of which a piece at a time stands in memory. A read beyond the end
// throws.
class Bytes {
public:
    explicit Bytes(const ByteSource& file) : file_(file) {}

    std::uint64_t Size() const { return file_.Size(); }
    unsigned Byte(std::uint64_t at) { return Number<std::uint8_t>(at); }
    unsigned Short(std::uint64_t at) { return Number<std::uint16_t>(at); }
    std::uint32_t Long(std::uint64_t at) { return Number<std::uint32_t>(at); }

    // So many bytes in a row, until others are asked for.
    std::span<const std::uint8_t> At(std::uint64_t at, std::size_t count) {
        if (at > Size() || Size() - at < count)
            ThrowDamaged("BMP", "the data ends too early");
        if (at < begin_ || at + count > begin_ + piece_.size()) {
            constexpr std::size_t kPieceBytes = std::size_t{64} << 10;
            begin_ = at;
            piece_.resize(std::min<std::uint64_t>(Size() - at, std::max(count, kPieceBytes)));
            piece_.resize(file_.ReadAt(at, piece_));
            if (piece_.size() < count)
                ThrowDamaged("BMP", "the data can't be read");
        }
        return std::span(piece_).subspan(at - begin_, count);
    }

private:
    template <typename Type>
    Type Number(std::uint64_t at) {
        return NumberAt<Type>(At(at, sizeof(Type)), 0);
    }

    const ByteSource& file_;
    std::vector<std::uint8_t> piece_;
    std::uint64_t begin_ = 0;  // of the piece in the file
};

struct ChannelMasks {
    std::uint32_t Red = 0;
    std::uint32_t Green = 0;
    std::uint32_t Blue = 0;
    std::uint32_t Alpha = 0;
};

struct Header {
    std::int64_t Width = 0;
    std::int64_t Height = 0;
    bool TopDown = false;
    unsigned Bits = 0;
    BmpCompression Compression = BmpCompression::None;
    ChannelMasks Masks;
    std::uint64_t PaletteAt = 0;
    std::size_t PaletteEntries = 0;
    std::size_t PaletteEntryBytes = 4;
    std::uint64_t PixelsAt = 0;

    // Bytes from one row to the next in an uncompressed file.
    std::int64_t Stride() const { return (Width * Bits + 31) / 32 * 4; }

    // Of a row without its padding, which the last one may lack.
    std::int64_t RowBytes() const { return (Width * Bits + 7) / 8; }

    // Where a row of the file stands in a bitmap of Width x Height pixels.
    Argb* RowIn(Argb* pixels, std::int64_t fileRow) const {
        return pixels + (TopDown ? fileRow : Height - 1 - fileRow) * Width;
    }
};

bool IsKnownCombination(unsigned bits, BmpCompression compression, unsigned headerBytes) {
    switch (compression) {
        case BmpCompression::None:
            return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
        case BmpCompression::Rle8:
            return bits == 8;
        case BmpCompression::Rle4:
            return bits == 4;
        case BmpCompression::Masks:
        case BmpCompression::MasksWithAlpha:
            // In the OS/2 header these numbers stand for other things.
            return (bits == 16 || bits == 32) && headerBytes != kOs2HeaderBytes;
    }
    return false;
}

ChannelMasks ReadMasks(Bytes& bytes, const Header& header, unsigned headerBytes) {
    const std::size_t at = kFileHeaderBytes + kInfoHeaderBytes;
    const bool own = header.Compression != BmpCompression::None;
    ChannelMasks masks = header.Bits == 16 ? ChannelMasks{0x7C00, 0x03E0, 0x001F, 0}
                                           : ChannelMasks{0x00FF0000, 0x0000FF00, 0x000000FF, 0};
    if (own)
        masks = {bytes.Long(at), bytes.Long(at + 4), bytes.Long(at + 8), 0};
    // Version 3 and later have an alpha mask of their own, in older ones the compression tells.
    const bool hasAlpha = headerBytes >= 56 && headerBytes != kOs2HeaderBytes;
    if ((hasAlpha && (own || header.Bits == 32)) ||
        header.Compression == BmpCompression::MasksWithAlpha)
        masks.Alpha = bytes.Long(at + 12);
    return masks;
}

Header ReadHeader(Bytes& bytes) {
    Header header;
    const unsigned headerBytes = bytes.Long(kFileHeaderBytes);
    std::uint32_t colorsUsed = 0;
    if (headerBytes == kCoreHeaderBytes) {
        header.Width = bytes.Short(18);
        header.Height = bytes.Short(20);
        header.Bits = bytes.Short(24);
        header.PaletteEntryBytes = 3;
    } else if (headerBytes >= kInfoHeaderBytes) {
        header.Width = static_cast<std::int32_t>(bytes.Long(18));
        header.Height = static_cast<std::int32_t>(bytes.Long(22));
        header.Bits = bytes.Short(28);
        header.Compression = static_cast<BmpCompression>(bytes.Long(30));
        colorsUsed = bytes.Long(46);
    } else {
        ThrowDamaged("BMP", "unknown header");
    }
    header.TopDown = header.Height < 0;
    header.Height = std::abs(header.Height);
    CheckDeclaredSize(header.Width, header.Height);
    if (!IsKnownCombination(header.Bits, header.Compression, headerBytes))
        throw ImageError("the BMP picture is of a kind that is not supported");
    if (header.Bits == 16 || header.Bits == 32)
        header.Masks = ReadMasks(bytes, header, headerBytes);

    header.PaletteAt = kFileHeaderBytes + std::uint64_t{headerBytes};
    // In the oldest header with masks they follow it.
    if (headerBytes == kInfoHeaderBytes && header.Compression == BmpCompression::Masks)
        header.PaletteAt += 12;
    if (headerBytes == kInfoHeaderBytes && header.Compression == BmpCompression::MasksWithAlpha)
        header.PaletteAt += 16;
    if (header.Bits <= 8) {
        const std::size_t all = std::size_t{1} << header.Bits;
        header.PaletteEntries = colorsUsed ? std::min<std::size_t>(all, colorsUsed) : all;
    }
    header.PixelsAt = bytes.Long(10);
    // Some writers leave the place out.
    if (header.PixelsAt == 0)
        header.PixelsAt = header.PaletteAt + header.PaletteEntries * header.PaletteEntryBytes;
    if (header.PixelsAt < header.PaletteAt || header.PixelsAt > bytes.Size())
        ThrowDamaged("BMP", "the pixels lie outside the file");
    return header;
}

// Indexes that the file gives no colour for are opaque black.
std::array<Argb, 256> ReadPalette(Bytes& bytes, const Header& header) {
    std::array<Argb, 256> palette;
    palette.fill(MakeArgb(255, 0, 0, 0));
    const std::uint64_t room = (header.PixelsAt - header.PaletteAt) / header.PaletteEntryBytes;
    for (std::size_t i = 0; i < std::min<std::uint64_t>(header.PaletteEntries, room); ++i) {
        const auto entry = bytes.At(header.PaletteAt + i * header.PaletteEntryBytes, 3);
        palette[i] = MakeArgb(255, entry[2], entry[1], entry[0]);
    }
    return palette;
}

// The bits of a mask, as 0 to 255. Of a channel with more than 8 bits the upper 8 count.
class Channel {
public:
    Channel(std::uint32_t mask, std::uint8_t withoutMask) {
        table_.fill(withoutMask);
        if (mask == 0)
            return;
        const int bits = std::popcount(mask);
        if (mask >> std::countr_zero(mask) != (std::uint64_t{1} << bits) - 1)
            ThrowDamaged("BMP", "a channel's bits are not in a row");
        const int used = std::min(bits, 8);
        shift_ = std::countr_zero(mask) + bits - used;
        maximum_ = (1u << used) - 1;
        for (unsigned value = 0; value <= maximum_; ++value)
            table_[value] =
                static_cast<std::uint8_t>((value * 255 * 2 + maximum_) / (maximum_ * 2));
    }

    unsigned Of(std::uint32_t pixel) const { return table_[pixel >> shift_ & maximum_]; }

private:
    std::array<std::uint8_t, 256> table_;
    int shift_ = 0;
    unsigned maximum_ = 0;
};

void CheckRowsAreThere(Bytes& bytes, const Header& header) {
    const std::int64_t needed = header.Stride() * (header.Height - 1) + header.RowBytes();
    if (needed > static_cast<std::int64_t>(bytes.Size() - header.PixelsAt))
        ThrowDamaged("BMP", "too little data for its size");
}

// Has `convert` make each row of pixels from the bytes of one row.
template <typename Convert>
void ReadRows(Bytes& bytes, const Header& header, Argb* pixels, Convert convert) {
    for (std::int64_t y = 0; y < header.Height; ++y) {
        const auto row = bytes.At(header.PixelsAt + y * header.Stride(), header.RowBytes());
        convert(row.data(), header.RowIn(pixels, y));
    }
}

void ReadIndexRows(Bytes& bytes, const Header& header, Argb* pixels) {
    const std::array<Argb, 256> palette = ReadPalette(bytes, header);
    const unsigned bits = header.Bits;
    const unsigned perByte = 8 / bits;
    const unsigned mask = (1u << bits) - 1;
    ReadRows(bytes, header, pixels, [&](const std::uint8_t* from, Argb* to) {
        for (unsigned x = 0; x < header.Width; ++x)
            to[x] = palette[from[x / perByte] >> (8 - bits - x % perByte * bits) & mask];
    });
}

void ReadTrueColorRows(Bytes& bytes, const Header& header, Argb* pixels) {
    ReadRows(bytes, header, pixels, [&](const std::uint8_t* from, Argb* to) {
        for (std::int64_t x = 0; x < header.Width; ++x, from += 3)
            to[x] = MakeArgb(255, from[2], from[1], from[0]);
    });
}

void ReadMaskedRows(Bytes& bytes, const Header& header, Argb* pixels) {
    const Channel red(header.Masks.Red, 0);
    const Channel green(header.Masks.Green, 0);
    const Channel blue(header.Masks.Blue, 0);
    const Channel alpha(header.Masks.Alpha, 255);
    const std::size_t pixelBytes = header.Bits / 8;
    ReadRows(bytes, header, pixels, [&](const std::uint8_t* from, Argb* to) {
        for (std::int64_t x = 0; x < header.Width; ++x, from += pixelBytes) {
            const auto pixel = NumberAt<std::uint32_t>({from, pixelBytes}, 0);
            to[x] = MakeArgb(alpha.Of(pixel), red.Of(pixel), green.Of(pixel), blue.Of(pixel));
        }
    });
}

// Pixels that the runs leave out get the first colour of the palette; what runs reach beyond a row
// is dropped.
void ReadRuns(Bytes& bytes, const Header& header, Argb* pixels) {
    const std::array<Argb, 256> palette = ReadPalette(bytes, header);
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
    Bytes bytes(file);
    const Header header = ReadHeader(bytes);
    budget.Take(header.Width, header.Height);
    const bool runs =
        header.Compression == BmpCompression::Rle8 || header.Compression == BmpCompression::Rle4;
    if (!runs)
        CheckRowsAreThere(bytes, header);
    Bitmap image(static_cast<int>(header.Width), static_cast<int>(header.Height));
    Argb* pixels = image.MutablePixels();
    if (runs)
        ReadRuns(bytes, header, pixels);
    else if (header.Bits <= 8)
        ReadIndexRows(bytes, header, pixels);
    else if (header.Bits == 24)
        ReadTrueColorRows(bytes, header, pixels);
    else
        ReadMaskedRows(bytes, header, pixels);
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
    Append<BmpCompression>(bytes, BmpCompression::None);
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
